#include "physics/TypeManager.h"

namespace physics {
namespace {

template <class T>
std::vector<T> listOf(const std::set<T>& values)
{
    return {values.begin(), values.end()};
}

/// The set under a key, or an empty one: asking never makes a key.
template <class Map>
const typename Map::mapped_type& at(const Map& map, const typename Map::key_type& key)
{
    static const typename Map::mapped_type none;
    const auto entry = map.find(key);
    return entry == map.end() ? none : entry->second;
}

/// Every boundary type that can face another volume, but for the four that need one mesh through both.
std::set<BoundaryType> facingTypes()
{
    return {BoundaryType::VelocityInlet, BoundaryType::MassFlowInlet,  BoundaryType::MassFlowOutlet,
            BoundaryType::PressureInlet, BoundaryType::PressureOutlet, BoundaryType::PressureFarField,
            BoundaryType::Outflow,       BoundaryType::Wall,           BoundaryType::ExhaustFan,
            BoundaryType::InletVent,     BoundaryType::OutletVent,     BoundaryType::IntakeFan,
            BoundaryType::Symmetry};
}

std::set<BoundaryType> with(std::set<BoundaryType> types, BoundaryType more)
{
    types.insert(more);
    return types;
}

std::set<BoundaryType> everyBoundaryType()
{
    std::set<BoundaryType> types = with(facingTypes(), BoundaryType::Axis);
    types.insert({BoundaryType::Fan, BoundaryType::Interior, BoundaryType::PorousJump, BoundaryType::Radiator});
    return types;
}

std::set<ThreadType> threadTypesFromSolidToSymmetry()
{
    std::set<ThreadType> types;
    for (int value = static_cast<int>(ThreadType::Solid); value <= static_cast<int>(ThreadType::Symmetry); ++value)
        types.insert(ThreadType(value));
    return types;
}

} // namespace

TypeManager::TypeManager() { initialise(); }

std::vector<VolumeType> TypeManager::allowedVolumeTypes() { return listOf(m_volumeTypes); }
std::vector<InterfaceType> TypeManager::allowedInterfaceTypes() { return listOf(m_interfaceTypes); }
std::vector<ShellType> TypeManager::allowedShellTypes() { return listOf(m_shellTypes); }
std::vector<ThreadType> TypeManager::allowedThreadTypes() { return listOf(m_threadTypes); }
std::vector<DomainType> TypeManager::allowedDomainTypes() { return listOf(m_domainTypes); }
std::vector<BoundaryTag> TypeManager::allowedBoundaryTags() { return listOf(m_boundaryTags); }
std::vector<Periodicity> TypeManager::allowedPeriodicities() { return listOf(m_periodicities); }
std::vector<Connectivity> TypeManager::allowedConnectivities() { return listOf(m_connectivities); }
std::vector<MeshConnectivity> TypeManager::allowedMeshConnectivities() { return listOf(m_meshConnectivities); }
std::vector<BoundaryType> TypeManager::allowedBoundaryTypes() { return listOf(m_allBoundaryTypes); }

std::vector<BoundaryType> TypeManager::allowedBoundaryTypes(VolumeType volumeType)
{
    return listOf(at(m_volumeBoundaryTypes, volumeType));
}

std::vector<BoundaryType> TypeManager::allowedBoundaryTypes(InterfaceType interfaceType, VolumeType volumeType)
{
    return listOf(at(m_interfaceBoundaryTypes, {interfaceType, volumeType}));
}

std::vector<BoundaryType> TypeManager::allowedBoundaryTypes(ShellType shellType)
{
    return listOf(at(m_shellBoundaryTypes, shellType));
}

std::vector<InterfaceType> TypeManager::allowedInterfaceTypes(BoundaryType boundaryType, VolumeType volumeType)
{
    return listOf(at(m_boundaryInterfaceTypes, {boundaryType, volumeType}));
}

std::vector<ShellType> TypeManager::allowedShellTypes(BoundaryType boundaryType)
{
    return listOf(at(m_boundaryShellTypes, boundaryType));
}

std::vector<BoundaryType> TypeManager::allowedInternalBoundaryTypes() { return boundaryTypesThatAre(true); }
std::vector<BoundaryType> TypeManager::allowedExternalBoundaryTypes() { return boundaryTypesThatAre(false); }

BoundaryType TypeManager::defaultBoundaryType(VolumeType volumeType)
{
    const auto entry = m_defaultBoundaryTypes.find(volumeType);
    return entry == m_defaultBoundaryTypes.end() ? BoundaryType::Unset : entry->second;
}

bool TypeManager::isAllowedBoundaryType(VolumeType volumeType, BoundaryType boundaryType) const
{
    return at(m_volumeBoundaryTypes, volumeType).count(boundaryType) > 0;
}

bool TypeManager::isAllowedBoundaryType(InterfaceType interfaceType, VolumeType volumeType,
                                        BoundaryType boundaryType) const
{
    return at(m_interfaceBoundaryTypes, {interfaceType, volumeType}).count(boundaryType) > 0;
}

bool TypeManager::isAllowedInterfaceType(BoundaryType boundaryType, VolumeType volumeType,
                                         InterfaceType interfaceType) const
{
    return at(m_boundaryInterfaceTypes, {boundaryType, volumeType}).count(interfaceType) > 0;
}

bool TypeManager::isAllowedShellType(BoundaryType boundaryType, ShellType shellType) const
{
    return at(m_boundaryShellTypes, boundaryType).count(shellType) > 0;
}

bool TypeManager::isInternalBoundaryType(BoundaryType boundaryType) const
{
    switch (boundaryType) {
    case BoundaryType::Fan:
    case BoundaryType::Interior:
    case BoundaryType::PorousJump:
    case BoundaryType::Radiator:
        return true;
    default:
        return false;
    }
}

bool TypeManager::isSharedInterfaceType(InterfaceType interfaceType) const
{
    switch (interfaceType) {
    case InterfaceType::Fan:
    case InterfaceType::Interior:
    case InterfaceType::PorousJump:
    case InterfaceType::Radiator:
        return true;
    default:
        return false;
    }
}

void TypeManager::initialise()
{
    clear();

    m_volumeTypes = {VolumeType::Solid, VolumeType::Fluid, VolumeType::Porous};
    m_interfaceTypes = {InterfaceType::Fan, InterfaceType::Interior, InterfaceType::PorousJump, InterfaceType::Radiator,
                        InterfaceType::Wall};
    m_shellTypes = {ShellType::HeatConduction};
    m_threadTypes = threadTypesFromSolidToSymmetry();
    m_domainTypes = {DomainType::Geometry, DomainType::Phase, DomainType::Interaction};
    m_boundaryTags = {BoundaryTag::Interface};
    m_periodicities = {Periodicity::NonPeriodic, Periodicity::TranslationallyPeriodic,
                       Periodicity::RotationallyPeriodic};
    m_connectivities = {Connectivity::None, Connectivity::Partial, Connectivity::Total};
    m_meshConnectivities = {MeshConnectivity::Automatic, MeshConnectivity::NonConformal};

    m_volumeBoundaryTypes = {
        {VolumeType::Solid, {BoundaryType::Wall, BoundaryType::Interior, BoundaryType::Symmetry}},
        {VolumeType::Fluid, everyBoundaryType()},
        {VolumeType::Porous, everyBoundaryType()},
    };
    m_defaultBoundaryTypes = {
        {VolumeType::Solid, BoundaryType::Wall},
        {VolumeType::Fluid, BoundaryType::Wall},
        {VolumeType::Porous, BoundaryType::Wall},
    };

    // A fan interface does not admit `Fan` on its fluid side, while the other shared interfaces do; and
    // only an interior interface lets a porous volume take part in anything but walls. Both on purpose.
    const BoundaryTypes none;
    const BoundaryTypes wall = {BoundaryType::Wall};
    const BoundaryTypes facing = facingTypes();
    const BoundaryTypes facingOrFan = with(facing, BoundaryType::Fan);
    m_interfaceBoundaryTypes = {
        {{InterfaceType::Fan, VolumeType::Solid}, none},
        {{InterfaceType::Fan, VolumeType::Fluid}, facing},
        {{InterfaceType::Fan, VolumeType::Porous}, none},
        {{InterfaceType::Interior, VolumeType::Solid}, with(wall, BoundaryType::Symmetry)},
        {{InterfaceType::Interior, VolumeType::Fluid}, facingOrFan},
        {{InterfaceType::Interior, VolumeType::Porous}, facingOrFan},
        {{InterfaceType::PorousJump, VolumeType::Solid}, none},
        {{InterfaceType::PorousJump, VolumeType::Fluid}, facingOrFan},
        {{InterfaceType::PorousJump, VolumeType::Porous}, none},
        {{InterfaceType::Radiator, VolumeType::Solid}, none},
        {{InterfaceType::Radiator, VolumeType::Fluid}, facingOrFan},
        {{InterfaceType::Radiator, VolumeType::Porous}, none},
        {{InterfaceType::Wall, VolumeType::Solid}, wall},
        {{InterfaceType::Wall, VolumeType::Fluid}, wall},
        {{InterfaceType::Wall, VolumeType::Porous}, wall},
    };
    m_shellBoundaryTypes = {{ShellType::HeatConduction, wall}};

    buildSecondaryMaps();
}

/// Empties what a saved text holds, and what is derived from it. The default boundary types stay: a
/// text overwrites them entry by entry. The other sets are in no text.
void TypeManager::clear()
{
    m_volumeTypes.clear();
    m_interfaceTypes.clear();
    m_shellTypes.clear();
    m_threadTypes.clear();
    m_volumeBoundaryTypes.clear();
    m_interfaceBoundaryTypes.clear();
    m_shellBoundaryTypes.clear();
    m_boundaryInterfaceTypes.clear();
    m_boundaryShellTypes.clear();
    m_allBoundaryTypes.clear();
}

void TypeManager::buildSecondaryMaps()
{
    m_boundaryInterfaceTypes.clear();
    m_boundaryShellTypes.clear();
    for (const auto& [key, boundaryTypes] : m_interfaceBoundaryTypes)
        for (const BoundaryType boundaryType : boundaryTypes)
            m_boundaryInterfaceTypes[{boundaryType, key.second}].insert(key.first);
    for (const auto& [shellType, boundaryTypes] : m_shellBoundaryTypes)
        for (const BoundaryType boundaryType : boundaryTypes)
            m_boundaryShellTypes[boundaryType].insert(shellType);
    m_allBoundaryTypes = boundaryTypesInUse();
}

/// Goes by the sets of allowed types, not by the keys of the maps: a text that was read back can have
/// keys outside the sets, and those do not count.
TypeManager::BoundaryTypes TypeManager::boundaryTypesInUse() const
{
    BoundaryTypes types;
    for (const VolumeType volumeType : m_volumeTypes) {
        const BoundaryTypes& ofVolume = at(m_volumeBoundaryTypes, volumeType);
        types.insert(ofVolume.begin(), ofVolume.end());
        for (const InterfaceType interfaceType : m_interfaceTypes) {
            const BoundaryTypes& ofInterface = at(m_interfaceBoundaryTypes, {interfaceType, volumeType});
            types.insert(ofInterface.begin(), ofInterface.end());
        }
    }
    return types;
}

std::vector<BoundaryType> TypeManager::boundaryTypesThatAre(bool internal) const
{
    std::vector<BoundaryType> types;
    for (const BoundaryType type : m_allBoundaryTypes)
        if (isInternalBoundaryType(type) == internal)
            types.push_back(type);
    return types;
}

int solverThreadType(ThreadType threadType)
{
    switch (threadType) {
    case ThreadType::Unset:
        return -1;
    case ThreadType::Solid:
    case ThreadType::Fluid:
        return 1;
    case ThreadType::Interior:
    case ThreadType::RansLesInterface:
        return 2;
    case ThreadType::Wall:
        return 3;
    case ThreadType::PressureInlet:
    case ThreadType::InletVent:
    case ThreadType::IntakeFan:
        return 4;
    case ThreadType::PressureOutlet:
    case ThreadType::ExhaustFan:
    case ThreadType::OutletVent:
        return 5;
    case ThreadType::Symmetry:
    case ThreadType::Degassing:
        return 7;
    case ThreadType::Shadow:
        return 8;
    case ThreadType::PressureFarField:
        return 9;
    case ThreadType::VelocityInlet:
        return 10;
    case ThreadType::Periodic:
        return 12;
    case ThreadType::Fan:
    case ThreadType::PorousJump:
    case ThreadType::Radiator:
        return 14;
    case ThreadType::MassFlowInlet:
    case ThreadType::MassFlowOutlet:
    case ThreadType::RecirculationOutlet:
    case ThreadType::RecirculationInlet:
        return 20;
    case ThreadType::Interface:
        return 24;
    case ThreadType::Overset:
        return 25;
    case ThreadType::Outflow:
        return 36;
    case ThreadType::Axis:
        return 37;
    case ThreadType::Network:
        return 51;
    case ThreadType::NetworkEnd:
        return 52;
    }
    return -1;
}

} // namespace physics
