#pragma once

#include "python/bindings/Binding.h"

#include <vector>

namespace physics::python {

/// Which types may be used where: members that `TypeManager` and `Physics` have alike.
template <class T>
void bindAllowedTypes(Binding<T>& type)
{
    using pybind11::arg;
    using BoundaryTypes = std::vector<BoundaryType> (T::*)();

    type.def("allowedVolumeTypes", &T::allowedVolumeTypes)
        .def("allowedThreadTypes", &T::allowedThreadTypes)
        .def("allowedDomainTypes", &T::allowedDomainTypes)
        .def("allowedBoundaryTags", &T::allowedBoundaryTags)
        .def("allowedPeriodicities", &T::allowedPeriodicities)
        .def("allowedConnectivities", &T::allowedConnectivities)
        .def("allowedMeshConnectivities", &T::allowedMeshConnectivities)
        .def("allowedBoundaryTypes", BoundaryTypes(&T::allowedBoundaryTypes))
        .def("allowedBoundaryTypes", pybind11::overload_cast<VolumeType>(&T::allowedBoundaryTypes), arg("volume_type"))
        .def("allowedBoundaryTypes", pybind11::overload_cast<InterfaceType, VolumeType>(&T::allowedBoundaryTypes),
             arg("interface_type"), arg("volume_type"))
        .def("allowedBoundaryTypes", pybind11::overload_cast<ShellType>(&T::allowedBoundaryTypes), arg("shell_type"))
        .def("allowedInterfaceTypes", pybind11::overload_cast<>(&T::allowedInterfaceTypes))
        .def("allowedInterfaceTypes", pybind11::overload_cast<BoundaryType, VolumeType>(&T::allowedInterfaceTypes),
             arg("boundary_type"), arg("volume_type"))
        .def("allowedShellTypes", pybind11::overload_cast<>(&T::allowedShellTypes))
        .def("allowedShellTypes", pybind11::overload_cast<BoundaryType>(&T::allowedShellTypes), arg("boundary_type"))
        .def("allowedInternalBoundaryTypes", &T::allowedInternalBoundaryTypes)
        .def("allowedExternalBoundaryTypes", &T::allowedExternalBoundaryTypes)
        .def("defaultBoundaryType", &T::defaultBoundaryType, arg("volume_type"))
        .def("isAllowedBoundaryType",
             pybind11::overload_cast<VolumeType, BoundaryType>(&T::isAllowedBoundaryType, pybind11::const_),
             arg("volume_type"), arg("boundary_type"))
        .def("isAllowedBoundaryType",
             pybind11::overload_cast<InterfaceType, VolumeType, BoundaryType>(&T::isAllowedBoundaryType,
                                                                              pybind11::const_),
             arg("interface_type"), arg("volume_type"), arg("boundary_type"))
        .def("isAllowedInterfaceType", &T::isAllowedInterfaceType, arg("boundary_type"), arg("volume_type"),
             arg("interface_type"))
        .def("isAllowedShellType", &T::isAllowedShellType, arg("boundary_type"), arg("shell_type"))
        .def("isInternalBoundaryType", &T::isInternalBoundaryType, arg("boundary_type"))
        .def("isSharedInterfaceType", &T::isSharedInterfaceType, arg("interface_type"));
}

} // namespace physics::python
