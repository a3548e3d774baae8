#include "physics/TypeManager.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <utility>
#include <vector>

namespace {

using physics::BoundaryTag;
using physics::BoundaryType;
using physics::Connectivity;
using physics::DomainType;
using physics::InterfaceType;
using physics::MeshConnectivity;
using physics::Periodicity;
using physics::ShellType;
using physics::ThreadType;
using physics::TypeManager;
using physics::VolumeType;
using BoundaryTypes = std::vector<BoundaryType>;

const BoundaryTypes solidTypes = {BoundaryType::Wall, BoundaryType::Interior, BoundaryType::Symmetry};

const BoundaryTypes allTypes = {BoundaryType::VelocityInlet,
                                BoundaryType::MassFlowInlet,
                                BoundaryType::MassFlowOutlet,
                                BoundaryType::PressureInlet,
                                BoundaryType::PressureOutlet,
                                BoundaryType::PressureFarField,
                                BoundaryType::Outflow,
                                BoundaryType::Wall,
                                BoundaryType::Axis,
                                BoundaryType::ExhaustFan,
                                BoundaryType::Fan,
                                BoundaryType::InletVent,
                                BoundaryType::OutletVent,
                                BoundaryType::IntakeFan,
                                BoundaryType::Interior,
                                BoundaryType::PorousJump,
                                BoundaryType::Radiator,
                                BoundaryType::Symmetry};

const BoundaryTypes internalTypes = {BoundaryType::Fan, BoundaryType::Interior, BoundaryType::PorousJump,
                                     BoundaryType::Radiator};

const BoundaryTypes externalTypes = {
    BoundaryType::VelocityInlet, BoundaryType::MassFlowInlet,  BoundaryType::MassFlowOutlet,
    BoundaryType::PressureInlet, BoundaryType::PressureOutlet, BoundaryType::PressureFarField,
    BoundaryType::Outflow,       BoundaryType::Wall,           BoundaryType::Axis,
    BoundaryType::ExhaustFan,    BoundaryType::InletVent,      BoundaryType::OutletVent,
    BoundaryType::IntakeFan,     BoundaryType::Symmetry};

/// Every boundary type but `Axis`, `Fan`, `Interior`, `PorousJump` and `Radiator`.
const BoundaryTypes thirteen = {
    BoundaryType::VelocityInlet, BoundaryType::MassFlowInlet,  BoundaryType::MassFlowOutlet,
    BoundaryType::PressureInlet, BoundaryType::PressureOutlet, BoundaryType::PressureFarField,
    BoundaryType::Outflow,       BoundaryType::Wall,           BoundaryType::ExhaustFan,
    BoundaryType::InletVent,     BoundaryType::OutletVent,     BoundaryType::IntakeFan,
    BoundaryType::Symmetry};

/// The same with `Fan`.
const BoundaryTypes fourteen = {
    BoundaryType::VelocityInlet, BoundaryType::MassFlowInlet,  BoundaryType::MassFlowOutlet,
    BoundaryType::PressureInlet, BoundaryType::PressureOutlet, BoundaryType::PressureFarField,
    BoundaryType::Outflow,       BoundaryType::Wall,           BoundaryType::ExhaustFan,
    BoundaryType::Fan,           BoundaryType::InletVent,      BoundaryType::OutletVent,
    BoundaryType::IntakeFan,     BoundaryType::Symmetry};

const BoundaryTypes wall = {BoundaryType::Wall};
const BoundaryTypes none = {};

using Pair = std::pair<InterfaceType, VolumeType>;

const std::map<Pair, BoundaryTypes> interfaceTable = {
    {{InterfaceType::Fan, VolumeType::Solid}, none},
    {{InterfaceType::Fan, VolumeType::Fluid}, thirteen},
    {{InterfaceType::Fan, VolumeType::Porous}, none},
    {{InterfaceType::Interior, VolumeType::Solid}, {BoundaryType::Wall, BoundaryType::Symmetry}},
    {{InterfaceType::Interior, VolumeType::Fluid}, fourteen},
    {{InterfaceType::Interior, VolumeType::Porous}, fourteen},
    {{InterfaceType::PorousJump, VolumeType::Solid}, none},
    {{InterfaceType::PorousJump, VolumeType::Fluid}, fourteen},
    {{InterfaceType::PorousJump, VolumeType::Porous}, none},
    {{InterfaceType::Radiator, VolumeType::Solid}, none},
    {{InterfaceType::Radiator, VolumeType::Fluid}, fourteen},
    {{InterfaceType::Radiator, VolumeType::Porous}, none},
    {{InterfaceType::Wall, VolumeType::Solid}, wall},
    {{InterfaceType::Wall, VolumeType::Fluid}, wall},
    {{InterfaceType::Wall, VolumeType::Porous}, wall},
};

const std::map<int, std::vector<ThreadType>> solverThreadTypes = {
    {1, {ThreadType::Solid, ThreadType::Fluid}},
    {2, {ThreadType::Interior, ThreadType::RansLesInterface}},
    {3, {ThreadType::Wall}},
    {4, {ThreadType::PressureInlet, ThreadType::InletVent, ThreadType::IntakeFan}},
    {5, {ThreadType::PressureOutlet, ThreadType::ExhaustFan, ThreadType::OutletVent}},
    {7, {ThreadType::Symmetry, ThreadType::Degassing}},
    {8, {ThreadType::Shadow}},
    {9, {ThreadType::PressureFarField}},
    {10, {ThreadType::VelocityInlet}},
    {12, {ThreadType::Periodic}},
    {14, {ThreadType::Fan, ThreadType::PorousJump, ThreadType::Radiator}},
    {20,
     {ThreadType::MassFlowInlet, ThreadType::MassFlowOutlet, ThreadType::RecirculationOutlet,
      ThreadType::RecirculationInlet}},
    {24, {ThreadType::Interface}},
    {25, {ThreadType::Overset}},
    {36, {ThreadType::Outflow}},
    {37, {ThreadType::Axis}},
    {51, {ThreadType::Network}},
    {52, {ThreadType::NetworkEnd}},
};

/// Every value from well below to well above an enumeration, `Unset` included.
template <class E>
std::vector<E> around(int last)
{
    std::vector<E> values;
    for (int value = -3; value <= last + 3; ++value)
        values.push_back(E(value));
    return values;
}

template <class T>
bool contains(const std::vector<T>& values, T value)
{
    return std::find(values.begin(), values.end(), value) != values.end();
}

BoundaryTypes typesOfVolume(VolumeType volumeType)
{
    switch (volumeType) {
    case VolumeType::Solid:
        return solidTypes;
    case VolumeType::Fluid:
    case VolumeType::Porous:
        return allTypes;
    default:
        return {};
    }
}

BoundaryTypes typesOfInterface(InterfaceType interfaceType, VolumeType volumeType)
{
    const auto row = interfaceTable.find({interfaceType, volumeType});
    return row == interfaceTable.end() ? none : row->second;
}

TEST(TypeManager, listsTheAllowedTypesInAscendingOrder)
{
    TypeManager types;

    EXPECT_EQ(types.allowedVolumeTypes(), (std::vector{VolumeType::Solid, VolumeType::Fluid, VolumeType::Porous}));
    EXPECT_EQ(types.allowedInterfaceTypes(),
              (std::vector{InterfaceType::Fan, InterfaceType::Interior, InterfaceType::PorousJump,
                           InterfaceType::Radiator, InterfaceType::Wall}));
    EXPECT_EQ(types.allowedShellTypes(), std::vector{ShellType::HeatConduction});
    EXPECT_EQ(types.allowedDomainTypes(),
              (std::vector{DomainType::Geometry, DomainType::Phase, DomainType::Interaction}));
    EXPECT_EQ(types.allowedBoundaryTags(), std::vector{BoundaryTag::Interface});
    EXPECT_EQ(types.allowedPeriodicities(), (std::vector{Periodicity::NonPeriodic, Periodicity::TranslationallyPeriodic,
                                                         Periodicity::RotationallyPeriodic}));
    EXPECT_EQ(types.allowedConnectivities(),
              (std::vector{Connectivity::None, Connectivity::Partial, Connectivity::Total}));
    EXPECT_EQ(types.allowedMeshConnectivities(),
              (std::vector{MeshConnectivity::Automatic, MeshConnectivity::NonConformal}));
    EXPECT_EQ(types.allowedBoundaryTypes(), allTypes);
    EXPECT_EQ(types.allowedInternalBoundaryTypes(), internalTypes);
    EXPECT_EQ(types.allowedExternalBoundaryTypes(), externalTypes);
}

TEST(TypeManager, allowsTheThreadTypesFromSolidToSymmetry)
{
    std::vector<ThreadType> expected;
    for (int value = 1; value <= 26; ++value)
        expected.push_back(ThreadType(value));

    const std::vector<ThreadType> allowed = TypeManager().allowedThreadTypes();

    EXPECT_EQ(allowed, expected);
    EXPECT_TRUE(contains(allowed, ThreadType::Interface));
    EXPECT_FALSE(contains(allowed, ThreadType::Shadow));
    EXPECT_FALSE(contains(allowed, ThreadType::Degassing));
    EXPECT_FALSE(contains(allowed, ThreadType::RecirculationOutlet));
    EXPECT_FALSE(contains(allowed, ThreadType::RecirculationInlet));
    EXPECT_FALSE(contains(allowed, ThreadType::Unset));
}

TEST(TypeManager, answersForEveryVolumeTypeWhatItMayCarry)
{
    TypeManager types;

    for (const VolumeType volumeType : around<VolumeType>(2)) {
        const BoundaryTypes expected = typesOfVolume(volumeType);
        EXPECT_EQ(types.allowedBoundaryTypes(volumeType), expected) << static_cast<int>(volumeType);
        EXPECT_EQ(types.defaultBoundaryType(volumeType), expected.empty() ? BoundaryType::Unset : BoundaryType::Wall);
        for (const BoundaryType boundaryType : around<BoundaryType>(17))
            EXPECT_EQ(types.isAllowedBoundaryType(volumeType, boundaryType), contains(expected, boundaryType));
    }
}

TEST(TypeManager, answersForEveryPairOfInterfaceAndVolumeWhatMayLieInIt)
{
    TypeManager types;

    for (const InterfaceType interfaceType : around<InterfaceType>(4)) {
        for (const VolumeType volumeType : around<VolumeType>(2)) {
            const BoundaryTypes expected = typesOfInterface(interfaceType, volumeType);
            EXPECT_EQ(types.allowedBoundaryTypes(interfaceType, volumeType), expected)
                << static_cast<int>(interfaceType) << ' ' << static_cast<int>(volumeType);
            for (const BoundaryType boundaryType : around<BoundaryType>(17))
                EXPECT_EQ(types.isAllowedBoundaryType(interfaceType, volumeType, boundaryType),
                          contains(expected, boundaryType));
        }
    }
}

TEST(TypeManager, answersTheSameTableFromTheBoundarySide)
{
    TypeManager types;

    for (const BoundaryType boundaryType : around<BoundaryType>(17)) {
        for (const VolumeType volumeType : around<VolumeType>(2)) {
            std::vector<InterfaceType> expected;
            for (const auto& [pair, boundaryTypes] : interfaceTable)
                if (pair.second == volumeType && contains(boundaryTypes, boundaryType))
                    expected.push_back(pair.first);
            EXPECT_EQ(types.allowedInterfaceTypes(boundaryType, volumeType), expected)
                << static_cast<int>(boundaryType) << ' ' << static_cast<int>(volumeType);
            for (const InterfaceType interfaceType : around<InterfaceType>(4))
                EXPECT_EQ(types.isAllowedInterfaceType(boundaryType, volumeType, interfaceType),
                          contains(expected, interfaceType));
        }
    }
}

TEST(TypeManager, knowsTheInterfacesOfSomeBoundariesByHeart)
{
    TypeManager types;
    using Interfaces = std::vector<InterfaceType>;

    EXPECT_EQ(types.allowedInterfaceTypes(BoundaryType::Wall, VolumeType::Solid),
              (Interfaces{InterfaceType::Interior, InterfaceType::Wall}));
    EXPECT_EQ(types.allowedInterfaceTypes(BoundaryType::Wall, VolumeType::Fluid),
              (Interfaces{InterfaceType::Fan, InterfaceType::Interior, InterfaceType::PorousJump,
                          InterfaceType::Radiator, InterfaceType::Wall}));
    EXPECT_EQ(types.allowedInterfaceTypes(BoundaryType::Fan, VolumeType::Fluid),
              (Interfaces{InterfaceType::Interior, InterfaceType::PorousJump, InterfaceType::Radiator}));
    EXPECT_EQ(types.allowedInterfaceTypes(BoundaryType::VelocityInlet, VolumeType::Porous),
              (Interfaces{InterfaceType::Interior}));
    EXPECT_EQ(types.allowedInterfaceTypes(BoundaryType::Axis, VolumeType::Fluid), Interfaces{});
}

TEST(TypeManager, fanInterfacesAdmitNoFanWhereOthersDo)
{
    const TypeManager types;

    EXPECT_FALSE(types.isAllowedBoundaryType(InterfaceType::Fan, VolumeType::Fluid, BoundaryType::Fan));
    EXPECT_TRUE(types.isAllowedBoundaryType(InterfaceType::Interior, VolumeType::Fluid, BoundaryType::Fan));
    EXPECT_TRUE(types.isAllowedBoundaryType(InterfaceType::PorousJump, VolumeType::Fluid, BoundaryType::Fan));
    EXPECT_TRUE(types.isAllowedBoundaryType(InterfaceType::Radiator, VolumeType::Fluid, BoundaryType::Fan));
}

TEST(TypeManager, allowsShellsOnWallsOnly)
{
    TypeManager types;

    for (const BoundaryType boundaryType : around<BoundaryType>(17)) {
        const bool isWall = boundaryType == BoundaryType::Wall;
        EXPECT_EQ(types.allowedShellTypes(boundaryType),
                  isWall ? std::vector{ShellType::HeatConduction} : std::vector<ShellType>());
        for (const ShellType shellType : around<ShellType>(0))
            EXPECT_EQ(types.isAllowedShellType(boundaryType, shellType),
                      isWall && shellType == ShellType::HeatConduction);
    }
    for (const ShellType shellType : around<ShellType>(0))
        EXPECT_EQ(types.allowedBoundaryTypes(shellType), shellType == ShellType::HeatConduction ? wall : none);
}

TEST(TypeManager, tellsInternalBoundaryTypesAndSharedInterfaceTypes)
{
    const TypeManager types;
    const std::vector<InterfaceType> shared = {InterfaceType::Fan, InterfaceType::Interior, InterfaceType::PorousJump,
                                               InterfaceType::Radiator};

    for (const BoundaryType boundaryType : around<BoundaryType>(17))
        EXPECT_EQ(types.isInternalBoundaryType(boundaryType), contains(internalTypes, boundaryType));
    for (const InterfaceType interfaceType : around<InterfaceType>(4))
        EXPECT_EQ(types.isSharedInterfaceType(interfaceType), contains(shared, interfaceType));
}

TEST(TypeManager, copiesAndMovesWithItsTables)
{
    TypeManager original;
    TypeManager copy = original;
    TypeManager moved = std::move(copy);
    TypeManager assigned;

    assigned = moved;

    EXPECT_EQ(assigned.allowedBoundaryTypes(VolumeType::Solid), solidTypes);
    EXPECT_EQ(assigned.allowedExternalBoundaryTypes(), externalTypes);
    EXPECT_EQ(moved.allowedBoundaryTypes(InterfaceType::Interior, VolumeType::Porous), fourteen);
    EXPECT_EQ(original.allowedBoundaryTypes(), allTypes);
}

TEST(TypeManager, givesEveryThreadTypeItsSolverNumber)
{
    std::map<ThreadType, int> expected;
    for (const auto& [number, threadTypes] : solverThreadTypes)
        for (const ThreadType threadType : threadTypes)
            expected[threadType] = number;
    ASSERT_EQ(expected.size(), 30U);

    for (const ThreadType threadType : around<ThreadType>(30)) {
        const auto row = expected.find(threadType);
        EXPECT_EQ(physics::solverThreadType(threadType), row == expected.end() ? -1 : row->second)
            << static_cast<int>(threadType);
    }
}

} // namespace
