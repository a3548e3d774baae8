#include "physics/Model.h"

#include "python/bindings/Bindings.h"

namespace physics::python {

using pybind11::arg;
using pybind11::overload_cast;

void bind(Binding<Model>& type)
{
    using ConstVolume = const Volume*;
    using ConstInterface = const Interface*;
    using ConstBoundary = const Boundary*;

    type.iterates(&Model::volumes)
        .def("id", &Model::id)
        .def("physics", always(&Model::physics))
        .def("addDomain", &Model::addDomain, arg("id"), arg("type"), arg("name"))
        .def("removeDomain", &Model::removeDomain, arg("id"))
        .def("domainIds", &Model::domainIds)
        .def("domainIdsOfType", &Model::domainIdsOfType, arg("type"))
        .def("domainName", &Model::domainName, arg("id"))
        .def("domainSymbol", &Model::domainSymbol, arg("id"))
        .def("domainType", &Model::domainType, arg("id"))
        .def("settings", wrap(overload_cast<ConstVolume>(&Model::settings)), arg("volume"))
        .def("settings", needing(overload_cast<ConstInterface>(&Model::settings)), arg("interface"))
        .def("settings", wrap(overload_cast<const BoundaryPatch*, SettingsType>(&Model::settings)), arg("patch"),
             arg("kind"))
        .def("settings", wrap(overload_cast<>(&Model::settings, pybind11::const_)))
        .def("internalSettings", wrap(overload_cast<ConstVolume>(&Model::internalSettings)), arg("volume"))
        .def("internalSettings", wrap(overload_cast<>(&Model::internalSettings, pybind11::const_)))
        .def("volumes", &Model::volumes)
        .def("interfaces", &Model::interfaces)
        .def("boundaries", &Model::boundaries)
        .def("boundaryPatches", &Model::boundaryPatches)
        .def("volumeSettings", wrap(overload_cast<ConstBoundary>(&Model::volumeSettings, pybind11::const_)),
             arg("boundary"))
        .def("volumeSettings", wrap(overload_cast<>(&Model::volumeSettings, pybind11::const_)))
        .def("shellSettings", &Model::shellSettings, arg("boundary"))
        .def("interfaceSettings", &Model::interfaceSettings)
        .def("boundaryPatchSettings", &Model::boundaryPatchSettings)
        .as("report", "dump",
            [](const Self<Model>& self) {
                const Model& model = present<Model>(self).object();
                return written([&](std::ostream& stream) { model.dump(stream); });
            })
        .as(
            "report_domains", "dumpDomains",
            [](const Self<Model>& self, const Text& prefix) {
                const Model& model = present<Model>(self).object();
                return written([&](std::ostream& stream) { model.dumpDomains(stream, prefix.bytes); });
            },
            arg("prefix") = Text())
        .def("destroy", &Model::destroy);
}

} // namespace physics::python
