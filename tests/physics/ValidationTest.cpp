#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Physics.h"
#include "physics/Volume.h"
#include "tests/scripted/World.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

// The questions that the objects and the set-up answer about their validity, over all rules together.

namespace physics {
namespace {

using Lines = std::vector<std::string>;

const std::string must = "This problem MUST be fixed before the solution can proceed.";
const std::string boundaryHasError = "Error: One of more of the boundaries has an error.";
const std::string taggedHeader =
    "The following boundaries have been tagged for use in an\ninterface but do not appear in one:\n";
const std::string should = "This problem SHOULD be fixed before the solution can proceed.";

class Validation : public testing::Test {
protected:
    Validation()
    {
        gtm::Body* left = world.body("left");
        gtm::Body* right = world.body("right");
        inner = world.face("inner", left, right);
        world.face("outer", left);
    }

    Volume* volume(const std::string& name, VolumeType type = VolumeType::Fluid)
    {
        return physics.createVolume(name, std::string("left, right"), type);
    }

    /// A boundary whose type no volume allows.
    Boundary* faulty(Volume* volume, const std::string& name)
    {
        return volume->createBoundary(name, std::string("outer"), BoundaryType{50});
    }

    static Boundary* wall(Volume* volume, const std::string& name)
    {
        return volume->createBoundary(name, std::string("outer"), BoundaryType::Wall);
    }

    Boundary* tagged(Volume* volume, const std::string& name)
    {
        Boundary* boundary = wall(volume, name);
        boundary->addTag(BoundaryTag::Interface);
        return boundary;
    }

    static std::string aboutFaulty(const std::string& boundary, const std::string& volume)
    {
        return "A  boundary (" + boundary + ") is adjacent to a Fluid volume (" + volume + ").\n";
    }

