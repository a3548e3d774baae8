#include "physics/rules/RuleUnmatchedInterfaceBCs.h"

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

const std::string header =
    "The following boundaries have been tagged for use in an\ninterface but do not appear in one:\n";
const std::string should = "This problem SHOULD be fixed before the solution can proceed.";

class UnmatchedInterfaceBCs : public testing::Test {
protected:
    Boundary* tagged(Volume* volume, const std::string& name, BoundaryType type)
    {
        Boundary* boundary = volume->createBoundary(name, std::string("face"), type);
        boundary->addTag(BoundaryTag::Interface);
        return boundary;
    }

    scripted::World world;
    Physics physics{world.model(), false};
    Volume* duct = physics.createVolume("duct", std::string("body"), VolumeType::Fluid);
    RuleUnmatchedInterfaceBCs rule;
};

TEST_F(UnmatchedInterfaceBCs, saysNothingOfBoundariesWithoutTheTag)
{
    duct->createBoundary("wall", std::string("face"), BoundaryType::Wall);

    EXPECT_EQ(rule.checkPhysics(&physics, false), Lines{});
}

TEST_F(UnmatchedInterfaceBCs, namesOneTaggedBoundaryInNoInterface)
{
    tagged(duct, "contact", BoundaryType::Wall);

    EXPECT_EQ(rule.checkPhysics(&physics, false),
              (Lines{header, " Boundary contact of type Wall bounding duct.\n", should}));
}

TEST_F(UnmatchedInterfaceBCs, namesSeveralBoundariesUnderOneHeaderInTheOrderOfTheSetUp)
{
    Volume* block = physics.createVolume("block", std::string("body"), VolumeType::Solid);
    tagged(duct, "outlet", BoundaryType::PressureOutlet);
    tagged(duct, "contact", BoundaryType::Wall);
    tagged(block, "skin", BoundaryType::Symmetry);

    EXPECT_EQ(rule.checkPhysics(&physics, false),
              (Lines{header, " Boundary skin of type Symmetry bounding block.\n",
                     " Boundary contact of type Wall bounding duct.\n",
                     " Boundary outlet of type PressureOutlet bounding duct.\n", should}));
}

TEST_F(UnmatchedInterfaceBCs, saysNothingOfATaggedBoundaryThatIsInAnInterface)
{
    Boundary* matched = tagged(duct, "matched", BoundaryType::Wall);
    Boundary* other = duct->createBoundary("other", std::string("face"), BoundaryType::Wall);
    Interface* interface = physics.createInterface("contact", other, matched, InterfaceType::Wall);

    EXPECT_EQ(rule.checkPhysics(&physics, false), Lines{});

    interface->destroy();

    EXPECT_EQ(rule.checkPhysics(&physics, false),
              (Lines{header, " Boundary matched of type Wall bounding duct.\n", should}));
}

TEST_F(UnmatchedInterfaceBCs, saysNothingOnceTheTagIsTakenAway)
{
    Boundary* boundary = tagged(duct, "contact", BoundaryType::Wall);

    boundary->removeTag(BoundaryTag::Interface);

    EXPECT_EQ(rule.checkPhysics(&physics, false), Lines{});
}

TEST_F(UnmatchedInterfaceBCs, isAWarningThatTheFlagSilences)
{
    tagged(duct, "contact", BoundaryType::Wall);

    EXPECT_EQ(rule.checkPhysics(&physics, true), Lines{});
}

TEST_F(UnmatchedInterfaceBCs, saysNothingOfSingleObjects)
{
    Boundary* boundary = tagged(duct, "contact", BoundaryType::Wall);
    const Interface* interface = physics.createInterface("contact", boundary, boundary, InterfaceType::Wall);

    EXPECT_EQ(rule.checkVolume(duct, false), Lines{});
    EXPECT_EQ(rule.checkBoundary(boundary, false), Lines{});
    EXPECT_EQ(rule.checkInterface(interface, false), Lines{});
}

} // namespace
} // namespace physics
