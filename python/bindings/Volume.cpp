#include "physics/Volume.h"

#include "locationmodel/Explain.h"
#include "python/bindings/Bindings.h"
#include "python/bindings/Creation.h"
#include "python/bindings/PlacedAt.h"

namespace physics::python {

using pybind11::arg;
using pybind11::overload_cast;

using Regions = const std::vector<gtm::Region*>&;

void bind(Binding<Volume>& type)
{
    type.iterates(&Volume::boundaries)
        .def("type", &Volume::type)
        .def("setType", &Volume::setType, arg("type"))
        .def("model", &Volume::model)
        .def("setModel", needing(&Volume::setModel), arg("model"))
        .def("physics", always(&Volume::physics))
        .def("activationGroup", &Volume::activationGroup)
        .def("activate", &Volume::activate)
        .def("deactivate", &Volume::deactivate)
        .def("isDefaultVolume", &Volume::isDefaultVolume)
        .def("defaultBoundary", &Volume::defaultBoundary)
        .def("hasDefaultBoundary", &Volume::hasDefaultBoundary)
        .def("location", placedAt<Volume>)
        .def("bodies", &Volume::bodies)
        .def("internalFaces", &Volume::internalFaces)
        .def("unusedFaceUses", &Volume::unusedFaceUses)
        .def("unusedInternalFaces", &Volume::unusedInternalFaces)
        .def("unresolvableNames", &Volume::unresolvableNames)
        .def("overlap", &Volume::overlap, arg("other"))
        .def("overlappingVolumes", each(&Volume::overlappingVolumes))
        .def("settings", &Volume::settings)
        .def("internalSettings", &Volume::internalSettings)
        .def("defaultBoundaryType", &Volume::defaultBoundaryType)
        .def("allowedBoundaryTypes", &Volume::allowedBoundaryTypes)
        .def("isAllowedBoundaryType", &Volume::isAllowedBoundaryType, arg("type"))
        .def("createBoundary",
             created(overload_cast<const std::string&, const std::string&, BoundaryType>(&Volume::createBoundary)),
             arg("name"), arg("location"), arg("type") = BoundaryType::Unset)
        .def("createBoundary",
             created(overload_cast<const std::string&, Regions, BoundaryType>(&Volume::createBoundary)), arg("name"),
             arg("regions"), arg("type") = BoundaryType::Unset)
        .def("createDefaultBoundary", created(&Volume::createDefaultBoundary), arg("name"),
             arg("type") = BoundaryType::Unset)
        .def("boundaries", &Volume::boundaries)
        .def("relocate", wrap(overload_cast<const std::string&, bool>(&Volume::relocate)), arg("location"),
             arg("enforce_restrictions"))
        .def("relocate", wrap(overload_cast<Regions, bool>(&Volume::relocate)), arg("regions"),
             arg("enforce_restrictions"))
        .def("remove", wrap(overload_cast<Regions>(&Volume::remove)), arg("regions"))
        .def("zoneIds", &Volume::zoneIds)
        .def("internalZoneIds", wrap(overload_cast<>(&Volume::internalZoneIds, pybind11::const_)))
        .def("destroy", &Volume::destroy)
        .more(
            "explain",
            [](const Self<Volume>& self) {
                return Text{gtm::bundled::explain(*present<Volume>(self).object().interior())};
            },
            "Why the location model does not call the volume valid, in whole sentences; empty when it does.");
}

} // namespace physics::python
