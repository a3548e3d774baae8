// The members of Physics that answer from the vocabulary alone.

#include "physics/Physics.h"

#include "physics/TypeNames.h"

namespace physics {

template <>
std::string Physics::typeToName(BoundaryTag value) const
{
    return displayName(value);
}
template <>
std::string Physics::typeToName(BoundaryType value) const
{
    return displayName(value);
}
template <>
std::string Physics::typeToName(Connectivity value) const
{
    return displayName(value);
}
template <>
std::string Physics::typeToName(DomainType value) const
{
    return displayName(value);
}
template <>
std::string Physics::typeToName(InterfaceType value) const
{
    return displayName(value);
}
template <>
std::string Physics::typeToName(MeshConnectivity value) const
{
    return displayName(value);
}
template <>
std::string Physics::typeToName(Periodicity value) const
{
    return displayName(value);
}
template <>
std::string Physics::typeToName(SettingsType value) const
{
    return displayName(value);
}
template <>
std::string Physics::typeToName(ShellType value) const
{
    return displayName(value);
}
template <>
std::string Physics::typeToName(ThreadType value) const
{
    return displayName(value);
}
template <>
std::string Physics::typeToName(TopologyType value) const
{
    return displayName(value);
}
template <>
std::string Physics::typeToName(VolumeType value) const
{
    return displayName(value);
}

template <>
std::string Physics::typeToSchemeName(BoundaryTag value) const
{
    return schemeName(value);
}
template <>
std::string Physics::typeToSchemeName(BoundaryType value) const
{
    return schemeName(value);
}
template <>
std::string Physics::typeToSchemeName(Connectivity value) const
{
    return schemeName(value);
}
template <>
std::string Physics::typeToSchemeName(DomainType value) const
{
    return schemeName(value);
}
template <>
std::string Physics::typeToSchemeName(InterfaceType value) const
{
    return schemeName(value);
}
template <>
std::string Physics::typeToSchemeName(MeshConnectivity value) const
{
    return schemeName(value);
}
template <>
std::string Physics::typeToSchemeName(ShellType value) const
{
    return schemeName(value);
}
template <>
std::string Physics::typeToSchemeName(ThreadType value) const
{
    return schemeName(value);
}
template <>
std::string Physics::typeToSchemeName(VolumeType value) const
{
    return schemeName(value);
}

int Physics::threadTypeToSolverThreadType(ThreadType type) const { return solverThreadType(type); }

std::vector<VolumeType> Physics::allowedVolumeTypes() { return m_typeManager.allowedVolumeTypes(); }
std::vector<InterfaceType> Physics::allowedInterfaceTypes() { return m_typeManager.allowedInterfaceTypes(); }
std::vector<ShellType> Physics::allowedShellTypes() { return m_typeManager.allowedShellTypes(); }
std::vector<ThreadType> Physics::allowedThreadTypes() { return m_typeManager.allowedThreadTypes(); }
std::vector<DomainType> Physics::allowedDomainTypes() { return m_typeManager.allowedDomainTypes(); }
std::vector<BoundaryTag> Physics::allowedBoundaryTags() { return m_typeManager.allowedBoundaryTags(); }
std::vector<Periodicity> Physics::allowedPeriodicities() { return m_typeManager.allowedPeriodicities(); }
std::vector<Connectivity> Physics::allowedConnectivities() { return m_typeManager.allowedConnectivities(); }

std::vector<MeshConnectivity> Physics::allowedMeshConnectivities() { return m_typeManager.allowedMeshConnectivities(); }

std::vector<BoundaryType> Physics::allowedBoundaryTypes() { return m_typeManager.allowedBoundaryTypes(); }

std::vector<BoundaryType> Physics::allowedBoundaryTypes(VolumeType volumeType)
{
    return m_typeManager.allowedBoundaryTypes(volumeType);
}

std::vector<BoundaryType> Physics::allowedBoundaryTypes(InterfaceType interfaceType, VolumeType volumeType)
{
    return m_typeManager.allowedBoundaryTypes(interfaceType, volumeType);
}

std::vector<BoundaryType> Physics::allowedBoundaryTypes(ShellType shellType)
{
    return m_typeManager.allowedBoundaryTypes(shellType);
}

std::vector<InterfaceType> Physics::allowedInterfaceTypes(BoundaryType boundaryType, VolumeType volumeType)
{
    return m_typeManager.allowedInterfaceTypes(boundaryType, volumeType);
}

std::vector<ShellType> Physics::allowedShellTypes(BoundaryType boundaryType)
{
    return m_typeManager.allowedShellTypes(boundaryType);
}

std::vector<BoundaryType> Physics::allowedInternalBoundaryTypes()
{
    return m_typeManager.allowedInternalBoundaryTypes();
}

std::vector<BoundaryType> Physics::allowedExternalBoundaryTypes()
{
    return m_typeManager.allowedExternalBoundaryTypes();
}

BoundaryType Physics::defaultBoundaryType(VolumeType volumeType)
{
    return m_typeManager.defaultBoundaryType(volumeType);
}

bool Physics::isAllowedBoundaryType(VolumeType volumeType, BoundaryType boundaryType) const
{
    return m_typeManager.isAllowedBoundaryType(volumeType, boundaryType);
}

bool Physics::isAllowedBoundaryType(InterfaceType interfaceType, VolumeType volumeType, BoundaryType boundaryType) const
{
    return m_typeManager.isAllowedBoundaryType(interfaceType, volumeType, boundaryType);
}

bool Physics::isAllowedInterfaceType(BoundaryType boundaryType, VolumeType volumeType,
                                     InterfaceType interfaceType) const
{
    return m_typeManager.isAllowedInterfaceType(boundaryType, volumeType, interfaceType);
}

bool Physics::isAllowedShellType(BoundaryType boundaryType, ShellType shellType) const
{
    return m_typeManager.isAllowedShellType(boundaryType, shellType);
}

bool Physics::isInternalBoundaryType(BoundaryType boundaryType) const
{
    return m_typeManager.isInternalBoundaryType(boundaryType);
}

bool Physics::isSharedInterfaceType(InterfaceType interfaceType) const
{
    return m_typeManager.isSharedInterfaceType(interfaceType);
}

} // namespace physics
