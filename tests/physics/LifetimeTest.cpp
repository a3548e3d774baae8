#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Volume.h"
#include "tests/scripted/World.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <memory>
#include <numeric>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

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

TEST(Lifetime, aPointerToWhatIsGoneIsLookedUpWithoutBeingFollowed)
{
    TwoVolumes set;
    const Interface* goneInterface = nullptr;
    const Volume* goneVolume = nullptr;
    {
        const TwoVolumes other;
        goneInterface = other.interface;
        goneVolume = other.first;
    }

    EXPECT_EQ(set.hot->patch(goneInterface), nullptr);
    EXPECT_EQ(set.hot->boundarySettings(goneInterface), nullptr);
    EXPECT_EQ(set.model->settings(goneInterface), nullptr);
    EXPECT_EQ(set.model->settings(goneVolume), nullptr);
    EXPECT_EQ(set.model->internalSettings(goneVolume), nullptr);
}

TEST(Lifetime, aModelMayEndAfterTheEndOfItsMembersWasBrokenOff)
{
    TwoVolumes set;
    set.hot->setShellModel(set.model);
    set.world.throwOn("name");
    EXPECT_THROW(set.interface->destroy(), std::runtime_error);
    set.world.throwOn("name");
    EXPECT_THROW(set.first->destroy(), std::runtime_error);

    set.model->destroy();

    EXPECT_EQ(set.first->model(), nullptr);
    EXPECT_EQ(set.first->settings(), nullptr);
    EXPECT_EQ(set.hot->shellModel(), nullptr);
    EXPECT_EQ(set.interface->model(), nullptr);
    EXPECT_EQ(set.interface->settings(), nullptr);
}

TEST(Lifetime, aBoundaryEndsThoughTheLocationModelDoesNotSayWhichZonesItsThreadInherits)
{
    TwoVolumes set;
    Boundary* wall = set.first->createBoundary("wall", std::string("shared@left"));
    wall->nonOverlappingBoundarySettings()->createThreadBundle(0, ThreadType::Wall, 7, {1});
    set.world.throwOn("faceUses");

    wall->destroy();

    EXPECT_EQ(set.physics->findThreadBundleByThreadId(7), nullptr);
    EXPECT_THAT(set.first->boundaries(), testing::ElementsAre(set.hot));
}

TEST(Lifetime, aVolumeWhoseEndWasBrokenOffHasItsSettingsInTheModelThatItIsPutInto)
{
    TwoVolumes set;
    Settings* internal = set.first->internalSettings();
    set.world.throwOn("name");
    EXPECT_THROW(set.first->destroy(), std::runtime_error);

    EXPECT_TRUE(set.first->setModel(set.model));

    EXPECT_EQ(set.first->internalSettings(), internal);
    EXPECT_THAT(set.model->internalSettings(), testing::ElementsAre(internal));
    EXPECT_THAT(set.model->volumeSettings(), testing::ElementsAre(set.first->settings()));
}

TEST(Lifetime, whatAClearThatWasBrokenOffLeftStillAnswersWithItsSettings)
{
    TwoVolumes set;
    set.world.throwOn("destroy");
    EXPECT_THROW(set.physics->clear(), std::runtime_error);

    EXPECT_NE(set.second->settings(), nullptr);
    EXPECT_EQ(set.second->settings(), set.second->settings());
    for (const BoundaryPatch* patch : set.cold->patches())
        EXPECT_NE(patch->boundarySettings(), nullptr);
}

