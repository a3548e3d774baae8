#include "physics/rules/RuleInternalBoundaries.h"

#include "physics/Boundary.h"
#include "physics/Physics.h"
#include "physics/Volume.h"
#include "tests/scripted/World.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <string>
#include <vector>

namespace physics {
namespace {

using Lines = std::vector<std::string>;

const std::string must = "This problem MUST be fixed before the solution can proceed.";

/// What the rule says of a boundary "fan" of a volume "duct", up to the counts.
std::string aboutFan(const std::string& verbAndCounts, const std::string& regions)
{
    return "The internal boundary fan of type Fan is defined on a piece of the\nexternal boundary of volume duct.\n\n"
           "In particular there " +
           verbAndCounts + " in the external boundary:\n\n" + regions;
}

/// A volume of two bodies with two faces between them and two faces outside.
class InternalBoundaries : public testing::Test {
protected:
    InternalBoundaries()
    {
        inner = world.face("inner", left, right);
        inner2 = world.face("inner2", left, right);
        world.face("outer", left);
        world.face("outer2", right);
        duct = physics.createVolume("duct", std::string("left, right"), VolumeType::Fluid);
    }

    Boundary* fan(const std::string& location, BoundaryType type = BoundaryType::Fan)
    {
        return duct->createBoundary("fan", location, type);
    }

    void setZones(const std::vector<gtm::ExternalFaceSide>& first, const std::vector<gtm::ExternalFaceSide>& second)
    {
        world.sideZones(inner.first, first);
        world.sideZones(inner.second, second);
    }

