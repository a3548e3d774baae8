#include "physics/Interface.h"

#include "locationmodel/Explain.h"
#include "python/bindings/Bindings.h"

namespace physics::python {

using pybind11::arg;

namespace {

/// The location model's interface is gone once ours has ended.
Text explanation(const Self<Interface>& self)
{
    const gtm::Interface* const interface = present<Interface>(self).object().interface();
    return {interface == nullptr ? "The interface has ended." : gtm::bundled::explain(*interface)};
}

void bindPeriodicity(Binding<Interface>& type)
{
    type.def("periodicity", &Interface::periodicity)
        .def("isPeriodic", &Interface::isPeriodic)
        .def("setTranslationalPeriodicity", &Interface::setTranslationalPeriodicity, arg("offset"))
        .def("setRotationalPeriodicity", &Interface::setRotationalPeriodicity, arg("angle"), arg("origin"),
             arg("direction"))
        .def("setNonPeriodic", &Interface::setNonPeriodic)
        .def("getPeriodicOffset", &Interface::getPeriodicOffset)
        .def("getPeriodicAngle", &Interface::getPeriodicAngle)
        .def("getPeriodicOrigin", &Interface::getPeriodicOrigin)
        .def("getPeriodicDirection", &Interface::getPeriodicDirection);
}

} // namespace

void bind(Binding<Interface>& type)
{
    type.def("type", &Interface::type)
        .def("setType", &Interface::setType, arg("type"))
        .def("model", &Interface::model)
        .def("setModel", needing(&Interface::setModel), arg("model"))
        .def("physics", always(&Interface::physics))
        .def("boundary", &Interface::boundary, arg("side"))
        .def("volume", &Interface::volume, arg("side"))
        .def("otherBoundary", &Interface::otherBoundary, arg("boundary"))
        .def("settings", &Interface::settings)
        .def("boundarySettings", &Interface::boundarySettings, arg("side"))
        .def("boundaryShellSettings", &Interface::boundaryShellSettings, arg("side"))
        .def("boundaryInterfaceSettings", &Interface::boundaryInterfaceSettings, arg("side"))
        .def("volumeSettings", &Interface::volumeSettings, arg("side"))
        .def("requiresBoundaryInterfaceSettings", &Interface::requiresBoundaryInterfaceSettings)
        .def("allowedBoundaryTypes", &Interface::allowedBoundaryTypes, arg("volume_type"))
        .def("isAllowedBoundaryType", &Interface::isAllowedBoundaryType, arg("volume_type"), arg("boundary_type"))
        .def("meshConnectivity", &Interface::meshConnectivity)
        .def("setMeshConnectivity", &Interface::setMeshConnectivity, arg("value"))
        .def("isMapped", &Interface::isMapped)
        .def("isStatic", &Interface::isStatic)
        .def("isMeshValid", &Interface::isMeshValid)
        .def("setIsMapped", &Interface::setIsMapped, arg("value"))
        .def("setIsStatic", &Interface::setIsStatic, arg("value"))
        .def("setIsMeshValid", &Interface::setIsMeshValid, arg("value"))
        .def("connectivity", &Interface::connectivity)
        .def("isSliding", &Interface::isSliding)
        .def("relocate", &Interface::relocate, arg("first"), arg("second"), arg("enforce_restrictions"))
        .def("destroy", &Interface::destroy)
        .more("explain", explanation,
              "Why the location model does not call the interface valid, in whole sentences; empty when it does.");
    bindPeriodicity(type);
}

} // namespace physics::python