TEST(Lifetime, anInterfaceThatChangesItsSidesLeavesEachBoundaryWithOnePatchOrNone)
{
    TwoVolumes set;
    Boundary* third = set.second->createBoundary("third", std::string("shared@right"));
    const std::vector<std::pair<Boundary*, Boundary*>> sides = {
        {set.cold, third}, {third, set.cold},  {third, third},       {set.hot, third},
        {third, set.hot},  {set.hot, set.hot}, {set.cold, set.cold}, {set.hot, set.cold}};
    for (const auto& [first, second] : sides) {
        set.interface->relocate(first, second, false);
        for (Boundary* boundary : {set.hot, set.cold, third}) {
            const bool isOnASide = boundary == first || boundary == second;
            EXPECT_EQ(boundary->noOfInterfaces(), isOnASide ? 1 : 0);
            EXPECT_EQ(boundary->patches().size(), isOnASide ? 2U : 1U);
            EXPECT_EQ(boundary->patch(set.interface), isOnASide ? boundary->patches().back() : nullptr);
        }
    }
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

// ---- In every order

/// What the set-up hands out is alive, and found where it says that it is.
void expectThatAllListedAreAlive(const Physics& physics)
{
    for (Model* model : physics.models()) {
        EXPECT_EQ(physics.findModelById(model->id()), model);
        for (const Volume* volume : model->volumes())
            EXPECT_EQ(volume->model(), model);
        for (const Interface* interface : model->interfaces())
            EXPECT_EQ(interface->model(), model);
    }
    for (Volume* volume : physics.volumes())
        EXPECT_EQ(physics.findVolumeById(volume->id()), volume);
    for (Boundary* boundary : physics.boundaries()) {
        EXPECT_EQ(physics.findBoundaryById(boundary->id()), boundary);
        for (const Interface* interface : boundary->interfaces())
            EXPECT_NE(interface->otherBoundary(boundary), nullptr);
        for (const BoundaryPatch* patch : boundary->patches())
            EXPECT_EQ(patch->boundary(), boundary);
    }
    for (Interface* interface : physics.interfaces())
        EXPECT_EQ(physics.findInterfaceById(interface->id()), interface);
    for (Settings* settings : physics.settings()) {
        EXPECT_EQ(physics.findSettingsById(settings->id()), settings);
        EXPECT_NE(settings->name(), "");
    }
    for (const ThreadBundle* bundle : physics.threadBundles())
        EXPECT_NE(bundle->settings()->model(), nullptr);
}

TEST(Lifetime, objectsThatKnowEachOtherMayEndInEveryOrder)
{
    enum Step { endModel, endShell, endFirst, endSecond, endHot, endInterface, clear, noOfSteps };
    std::vector<int> order(noOfSteps);
    std::iota(order.begin(), order.end(), 0);
    do {
        if (!std::is_sorted(std::find(order.begin(), order.end(), clear) + 1, order.end()))
            continue; // what comes after the clearing finds nothing; one order of it is enough
        TwoVolumes set;
        Physics& physics = *set.physics;
        set.hot->setShellModel(physics.createModel());
        int threadId = 0;
        for (Settings* settings :
             {set.first->settings(), set.first->internalSettings(), set.second->settings(), set.interface->settings(),
              set.hot->boundarySettings(nullptr), set.hot->boundarySettings(set.interface),
              set.hot->shellSettings(nullptr), set.hot->shellSettings(set.interface)})
            settings->createThreadBundle(0, ThreadType::Wall, ++threadId, {});
        physics.deactivateVolumes({set.second, set.first});
        const int model = set.model->id();
        const int shell = set.hot->shellModel()->id();
        const int first = set.first->id();
        const int second = set.second->id();
        const int hot = set.hot->id();
        const auto end = [](auto* object) {
            if (object != nullptr)
                object->destroy();
        };

        for (const int step : order) {
            switch (step) {
            case endModel:
                end(physics.findModelById(model));
                break;
            case endShell:
                end(physics.findModelById(shell));
                break;
            case endFirst:
                end(physics.findVolumeById(first));
                break;
            case endSecond:
                end(physics.findVolumeById(second));
                break;
            case endHot:
                end(physics.findBoundaryById(hot));
                break;
            case endInterface:
                set.interface->destroy();
                break;
            default:
                physics.clear();
                break;
            }
            expectThatAllListedAreAlive(physics);
        }

        EXPECT_TRUE(physics.volumes().empty() && physics.models().empty() && physics.interfaces().empty());
        for (int id = 1; id <= threadId; ++id)
            EXPECT_EQ(physics.findThreadBundleByThreadId(id), nullptr);
    } while (std::next_permutation(order.begin(), order.end()));
}

// ---- Whatever the location model fails in, nothing is left half made

TEST(Lifetime, volumeThatCouldNotBeMadeLeavesNothing)
{
    TwoVolumes set;
    const int nextId = set.second->id() + 1;
    for (const char* operation : {"createInterior", "name"}) {
        set.world.throwOn(operation);

        EXPECT_THROW(set.physics->createVolume("third", std::string("left"), VolumeType::Fluid), std::runtime_error);

        EXPECT_EQ(set.physics->volumes(), (std::vector<Volume*>{set.first, set.second})) << operation;
        EXPECT_EQ(set.model->volumes(), (std::vector<Volume*>{set.first, set.second})) << operation;
        EXPECT_EQ(set.physics->findVolumeById(nextId), nullptr) << operation;
        EXPECT_EQ(set.world.interior("third"), nullptr) << operation;
    }
}

TEST(Lifetime, defaultVolumeThatCouldNotBeMadeLeavesTheDefaultInteriorOff)
{
    TwoVolumes set;
    for (const char* operation : {"activateDefaultInterior", "rename", "name"}) {
        set.world.throwOn(operation);

        EXPECT_THROW(set.physics->createDefaultVolume("rest", VolumeType::Fluid), std::runtime_error);

        EXPECT_EQ(set.physics->defaultVolume(), nullptr) << operation;
        EXPECT_FALSE(set.physics->virtualTopology().isDefaultInteriorActive()) << operation;
        EXPECT_EQ(set.model->volumes().size(), 2u) << operation;
    }
}

TEST(Lifetime, secondDefaultVolumeThatCouldNotBeMadeLeavesTheFirst)
{
    TwoVolumes set;
    Volume* rest = set.physics->createDefaultVolume("rest", VolumeType::Fluid);
    set.world.throwOn("name");

    EXPECT_THROW(set.physics->createDefaultVolume("other", VolumeType::Fluid), std::runtime_error);

    EXPECT_EQ(set.physics->defaultVolume(), rest);
    EXPECT_TRUE(set.physics->virtualTopology().isDefaultInteriorActive());
}

TEST(Lifetime, boundaryThatCouldNotBeMadeLeavesNothing)
{
    TwoVolumes set;
    const std::size_t noOfSettings = set.model->settings().size();
    for (const char* operation : {"createBoundary", "name"}) {
        set.world.throwOn(operation);

        EXPECT_THROW(set.first->createBoundary("half", std::string("shared@left")), std::runtime_error);

        EXPECT_EQ(set.first->boundaries(), std::vector<Boundary*>{set.hot}) << operation;
        EXPECT_EQ(set.model->settings().size(), noOfSettings) << operation;
        EXPECT_EQ(set.physics->findBoundaryById(set.cold->id() + 1), nullptr) << operation;
        EXPECT_EQ(set.world.boundary("half"), nullptr) << operation;
    }
}

TEST(Lifetime, defaultBoundaryThatCouldNotBeMadeIsSwitchedOff)
{
    TwoVolumes set;
    for (const char* operation : {"activateDefaultBoundary", "rename", "name"}) {
        set.world.throwOn(operation);

        EXPECT_THROW(set.first->createDefaultBoundary("rest"), std::runtime_error);

        EXPECT_EQ(set.first->defaultBoundary(), nullptr) << operation;
        EXPECT_FALSE(set.first->interior()->isDefaultBoundaryActive()) << operation;
        EXPECT_EQ(set.first->boundaries(), std::vector<Boundary*>{set.hot}) << operation;
    }
}

TEST(Lifetime, endThatTheLocationModelBrokeOffIsFinishedByTheNext)
{
    TwoVolumes set;
    const int volumeId = set.first->id();
    const int boundaryId = set.hot->id();
    for (int time = 1; time <= 3; ++time) { // for the interface, for the boundary, for the interior
        set.world.throwOn("destroy");
        EXPECT_THROW(set.first->destroy(), std::runtime_error);
    }

    set.first->destroy();

    EXPECT_EQ(set.physics->findVolumeById(volumeId), nullptr);
    EXPECT_EQ(set.physics->findBoundaryById(boundaryId), nullptr);
    EXPECT_EQ(set.world.interior("first"), nullptr);
    EXPECT_EQ(set.cold->noOfInterfaces(), 0);
}

// ---- Groups, defaults, names, two set-ups at once

TEST(Lifetime, groupWhoseVolumesEndStaysAndKeepsItsNumber)
{
    TwoVolumes set;
    EXPECT_EQ(set.physics->deactivateVolumes({set.first, set.second, set.first}), 1);

    set.first->destroy();

    EXPECT_EQ(set.physics->activationGroupVolumes(1), std::vector<Volume*>{set.second});
    set.second->destroy();
    EXPECT_EQ(set.physics->activationGroupVolumes(1), std::vector<Volume*>{});
    EXPECT_EQ(set.physics->activationGroups(), std::vector<int>{1});
    EXPECT_EQ(set.physics->deactivateVolumes({}), 2);
    EXPECT_TRUE(set.physics->activateGroup(1));
    EXPECT_EQ(set.physics->deactivateVolumes({}), 1);
}

TEST(Lifetime, defaultVolumeKeepsItsInteriorWhenAnOlderOneEnds)
{
    TwoVolumes set;
    Volume* older = set.physics->createDefaultVolume("older", VolumeType::Fluid);
    Volume* newer = set.physics->createDefaultVolume("newer", VolumeType::Fluid);
    const int newerId = newer->id();

    older->destroy();

    EXPECT_EQ(set.physics->defaultVolume(), newer);
    EXPECT_TRUE(set.physics->virtualTopology().isDefaultInteriorActive());
    newer->destroy();
    EXPECT_FALSE(set.physics->hasDefaultVolume());
    EXPECT_FALSE(set.physics->virtualTopology().isDefaultInteriorActive());
    EXPECT_EQ(set.physics->findVolumeById(newerId), nullptr);
}

TEST(Lifetime, olderOfTwoDefaultVolumesThatIsLeftEndsWithTheSetUp)
{
    TwoVolumes set;
    Volume* older = set.physics->createDefaultVolume("older", VolumeType::Fluid);
    Volume* newer = set.physics->createDefaultVolume("newer", VolumeType::Fluid);
    const int olderId = older->id();

    newer->destroy();

    EXPECT_EQ(set.physics->defaultVolume(), nullptr);
    EXPECT_EQ(set.physics->findVolumeById(olderId), older);
    set.physics->clear();
    EXPECT_EQ(set.physics->findVolumeById(olderId), nullptr);
}

TEST(Lifetime, secondDefaultBoundaryEndsTheFirstWithItsInterfaces)
{
    TwoVolumes set;
    Boundary* rest = set.first->createDefaultBoundary("rest");
    const int restId = rest->id();
    Interface* joined = set.physics->createInterface("joined", rest, set.cold, InterfaceType::Wall);

    Boundary* again = set.first->createDefaultBoundary("rest");

    EXPECT_EQ(set.physics->findBoundaryById(restId), nullptr);
    EXPECT_EQ(again->id(), restId + 1);
    EXPECT_EQ(set.first->defaultBoundary(), again);
    EXPECT_EQ(joined->boundary(Side::First), nullptr);
    EXPECT_TRUE(set.first->interior()->isDefaultBoundaryActive());
}

TEST(Lifetime, nameThatARenamedVolumeLeftIsFreeForAnother)
{
    TwoVolumes set;
    set.first->rename("renamed");

    Volume* third = set.physics->createVolume("first", std::string("left"), VolumeType::Fluid);

    EXPECT_EQ(set.physics->volumes(), (std::vector<Volume*>{third, set.second}));
    set.first->destroy();
    EXPECT_EQ(set.physics->volumes(), (std::vector<Volume*>{third, set.second}));
    third->destroy();
    EXPECT_EQ(set.physics->volumes(), std::vector<Volume*>{set.second});
}

TEST(Lifetime, twoSetUpsEndApart)
{
    TwoVolumes left;
    auto right = std::make_unique<TwoVolumes>();
    EXPECT_FALSE(left.first->setModel(right->model));
    EXPECT_EQ(left.physics->deactivateVolumes({right->first}), -1);
    EXPECT_EQ(left.physics->createInterface("mixed", left.hot, right->cold, InterfaceType::Wall), nullptr);
    left.hot->setShellModel(right->model);
    EXPECT_EQ(left.hot->shellModel(), nullptr);

    right.reset();

    EXPECT_EQ(left.physics->volumes(), (std::vector<Volume*>{left.first, left.second}));
    EXPECT_EQ(left.interface->boundary(Side::First), left.hot);
}

} // namespace
} // namespace physics