    scripted::World world;
    gtm::Body* left = world.body("left");
    gtm::Body* right = world.body("right");
    scripted::FaceWithUses inner{};
    scripted::FaceWithUses inner2{};
    Physics physics{world.model(), false};
    Volume* duct = nullptr;
    RuleInternalBoundaries rule;
};

TEST_F(InternalBoundaries, acceptsBothSidesOfFacesInside)
{
    EXPECT_EQ(rule.checkBoundary(fan("inner, inner2"), false), Lines{});
}

TEST_F(InternalBoundaries, acceptsAnEmptyBoundary) { EXPECT_EQ(rule.checkBoundary(fan("nothing"), false), Lines{}); }

TEST_F(InternalBoundaries, asksTheTypeAndNotTheGeometryWhetherABoundaryIsInternal)
{
    EXPECT_EQ(rule.checkBoundary(fan("inner@left", BoundaryType::Wall), false), Lines{});
    EXPECT_EQ(rule.checkBoundary(fan("outer", BoundaryType::VelocityInlet), false), Lines{});
}

TEST_F(InternalBoundaries, judgesEveryInternalType)
{
    for (const BoundaryType type :
         {BoundaryType::Fan, BoundaryType::Interior, BoundaryType::PorousJump, BoundaryType::Radiator})
        EXPECT_EQ(rule.checkBoundary(fan("outer", type), false).size(), 2U);
    EXPECT_EQ(rule.checkBoundary(fan("outer", BoundaryType::PorousJump), false),
              (Lines{"The internal boundary fan of type PorousJump is defined on a piece of the\n"
                     "external boundary of volume duct.\n\n"
                     "In particular there is 1 face in the external boundary:\n\nouter\n",
                     must}));
}

TEST_F(InternalBoundaries, namesOneFaceOutside)
{
    EXPECT_EQ(rule.checkBoundary(fan("outer"), false), (Lines{aboutFan("is 1 face", "outer\n"), must}));
}

TEST_F(InternalBoundaries, namesSeveralFacesOutside)
{
    EXPECT_EQ(rule.checkBoundary(fan("outer, outer2"), false),
              (Lines{aboutFan("are 2 faces", "outer\nouter2\n"), must}));
}

TEST_F(InternalBoundaries, namesOneSideOfAFaceInside)
{
    EXPECT_EQ(rule.checkBoundary(fan("inner@left"), false), (Lines{aboutFan("is 1 face-side", "inner@left\n"), must}));
}

TEST_F(InternalBoundaries, namesSeveralSidesOfFacesInside)
{
    EXPECT_EQ(rule.checkBoundary(fan("inner@left, inner2@right"), false),
              (Lines{aboutFan("are 2 face-sides", "inner@left\ninner2@right\n"), must}));
}

TEST_F(InternalBoundaries, takesTheVerbFromTheFacesAndPutsNoBlankBehindAnd)
{
    EXPECT_EQ(rule.checkBoundary(fan("outer, inner@left"), false),
              (Lines{aboutFan("is 1 face and1 face-side", "outer\n\ninner@left\n"), must}));
    EXPECT_EQ(rule.checkBoundary(fan("outer, inner@left, inner2@right"), false),
              (Lines{aboutFan("is 1 face and2 face-sides", "outer\n\ninner@left\ninner2@right\n"), must}));
    EXPECT_EQ(rule.checkBoundary(fan("outer, outer2, inner@left"), false),
              (Lines{aboutFan("are 2 faces and1 face-side", "outer\nouter2\n\ninner@left\n"), must}));
    EXPECT_EQ(rule.checkBoundary(fan("outer, outer2, inner@left, inner2@right"), false),
              (Lines{aboutFan("are 2 faces and2 face-sides", "outer\nouter2\n\ninner@left\ninner2@right\n"), must}));
}

TEST_F(InternalBoundaries, leavesOutFacesOfWhichBothSidesAreInTheBoundary)
{
    EXPECT_EQ(rule.checkBoundary(fan("inner, inner2@right"), false),
              (Lines{aboutFan("is 1 face-side", "inner2@right\n"), must}));
}

TEST_F(InternalBoundaries, countsAFaceUseThatIsListedTwiceOnce)
{
    Boundary* boundary = fan("inner@left");

    scripted::answersOf(boundary->boundary()).faceUses = {inner.first, nullptr, inner.first};

    EXPECT_EQ(rule.checkBoundary(boundary, false), (Lines{aboutFan("is 1 face-side", "inner@left\n"), must}));
}

TEST_F(InternalBoundaries, asksTheVolumeWhichFacesAreInside)
{
    Boundary* boundary = fan("inner@left");

    scripted::answersOf(duct->interior()).internalFaces = std::vector<gtm::Face*>{nullptr};

    EXPECT_EQ(rule.checkBoundary(boundary, false), (Lines{aboutFan("is 1 face", "inner\n"), must}));
}

TEST_F(InternalBoundaries, keepsApartTheInternalFacesOfDifferentVolumes)
{
    Volume* half = physics.createVolume("half", std::string("left"), VolumeType::Fluid);
    Boundary* ofHalf = half->createBoundary("fan", std::string("inner@left"), BoundaryType::Fan);

    EXPECT_EQ(rule.checkBoundary(fan("inner@left"), false), (Lines{aboutFan("is 1 face-side", "inner@left\n"), must}));
    EXPECT_EQ(rule.checkBoundary(ofHalf, false),
              (Lines{"The internal boundary fan of type Fan is defined on a piece of the\n"
                     "external boundary of volume half.\n\n"
                     "In particular there is 1 face in the external boundary:\n\ninner\n",
                     must}));
}

TEST_F(InternalBoundaries, isAnErrorThatTheFlagDoesNotSilence)
{
    setZones({{1, 0}}, {{2, 0}});

    EXPECT_EQ(rule.checkBoundary(fan("outer"), true), rule.checkBoundary(fan("outer"), false));
    EXPECT_EQ(rule.checkVolume(duct, true), rule.checkVolume(duct, false));
    EXPECT_EQ(rule.checkVolume(duct, true).size(), 2U);
}

TEST_F(InternalBoundaries, acceptsAVolumeWithoutMesh)
{
    EXPECT_EQ(rule.checkVolume(duct, false), Lines{});

    world.withoutZoneMap();

    EXPECT_EQ(rule.checkVolume(duct, false), Lines{});
}

TEST_F(InternalBoundaries, acceptsOneMeshSeenFromBothSides)
{
    setZones({{5, 0}, {6, 1}}, {{6, 0}, {5, 1}});

    EXPECT_EQ(rule.checkVolume(duct, false), Lines{});
}

TEST_F(InternalBoundaries, takesAnySideWordButZeroAsReversed)
{
    setZones({{5, 0}}, {{5, -3}});

    EXPECT_EQ(rule.checkVolume(duct, false), Lines{});
}

TEST_F(InternalBoundaries, countsAZoneThatIsListedTwiceOnce)
{
    setZones({{5, 0}, {5, 0}}, {{5, 1}});

    EXPECT_EQ(rule.checkVolume(duct, false), Lines{});
}

TEST_F(InternalBoundaries, complainsWhenBothSidesCarryTheSameSignedZone)
{
    setZones({{5, 0}}, {{5, 0}});

    EXPECT_EQ(rule.checkVolume(duct, false),
              (Lines{"The volume ductcontains internal faces which are not discretised by a single shared mesh. The "
                     "problem faces are:\n\ninner\n",
                     must}));
}

TEST_F(InternalBoundaries, complainsWhenOneSideHasNoMeshOrMoreMesh)
{
    const Lines complaint = {"The volume ductcontains internal faces which are not discretised by a single shared "
                             "mesh. The problem faces are:\n\ninner\n",
                             must};

    setZones({{5, 0}}, {});
    EXPECT_EQ(rule.checkVolume(duct, false), complaint);
    setZones({}, {{5, 0}});
    EXPECT_EQ(rule.checkVolume(duct, false), complaint);
    setZones({{5, 0}}, {{5, 1}, {6, 1}});
    EXPECT_EQ(rule.checkVolume(duct, false), complaint);
}

TEST_F(InternalBoundaries, negatesTheSmallestZoneWithoutOverflow)
{
    const std::int32_t smallest = std::numeric_limits<std::int32_t>::min();

    setZones({{smallest, 1}}, {{smallest, 0}});

    EXPECT_EQ(rule.checkVolume(duct, false), Lines{});
}

TEST_F(InternalBoundaries, namesEachProblemFaceOnceInTheOrderOfTheVolume)
{
    setZones({{5, 0}}, {});
    world.sideZones(inner2.first, {{7, 0}});

    scripted::answersOf(duct->interior()).unusedInternalFaces = {inner2.face, nullptr, inner.face, inner2.face};

    EXPECT_EQ(rule.checkVolume(duct, false),
              (Lines{"The volume ductcontains internal faces which are not discretised by a single shared mesh. The "
                     "problem faces are:\n\ninner2\ninner\n",
                     must}));
}

TEST_F(InternalBoundaries, looksOnlyAtInternalFacesThatNoBoundaryUses)
{
    setZones({{5, 0}}, {});

    fan("inner");

    EXPECT_EQ(rule.checkVolume(duct, false), Lines{});
}

TEST_F(InternalBoundaries, takesAFaceWithOneSideAsUnmeshedOnTheOther)
{
    const scripted::FaceWithUses lone = world.face("lone", left);
    world.sideZones(lone.first, {{5, 0}});

    scripted::answersOf(duct->interior()).unusedInternalFaces = std::vector<gtm::Face*>{lone.face};

    EXPECT_EQ(rule.checkVolume(duct, false),
              (Lines{"The volume ductcontains internal faces which are not discretised by a single shared mesh. The "
                     "problem faces are:\n\nlone\n",
                     must}));
}

TEST_F(InternalBoundaries, saysNothingOfInterfacesAndSetUps)
{
    Boundary* boundary = fan("outer");
    setZones({{5, 0}}, {});
    Interface* contact = physics.createInterface("contact", boundary, boundary, InterfaceType::Interior);

    EXPECT_EQ(rule.checkInterface(contact, false), Lines{});
    EXPECT_EQ(rule.checkPhysics(&physics, false), Lines{});
}

} // namespace
} // namespace physics
