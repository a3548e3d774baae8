#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Volume.h"
#include "tests/scripted/World.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace physics {
namespace {

const std::string typeTables = "0\n"
                               "3\n"
                               "4 0 7 14 17\n"
                               "19 1 0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17\n"
                               "19 2 0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17\n"
                               "5\n"
                               "21 0 3 0 0 1 13 0 1 2 3 4 5 6 7 9 11 12 13 17 2 0\n"
                               "38 1 3 0 2 7 17 1 14 0 1 2 3 4 5 6 7 9 10 11 12 13 17 2 14 0 1 2 3 4 5 6 7 9 10 11 12 "
                               "13 17\n"
                               "22 2 3 0 0 1 14 0 1 2 3 4 5 6 7 9 10 11 12 13 17 2 0\n"
                               "22 3 3 0 0 1 14 0 1 2 3 4 5 6 7 9 10 11 12 13 17 2 0\n"
                               "11 4 3 0 1 7 1 1 7 2 1 7\n"
                               "1\n"
                               "2 0 7\n"
                               "26 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20 21 22 23 24 25 26\n"
                               "6 0 0 1 1 2 2\n";

/// The text of a set-up without objects, with all id counters at `counter`.
std::string emptyText(int counter)
{
    const std::string line = std::to_string(counter) + "\n";
    return "0\n3\n0 0\n0\n1\n" + typeTables + "0\n0\n0\n0\n0\n0\n-1\n0\n0\n" + line + line + line + line + line + line;
}

/// Two volumes that share a face, with most of what a set-up can have.
struct FullSetUp {
    FullSetUp()
    {
        left = world.body("left");
        right = world.body("right");
        world.face("shared", left, right);
        physics = std::make_unique<Physics>(world.model(), false);
        physics->restore(emptyText(0)); // so that ids begin at 1
        Model* model = physics->createModel();
        Volume* fluid = physics->createVolume("fluid", std::string("left"), VolumeType::Fluid, model);
        Volume* solid = physics->createVolume("solid", std::vector<gtm::Region*>{right}, VolumeType::Solid, model);
        Boundary* hot = fluid->createBoundary("hot", std::string("shared@left"), BoundaryType::Wall);
        Boundary* cold = solid->createBoundary("cold", std::string("shared@right"), BoundaryType::Wall);
        physics->createInterface("contact", hot, cold, InterfaceType::Wall);
        fluid->settings()->createThreadBundle(0, ThreadType::Fluid, 7, {1})->setZoneIds({5});
        hot->setShellModel(physics->createModel());
        hot->setShellType(ShellType::HeatConduction);
        hot->nonOverlappingShellSettings();
        cold->addTag(BoundaryTag::Interface);
        solid->deactivate();
        physics->maskBodies({right});
    }

