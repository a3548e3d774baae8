#include "physics/ThreadBundle.h"

#include "python/bindings/Bindings.h"

namespace physics::python {

using pybind11::arg;
using pybind11::overload_cast;

void bind(Binding<ThreadBundle>& type)
{
    type.def("id", &ThreadBundle::id)
        .def("threadId", &ThreadBundle::threadId)
        .def("setThreadId", &ThreadBundle::setThreadId, arg("thread_id"))
        .def("settings", always(&ThreadBundle::settings))
        .def("index", &ThreadBundle::index)
        .def("isPrimary", &ThreadBundle::isPrimary)
        .def("threadType", &ThreadBundle::threadType)
        .def("setThreadType", &ThreadBundle::setThreadType, arg("type"))
        .def("solverThreadType", &ThreadBundle::solverThreadType)
        .def("addDomainId", &ThreadBundle::addDomainId, arg("id"))
        .def("removeDomainId", &ThreadBundle::removeDomainId, arg("id"))
        .def("setDomainIds", &ThreadBundle::setDomainIds, arg("ids"))
        .def("domainIds", &ThreadBundle::domainIds)
        .def("setZoneIds", &ThreadBundle::setZoneIds, arg("ids"))
        .def("zoneIds", wrap(overload_cast<>(&ThreadBundle::zoneIds, pybind11::const_)))
        .def("hasOwnZones", &ThreadBundle::hasOwnZones)
        .def("registerThread", &ThreadBundle::registerThread, arg("slot"), arg("handle"))
        .def("thread", &ThreadBundle::thread, arg("slot"))
        .def("clearThreads", &ThreadBundle::clearThreads)
        .def("threads", &ThreadBundle::threads)
        .def("adjacentThreadBundles", &ThreadBundle::adjacentThreadBundles)
        .as(
            "report", "dump",
            [](const Self<ThreadBundle>& self, const Text& prefix) {
                const ThreadBundle& bundle = present<ThreadBundle>(self).object();
                return written([&](std::ostream& stream) { bundle.dump(stream, prefix.bytes); });
            },
            arg("prefix") = Text());
}

} // namespace physics::python
