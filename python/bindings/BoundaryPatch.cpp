#include "physics/BoundaryPatch.h"

#include "python/bindings/Bindings.h"

namespace physics::python {

using pybind11::arg;

void bind(Binding<BoundaryPatch>& type)
{
    type.def("id", &BoundaryPatch::id)
        .def("boundary", always(&BoundaryPatch::boundary))
        .def("interface", &BoundaryPatch::interface)
        .def("volume", always(&BoundaryPatch::volume))
        .def("volumeType", &BoundaryPatch::volumeType)
        .def("shellType", &BoundaryPatch::shellType)
        .def("interfaceType", &BoundaryPatch::interfaceType)
        .def("model", &BoundaryPatch::model, arg("kind"))
        .def("settings", &BoundaryPatch::settings, arg("kind"))
        .def("boundarySettings", &BoundaryPatch::boundarySettings)
        .def("shellSettings", &BoundaryPatch::shellSettings)
        .def("interfaceSettings", &BoundaryPatch::interfaceSettings)
        .def("isChild", &BoundaryPatch::isChild)
        .def("pairedPatch", &BoundaryPatch::pairedPatch)
        .def("name", &BoundaryPatch::name)
        .as(
            "report", "dump",
            [](const Self<BoundaryPatch>& self, bool closes) {
                const BoundaryPatch& patch = present<BoundaryPatch>(self).object();
                return written([&](std::ostream& stream) { patch.dump(stream, closes); });
            },
            arg("closes") = false);
}

} // namespace physics::python
