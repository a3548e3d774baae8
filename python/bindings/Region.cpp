#include "physics/Region.h"

#include "python/bindings/Bindings.h"

namespace physics::python {

using pybind11::arg;

void bind(Binding<physics::Region>& type)
{
    type.def("name", &physics::Region::name)
        .def("fullName", &physics::Region::fullName)
        .def("id", &physics::Region::id)
        .def("state", &physics::Region::state)
        .def("topologyType", &physics::Region::topologyType)
        .def("isActive", &physics::Region::isActive)
        .def("isEmpty", &physics::Region::isEmpty)
        .def("rename", &physics::Region::rename, arg("name"))
        .def("isTopologyValid", &physics::Region::isTopologyValid, arg("lenient") = false)
        .def("isPhysicsValid", &physics::Region::isPhysicsValid, arg("lenient") = false)
        .def("isValid", &physics::Region::isValid, arg("lenient") = false)
        .def("validate", &physics::Region::validate, arg("ignore_warnings") = false)
        .as(
            "report", "dump",
            [](const Self<physics::Region>& self, bool closes) {
                const physics::Region& region = present<physics::Region>(self).object();
                return written([&](std::ostream& stream) { region.dump(stream, closes); });
            },
            arg("closes") = false);
}

} // namespace physics::python
