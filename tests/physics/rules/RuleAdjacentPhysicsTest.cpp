#include "physics/rules/RuleAdjacentPhysics.h"

#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Physics.h"
#include "physics/Volume.h"
#include "tests/scripted/World.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace physics {
namespace {

using Lines = std::vector<std::string>;

const std::string mustOfBoundary = "This problem MUST be fixed before the solution can proceed.";
const std::string thisOfInterface = "This problem MUST be fixed before solution can proceed.\n";
const std::string theseOfInterface = "These problem MUST be fixed before solution can proceed.\n";

class AdjacentPhysics : public testing::Test {
protected:
    Boundary* boundary(const std::string& name, VolumeType volumeType, BoundaryType type)
    {
        Volume* volume = physics.createVolume("block", std::string("body"), volumeType);
        return volume->createBoundary(name, std::string("face"), type);
    }

    Interface* interface(InterfaceType type, Boundary* first, Boundary* second)
    {
        return physics.createInterface("contact", first, second, type);
    }

    scripted::World world;
    Physics physics{world.model(), false};
    RuleAdjacentPhysics rule;
};

TEST_F(AdjacentPhysics, acceptsABoundaryTypeThatTheVolumeAllows)
{
    EXPECT_EQ(rule.checkBoundary(boundary("inlet", VolumeType::Fluid, BoundaryType::VelocityInlet), false), Lines{});
    EXPECT_EQ(rule.checkBoundary(boundary("skin", VolumeType::Solid, BoundaryType::Symmetry), false), Lines{});
}

TEST_F(AdjacentPhysics, complainsAboutABoundaryTypeThatASolidDoesNotAllow)
{
    const Boundary* inlet = boundary("inlet", VolumeType::Solid, BoundaryType::VelocityInlet);

    EXPECT_EQ(rule.checkBoundary(inlet, false),
              (Lines{"A VelocityInlet boundary (inlet) is adjacent to a Solid volume (block).\n", mustOfBoundary}));
}

TEST_F(AdjacentPhysics, complainsAboutABoundaryAndAVolumeWithoutAType)
{
    EXPECT_EQ(rule.checkBoundary(boundary("skin", VolumeType::Unset, BoundaryType::Unset), false),
              (Lines{"A Unset boundary (skin) is adjacent to a Unset volume (block).\n", mustOfBoundary}));
}

TEST_F(AdjacentPhysics, namesTheVolumeTypeAsItIs)
{
    const BoundaryType none{99};

    EXPECT_EQ(rule.checkBoundary(boundary("skin", VolumeType::Fluid, none), false),
              (Lines{"A  boundary (skin) is adjacent to a Fluid volume (block).\n", mustOfBoundary}));
    EXPECT_EQ(rule.checkBoundary(boundary("skin", VolumeType::Porous, none), false),
              (Lines{"A  boundary (skin) is adjacent to a Porous volume (block).\n", mustOfBoundary}));
    EXPECT_EQ(rule.checkBoundary(boundary("skin", VolumeType{7}, BoundaryType::Wall), false),
              (Lines{"A Wall boundary (skin) is adjacent to a  volume (block).\n", mustOfBoundary}));
}

TEST_F(AdjacentPhysics, namesBoundaryAndVolumeByTheirPresentNames)
{
    Boundary* inlet = boundary("inlet", VolumeType::Solid, BoundaryType::VelocityInlet);

    inlet->rename("feed");
    inlet->volume()->rename("casing");

    EXPECT_EQ(rule.checkBoundary(inlet, false),
              (Lines{"A VelocityInlet boundary (feed) is adjacent to a Solid volume (casing).\n", mustOfBoundary}));
}

TEST_F(AdjacentPhysics, isAnErrorThatTheFlagDoesNotSilence)
{
    Boundary* inlet = boundary("inlet", VolumeType::Solid, BoundaryType::VelocityInlet);
    const Interface* contact = interface(InterfaceType::Wall, inlet, inlet);

    EXPECT_EQ(rule.checkBoundary(inlet, true), rule.checkBoundary(inlet, false));
    EXPECT_EQ(rule.checkInterface(contact, true), rule.checkInterface(contact, false));
    EXPECT_EQ(rule.checkInterface(contact, true).size(), 3U);
}

TEST_F(AdjacentPhysics, acceptsBoundariesThatTheInterfaceAllows)
{
    Boundary* hot = boundary("hot", VolumeType::Fluid, BoundaryType::Wall);
    Boundary* cold = boundary("cold", VolumeType::Solid, BoundaryType::Wall);

    EXPECT_EQ(rule.checkInterface(interface(InterfaceType::Wall, hot, cold), false), Lines{});
}

TEST_F(AdjacentPhysics, closesWithThisWhenOnlyTheFirstSideIsWrong)
{
    Boundary* hot = boundary("hot", VolumeType::Fluid, BoundaryType::VelocityInlet);
    Boundary* cold = boundary("cold", VolumeType::Solid, BoundaryType::Wall);

    EXPECT_EQ(rule.checkInterface(interface(InterfaceType::Wall, hot, cold), false),
              (Lines{"The VelocityInlet boundary (hot) on side 0 of the Wall interface (contact) is incompatible "
                     "with it.\n",
                     thisOfInterface}));
}

TEST_F(AdjacentPhysics, closesWithThisWhenOnlyTheSecondSideIsWrong)
{
    Boundary* hot = boundary("hot", VolumeType::Fluid, BoundaryType::Wall);
    Boundary* cold = boundary("cold", VolumeType::Solid, BoundaryType::Wall);

    EXPECT_EQ(rule.checkInterface(interface(InterfaceType::PorousJump, hot, cold), false),
              (Lines{"The Wall boundary (cold) on side 1 of the PorousJump interface (contact) is incompatible "
                     "with it.\n",
                     thisOfInterface}));
}

TEST_F(AdjacentPhysics, closesWithTheseWhenBothSidesAreWrong)
{
    Boundary* hot = boundary("hot", VolumeType::Fluid, BoundaryType::Fan);
    Boundary* cold = boundary("cold", VolumeType::Porous, BoundaryType::Outflow);

    EXPECT_EQ(rule.checkInterface(interface(InterfaceType::Fan, hot, cold), false),
              (Lines{"The Fan boundary (hot) on side 0 of the Fan interface (contact) is incompatible with it.\n",
                     "The Outflow boundary (cold) on side 1 of the Fan interface (contact) is incompatible with it.\n",
                     theseOfInterface}));
}

TEST_F(AdjacentPhysics, leavesOutASideWithoutABoundary)
{
    Boundary* hot = boundary("hot", VolumeType::Fluid, BoundaryType::Fan);
    const Interface* contact = interface(InterfaceType::Fan, hot, hot);

    hot->destroy();

    EXPECT_EQ(rule.checkInterface(contact, false), Lines{});
}

TEST_F(AdjacentPhysics, saysNothingOfVolumesAndSetUps)
{
    const Boundary* inlet = boundary("inlet", VolumeType::Solid, BoundaryType::VelocityInlet);

    EXPECT_EQ(rule.checkVolume(inlet->volume(), false), Lines{});
    EXPECT_EQ(rule.checkPhysics(&physics, false), Lines{});
}

} // namespace
} // namespace physics
