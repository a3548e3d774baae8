#include "physics/TypeNames.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <type_traits>
#include <vector>

namespace {

using namespace physics;

/// One enumerator as saved texts, reports and the solver's command language know it.
template <class E>
struct Row {
    E enumerator;
    int value;
    std::string name;
    std::string scheme = {};
};

const std::vector<Row<VolumeType>> volumeTypes = {
    {VolumeType::Unset, -1, "Unset", "v-unset"},
    {VolumeType::Solid, 0, "Solid", "v-solid"},
    {VolumeType::Fluid, 1, "Fluid", "v-fluid"},
    {VolumeType::Porous, 2, "Porous", "v-porous"},
};

const std::vector<Row<BoundaryType>> boundaryTypes = {
    {BoundaryType::Unset, -1, "Unset", "b-unset"},
    {BoundaryType::VelocityInlet, 0, "VelocityInlet", "b-velocity-inlet"},
    {BoundaryType::MassFlowInlet, 1, "MassFlowInlet", "b-mass-flow-inlet"},
    {BoundaryType::MassFlowOutlet, 2, "MassFlowOutlet", "b-mass-flow-outlet"},
    {BoundaryType::PressureInlet, 3, "PressureInlet", "b-pressure-inlet"},
    {BoundaryType::PressureOutlet, 4, "PressureOutlet", "b-pressure-outlet"},
    {BoundaryType::PressureFarField, 5, "PressureFarField", "b-pressure-far-field"},
    {BoundaryType::Outflow, 6, "Outflow", "b-outflow"},
    {BoundaryType::Wall, 7, "Wall", "b-wall"},
    {BoundaryType::Axis, 8, "Axis", "b-axis"},
    {BoundaryType::ExhaustFan, 9, "ExhaustFan", "b-exhaust-fan"},
    {BoundaryType::Fan, 10, "Fan", "b-fan"},
    {BoundaryType::InletVent, 11, "InletVent", "b-inlet-vent"},
    {BoundaryType::OutletVent, 12, "OutletVent", "b-outlet-vent"},
    {BoundaryType::IntakeFan, 13, "IntakeFan", "b-intake-fan"},
    {BoundaryType::Interior, 14, "Interior", "b-interior"},
    {BoundaryType::PorousJump, 15, "PorousJump", "b-porous-jump"},
    {BoundaryType::Radiator, 16, "Radiator", "b-radiator"},
    {BoundaryType::Symmetry, 17, "Symmetry", "b-symmetry"},
};

const std::vector<Row<InterfaceType>> interfaceTypes = {
    {InterfaceType::Unset, -1, "Unset", "i-unset"},
    {InterfaceType::Fan, 0, "Fan", "i-fan"},
    {InterfaceType::Interior, 1, "Interior", "i-interior"},
    {InterfaceType::PorousJump, 2, "PorousJump", "i-porous-jump"},
    {InterfaceType::Radiator, 3, "Radiator", "i-radiator"},
    {InterfaceType::Wall, 4, "Wall", "i-wall"},
};

const std::vector<Row<ShellType>> shellTypes = {
    {ShellType::Unset, -1, "Unset", "s-unset"},
    {ShellType::HeatConduction, 0, "HeatConduction", "s-heat-conduction"},
};

const std::vector<Row<DomainType>> domainTypes = {
    {DomainType::Unset, -1, "Unset", "unset"},
    {DomainType::Geometry, 0, "Geometry", "geometry"},
    {DomainType::Phase, 1, "Phase", "phase"},
    {DomainType::Interaction, 2, "Interaction", "interaction"},
};

const std::vector<Row<BoundaryTag>> boundaryTags = {
    {BoundaryTag::Interface, 0, "Interface", "bt-interface"},
};

const std::vector<Row<ThreadType>> threadTypes = {
    {ThreadType::Unset, 0, "Unset", "unset"},
    {ThreadType::Solid, 1, "Solid", "solid"},
    {ThreadType::Fluid, 2, "Fluid", "fluid"},
    {ThreadType::VelocityInlet, 3, "VelocityInlet", "velocity-inlet"},
    {ThreadType::MassFlowInlet, 4, "MassFlowInlet", "mass-flow-inlet"},
    {ThreadType::MassFlowOutlet, 5, "MassFlowOutlet", "mass-flow-outlet"},
    {ThreadType::PressureInlet, 6, "PressureInlet", "pressure-inlet"},
    {ThreadType::PressureOutlet, 7, "PressureOutlet", "pressure-outlet"},
    {ThreadType::PressureFarField, 8, "PressureFarField", "pressure-far-field"},
    {ThreadType::Outflow, 9, "Outflow", "outflow"},
    {ThreadType::Wall, 10, "Wall", "wall"},
    {ThreadType::Axis, 11, "Axis", "axis"},
    {ThreadType::ExhaustFan, 12, "ExhaustFan", "exhaust-fan"},
    {ThreadType::Fan, 13, "Fan", "fan"},
    {ThreadType::InletVent, 14, "InletVent", "inlet-vent"},
    {ThreadType::OutletVent, 15, "OutletVent", "outlet-vent"},
    {ThreadType::IntakeFan, 16, "IntakeFan", "intake-fan"},
    {ThreadType::Interface, 17, "Interface", "interface"},
    {ThreadType::Interior, 18, "Interior", "interior"},
    {ThreadType::Network, 19, "Network", "network"},
    {ThreadType::NetworkEnd, 20, "NetworkEnd", "network-end"},
    {ThreadType::Overset, 21, "Overset", "overset"},
    {ThreadType::Periodic, 22, "Periodic", "periodic"},
    {ThreadType::PorousJump, 23, "PorousJump", "porous-jump"},
    {ThreadType::Radiator, 24, "Radiator", "radiator"},
    {ThreadType::RansLesInterface, 25, "RansLesInterface", "rans-les-interface"},
    {ThreadType::Symmetry, 26, "Symmetry", "symmetry"},
    {ThreadType::Degassing, 27, "Degassing", "degassing"},
    {ThreadType::RecirculationOutlet, 28, "RecirculationOutlet", "recirculation-outlet"},
    {ThreadType::RecirculationInlet, 29, "RecirculationInlet", "recirculation-inlet"},
    {ThreadType::Shadow, 30, "Shadow", "shadow"},
};

const std::vector<Row<Connectivity>> connectivities = {
    {Connectivity::None, 0, "None", "no-connectivity"},
    {Connectivity::Partial, 1, "Partial", "partial-connectivity"},
    {Connectivity::Total, 2, "Total", "total-connectivity"},
};

const std::vector<Row<MeshConnectivity>> meshConnectivities = {
    {MeshConnectivity::Automatic, 0, "Automatic", "automatic-mesh-connectivity"},
    {MeshConnectivity::NonConformal, 1, "NonConformal", "non-conformal-mesh-connectivity"},
};

const std::vector<Row<Periodicity>> periodicities = {
    {Periodicity::NonPeriodic, 0, "NonPeriodic"},
    {Periodicity::TranslationallyPeriodic, 1, "TranslationallyPeriodic"},
    {Periodicity::RotationallyPeriodic, 2, "RotationallyPeriodic"},
};

const std::vector<Row<SettingsType>> settingsTypes = {
    {SettingsType::VolumeSettings, 0, "VolumeSettings"},
    {SettingsType::ShellSettings, 1, "ShellSettings"},
    {SettingsType::InterfaceSettings, 2, "InterfaceSettings"},
};

const std::vector<Row<TopologyType>> topologyTypes = {
    {TopologyType::Volume, 0, "Volume"},
    {TopologyType::Boundary, 1, "Boundary"},
    {TopologyType::Interface, 2, "Interface"},
    {TopologyType::Internal, 3, "Internal"},
};

const std::vector<Row<State>> states = {
    {State::Valid, 0, "Valid"},
    {State::Empty, 1, "Empty"},
    {State::Unresolvable, 2, "Unresolvable"},
    {State::Incomplete, 10, "Incomplete"},
    {State::Inconsistent, 11, "Inconsistent"},
    {State::Overlapping, 12, "Overlapping"},
    {State::InterfaceSameBoundary, 20, "Interface error - Same boundary on both sides"},
    {State::InterfaceBoundaries, 21, "Interface error - Overlapping or inconsistent boundaries"},
    {State::InterfaceVolumes, 22, "Interface error - More than one volume per side"},
    {State::InterfaceSharedFaces, 23, "Interface error - Inconsistent with shared faces"},
};

/// Every value around the tables, and the ends of the range: what is in no row must answer as nothing.
std::vector<int> valuesToWalk()
{
    std::vector<int> values = {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()};
    for (int value = -40; value <= 300; ++value)
        values.push_back(value);
    return values;
}

template <class E>
const Row<E>* rowOf(const std::vector<Row<E>>& rows, int value)
{
    for (const Row<E>& row : rows)
        if (row.value == value)
            return &row;
    return nullptr;
}

template <class E>
void expectDisplayNames(const std::vector<Row<E>>& rows)
{
    std::vector<E> enumeratorsOfTheTable;
    for (const Row<E>& row : rows) {
        EXPECT_EQ(static_cast<int>(row.enumerator), row.value) << row.name;
        enumeratorsOfTheTable.push_back(row.enumerator);
    }
    EXPECT_EQ(enumerators<E>(), enumeratorsOfTheTable);
    for (const int value : valuesToWalk()) {
        const Row<E>* row = rowOf(rows, value);
        EXPECT_EQ(displayName(E(value)), row ? row->name : "") << value;
    }
}

template <class E>
void expectSchemeNames(const std::vector<Row<E>>& rows, const std::string& prefix)
{
    for (const int value : valuesToWalk()) {
        const Row<E>* row = rowOf(rows, value);
        EXPECT_EQ(schemeName(E(value)), row ? row->scheme : prefix) << value;
    }
}

TEST(TypeNames, everyEnumeratorHasItsNumberAndDisplayName)
{
    expectDisplayNames(volumeTypes);
    expectDisplayNames(boundaryTypes);
    expectDisplayNames(interfaceTypes);
    expectDisplayNames(shellTypes);
    expectDisplayNames(domainTypes);
    expectDisplayNames(boundaryTags);
    expectDisplayNames(threadTypes);
    expectDisplayNames(connectivities);
    expectDisplayNames(meshConnectivities);
    expectDisplayNames(periodicities);
    expectDisplayNames(settingsTypes);
    expectDisplayNames(topologyTypes);
    expectDisplayNames(states);
}

TEST(TypeNames, everyEnumeratorHasItsSchemeNameAndOtherValuesThePrefixAlone)
{
    expectSchemeNames(volumeTypes, "v-");
    expectSchemeNames(boundaryTypes, "b-");
    expectSchemeNames(interfaceTypes, "i-");
    expectSchemeNames(shellTypes, "s-");
    expectSchemeNames(boundaryTags, "bt-");
}

TEST(TypeNames, schemeNamesWithoutPrefixAreEmptyForOtherValues)
{
    expectSchemeNames(domainTypes, "");
    expectSchemeNames(threadTypes, "");
    expectSchemeNames(connectivities, "");
    expectSchemeNames(meshConnectivities, "");
}

TEST(TypeNames, enumerationsAreDistinctTypesOfThirtyTwoBits)
{
    EXPECT_TRUE((std::is_same_v<std::underlying_type_t<VolumeType>, std::int32_t>));
    EXPECT_TRUE((std::is_same_v<std::underlying_type_t<ThreadType>, std::int32_t>));
    EXPECT_TRUE((std::is_same_v<std::underlying_type_t<Side>, std::int32_t>));
    EXPECT_TRUE((std::is_same_v<std::underlying_type_t<State>, std::int32_t>));
    EXPECT_FALSE((std::is_convertible_v<BoundaryType, int>));
    EXPECT_EQ(static_cast<int>(Side::First), 0);
    EXPECT_EQ(static_cast<int>(Side::Second), 1);
}

TEST(TypeNames, unsetOfAThreadTypeIsZeroWhereOthersHaveMinusOne)
{
    EXPECT_EQ(displayName(ThreadType(0)), "Unset");
    EXPECT_EQ(displayName(ThreadType(-1)), "");
    EXPECT_EQ(displayName(VolumeType(-1)), "Unset");
    EXPECT_EQ(schemeName(ThreadType(-1)), "");
}

} // namespace
