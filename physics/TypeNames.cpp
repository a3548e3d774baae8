#include "physics/TypeNames.h"

#include <string_view>

namespace physics {
namespace {

/// One enumerator: its value and its display name. The tables below are the one home of these facts.
template <class E>
struct Row {
    E value;
    std::string_view name;
};

constexpr Row<VolumeType> volumeTypes[] = {
    {VolumeType::Unset, "Unset"},
    {VolumeType::Solid, "Solid"},
    {VolumeType::Fluid, "Fluid"},
    {VolumeType::Porous, "Porous"},
};

constexpr Row<BoundaryType> boundaryTypes[] = {
    {BoundaryType::Unset, "Unset"},
    {BoundaryType::VelocityInlet, "VelocityInlet"},
    {BoundaryType::MassFlowInlet, "MassFlowInlet"},
    {BoundaryType::MassFlowOutlet, "MassFlowOutlet"},
    {BoundaryType::PressureInlet, "PressureInlet"},
    {BoundaryType::PressureOutlet, "PressureOutlet"},
    {BoundaryType::PressureFarField, "PressureFarField"},
    {BoundaryType::Outflow, "Outflow"},
    {BoundaryType::Wall, "Wall"},
    {BoundaryType::Axis, "Axis"},
    {BoundaryType::ExhaustFan, "ExhaustFan"},
    {BoundaryType::Fan, "Fan"},
    {BoundaryType::InletVent, "InletVent"},
    {BoundaryType::OutletVent, "OutletVent"},
    {BoundaryType::IntakeFan, "IntakeFan"},
    {BoundaryType::Interior, "Interior"},
    {BoundaryType::PorousJump, "PorousJump"},
    {BoundaryType::Radiator, "Radiator"},
    {BoundaryType::Symmetry, "Symmetry"},
};

constexpr Row<InterfaceType> interfaceTypes[] = {
    {InterfaceType::Unset, "Unset"},       {InterfaceType::Fan, "Fan"},
    {InterfaceType::Interior, "Interior"}, {InterfaceType::PorousJump, "PorousJump"},
    {InterfaceType::Radiator, "Radiator"}, {InterfaceType::Wall, "Wall"},
};

constexpr Row<ShellType> shellTypes[] = {
    {ShellType::Unset, "Unset"},
    {ShellType::HeatConduction, "HeatConduction"},
};

constexpr Row<DomainType> domainTypes[] = {
    {DomainType::Unset, "Unset"},
    {DomainType::Geometry, "Geometry"},
    {DomainType::Phase, "Phase"},
    {DomainType::Interaction, "Interaction"},
};

constexpr Row<BoundaryTag> boundaryTags[] = {
    {BoundaryTag::Interface, "Interface"},
};

constexpr Row<ThreadType> threadTypes[] = {
    {ThreadType::Unset, "Unset"},
    {ThreadType::Solid, "Solid"},
    {ThreadType::Fluid, "Fluid"},
    {ThreadType::VelocityInlet, "VelocityInlet"},
    {ThreadType::MassFlowInlet, "MassFlowInlet"},
    {ThreadType::MassFlowOutlet, "MassFlowOutlet"},
    {ThreadType::PressureInlet, "PressureInlet"},
    {ThreadType::PressureOutlet, "PressureOutlet"},
    {ThreadType::PressureFarField, "PressureFarField"},
    {ThreadType::Outflow, "Outflow"},
    {ThreadType::Wall, "Wall"},
    {ThreadType::Axis, "Axis"},
    {ThreadType::ExhaustFan, "ExhaustFan"},
    {ThreadType::Fan, "Fan"},
    {ThreadType::InletVent, "InletVent"},
    {ThreadType::OutletVent, "OutletVent"},
    {ThreadType::IntakeFan, "IntakeFan"},
    {ThreadType::Interface, "Interface"},
    {ThreadType::Interior, "Interior"},
    {ThreadType::Network, "Network"},
    {ThreadType::NetworkEnd, "NetworkEnd"},
    {ThreadType::Overset, "Overset"},
    {ThreadType::Periodic, "Periodic"},
    {ThreadType::PorousJump, "PorousJump"},
    {ThreadType::Radiator, "Radiator"},
    {ThreadType::RansLesInterface, "RansLesInterface"},
    {ThreadType::Symmetry, "Symmetry"},
    {ThreadType::Degassing, "Degassing"},
    {ThreadType::RecirculationOutlet, "RecirculationOutlet"},
    {ThreadType::RecirculationInlet, "RecirculationInlet"},
    {ThreadType::Shadow, "Shadow"},
};

constexpr Row<Connectivity> connectivities[] = {
    {Connectivity::None, "None"},
    {Connectivity::Partial, "Partial"},
    {Connectivity::Total, "Total"},
};

constexpr Row<MeshConnectivity> meshConnectivities[] = {
    {MeshConnectivity::Automatic, "Automatic"},
    {MeshConnectivity::NonConformal, "NonConformal"},
};

constexpr Row<Periodicity> periodicities[] = {
    {Periodicity::NonPeriodic, "NonPeriodic"},
    {Periodicity::TranslationallyPeriodic, "TranslationallyPeriodic"},
    {Periodicity::RotationallyPeriodic, "RotationallyPeriodic"},
};

constexpr Row<SettingsType> settingsTypes[] = {
    {SettingsType::VolumeSettings, "VolumeSettings"},
    {SettingsType::ShellSettings, "ShellSettings"},
    {SettingsType::InterfaceSettings, "InterfaceSettings"},
};

constexpr Row<TopologyType> topologyTypes[] = {
    {TopologyType::Volume, "Volume"},
    {TopologyType::Boundary, "Boundary"},
    {TopologyType::Interface, "Interface"},
    {TopologyType::Internal, "Internal"},
};

constexpr Row<State> states[] = {
    {State::Valid, "Valid"},
    {State::Empty, "Empty"},
    {State::Unresolvable, "Unresolvable"},
    {State::Incomplete, "Incomplete"},
    {State::Inconsistent, "Inconsistent"},
    {State::Overlapping, "Overlapping"},
    {State::InterfaceSameBoundary, "Interface error - Same boundary on both sides"},
    {State::InterfaceBoundaries, "Interface error - Overlapping or inconsistent boundaries"},
    {State::InterfaceVolumes, "Interface error - More than one volume per side"},
    {State::InterfaceSharedFaces, "Interface error - Inconsistent with shared faces"},
};

template <class E, std::size_t N>
std::string nameIn(const Row<E> (&rows)[N], E value)
{
    for (const Row<E>& row : rows)
        if (row.value == value)
            return std::string(row.name);
    return {};
}

template <class E, std::size_t N>
std::vector<E> valuesIn(const Row<E> (&rows)[N])
{
    std::vector<E> values;
    values.reserve(N);
    for (const Row<E>& row : rows)
        values.push_back(row.value);
    return values;
}

/// Each capital begins a word; words are in lower case and joined by hyphens. ASCII only, so that the
/// name does not follow the locale.
std::string schemeNameFrom(std::string_view prefix, const std::string& name)
{
    std::string scheme(prefix);
    for (std::size_t i = 0; i < name.size(); ++i) {
        const bool isCapital = name[i] >= 'A' && name[i] <= 'Z';
        if (isCapital && i > 0)
            scheme += '-';
        scheme += isCapital ? static_cast<char>(name[i] - 'A' + 'a') : name[i];
    }
    return scheme;
}

} // namespace

std::string displayName(BoundaryTag value) { return nameIn(boundaryTags, value); }
std::string displayName(BoundaryType value) { return nameIn(boundaryTypes, value); }
std::string displayName(Connectivity value) { return nameIn(connectivities, value); }
std::string displayName(DomainType value) { return nameIn(domainTypes, value); }
std::string displayName(InterfaceType value) { return nameIn(interfaceTypes, value); }
std::string displayName(MeshConnectivity value) { return nameIn(meshConnectivities, value); }
std::string displayName(Periodicity value) { return nameIn(periodicities, value); }
std::string displayName(SettingsType value) { return nameIn(settingsTypes, value); }
std::string displayName(ShellType value) { return nameIn(shellTypes, value); }
std::string displayName(State value) { return nameIn(states, value); }
std::string displayName(ThreadType value) { return nameIn(threadTypes, value); }
std::string displayName(TopologyType value) { return nameIn(topologyTypes, value); }
std::string displayName(VolumeType value) { return nameIn(volumeTypes, value); }

std::string schemeName(BoundaryTag value) { return schemeNameFrom("bt-", displayName(value)); }
std::string schemeName(BoundaryType value) { return schemeNameFrom("b-", displayName(value)); }
std::string schemeName(DomainType value) { return schemeNameFrom("", displayName(value)); }
std::string schemeName(InterfaceType value) { return schemeNameFrom("i-", displayName(value)); }
std::string schemeName(ShellType value) { return schemeNameFrom("s-", displayName(value)); }
std::string schemeName(ThreadType value) { return schemeNameFrom("", displayName(value)); }
std::string schemeName(VolumeType value) { return schemeNameFrom("v-", displayName(value)); }

std::string schemeName(Connectivity value)
{
    switch (value) {
    case Connectivity::None:
        return "no-connectivity";
    case Connectivity::Partial:
        return "partial-connectivity";
    case Connectivity::Total:
        return "total-connectivity";
    }
    return {};
}

std::string schemeName(MeshConnectivity value)
{
    switch (value) {
    case MeshConnectivity::Automatic:
        return "automatic-mesh-connectivity";
    case MeshConnectivity::NonConformal:
        return "non-conformal-mesh-connectivity";
    }
    return {};
}

template <>
std::vector<BoundaryTag> enumerators<BoundaryTag>()
{
    return valuesIn(boundaryTags);
}
template <>
std::vector<BoundaryType> enumerators<BoundaryType>()
{
    return valuesIn(boundaryTypes);
}
template <>
std::vector<Connectivity> enumerators<Connectivity>()
{
    return valuesIn(connectivities);
}
template <>
std::vector<DomainType> enumerators<DomainType>()
{
    return valuesIn(domainTypes);
}
template <>
std::vector<InterfaceType> enumerators<InterfaceType>()
{
    return valuesIn(interfaceTypes);
}
template <>
std::vector<MeshConnectivity> enumerators<MeshConnectivity>()
{
    return valuesIn(meshConnectivities);
}
template <>
std::vector<Periodicity> enumerators<Periodicity>()
{
    return valuesIn(periodicities);
}
template <>
std::vector<SettingsType> enumerators<SettingsType>()
{
    return valuesIn(settingsTypes);
}
template <>
std::vector<ShellType> enumerators<ShellType>()
{
    return valuesIn(shellTypes);
}
template <>
std::vector<State> enumerators<State>()
{
    return valuesIn(states);
}
template <>
std::vector<ThreadType> enumerators<ThreadType>()
{
    return valuesIn(threadTypes);
}
template <>
std::vector<TopologyType> enumerators<TopologyType>()
{
    return valuesIn(topologyTypes);
}
template <>
std::vector<VolumeType> enumerators<VolumeType>()
{
    return valuesIn(volumeTypes);
}

} // namespace physics