    scripted::World world;
    gtm::Body* left = nullptr;
    gtm::Body* right = nullptr;
    std::unique_ptr<Physics> physics;
};

TEST(PhysicsSerialiser, emptySetUpIsWrittenLineByLine)
{
    scripted::World world;
    Physics physics(world.model(), true);
    ASSERT_TRUE(physics.restore(emptyText(4)));

    EXPECT_EQ(physics.serialise(), emptyText(4));
    EXPECT_TRUE(physics.enforceRestrictions());
}

TEST(PhysicsSerialiser, fullSetUpIsWrittenLineByLine)
{
    FullSetUp set;

    EXPECT_EQ(set.physics->serialise(), "0\n"
                                        "0 right\n" // the mask
                                        "2 0\n"
                                        "0 fluid\n"
                                        "1 left\n"
                                        "1 0\n"
                                        "0 hot\n"
                                        "1 shared@left\n"
                                        "1 solid\n"
                                        "0 right\n"
                                        "1 0\n"
                                        "1 cold\n"
                                        "1 shared@right\n"
                                        "1\n"
                                        "0 contact\n"
                                        "1 0\n"
                                        "1 1\n"
                                        "1\n" +
                                            typeTables +
                                            "2 1 2\n"
                                            "2 1 2\n"
                                            "2 1 2\n"
                                            "1 1\n"
                                            "4 1 2 3 4\n"
                                            "4 1 2 3 4\n"
                                            "-1\n"
                                            "1\n"
                                            "1\n" // group 1
                                            "1 2\n"
                                            "0\n"
                                            "2\n" // models
                                            "0 1\n"
                                            "2 1 2\n"
                                            "0\n"
                                            "1 1\n"
                                            "2 1 3\n"
                                            "0\n"
                                            "4 1 1 2 2\n"
                                            "0\n"
                                            "0\n"
                                            "0\n"
                                            "1\n"
                                            "1 0\n"
                                            "Default\n"
                                            "0 2\n"
                                            "0\n"
                                            "1 1\n"
                                            "0\n"
                                            "0\n"
                                            "0\n"
                                            "0\n"
                                            "2 1 4\n"
                                            "0\n"
                                            "0\n"
                                            "1\n"
                                            "1 0\n"
                                            "Default\n"
                                            "2\n" // boundaries
                                            "0 1 7 0 2 0 1 0\n"
                                            "4 -1 1 1 3\n"
                                            "0\n"
                                            "0 2 7 -1 -1 1 2 0\n"
                                            "4 -1 2 1 4\n"
                                            "1 0\n"
                                            "2\n" // volumes
                                            "0 1 1 1 0 -1 0 -1\n"
                                            "1 1\n"
                                            "0 2 0 1 1 1 0 -1\n"
                                            "1 2\n"
                                            "1\n" // interfaces
                                            "0 1 4 0 0 1 0 1 2 0 0 0\n"
                                            "4\n" // patches
                                            "0 1 1 -1\n"
                                            "0 3 1 1\n"
                                            "0 2 2 -1\n"
                                            "0 4 2 1\n"
                                            "4\n" // settings
                                            "0 1 0 1 1 -1 1 -1\n"
                                            "0\n"
                                            "0 2 0 1 1 -1 2 -1\n"
                                            "0\n"
                                            "0 3 0 0 1 1 -1 -1\n"
                                            "1\n"
                                            "0 0 7 2 1 1\n"
                                            "1 5\n"
                                            "0 4 1 1 2 -1 1 -1\n"
                                            "0\n");
}

TEST(PhysicsSerialiser, restoredSetUpIsSavedAsTheSameText)
{
    FullSetUp set;
    const std::string text = set.physics->serialise();
    Physics other(set.world.model(), false);

    EXPECT_EQ(other.checkSerialised(text), std::vector<std::string>());
    ASSERT_TRUE(other.restore(text));
    EXPECT_EQ(other.serialise(), text);
    ASSERT_TRUE(other.restore(other.serialise()));
    EXPECT_EQ(other.serialise(), text);
}

TEST(PhysicsSerialiser, restoredObjectsHaveTheirIdsAndRelations)
{
    FullSetUp set;
    Physics other(set.world.model(), false);

    ASSERT_TRUE(other.restore(set.physics->serialise()));

    Boundary* hot = other.findBoundaryById(1);
    ASSERT_NE(hot, nullptr);
    EXPECT_EQ(hot->fullName(), "fluid::hot");
    EXPECT_EQ(hot->shellModel(), other.findModelById(2));
    EXPECT_EQ(hot->shellType(), ShellType::HeatConduction);
    EXPECT_EQ(hot->interfaces(), std::vector<Interface*>{other.findInterfaceById(1)});
    EXPECT_EQ(other.findBoundaryById(2)->tags(), std::vector<BoundaryTag>{BoundaryTag::Interface});
    EXPECT_EQ(other.findVolumeById(2)->activationGroup(), 1);
    EXPECT_EQ(other.activationGroupVolumes(1), std::vector<Volume*>{other.findVolumeById(2)});
    EXPECT_EQ(other.findSettingsByThreadId(7), other.findVolumeById(1)->settings());
    EXPECT_EQ(other.findSettingsByZoneId(5), other.findSettingsById(3));
    EXPECT_TRUE(other.isMasked(set.right));
    EXPECT_EQ(other.findModelById(1)->domainSymbol(1), "default");
}

TEST(PhysicsSerialiser, idsGoOnFromTheCountersOfTheText)
{
    scripted::World world;
    Physics physics(world.model(), false);
    ASSERT_TRUE(physics.restore(emptyText(40)));

    EXPECT_EQ(physics.createModel()->id(), 41);
    EXPECT_EQ(physics.createVolume("v", std::string("x"), VolumeType::Fluid)->id(), 41);
}

TEST(PhysicsSerialiser, idsGoOnPastTheLargestInteger)
{
    scripted::World world;
    Physics physics(world.model(), false);
    ASSERT_TRUE(physics.restore(emptyText(2147483647)));

    EXPECT_EQ(physics.createModel()->id(), -2147483647 - 1);
    ASSERT_TRUE(physics.restore(emptyText(0)));
}

TEST(PhysicsSerialiser, defaultBoundaryTypesComeBackChanged)
{
    scripted::World world;
    Physics physics(world.model(), false);
    ASSERT_EQ(physics.defaultBoundaryType(VolumeType::Solid), BoundaryType::Wall);

    ASSERT_TRUE(physics.restore(physics.serialise()));

    EXPECT_EQ(physics.defaultBoundaryType(VolumeType::Solid), BoundaryType::VelocityInlet);
    EXPECT_EQ(physics.defaultBoundaryType(VolumeType::Fluid), BoundaryType::MassFlowInlet);
    EXPECT_EQ(physics.defaultBoundaryType(VolumeType::Porous), BoundaryType::MassFlowOutlet);
    Volume* solid = physics.createVolume("s", std::string("x"), VolumeType::Solid);
    EXPECT_EQ(solid->createBoundary("b", std::string("y"))->type(), BoundaryType::VelocityInlet);
}

TEST(PhysicsSerialiser, textThatEndsTooEarlyChangesNothing)
{
    FullSetUp set;
    const std::string text = set.physics->serialise();

    // Without its last line end the text is still whole.
    for (std::size_t size = 0; size + 1 < text.size(); ++size) {
        const std::string cut = text.substr(0, size);
        ASSERT_FALSE(set.physics->restore(cut)) << size;
        ASSERT_EQ(set.physics->checkSerialised(cut).size(), 1U) << size;
    }
    EXPECT_EQ(set.physics->serialise(), text);
}

TEST(PhysicsSerialiser, complaintNamesTheLineAndWhatWasExpected)
{
    scripted::World world;
    Physics physics(world.model(), false);

    EXPECT_EQ(physics.checkSerialised("0\n3\n0 0\nfive\n"),
              std::vector<std::string>{"4: expected the number of interfaces of the location model (a whole number of "
                                       "32 bits), found \"five\""});
    EXPECT_EQ(physics.checkSerialised(""), std::vector<std::string>{"1: expected the format version (a whole number of "
                                                                    "32 bits), found the end of the text"});
}

TEST(PhysicsSerialiser, regionThatTheGeometryLacksIsRefusedWithTheNearest)
{
    FullSetUp set;
    std::string text = set.physics->serialise();
    text.replace(text.find("0 right\n1 0\n"), 7, "0 rihgt");

    EXPECT_EQ(set.physics->checkSerialised(text),
              std::vector<std::string>{"10: the geometry has no region \"rihgt\"; the nearest is \"right\""});
    EXPECT_FALSE(set.physics->restore(text));
}

TEST(PhysicsSerialiser, maskedBodyThatTheGeometryLacksIsLeftOut)
{
    FullSetUp set;
    std::string text = set.physics->serialise();
    text.replace(text.find("0 right"), 7, "0 far, left");

    ASSERT_TRUE(set.physics->restore(text));

    EXPECT_EQ(set.physics->maskedBodies(), std::vector<gtm::Body*>{set.left});
}

TEST(PhysicsSerialiser, refusalOfTheRehearsalKeepsTheSetUp)
{
    FullSetUp set;
    const std::string text = set.physics->serialise();
    const Volume* volume = set.physics->findVolumeById(1);
    set.world.answers(1).refuseNextInterior = gtm::Interior::State::Overlapping;

    EXPECT_FALSE(set.physics->restore(text));

    EXPECT_EQ(set.physics->findVolumeById(1), volume);
    EXPECT_EQ(set.physics->serialise(), text);
}

TEST(PhysicsSerialiser, refusalAfterTheRehearsalLeavesAnEmptySetUp)
{
    FullSetUp set;
    const std::string text = set.physics->serialise();
    set.world.answers(0).refuseNextInterior = gtm::Interior::State::Overlapping;

    EXPECT_FALSE(set.physics->restore(text));

    EXPECT_TRUE(set.physics->models().empty());
    EXPECT_TRUE(set.physics->volumes().empty());
    EXPECT_TRUE(set.physics->maskedBodies().empty());
}

TEST(PhysicsSerialiser, countsThatTheTextCannotHoldAreRefusedAtOnce)
{
    scripted::World world;
    Physics physics(world.model(), false);

    EXPECT_EQ(physics.checkSerialised("0\n3\n2000000000 0\n"),
              std::vector<std::string>{"3: expected the number of interiors (a count that the rest of the text can "
                                       "hold), found \"2000000000\""});
}

} // namespace
} // namespace physics
