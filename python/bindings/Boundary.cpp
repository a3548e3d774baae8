#include "physics/Boundary.h"

#include "locationmodel/Explain.h"
#include "python/bindings/Bindings.h"
#include "python/bindings/PlacedAt.h"

namespace physics::python {

using pybind11::arg;
using pybind11::none;
using pybind11::overload_cast;

using Regions = const std::vector<gtm::Region*>&;

namespace {

void bindPatches(Binding<Boundary>& type)
{
    type.iterates(&Boundary::patches)
        .def("noOfInterfaces", &Boundary::noOfInterfaces)
        .def("interfaces", &Boundary::interfaces)
        .def("patch", &Boundary::patch, arg("interface") = none())
        .def("patches", &Boundary::patches)
        .def("settings", &Boundary::settings, arg("kind"), arg("interface") = none())
        .def("boundarySettings", &Boundary::boundarySettings, arg("interface") = none())
        .def("shellSettings", &Boundary::shellSettings, arg("interface") = none())
        .def("interfaceSettings", &Boundary::interfaceSettings, arg("interface") = none())
        .def("nonOverlappingBoundarySettings", &Boundary::nonOverlappingBoundarySettings)
        .def("nonOverlappingShellSettings", &Boundary::nonOverlappingShellSettings)
        .def("allBoundarySettings", each(&Boundary::allBoundarySettings))
        .def("allShellSettings", each(&Boundary::allShellSettings))
        .def("allInterfaceSettings", &Boundary::allInterfaceSettings)
        .def("allSettings", each(&Boundary::allSettings));
}

} // namespace

void bind(Binding<Boundary>& type)
{
    type.def("type", &Boundary::type)
        .def("setBoundaryType", &Boundary::setBoundaryType, arg("type"))
        .def("shellType", &Boundary::shellType)
        .def("setShellType", &Boundary::setShellType, arg("type"))
        .def("shellModel", &Boundary::shellModel)
        .def("setShellModel", &Boundary::setShellModel, arg("model"))
        .def("volume", always(&Boundary::volume))
        .def("volumeModel", &Boundary::volumeModel)
        .def("volumeType", &Boundary::volumeType)
        .def("isDefaultBoundary", &Boundary::isDefaultBoundary)
        .def("location", placedAt<Boundary>)
        .def("faceUses", &Boundary::faceUses)
        .def("unresolvableNames", &Boundary::unresolvableNames)
        .def("overlap", &Boundary::overlap, arg("other"))
        .def("overlappingBoundaries", each(&Boundary::overlappingBoundaries))
        .def("isInternal", &Boundary::isInternal)
        .def("couldBeInternal", &Boundary::couldBeInternal)
        .def("pair", &Boundary::pair)
        .def("allowedInterfaceTypes", &Boundary::allowedInterfaceTypes)
        .def("isAllowedInterfaceType", &Boundary::isAllowedInterfaceType, arg("type"))
        .def("allowedShellTypes", &Boundary::allowedShellTypes)
        .def("isAllowedShellType", &Boundary::isAllowedShellType, arg("type"))
        .def("addTag", &Boundary::addTag, arg("tag"))
        .def("removeTag", &Boundary::removeTag, arg("tag"))
        .def("hasTag", &Boundary::hasTag, arg("tag"))
        .def("tags", &Boundary::tags)
        .def("zoneIds", &Boundary::zoneIds)
        .def("hasExternalRegion", &Boundary::hasExternalRegion)
        .def("relocate", wrap(overload_cast<const std::string&, bool>(&Boundary::relocate)), arg("location"),
             arg("enforce_restrictions"))
        .def("relocate", wrap(overload_cast<Regions, bool>(&Boundary::relocate)), arg("regions"),
             arg("enforce_restrictions"))
        .def("remove", &Boundary::remove, arg("regions"))
        .def("destroy", &Boundary::destroy)
        .more(
            "explain",
            [](const Self<Boundary>& self) {
                return Text{gtm::bundled::explain(*present<Boundary>(self).object().boundary())};
            },
            "Why the location model does not call the boundary valid, in whole sentences; empty when it does.");
    bindPatches(type);
}

} // namespace physics::python
