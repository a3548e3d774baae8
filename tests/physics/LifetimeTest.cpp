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

// Things end in every order, and whoever is left knows only what is alive.

namespace physics {
namespace {

/// Two volumes that share a face, each with a boundary on it, and an interface between these.
struct TwoVolumes {
    TwoVolumes()
    {
        gtm::Body* left = world.body("left");
        gtm::Body* right = world.body("right");
        world.face("shared", left, right);
        world.zones(left, {1});
        physics = std::make_unique<Physics>(world.model(), false);
        model = physics->createModel();
        first = physics->createVolume("first", std::string("left"), VolumeType::Fluid, model);
        second = physics->createVolume("second", std::string("right"), VolumeType::Solid, model);
        hot = first->createBoundary("hot", std::string("shared@left"));
        cold = second->createBoundary("cold", std::string("shared@right"));
        interface = physics->createInterface("contact", hot, cold, InterfaceType::Wall);
    }

    scripted::World world;
    std::unique_ptr<Physics> physics;
    Model* model = nullptr;
    Volume* first = nullptr;
    Volume* second = nullptr;
    Boundary* hot = nullptr;
    Boundary* cold = nullptr;
    Interface* interface = nullptr;
};

TEST(Lifetime, destroyedVolumeTakesItsBoundariesAndTheirInterfacesAlong)
{
    TwoVolumes set;
    const int hotId = set.hot->id();

    set.first->destroy();

    EXPECT_EQ(set.physics->findBoundaryById(hotId), nullptr);
    EXPECT_TRUE(set.physics->interfaces().empty());
    EXPECT_EQ(set.cold->noOfInterfaces(), 0);
    EXPECT_EQ(set.interface->boundary(Side::Second), nullptr);
    EXPECT_EQ(set.physics->volumes(), std::vector<Volume*>{set.second});
}

TEST(Lifetime, destroyedModelLeavesItsMembersWithoutModel)
{
    TwoVolumes set;
    Settings* settings = set.first->settings();
    settings->createThreadBundle(0, ThreadType::Fluid, 7, {1});

    set.model->destroy();

    EXPECT_EQ(set.first->model(), nullptr);
    EXPECT_EQ(set.interface->model(), nullptr);
    EXPECT_EQ(settings->model(), nullptr);
    EXPECT_EQ(set.first->settings(), nullptr);
    EXPECT_EQ(set.physics->findSettingsByThreadId(7), settings);
}

TEST(Lifetime, internalSettingsOutliveTheirVolumeDetached)
{
    TwoVolumes set;
    Settings* internal = set.first->internalSettings();
    internal->createThreadBundle(0, ThreadType::Interior, 9, {});
    const int id = internal->id();

    set.first->destroy();

    EXPECT_EQ(set.physics->findSettingsById(id), internal);
    EXPECT_EQ(set.physics->findSettingsByThreadId(9), internal);
    EXPECT_EQ(internal->volume(), nullptr);
    EXPECT_FALSE(internal->isActive());
    EXPECT_EQ(internal->name(), "Internal settings");
    EXPECT_TRUE(internal->primaryThreadBundle()->zoneIds().empty());
    set.physics->clear();
    EXPECT_EQ(set.physics->findSettingsById(id), nullptr);
}

TEST(Lifetime, renamedThenDestroyedVolumeIsHandedOutByNoList)
{
    TwoVolumes set;
    set.second->rename("zzz");

    set.second->destroy();

    EXPECT_EQ(set.physics->volumes(), std::vector<Volume*>{set.first});
    set.physics->clear();
    EXPECT_TRUE(set.physics->volumes().empty());
}

TEST(Lifetime, volumeThatAnEqualNameTookOutOfTheListEndsWithTheSetUp)
{
    TwoVolumes set;
    Volume* twin = set.physics->createVolume("first", std::string("right"), VolumeType::Fluid, set.model);

    EXPECT_EQ(set.physics->volumes(), (std::vector<Volume*>{twin, set.second}));
    EXPECT_EQ(set.physics->findVolumeById(set.first->id()), set.first);
    const int id = set.first->id();
    set.physics->clear();
    EXPECT_EQ(set.physics->findVolumeById(id), nullptr);
    EXPECT_EQ(set.world.interior("first"), nullptr);
}

TEST(Lifetime, patchSettingsInAnotherModelEndWithThePatch)
{
    TwoVolumes set;
    Model* other = set.physics->createModel();
    Settings* foreign = other->settings(set.hot->patch(nullptr), SettingsType::VolumeSettings);
    const int id = foreign->id();

    set.hot->destroy();

    EXPECT_EQ(set.physics->findSettingsById(id), nullptr);
    EXPECT_TRUE(other->settings().empty());
}

TEST(Lifetime, endedInterfaceStaysReadable)
{
    TwoVolumes set;
    set.interface->setRotationalPeriodicity(90, {1, 2, 3}, {0, 0, 1});

    set.interface->destroy();
    set.interface->destroy();

    EXPECT_EQ(set.interface->name(), "");
    EXPECT_EQ(set.interface->state(), State::Unresolvable);
    EXPECT_EQ(set.interface->model(), nullptr);
    EXPECT_EQ(set.interface->getPeriodicAngle(), 90);
    EXPECT_FALSE(set.interface->isActive());
    EXPECT_TRUE(set.interface->isEmpty());
    EXPECT_FALSE(set.interface->relocate(set.hot, set.cold, false));
    EXPECT_EQ(set.hot->noOfInterfaces(), 0);
}

TEST(Lifetime, replacedThreadBundleLivesUntilItsSettingsEnd)
{
    TwoVolumes set;
    Settings* settings = set.first->settings();
    ThreadBundle* replaced = settings->createThreadBundle(0, ThreadType::Fluid, 7, {});

    ThreadBundle* present = settings->createThreadBundle(0, ThreadType::Fluid, 8, {});

    EXPECT_EQ(settings->threadBundles(), std::vector<ThreadBundle*>{present});
    EXPECT_EQ(set.physics->findThreadBundleByThreadId(7), replaced);
    set.first->destroy();
    EXPECT_EQ(set.physics->findThreadBundleByThreadId(7), nullptr);
    EXPECT_EQ(set.physics->findThreadBundleByZoneId(1), nullptr);
}

} // namespace
} // namespace physics