    scripted::World world;
    scripted::FaceWithUses inner{};
    Physics physics{world.model(), false};
};

// ---- Topology

TEST_F(Validation, aRegionIsTopologyValidInNoStateButValidAndByRequestEmpty)
{
    const Volume* duct = volume("duct");
    scripted::InteriorAnswers& answers = scripted::answersOf(duct->interior());
    for (const int state : {0, 1, 2, 3, 10, 11, 12, 13, 20, 21, 22, 23, 24, -1}) {
        answers.state = static_cast<gtm::Interior::State>(state);

        EXPECT_EQ(duct->isTopologyValid(false), state == 0) << state;
        EXPECT_EQ(duct->isTopologyValid(true), state == 0 || state == 1) << state;
    }
}

TEST_F(Validation, boundariesAndInterfacesAnswerForTheirOwnEntities)
{
    Boundary* hot = wall(volume("duct"), "hot");
    const Interface* contact = physics.createInterface("contact", hot, hot, InterfaceType::Wall);

    scripted::answersOf(hot->boundary()).state = gtm::Boundary::State::Empty;
    scripted::answersOf(contact->interface()).state = gtm::Interface::State::SameBoundary;

    EXPECT_TRUE(hot->volume()->isTopologyValid(false));
    EXPECT_FALSE(hot->isTopologyValid(false));
    EXPECT_TRUE(hot->isTopologyValid(true));
    EXPECT_EQ(contact->state(), State::InterfaceSameBoundary);
    EXPECT_FALSE(contact->isTopologyValid(true));
}

TEST_F(Validation, theSetUpPassesOnWhatTheWorkingCopySays)
{
    const Volume* duct = volume("duct");

    world.answers().isValid = false;
    EXPECT_TRUE(duct->isTopologyValid(false));
    EXPECT_FALSE(physics.isTopologyValid(false));
    EXPECT_FALSE(physics.isTopologyValid(true));

    world.answers().isValid = true;
    scripted::answersOf(duct->interior()).state = gtm::Interior::State::Overlapping;
    EXPECT_TRUE(physics.isTopologyValid(false));
}

TEST_F(Validation, theSetUpPassesOnWhetherEmptyIsAccepted)
{
    const Volume* duct = volume("duct");

    scripted::answersOf(duct->interior()).state = gtm::Interior::State::Empty;

    EXPECT_FALSE(physics.isTopologyValid(false));
    EXPECT_TRUE(physics.isTopologyValid(true));
    EXPECT_FALSE(physics.isValid(false));
    EXPECT_TRUE(physics.isValid(true));
}

// ---- Regions

TEST_F(Validation, aRegionIsValidWhenBothItsTopologyAndItsPhysicsAre)
{
    Volume* duct = volume("duct");
    const Boundary* sound = wall(duct, "sound");
    EXPECT_TRUE(sound->isPhysicsValid(false));
    EXPECT_TRUE(sound->isValid(false));

    const Boundary* wrongType = faulty(duct, "wrong");
    EXPECT_TRUE(wrongType->isTopologyValid(false));
    EXPECT_FALSE(wrongType->isPhysicsValid(false));
    EXPECT_FALSE(wrongType->isPhysicsValid(true));
    EXPECT_FALSE(wrongType->isValid(false));

    scripted::answersOf(sound->boundary()).state = gtm::Boundary::State::Overlapping;
    EXPECT_TRUE(sound->isPhysicsValid(false));
    EXPECT_FALSE(sound->isValid(false));
}

TEST_F(Validation, theRulesAreNotAskedWhenTheTopologyIsInvalid)
{
    Volume* duct = volume("duct");
    const Boundary* wrongType = faulty(duct, "wrong");
    scripted::answersOf(wrongType->boundary()).state = gtm::Boundary::State::Overlapping;
    world.answers().isValid = false;

    world.throwOn("name"); // which a rule asks for in its complaint

    EXPECT_FALSE(wrongType->isValid(true));
    EXPECT_FALSE(physics.isValid(true));
    EXPECT_THROW(wrongType->isPhysicsValid(true), std::runtime_error);
}

TEST_F(Validation, answersFollowEveryChangeAtOnce)
{
    Boundary* inlet = volume("duct")->createBoundary("inlet", std::string("outer"), BoundaryType::VelocityInlet);
    EXPECT_TRUE(physics.isValid(false));

    inlet->addTag(BoundaryTag::Interface);
    EXPECT_FALSE(physics.isValid(false));

    inlet->removeTag(BoundaryTag::Interface);
    EXPECT_TRUE(physics.isValid(false));

    scripted::answersOf(inlet->boundary()).state = gtm::Boundary::State::Overlapping;
    EXPECT_FALSE(physics.isValid(false));
}

TEST_F(Validation, aBoundaryThatBreaksTwoRulesHasTheLinesOfBothInTheOrderOfTheRules)
{
    Volume* block = volume("block", VolumeType::Solid);
    const Boundary* fan = block->createBoundary("fan", std::string("outer"), BoundaryType::Fan);

    EXPECT_EQ(fan->validate(false), (Lines{"A Fan boundary (fan) is adjacent to a Solid volume (block).\n", must,
                                           "The internal boundary fan of type Fan is defined on a piece of the\n"
                                           "external boundary of volume block.\n\n"
                                           "In particular there is 1 face in the external boundary:\n\nouter\n",
                                           must}));
}

TEST_F(Validation, aVolumeSumsUpAllItsFaultyBoundariesInOneLine)
{
    Volume* duct = volume("duct");
    faulty(duct, "first");
    wall(duct, "second");
    faulty(duct, "third");

    EXPECT_EQ(duct->validate(false), Lines{boundaryHasError});
    EXPECT_EQ(duct->validate(true), Lines{boundaryHasError});
}

TEST_F(Validation, aVolumeNamesItsOwnProblemBeforeThatOfItsBoundaries)
{
    Volume* duct = volume("duct");
    faulty(duct, "inlet");
    world.sideZones(inner.first, {{4, 0}});

    EXPECT_EQ(duct->validate(false),
              (Lines{"The volume ductcontains internal faces which are not discretised by a single shared mesh. The "
                     "problem faces are:\n\ninner\n",
                     must, boundaryHasError}));
}

TEST_F(Validation, anInterfaceNamesItsOwnProblemBeforeThatOfItsBoundaries)
{
    Boundary* wrong = faulty(volume("duct"), "wrong");
    Boundary* sound = wall(volume("block", VolumeType::Solid), "sound");

    const Interface* second = physics.createInterface("contact", sound, wrong, InterfaceType::Wall);

    EXPECT_EQ(second->validate(false),
              (Lines{"The  boundary (wrong) on side 1 of the Wall interface (contact) is incompatible with it.\n",
                     "This problem MUST be fixed before solution can proceed.\n", boundaryHasError}));
}

TEST_F(Validation, anInterfaceSumsUpTwoFaultyBoundariesInOneLine)
{
    Boundary* wrong = faulty(volume("duct"), "wrong");

    const Interface* contact = physics.createInterface("contact", wrong, wrong, InterfaceType::Wall);

    EXPECT_EQ(contact->validate(false),
              (Lines{"The  boundary (wrong) on side 0 of the Wall interface (contact) is incompatible with it.\n",
                     "The  boundary (wrong) on side 1 of the Wall interface (contact) is incompatible with it.\n",
                     "These problem MUST be fixed before solution can proceed.\n", boundaryHasError}));
}

TEST_F(Validation, anInterfaceReportsAFaultyBoundaryThatItAllows)
{
    Boundary* fan = volume("duct")->createBoundary("fan", std::string("outer"), BoundaryType::Fan);

    const Interface* contact = physics.createInterface("contact", fan, fan, InterfaceType::Interior);

    EXPECT_EQ(contact->validate(false), Lines{boundaryHasError});
}

TEST_F(Validation, anEndedInterfaceHasNothingToSay)
{
    Boundary* wrong = faulty(volume("duct"), "wrong");
    Interface* contact = physics.createInterface("contact", wrong, wrong, InterfaceType::Wall);

    contact->destroy();

    EXPECT_EQ(contact->validate(false), Lines{});
    EXPECT_FALSE(contact->isValid(true));
}

TEST_F(Validation, aRegionLeavesTheWarningToTheSetUp)
{
    Volume* duct = volume("duct");
    const Boundary* contact = tagged(duct, "contact");

    EXPECT_TRUE(contact->isValid(false));
    EXPECT_TRUE(duct->isValid(false));
    EXPECT_FALSE(physics.isPhysicsValid(false));
}

// ---- The set-up

TEST_F(Validation, anEmptySetUpIsValid)
{
    EXPECT_TRUE(physics.isValid(false));
    EXPECT_EQ(physics.validate(true, false), Lines{});
}

TEST_F(Validation, aSetUpWithOnlyAWarningIsValidOnceWarningsAreIgnored)
{
    tagged(volume("duct"), "contact");

    EXPECT_FALSE(physics.isPhysicsValid(false));
    EXPECT_FALSE(physics.isValid(false));
    EXPECT_TRUE(physics.isPhysicsValid(true));
    EXPECT_TRUE(physics.isValid(true));
}

TEST_F(Validation, aSetUpIsNoBetterThanItsVolumesItsBoundariesAndItsInterfaces)
{
    Volume* duct = volume("duct");
    Boundary* hot = wall(duct, "hot");
    EXPECT_TRUE(physics.isPhysicsValid(false));

    Interface* contact = physics.createInterface("contact", hot, hot, InterfaceType{9});
    EXPECT_TRUE(duct->isPhysicsValid(false));
    EXPECT_TRUE(hot->isPhysicsValid(false));
    EXPECT_FALSE(physics.isPhysicsValid(true));
    contact->destroy();

    world.sideZones(inner.first, {{4, 0}});
    EXPECT_FALSE(physics.isPhysicsValid(true));
    world.sideZones(inner.first, {});
    EXPECT_TRUE(physics.isPhysicsValid(true));

    faulty(duct, "wrong");
    EXPECT_FALSE(physics.isPhysicsValid(true));
}

TEST_F(Validation, withoutDetailsOnlyTheSetUpItselfIsReported)
{
    Volume* duct = volume("duct");
    faulty(duct, "wrong");
    EXPECT_EQ(physics.validate(false, false), Lines{});

    tagged(duct, "contact");

    EXPECT_EQ(physics.validate(false, false),
              (Lines{taggedHeader, " Boundary contact of type Wall bounding duct.\n", should}));
    EXPECT_EQ(physics.validate(false, true), Lines{});
}

TEST_F(Validation, aSoundSetUpHasNothingToReportInDetail)
{
    Boundary* hot = wall(volume("duct"), "hot");
    physics.createInterface("contact", hot, hot, InterfaceType::Wall);

    EXPECT_EQ(physics.validate(true, false), Lines{});
}

TEST_F(Validation, aFaultyBoundaryIsReportedByItsVolumeAndOnItsOwn)
{
    faulty(volume("duct"), "wrong");

    EXPECT_EQ(physics.validate(true, false), (Lines{boundaryHasError, "", aboutFaulty("wrong", "duct"), must}));
}

TEST_F(Validation, emptyLinesStandBetweenObjectsOnly)
{
    Volume* duct = volume("duct");
    faulty(duct, "a");
    wall(duct, "b");
    faulty(duct, "c");
    tagged(volume("pipe"), "contact");

    EXPECT_EQ(physics.validate(true, false),
              (Lines{taggedHeader, " Boundary contact of type Wall bounding pipe.\n", should, "", boundaryHasError, "",
                     aboutFaulty("a", "duct"), must, "", aboutFaulty("c", "duct"), must}));
    EXPECT_EQ(physics.validate(true, true),
              (Lines{boundaryHasError, "", aboutFaulty("a", "duct"), must, "", aboutFaulty("c", "duct"), must}));
}

TEST_F(Validation, objectsAreReportedVolumesFirstThenBoundariesThenInterfaces)
{
    Boundary* outlet = faulty(volume("outlet duct"), "outlet");
    Boundary* inlet = faulty(volume("inlet duct"), "inlet");
    physics.createInterface("contact", outlet, inlet, InterfaceType::Wall);

    EXPECT_EQ(physics.validate(true, false),
              (Lines{boundaryHasError, "", boundaryHasError, "", aboutFaulty("inlet", "inlet duct"), must, "",
                     aboutFaulty("outlet", "outlet duct"), must, "",
                     "The  boundary (outlet) on side 0 of the Wall interface (contact) is incompatible with it.\n",
                     "The  boundary (inlet) on side 1 of the Wall interface (contact) is incompatible with it.\n",
                     "These problem MUST be fixed before solution can proceed.\n", boundaryHasError}));
}

TEST_F(Validation, complaintsTellWhatEachLineIsAbout)
{
    Volume* duct = volume("duct");
    const Boundary* wrong = faulty(duct, "wrong");
    tagged(duct, "contact");

    const std::vector<Physics::Complaint> complaints = physics.complaints(false);

    ASSERT_EQ(complaints.size(), 3U);
    EXPECT_EQ(complaints[0].region, nullptr);
    EXPECT_EQ(complaints[0].lines, (Lines{taggedHeader, " Boundary contact of type Wall bounding duct.\n", should}));
    EXPECT_EQ(complaints[1].region, duct);
    EXPECT_EQ(complaints[1].lines, Lines{boundaryHasError});
    EXPECT_EQ(complaints[2].region, wrong);
    EXPECT_EQ(complaints[2].lines, (Lines{aboutFaulty("wrong", "duct"), must}));
    EXPECT_EQ(physics.complaints(true).size(), 2U);
}

TEST_F(Validation, changesNothing)
{
    Boundary* wrong = faulty(volume("duct"), "wrong");
    physics.createInterface("contact", wrong, wrong, InterfaceType::Wall);
    const std::vector<Settings*> settings = physics.settings();
    world.takeCalls();

    physics.validate(true, false);
    physics.isValid(false);

    EXPECT_EQ(world.calls(), Lines{});
    EXPECT_EQ(physics.settings(), settings);
}

} // namespace
} // namespace physics
