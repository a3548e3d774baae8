#pragma once

#include "physics/Export.h"
#include "physics/Types.h"

#include <string>
#include <vector>

namespace physics {

/// The display name of an enumerator, as reports print it; empty for a value outside the enumeration.
/// @{
PHYSICS_EXPORT std::string displayName(BoundaryTag value);
PHYSICS_EXPORT std::string displayName(BoundaryType value);
PHYSICS_EXPORT std::string displayName(Connectivity value);
PHYSICS_EXPORT std::string displayName(DomainType value);
PHYSICS_EXPORT std::string displayName(InterfaceType value);
PHYSICS_EXPORT std::string displayName(MeshConnectivity value);
PHYSICS_EXPORT std::string displayName(Periodicity value);
PHYSICS_EXPORT std::string displayName(SettingsType value);
PHYSICS_EXPORT std::string displayName(ShellType value);
PHYSICS_EXPORT std::string displayName(State value);
PHYSICS_EXPORT std::string displayName(ThreadType value);
PHYSICS_EXPORT std::string displayName(TopologyType value);
PHYSICS_EXPORT std::string displayName(VolumeType value);
/// @}

/// The name of an enumerator in the solver's Scheme command language: the words of the display name in
/// lower case, joined by hyphens, behind the prefix of the enumeration ("v-", "b-", "i-", "s-", "bt-",
/// or none). A value outside the enumeration gives the prefix alone. The two connectivities have names
/// of their own, and the empty string for a value outside.
/// @{
PHYSICS_EXPORT std::string schemeName(BoundaryTag value);
PHYSICS_EXPORT std::string schemeName(BoundaryType value);
PHYSICS_EXPORT std::string schemeName(Connectivity value);
PHYSICS_EXPORT std::string schemeName(DomainType value);
PHYSICS_EXPORT std::string schemeName(InterfaceType value);
PHYSICS_EXPORT std::string schemeName(MeshConnectivity value);
PHYSICS_EXPORT std::string schemeName(ShellType value);
PHYSICS_EXPORT std::string schemeName(ThreadType value);
PHYSICS_EXPORT std::string schemeName(VolumeType value);
/// @}

/// Every enumerator of an enumeration that has display names, `Unset` included, in ascending order of
/// the values.
/// @{
template <class E>
std::vector<E> enumerators() = delete;
template <>
PHYSICS_EXPORT std::vector<BoundaryTag> enumerators<BoundaryTag>();
template <>
PHYSICS_EXPORT std::vector<BoundaryType> enumerators<BoundaryType>();
template <>
PHYSICS_EXPORT std::vector<Connectivity> enumerators<Connectivity>();
template <>
PHYSICS_EXPORT std::vector<DomainType> enumerators<DomainType>();
template <>
PHYSICS_EXPORT std::vector<InterfaceType> enumerators<InterfaceType>();
template <>
PHYSICS_EXPORT std::vector<MeshConnectivity> enumerators<MeshConnectivity>();
template <>
PHYSICS_EXPORT std::vector<Periodicity> enumerators<Periodicity>();
template <>
PHYSICS_EXPORT std::vector<SettingsType> enumerators<SettingsType>();
template <>
PHYSICS_EXPORT std::vector<ShellType> enumerators<ShellType>();
template <>
PHYSICS_EXPORT std::vector<State> enumerators<State>();
template <>
PHYSICS_EXPORT std::vector<ThreadType> enumerators<ThreadType>();
template <>
PHYSICS_EXPORT std::vector<TopologyType> enumerators<TopologyType>();
template <>
PHYSICS_EXPORT std::vector<VolumeType> enumerators<VolumeType>();
/// @}

} // namespace physics
