#include "physics/Settings.h"

#include "python/bindings/Bindings.h"

namespace physics::python {

using pybind11::arg;

void bind(Binding<Settings>& type)
{
    type.iterates(&Settings::threadBundles)
        .def("id", &Settings::id)
        .def("type", &Settings::type)
        .def("topologyType", &Settings::topologyType)
        .def("model", &Settings::model)
        .def("volume", &Settings::volume)
        .def("interface", &Settings::interface)
        .def("boundary", &Settings::boundary)
        .def("boundaryPatch", &Settings::boundaryPatch)
        .def("name", &Settings::name)
        .def("isActive", &Settings::isActive)
        .def("createThreadBundle", &Settings::createThreadBundle, arg("index"), arg("type"), arg("thread_id"),
             arg("domain_ids"))
        .def("deleteThreadBundle", &Settings::deleteThreadBundle, arg("index"))
        .def("threadBundle", &Settings::threadBundle, arg("index"))
        .def("primaryThreadBundle", &Settings::primaryThreadBundle)
        .def("threadBundleWithThreadId", &Settings::threadBundleWithThreadId, arg("thread_id"))
        .def("threadBundles", &Settings::threadBundles)
        .def("threadIds", &Settings::threadIds)
        .def("threadId", &Settings::threadId, arg("index"))
        .def("threadType", &Settings::threadType, arg("index"))
        .def("solverThreadType", &Settings::solverThreadType, arg("index"))
        .def("domainIds", &Settings::domainIds, arg("index"))
        .def("thread", &Settings::thread, arg("index"), arg("slot"))
        .def("threads", &Settings::threads)
        .def("hasThreads", &Settings::hasThreads)
        .as(
            "report", "dump",
            [](const Self<Settings>& self, bool closes, const Text& heading) {
                const Settings& settings = present<Settings>(self).object();
                return written([&](std::ostream& stream) { settings.dump(stream, closes, heading.bytes); });
            },
            arg("closes") = false, arg("heading") = Text());
}

} // namespace physics::python
