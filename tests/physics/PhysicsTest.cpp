#include "physics/Physics.h"

#include "physics/BoundaryPatch.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/TypeNames.h"
#include "tests/physics/PhysicsCase.h"

#include <gtest/gtest.h>

#include <array>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <vector>

namespace {

using physics::Boundary;
using physics::BoundaryType;
using physics::Interface;
using physics::InterfaceType;
using physics::Model;
using physics::Periodicity;
using physics::Physics;
using physics::Region;
using physics::Settings;
using physics::ThreadType;
using physics::Volume;
using physics::VolumeType;
using Volumes = std::vector<Volume*>;
using Interfaces = std::vector<Interface*>;
using Models = std::vector<Model*>;
using Boundaries = std::vector<Boundary*>;

class PhysicsTest : public PhysicsCase {
protected:
    Boundary* boundaryOf(Volume* owner, const std::string& name) { return owner->createBoundary(name, "inlet"); }
};

TEST_F(PhysicsTest, isNeitherCopiedNorMoved)
{
    EXPECT_FALSE(std::is_copy_constructible_v<Physics> || std::is_copy_assignable_v<Physics>);
    EXPECT_FALSE(std::is_move_constructible_v<Physics> || std::is_move_assignable_v<Physics>);
}

TEST_F(PhysicsTest, beginsEmpty)
{
    EXPECT_EQ(calls(), (Calls{R"(VirtualTopology("", 0))"}));
    EXPECT_EQ(physics.locationModel(), world.model());
    EXPECT_TRUE(physics.enforceRestrictions());
    EXPECT_FALSE(physics.hasDefaultVolume());
    EXPECT_EQ(physics.defaultVolume(), nullptr);
    EXPECT_EQ(physics.volumes(), Volumes{});
    EXPECT_EQ(physics.interfaces(), Interfaces{});
    EXPECT_EQ(physics.models(), Models{});
    EXPECT_EQ(physics.boundaries(), Boundaries{});
    EXPECT_EQ(physics.settings(), std::vector<Settings*>{});
    EXPECT_EQ(physics.threadBundles(), std::vector<physics::ThreadBundle*>{});
    EXPECT_EQ(physics.threadIds(), std::vector<int>{});
    EXPECT_EQ(physics.zoneIds(), std::vector<int>{});
}

// ---- Models

TEST_F(PhysicsTest, primaryModelIsMadeOnce)
{
    Model* first = physics.primaryModel();

    EXPECT_EQ(first->physics(), &physics);
    EXPECT_EQ(physics.primaryModel(), first);
    EXPECT_EQ(physics.models(), Models{first});
    EXPECT_EQ(physics.findModelById(first->id()), first);
}

TEST_F(PhysicsTest, primaryModelIsTheOneWithTheSmallestIdLeft)
{
    Model* first = physics.createModel();
    Model* second = physics.createModel();
    Model* third = physics.createModel();
    EXPECT_EQ(second->id(), first->id() + 1);
    EXPECT_EQ(third->id(), first->id() + 2);
    EXPECT_EQ(physics.primaryModel(), first);

    first->destroy();

    EXPECT_EQ(physics.primaryModel(), second);
    EXPECT_EQ(physics.models(), (Models{second, third}));
}

TEST_F(PhysicsTest, primaryModelIsMadeAnewWhenAllAreGone)
{
    const int id = physics.primaryModel()->id();
    physics.primaryModel()->destroy();

    EXPECT_EQ(physics.findModelById(id), nullptr);
    EXPECT_EQ(physics.primaryModel()->id(), id + 1);
}

TEST_F(PhysicsTest, primaryModelGoesByIdAndNotByAge)
{
    const int before = modelIdCounter();
    modelIdCounter() = before + 10;
    Model* older = physics.createModel();
    modelIdCounter() = before;
    Model* newer = physics.createModel();

    EXPECT_EQ(physics.models(), (Models{newer, older}));
    EXPECT_EQ(physics.primaryModel(), newer);
}

// ---- Creating volumes

TEST_F(PhysicsTest, asksTheLocationModelForTheInteriorOfAVolume)
{
    calls();

    volume("a", "left, right");
    physics.createVolume("b", std::vector<gtm::Region*>{far, loose}, VolumeType::Solid);
    physics.setEnforceRestrictions(false);
    volume("c", "somewhere");

    EXPECT_EQ(calls(), (Calls{
                           R"(createInterior("a", "left, right", false, true))",
                           R"(createInterior("b", [far, loose], false, true))",
                           R"(createInterior("c", "somewhere", false, false))",
                       }));
}

TEST_F(PhysicsTest, aVolumeBelongsToThePrimaryModelUnlessAnotherIsGiven)
{
    Volume* first = volume("first");
    Model* other = physics.createModel();
    Volume* second = physics.createVolume("second", "right", VolumeType::Solid, other);

    EXPECT_EQ(first->model(), physics.primaryModel());
    EXPECT_EQ(first->model()->volumes(), Volumes{first});
    EXPECT_EQ(second->model(), other);
    EXPECT_EQ(other->volumes(), Volumes{second});
}

TEST_F(PhysicsTest, aRefusedVolumeLeavesNoTrace)
{
    world.answers().refuseNextInterior = gtm::Interior::State::Overlapping;
    const PrintedText printed;

    EXPECT_EQ(volume("a"), nullptr);

    EXPECT_EQ(physics.models(), Models{});
    EXPECT_EQ(physics.volumes(), Volumes{});
    EXPECT_EQ(printed.text(), "");
}

TEST_F(PhysicsTest, aRefusedVolumeDrawsNoId)
{
    const int id = volume("a")->id();
    world.answers().refuseNextInterior = gtm::Interior::State::Empty;

    volume("b");

    EXPECT_EQ(volume("c")->id(), id + 1);
}

TEST_F(PhysicsTest, reportsARefusedVolumeAtALocationString)
{
    reportCreationFailures(physics);
    world.answers().refuseNextInterior = gtm::Interior::State::Overlapping;
    const PrintedText printed;

    volume("hot side", "left, right");

    EXPECT_EQ(printed.text(), "Error: Could not create volume \"hot side\" at location: \"left, right\"\n"
                              "       State = overlapping\n");
}

TEST_F(PhysicsTest, reportsARefusedVolumeAtRegionsInBraces)
{
    reportCreationFailures(physics);
    world.answers().refuseNextInterior = gtm::Interior::State::Inconsistent;
    const PrintedText printed;

    physics.createVolume("v", std::vector<gtm::Region*>{left, right}, VolumeType::Fluid);

    EXPECT_EQ(printed.text(), "Error: Could not create volume \"v\" at location: {left, right}\n"
                              "       State = inconsistent\n");
}

TEST_F(PhysicsTest, reportsARefusedVolumeAtNoRegions)
{
    reportCreationFailures(physics);
    world.answers().refuseNextInterior = gtm::Interior::State::Empty;
    const PrintedText printed;

    physics.createVolume("v", std::vector<gtm::Region*>(), VolumeType::Fluid);

    EXPECT_EQ(printed.text(), "Error: Could not create volume \"v\" at location: {}\n"
                              "       State = empty\n");
}

TEST_F(PhysicsTest, wrapsALongListOfRefusedRegions)
{
    std::vector<gtm::Region*> regions;
    for (const std::string id : {"body-00001", "body-00002", "body-00003", "body-00004", "body-00005"})
        regions.push_back(world.body(id));
    reportCreationFailures(physics);
    world.answers().refuseNextInterior = gtm::Interior::State::Overlapping;
    const PrintedText printed;

    physics.createVolume("v", regions, VolumeType::Fluid);

    EXPECT_EQ(printed.text(),
              "Error: Could not create volume \"v\" at location: {body-00001, body-00002, body-00003, \n"
              "                                                 body-00004, body-00005}\n"
              "       State = overlapping\n");
}

TEST_F(PhysicsTest, wrapsBeforeTheFirstRegionWhenTheNameIsLong)
{
    reportCreationFailures(physics);
    world.answers().refuseNextInterior = gtm::Interior::State::Overlapping;
    const PrintedText printed;

    physics.createVolume("a-name-of-twenty-nine-letters", std::vector<gtm::Region*>{left, right}, VolumeType::Fluid);

    EXPECT_EQ(printed.text(), "Error: Could not create volume \"a-name-of-twenty-nine-letters\" at location: {\n"
                              "                                                                             left, \n"
                              "                                                                             right}\n"
                              "       State = overlapping\n");
}

TEST_F(PhysicsTest, refusesAModelOfAnotherSetUp)
{
    Physics other(world.model(), true);
    Model* foreign = other.createModel();
    calls();

    EXPECT_EQ(physics.createVolume("a", "left", VolumeType::Fluid, foreign), nullptr);
    EXPECT_EQ(physics.createDefaultVolume("b", VolumeType::Fluid, foreign), nullptr);

    EXPECT_EQ(calls(), Calls{});
    EXPECT_EQ(physics.models(), Models{});
    EXPECT_EQ(foreign->volumes(), Volumes{});
}

TEST_F(PhysicsTest, keepsNoVolumeWhenTheLocationModelThrows)
{
    world.throwOn("createInterior");
    EXPECT_THROW(volume("a"), std::runtime_error);
    world.throwOn("name");
    EXPECT_THROW(volume("b"), std::runtime_error);

    EXPECT_EQ(physics.volumes(), Volumes{});
    EXPECT_EQ(physics.primaryModel()->volumes(), Volumes{});
    EXPECT_EQ(physics.findVolumeById(volumeIdCounter()), nullptr);
    EXPECT_EQ(physics.virtualTopology().interiors(), std::vector<gtm::Interior*>{});
    Volume* good = volume("good");
    EXPECT_EQ(physics.volumes(), Volumes{good});
}

// ---- The default volume

TEST_F(PhysicsTest, theDefaultVolumeLiesOnTheRenamedDefaultInterior)
{
    calls();

    Volume* rest = physics.createDefaultVolume("rest", VolumeType::Fluid);

    EXPECT_EQ(calls(), (Calls{"activateDefaultInterior(true)", R"(interior "default": rename("rest"))"}));
    EXPECT_EQ(rest->interior(), physics.virtualTopology().defaultInterior());
    EXPECT_EQ(rest->name(), "rest");
    EXPECT_TRUE(rest->isDefaultVolume());
    EXPECT_TRUE(physics.hasDefaultVolume());
    EXPECT_EQ(physics.defaultVolume(), rest);
    EXPECT_EQ(physics.volumes(), Volumes{rest});
}

TEST_F(PhysicsTest, eachDefaultVolumeIsAnotherOneOnTheSameInterior)
{
    Volume* first = physics.createDefaultVolume("first", VolumeType::Fluid);
    Volume* second = physics.createDefaultVolume("second", VolumeType::Solid);

    EXPECT_NE(first, second);
    EXPECT_EQ(first->interior(), second->interior());
    EXPECT_TRUE(first->isDefaultVolume());
    EXPECT_TRUE(second->isDefaultVolume());
    EXPECT_EQ(first->name(), "second");
    EXPECT_EQ(physics.defaultVolume(), second);
    EXPECT_EQ(physics.findVolumeById(first->id()), first);
    EXPECT_EQ(physics.volumes(), (Volumes{first, second}));
}

TEST_F(PhysicsTest, destroyingTheDefaultVolumeSwitchesTheDefaultInteriorOff)
{
    physics.createDefaultVolume("rest", VolumeType::Fluid)->createBoundary("wall", "inlet");
    calls();

    physics.defaultVolume()->destroy();

    EXPECT_EQ(calls(), (Calls{R"(boundary "wall": destroy())", "activateDefaultInterior(false)"}));
    EXPECT_FALSE(physics.hasDefaultVolume());
    EXPECT_FALSE(physics.virtualTopology().isDefaultInteriorActive());
    EXPECT_EQ(physics.volumes(), Volumes{});
}

TEST_F(PhysicsTest, aLaterDefaultVolumeSwitchesTheDefaultInteriorOnAgain)
{
    physics.createDefaultVolume("rest", VolumeType::Fluid)->destroy();

    Volume* again = physics.createDefaultVolume("again", VolumeType::Fluid);

    EXPECT_TRUE(physics.virtualTopology().isDefaultInteriorActive());
    EXPECT_EQ(physics.defaultVolume(), again);
    EXPECT_EQ(again->bodies(), (std::vector{left, right, far, loose}));
}

TEST_F(PhysicsTest, destroyingAnOlderDefaultVolumeLeavesTheInteriorToTheNewerOne)
{
    Volume* older = physics.createDefaultVolume("older", VolumeType::Fluid);
    Volume* newer = physics.createDefaultVolume("newer", VolumeType::Fluid);

    older->destroy();

    EXPECT_EQ(physics.defaultVolume(), newer);
    EXPECT_TRUE(physics.virtualTopology().isDefaultInteriorActive());
    EXPECT_EQ(physics.findVolumeById(newer->id()), newer);
    newer->destroy();
    EXPECT_FALSE(physics.hasDefaultVolume());
    EXPECT_FALSE(physics.virtualTopology().isDefaultInteriorActive());
}

TEST_F(PhysicsTest, destroyingTheNewerDefaultVolumeLeavesNone)
{
    Volume* older = physics.createDefaultVolume("older", VolumeType::Fluid);
    Volume* newer = physics.createDefaultVolume("newer", VolumeType::Fluid);

    newer->destroy();

    EXPECT_FALSE(physics.hasDefaultVolume());
    EXPECT_EQ(physics.findVolumeById(older->id()), older);
    older->destroy();
    physics.clear();
    EXPECT_EQ(physics.volumes(), Volumes{});
}

TEST_F(PhysicsTest, fetchesTheModelOfADefaultVolumeBeforeTheInterior)
{
    world.answers().hasNoDefaultInterior = true;
    const PrintedText printed;

    EXPECT_EQ(physics.createDefaultVolume("rest", VolumeType::Fluid), nullptr);

    EXPECT_EQ(physics.models().size(), 1U);
    EXPECT_FALSE(physics.hasDefaultVolume());
    EXPECT_EQ(physics.volumes(), Volumes{});
    EXPECT_EQ(printed.text(), "");
}

// ---- Ids and names of volumes

TEST_F(PhysicsTest, listsVolumesByNameWhileIdsFollowTheirCreation)
{
    Volume* b = volume("b");
    Volume* a = volume("a");
    Volume* c = volume("c");
    Volume* capital = volume("Z");

    EXPECT_EQ(physics.volumes(), (Volumes{capital, a, b, c}));
    EXPECT_EQ(a->id(), b->id() + 1);
    EXPECT_EQ(c->id(), b->id() + 2);
    EXPECT_EQ(physics.findVolumeById(a->id()), a);
    EXPECT_EQ(physics.findVolumeById(-1), nullptr);
}

TEST_F(PhysicsTest, listsAVolumeUnderTheNameThatTheLocationModelGaveIt)
{
    world.nameHook([](const std::string& name) { return name == "a" ? "z" : name; });
    Volume* a = volume("a");
    Volume* b = volume("b");

    EXPECT_EQ(physics.volumes(), (Volumes{b, a}));
}

TEST_F(PhysicsTest, aRenamedVolumeKeepsItsPlaceInTheList)
{
    Volume* a = volume("a");
    Volume* b = volume("b");

    a->rename("z");

    EXPECT_EQ(physics.volumes(), (Volumes{a, b}));
}

TEST_F(PhysicsTest, aRenamedVolumeIsNotFoundByItsInteriorAnyMore)
{
    Volume* a = volume("a");
    Volume* b = volume("b");
    scripted::answersOf(b->interior()).overlappingInteriors = {a->interior()};
    EXPECT_EQ(b->overlappingVolumes(), Volumes{a});

    a->rename("z");

    EXPECT_EQ(b->overlappingVolumes(), Volumes{nullptr});
}

TEST_F(PhysicsTest, anInteriorFindsTheVolumeRegisteredUnderItsName)
{
    Volume* a = volume("a");
    Volume* b = volume("b");
    scripted::answersOf(a->interior()).overlappingInteriors = {b->interior()};

    b->rename("a");

    EXPECT_EQ(a->overlappingVolumes(), Volumes{a});
}

TEST_F(PhysicsTest, ofEqualNamesTheNewerVolumeIsListedAndBothAreFoundById)
{
    Volume* older = volume("same");
    Volume* newer = volume("same");

    EXPECT_EQ(physics.volumes(), Volumes{newer});
    EXPECT_EQ(physics.findVolumeById(older->id()), older);
    EXPECT_EQ(physics.findVolumeById(newer->id()), newer);
}

TEST_F(PhysicsTest, goesByTheNamesAtCreationAndNotByPresentOnes)
{
    Volume* first = volume("a");
    first->rename("b");

    Volume* second = volume("a");

    EXPECT_EQ(physics.volumes(), Volumes{second});
    EXPECT_EQ(physics.findVolumeById(first->id()), first);
}

TEST_F(PhysicsTest, neverListsAVolumeThatWasRenamedAndDestroyed)
{
    Volume* a = volume("a");
    const int id = a->id();
    a->rename("z");

    a->destroy();

    EXPECT_EQ(physics.volumes(), Volumes{});
    EXPECT_EQ(physics.findVolumeById(id), nullptr);
    physics.clear();
}

TEST_F(PhysicsTest, aVolumeHiddenByAnEqualNameEndsWithTheSetUp)
{
    const int hidden = volume("same")->id();
    volume("same");
    calls();

    physics.clear();

    EXPECT_EQ(physics.findVolumeById(hidden), nullptr);
    EXPECT_EQ(physics.virtualTopology().interiors(), std::vector<gtm::Interior*>{});
}

TEST_F(PhysicsTest, aVolumeWhoseNameWasTakenStaysFoundByIdWhenTheOtherEnds)
{
    Volume* first = volume("same");
    Volume* second = volume("same");

    first->destroy();

    EXPECT_EQ(physics.findVolumeById(second->id()), second);
    EXPECT_EQ(physics.primaryModel()->volumes(), Volumes{second});
    physics.clear();
    EXPECT_EQ(physics.virtualTopology().interiors(), std::vector<gtm::Interior*>{});
}

TEST_F(PhysicsTest, aVolumeThatEndsTakesTheListEntryUnderItsPresentNameAlong)
{
    Volume* renamed = volume("a");
    Volume* other = volume("b");
    renamed->rename("b");

    renamed->destroy();

    EXPECT_EQ(physics.volumes(), Volumes{});
    EXPECT_EQ(physics.findVolumeById(other->id()), other);
}

TEST_F(PhysicsTest, twoVolumesWithOneIdStayOwnedAndTheNewerIsFound)
{
    Volume* older = volume("older");
    --volumeIdCounter();
    Volume* newer = volume("newer");
    ASSERT_EQ(older->id(), newer->id());

    EXPECT_EQ(physics.findVolumeById(older->id()), newer);
    EXPECT_EQ(physics.volumes(), (Volumes{newer, older}));
    EXPECT_EQ(physics.primaryModel()->volumes(), (Volumes{older, newer}));
    newer->destroy();
    EXPECT_EQ(physics.findVolumeById(older->id()), nullptr);
    EXPECT_EQ(physics.volumes(), Volumes{older});
    physics.clear();
    EXPECT_EQ(physics.virtualTopology().interiors(), std::vector<gtm::Interior*>{});
}

TEST_F(PhysicsTest, countsTheIdsOfEachClassOnItsOwn)
{
    const int volumeId = volumeIdCounter();
    const int boundaryId = boundaryIdCounter();
    const int interfaceId = interfaceIdCounter();
    const int modelId = modelIdCounter();

    Volume* a = volume("a");
    Boundary* first = boundaryOf(a, "first");
    Boundary* second = boundaryOf(a, "second");
    Interface* joint = interface("joint", first, second);

    EXPECT_EQ(a->id(), volumeId + 1);
    EXPECT_EQ(first->id(), boundaryId + 1);
    EXPECT_EQ(second->id(), boundaryId + 2);
    EXPECT_EQ(joint->id(), interfaceId + 1);
    EXPECT_EQ(a->model()->id(), modelId + 1);
}

TEST_F(PhysicsTest, twoSetUpsDrawFromTheSameCountersAndKnowOnlyTheirOwn)
{
    Volume* a = volume("a");
    auto other = std::make_unique<Physics>(world.model(), false);
    Volume* b = other->createVolume("a", "left", VolumeType::Fluid);

    EXPECT_EQ(b->id(), a->id() + 1);
    EXPECT_EQ(physics.findVolumeById(b->id()), nullptr);
    EXPECT_EQ(physics.volumes(), Volumes{a});
    other.reset();
    EXPECT_EQ(physics.volumes(), Volumes{a});
    EXPECT_EQ(a->name(), "a");
}

// ---- Interfaces

class PhysicsInterfaceTest : public PhysicsTest {
protected:
    Volume* hot = volume("hot", "left");
    Volume* cold = volume("cold", "right");
    Boundary* hotSide = hot->createBoundary("hot side", "middle");
    Boundary* coldSide = cold->createBoundary("cold side", "middle");
};

TEST_F(PhysicsInterfaceTest, asksTheLocationModelToJoinTheTwoBoundaries)
{
    calls();

    Interface* joint = interface("joint", hotSide, coldSide);
    physics.setEnforceRestrictions(false);
    interface("again", coldSide, hotSide);

    EXPECT_EQ(calls(), (Calls{
                           R"(createInterface("joint", ["hot side"], ["cold side"], true))",
                           R"(createInterface("again", ["cold side"], ["hot side"], false))",
                       }));
    EXPECT_EQ(joint->boundary(physics::Side::First), hotSide);
    EXPECT_EQ(joint->boundary(physics::Side::Second), coldSide);
    EXPECT_EQ(joint->type(), InterfaceType::Interior);
    EXPECT_EQ(physics.findInterfaceById(joint->id()), joint);
    EXPECT_EQ(physics.findInterfaceById(joint->id() + 100), nullptr);
}

TEST_F(PhysicsInterfaceTest, anInterfaceBelongsToThePrimaryModelUnlessAnotherIsGiven)
{
    Model* other = physics.createModel();

    Interface* first = interface("first", hotSide, coldSide);
    Interface* second = physics.createInterface("second", hotSide, coldSide, InterfaceType::Wall, other);

    EXPECT_EQ(first->model(), physics.primaryModel());
    EXPECT_EQ(second->model(), other);
    EXPECT_EQ(other->interfaces(), Interfaces{second});
}

TEST_F(PhysicsInterfaceTest, listsInterfacesByTheirNamesAtCreation)
{
    Interface* b = interface("b", hotSide, coldSide);
    Interface* a = interface("a", hotSide, coldSide);
    a->rename("z");

    EXPECT_EQ(physics.interfaces(), (Interfaces{a, b}));
    Interface* newer = interface("b", hotSide, coldSide);
    EXPECT_EQ(physics.interfaces(), (Interfaces{a, newer}));
    EXPECT_EQ(physics.findInterfaceById(b->id()), b);
}

TEST_F(PhysicsInterfaceTest, neverListsAnInterfaceThatWasRenamedAndDestroyed)
{
    Interface* joint = interface("joint", hotSide, coldSide);
    joint->rename("other");

    joint->destroy();

    EXPECT_EQ(physics.interfaces(), Interfaces{});
    EXPECT_EQ(physics.findInterfaceById(joint->id()), nullptr);
}

TEST_F(PhysicsInterfaceTest, anInterfaceThatEndsTakesTheListEntryUnderItsPresentNameAlong)
{
    Interface* renamed = interface("a", hotSide, coldSide);
    Interface* other = interface("b", hotSide, coldSide);
    renamed->rename("b");

    renamed->destroy();

    EXPECT_EQ(physics.interfaces(), Interfaces{});
    EXPECT_EQ(physics.findInterfaceById(other->id()), other);
}

TEST_F(PhysicsInterfaceTest, refusesMissingAndForeignBoundariesWithoutAWord)
{
    Physics other(world.model(), true);
    Boundary* foreign = other.createVolume("v", "left", VolumeType::Fluid)->createBoundary("b", "middle");
    reportCreationFailures(physics);
    const PrintedText printed;
    calls();

    EXPECT_EQ(interface("a", nullptr, coldSide), nullptr);
    EXPECT_EQ(interface("b", hotSide, nullptr), nullptr);
    EXPECT_EQ(interface("c", hotSide, foreign), nullptr);
    EXPECT_EQ(physics.createInterface("d", hotSide, coldSide, InterfaceType::Wall, other.primaryModel()), nullptr);

    EXPECT_EQ(calls(), Calls{});
    EXPECT_EQ(printed.text(), "");
    EXPECT_EQ(physics.interfaces(), Interfaces{});
}

TEST_F(PhysicsInterfaceTest, aRefusedInterfaceMakesNoModel)
{
    physics.primaryModel()->destroy();
    world.answers().refuseNextInterface = gtm::Interface::State::SameBoundary;
    const PrintedText printed;

    EXPECT_EQ(interface("joint", hotSide, coldSide), nullptr);

    EXPECT_EQ(physics.models(), Models{});
    EXPECT_EQ(hotSide->noOfInterfaces(), 0);
    EXPECT_EQ(printed.text(), "");
}

TEST_F(PhysicsInterfaceTest, reportsARefusedInterfaceWithTheStateOnTheSameLine)
{
    reportCreationFailures(physics);
    world.answers().refuseNextInterface = gtm::Interface::State::MoreThanOneVolumePerSide;
    const PrintedText printed;

    interface("joint", hotSide, coldSide);

    EXPECT_EQ(printed.text(), "Error: Could not create interface \"joint\" between\n"
                              "       \"hot side\" and \"cold side\".       State = more than one volume on a side\n");
}

TEST_F(PhysicsInterfaceTest, anInterfaceOfOneBoundaryWithItselfKeepsTheLaterOfTwoPatches)
{
    const int lastPatchId = coldSide->patch(nullptr)->id();

    Interface* loop = interface("loop", hotSide, hotSide);

    EXPECT_EQ(hotSide->noOfInterfaces(), 1);
    EXPECT_EQ(hotSide->patch(loop)->id(), lastPatchId + 2);
    EXPECT_EQ(hotSide->patches().size(), 2U);
}

TEST_F(PhysicsInterfaceTest, createsTranslationallyPeriodicInterfaces)
{
    Interface* joint = physics.createTranslationallyPeriodicInterface("joint", hotSide, coldSide, {1.5, 2, -3},
                                                                      InterfaceType::Interior);

    EXPECT_EQ(joint->periodicity(), Periodicity::TranslationallyPeriodic);
    EXPECT_EQ(joint->getPeriodicOffset(), (std::array<double, 3>{1.5, 2, -3}));
    EXPECT_EQ(joint->getPeriodicAngle(), 0);
    EXPECT_EQ(physics.interfaces(), Interfaces{joint});
}

TEST_F(PhysicsInterfaceTest, createsRotationallyPeriodicInterfaces)
{
    Interface* joint = physics.createRotationallyPeriodicInterface("joint", hotSide, coldSide, 22.5, {1, 2, 3},
                                                                   {0, 0, 2}, InterfaceType::Interior);

    EXPECT_EQ(joint->periodicity(), Periodicity::RotationallyPeriodic);
    EXPECT_EQ(joint->getPeriodicAngle(), 22.5);
    EXPECT_EQ(joint->getPeriodicOrigin(), (std::array<double, 3>{1, 2, 3}));
    EXPECT_EQ(joint->getPeriodicDirection(), (std::array<double, 3>{0, 0, 2}));
    EXPECT_EQ(joint->getPeriodicOffset(), (std::array<double, 3>{1, 0, 0}));
}

TEST_F(PhysicsInterfaceTest, reportsARefusedPeriodicInterfaceOnce)
{
    reportCreationFailures(physics);
    world.answers().refuseNextInterface = gtm::Interface::State::Inconsistent;
    const PrintedText printed;

    EXPECT_EQ(
        physics.createTranslationallyPeriodicInterface("joint", hotSide, coldSide, {1, 0, 0}, InterfaceType::Interior),
        nullptr);

    EXPECT_EQ(printed.text(), "Error: Could not create interface \"joint\" between\n"
                              "       \"hot side\" and \"cold side\".       State = inconsistent\n");
}

TEST_F(PhysicsInterfaceTest, keepsNoInterfaceWhenTheLocationModelThrows)
{
    world.throwOn("createInterface");
    EXPECT_THROW(interface("a", hotSide, coldSide), std::runtime_error);

    EXPECT_EQ(physics.interfaces(), Interfaces{});
    EXPECT_EQ(hotSide->noOfInterfaces(), 0);
    EXPECT_EQ(physics.primaryModel()->interfaces(), Interfaces{});
}

TEST_F(PhysicsInterfaceTest, takesBackAnInterfaceWhoseNameCannotBeLearnt)
{
    world.throwOn("name");
    EXPECT_THROW(interface("a", hotSide, coldSide), std::runtime_error);

    EXPECT_EQ(physics.interfaces(), Interfaces{});
    EXPECT_EQ(hotSide->noOfInterfaces(), 0);
    EXPECT_EQ(coldSide->noOfInterfaces(), 0);
    EXPECT_EQ(physics.primaryModel()->interfaces(), Interfaces{});
    EXPECT_EQ(physics.virtualTopology().noOfInterfaces(), 0U);
}

// ---- Lists over the whole set-up, threads and zones

TEST_F(PhysicsTest, listsBoundariesVolumeByVolume)
{
    Volume* b = volume("b");
    Volume* a = volume("a");
    Boundary* b1 = boundaryOf(b, "1");
    Boundary* a2 = boundaryOf(a, "2");
    Boundary* a1 = boundaryOf(a, "1");

    EXPECT_EQ(physics.boundaries(), (Boundaries{a1, a2, b1}));
    EXPECT_EQ(physics.findBoundaryById(a2->id()), a2);
    EXPECT_EQ(physics.findBoundaryById(0), nullptr);
}

TEST_F(PhysicsTest, leavesOutTheBoundariesOfAVolumeThatIsNotListed)
{
    Boundary* hidden = boundaryOf(volume("same"), "1");
    Boundary* listed = boundaryOf(volume("same"), "1");

    EXPECT_EQ(physics.boundaries(), Boundaries{listed});
    EXPECT_EQ(physics.findBoundaryById(hidden->id()), hidden);
}

TEST_F(PhysicsTest, tellsWhatEqualNamesKeepOutOfTheLists)
{
    Volume* hidden = volume("same");
    Boundary* below = boundaryOf(hidden, "1");
    Volume* listed = volume("same");
    Boundary* older = boundaryOf(listed, "1");
    EXPECT_EQ(physics.unlistedRegions(), (std::vector<Region*>{hidden, below}));

    Boundary* newer = boundaryOf(listed, "1");
    Interface* lost = physics.createInterface("joint", older, newer, InterfaceType::Wall);
    physics.createInterface("joint", older, newer, InterfaceType::Wall);
    EXPECT_EQ(physics.unlistedRegions(), (std::vector<Region*>{hidden, below, older, lost}));

    hidden->destroy(); // takes the place of the other in the list along
    EXPECT_EQ(physics.unlistedRegions(), (std::vector<Region*>{listed, older, newer, lost}));
}

TEST_F(PhysicsTest, listsSettingsAndTheirBundlesModelByModel)
{
    Model* first = physics.createModel();
    Model* second = physics.createModel();
    Settings* late = physics.createVolume("a", "left", VolumeType::Fluid, second)->settings();
    Settings* early = physics.createVolume("b", "right", VolumeType::Fluid, first)->settings();
    auto* bundle = late->createThreadBundle(0, ThreadType::Fluid, 7, {});
    auto* secondary = early->createThreadBundle(1, ThreadType::Fluid, 9, {});
    auto* primary = early->createThreadBundle(0, ThreadType::Fluid, 8, {});

    EXPECT_EQ(physics.settings(), (std::vector{early, late}));
    EXPECT_EQ(physics.threadBundles(), (std::vector{primary, secondary, bundle}));
    EXPECT_EQ(physics.threadIds(), (std::vector{7, 8, 9}));
    EXPECT_EQ(physics.findSettingsById(late->id()), late);
    EXPECT_EQ(physics.findSettingsById(-5), nullptr);
}

TEST_F(PhysicsTest, findsBundlesAndSettingsByThreadId)
{
    Settings* settings = volume("a")->settings();
    auto* bundle = settings->createThreadBundle(0, ThreadType::Fluid, 7, {});

    EXPECT_EQ(physics.findThreadBundleByThreadId(7), bundle);
    EXPECT_EQ(physics.findSettingsByThreadId(7), settings);
    EXPECT_EQ(physics.findThreadBundleByThreadId(8), nullptr);
    EXPECT_EQ(physics.findSettingsByThreadId(8), nullptr);
}

TEST_F(PhysicsTest, findsNothingUnderANegativeThreadId)
{
    Settings* settings = volume("a")->settings();
    auto* bundle = settings->createThreadBundle(0, ThreadType::Fluid, -1, {});
    ASSERT_EQ(bundle->threadId(), -1);

    EXPECT_EQ(physics.findThreadBundleByThreadId(-1), nullptr);
    EXPECT_EQ(physics.findSettingsByThreadId(-1), nullptr);
}

TEST_F(PhysicsTest, findsBundlesUnderNegativeZoneIdsToo)
{
    Settings* settings = volume("a")->settings();
    auto* bundle = settings->createThreadBundle(0, ThreadType::Fluid, 1, {});
    EXPECT_EQ(physics.findThreadBundleByZoneId(-1), nullptr);

    bundle->setZoneIds({-1, 5});

    EXPECT_EQ(physics.findThreadBundleByZoneId(-1), bundle);
    EXPECT_EQ(physics.findSettingsByZoneId(-1), settings);
    EXPECT_EQ(physics.findThreadBundleByZoneId(1), nullptr);
    EXPECT_EQ(physics.findSettingsByZoneId(1), nullptr);
    EXPECT_EQ(physics.zoneIds(), (std::vector{1, 5}));
}

// ---- Taking regions out

TEST_F(PhysicsTest, takesRegionsOutOfEveryVolumeThenOutOfEveryBoundary)
{
    Volume* b = volume("b");
    Volume* a = volume("a");
    boundaryOf(b, "wall b");
    boundaryOf(a, "wall a");
    scripted::answersOf(a->interior()).removeResult = true;
    calls();

    EXPECT_TRUE(physics.removeRegions({left, inlet.face}));

    EXPECT_EQ(calls(), (Calls{
                           R"(interior "a": remove([left, inlet]))",
                           R"(interior "b": remove([left, inlet]))",
                           R"(boundary "wall a": remove([left, inlet]))",
                           R"(boundary "wall b": remove([left, inlet]))",
                       }));
}

TEST_F(PhysicsTest, saysThatARegionWasTakenOutWhicheverObjectHadIt)
{
    boundaryOf(volume("a", "left, far"), "wall");
    volume("b", "right, loose")->createBoundary("side", "outlet");

    EXPECT_TRUE(physics.removeRegions({far}));         // of the first volume only
    EXPECT_TRUE(physics.removeRegions({loose}));       // of the last one
    EXPECT_TRUE(physics.removeRegions({inlet.face}));  // of the first boundary
    EXPECT_TRUE(physics.removeRegions({outlet.face})); // of the last one
    EXPECT_FALSE(physics.removeRegions({far, loose, inlet.face, outlet.face}));
}

TEST_F(PhysicsTest, saysWhetherAnyRegionWasTakenOut)
{
    Volume* a = volume("a", "left");
    boundaryOf(a, "wall");

    EXPECT_FALSE(physics.removeRegions({far}));
    EXPECT_TRUE(physics.removeRegions({inlet.face}));
    EXPECT_FALSE(physics.removeRegions({inlet.face}));
    EXPECT_FALSE(physics.removeRegions({}));
}

// ---- Clearing

TEST_F(PhysicsTest, clearEmptiesTheSetUpAndGoesOnWithTheIds)
{
    volume("a")->settings()->createThreadBundle(0, ThreadType::Fluid, 7, {})->setZoneIds({3});
    volume("b");
    Volume* last = volume("c");
    Boundary* wall = boundaryOf(last, "wall");
    Interface* loop = interface("loop", wall, wall);
    const int volumeId = last->id();
    const int boundaryId = wall->id();
    const int modelId = last->model()->id();
    physics.deactivateVolumes({last});

    physics.clear();

    EXPECT_EQ(physics.volumes(), Volumes{});
    EXPECT_EQ(physics.models(), Models{});
    EXPECT_EQ(physics.interfaces(), Interfaces{});
    EXPECT_EQ(physics.activationGroups(), std::vector<int>{});
    EXPECT_EQ(physics.findVolumeById(volumeId), nullptr);
    EXPECT_EQ(physics.findBoundaryById(boundaryId), nullptr);
    EXPECT_EQ(physics.findModelById(modelId), nullptr);
    EXPECT_EQ(physics.findInterfaceById(loop->id()), nullptr);
    EXPECT_EQ(physics.findThreadBundleByThreadId(7), nullptr);
    EXPECT_EQ(physics.findThreadBundleByZoneId(3), nullptr);
    EXPECT_EQ(volume("d")->id(), volumeId + 1);
    EXPECT_EQ(physics.primaryModel()->id(), modelId + 1);
}

TEST_F(PhysicsTest, clearEndsInterfacesThenVolumesByNameAndUnmasksPartByPart)
{
    Boundary* wall = boundaryOf(volume("b"), "wall");
    volume("a");
    interface("y", wall, wall);
    interface("x", wall, wall);
    physics.createDefaultVolume("rest", VolumeType::Fluid);
    calls();

    physics.clear();

    EXPECT_EQ(calls(), (Calls{
                           R"(interface "x": destroy())",
                           R"(interface "y": destroy())",
                           R"(interior "a": destroy())",
                           R"(boundary "wall": destroy())",
                           R"(interior "b": destroy())",
                           "activateDefaultInterior(false)",
                           "unmask([left, right])",
                           "unmask([far])",
                           "unmask([])",
                       }));
}

TEST_F(PhysicsTest, clearLeavesBodiesOutsideEveryPartMasked)
{
    physics.maskBodies({left, far, loose});

    physics.clear();

    EXPECT_EQ(physics.maskedBodies(), std::vector{loose});
}

TEST_F(PhysicsTest, clearKeepsFlags)
{
    reportCreationFailures(physics);
    physics.setEnforceRestrictions(false);

    physics.clear();

    world.answers().refuseNextInterior = gtm::Interior::State::Empty;
    const PrintedText printed;
    volume("a", "nowhere");
    EXPECT_FALSE(physics.enforceRestrictions());
    EXPECT_EQ(printed.text(), "Error: Could not create volume \"a\" at location: \"nowhere\"\n"
                              "       State = empty\n");
}

TEST_F(PhysicsTest, clearKeepsTypeTablesThatWereReadBack)
{
    ASSERT_TRUE(physics.restore(physics.serialise()));
    ASSERT_EQ(physics.defaultBoundaryType(VolumeType::Solid), BoundaryType::VelocityInlet);

    physics.clear();

    EXPECT_EQ(physics.defaultBoundaryType(VolumeType::Solid), BoundaryType::VelocityInlet);
}

TEST_F(PhysicsTest, endedInterfacesStayReadableAfterClear)
{
    Boundary* wall = boundaryOf(volume("a"), "wall");
    Interface* loop = interface("loop", wall, wall, InterfaceType::Fan);
    const int id = loop->id();

    physics.clear();

    EXPECT_EQ(loop->id(), id);
    EXPECT_EQ(loop->type(), InterfaceType::Fan);
    EXPECT_EQ(loop->boundary(physics::Side::First), nullptr);
    EXPECT_EQ(loop->model(), nullptr);
}

TEST_F(PhysicsTest, clearTwiceIsHarmless)
{
    volume("a");

    physics.clear();
    physics.clear();

    EXPECT_EQ(physics.volumes(), Volumes{});
}

TEST_F(PhysicsTest, theEndOfASetUpEndsAllInTheLocationModel)
{
    auto other = std::make_unique<Physics>(world.model(), true);
    Volume* a = other->createVolume("a", "left", VolumeType::Fluid);
    Boundary* wall = a->createBoundary("wall", "inlet");
    other->createInterface("loop", wall, wall, InterfaceType::Interior);
    calls();

    other.reset();

    EXPECT_EQ(calls(), (Calls{
                           R"(#1 interface "loop": destroy())",
                           R"(#1 boundary "wall": destroy())",
                           R"(#1 interior "a": destroy())",
                           "#1 unmask([left, right])",
                           "#1 unmask([far])",
                           "#1 unmask([])",
                       }));
}

// ---- Ending things while the location model fails

class FailingEndTest : public PhysicsInterfaceTest {
protected:
    Interface* joint = interface("joint", hotSide, coldSide);

    bool failsToBuildOrClear()
    {
        try {
            Volume* first = volume("first", "left");
            Boundary* wall = first->createBoundary("wall", "inlet");
            Boundary* side = volume("second", "right")->createBoundary("side", "middle");
            interface("one", wall, side);
            interface("two", first->createDefaultBoundary("rest"), wall);
            physics.createDefaultVolume("rest", VolumeType::Fluid)->createBoundary("casing", "casing");
            physics.deactivateVolumes(physics.volumes());
            physics.clear();
        } catch (const std::runtime_error&) {
            return true;
        }
        return false;
    }

    /// Whatever a failure left half-way ends properly afterwards.
    void expectThatAllCanEnd()
    {
        physics.clear();

        EXPECT_EQ(physics.volumes(), Volumes{});
        EXPECT_EQ(physics.interfaces(), Interfaces{});
        EXPECT_EQ(physics.virtualTopology().interiors(), std::vector<gtm::Interior*>{});
        EXPECT_EQ(physics.virtualTopology().noOfInterfaces(), 0U);
    }
};

TEST_F(FailingEndTest, anInterfaceWhoseEndFailedCanEndAfterwards)
{
    world.throwOn("destroy");
    EXPECT_THROW(joint->destroy(), std::runtime_error);

    expectThatAllCanEnd();
}

TEST_F(FailingEndTest, aBoundaryWhoseEndFailedCanEndAfterwards)
{
    world.throwOn("destroy", 2); // the first is its interface
    EXPECT_THROW(hotSide->destroy(), std::runtime_error);

    expectThatAllCanEnd();
}

TEST_F(FailingEndTest, aBoundaryWhoseInterfaceDidNotEndCanEndAfterwards)
{
    world.throwOn("destroy");
    EXPECT_THROW(hotSide->destroy(), std::runtime_error);

    expectThatAllCanEnd();
}

TEST_F(FailingEndTest, aVolumeWhoseEndFailedCanEndAfterwards)
{
    world.throwOn("destroy", 3); // after its interface and its boundary
    EXPECT_THROW(hot->destroy(), std::runtime_error);

    expectThatAllCanEnd();
}

TEST_F(FailingEndTest, aClearThatWasBrokenOffLeavesNothingToBeFoundUntilTheNext)
{
    const int hotId = hot->id();
    const int hotSideId = hotSide->id();
    world.throwOn("destroy", 2); // after the interface
    EXPECT_THROW(physics.clear(), std::runtime_error);

    EXPECT_EQ(physics.volumes(), Volumes{});
    EXPECT_EQ(physics.findVolumeById(hotId), nullptr);
    EXPECT_EQ(physics.findBoundaryById(hotSideId), nullptr);
    EXPECT_FALSE(physics.unlistedRegions().empty());
    expectThatAllCanEnd();
    EXPECT_TRUE(physics.unlistedRegions().empty());
}

TEST_F(FailingEndTest, aSetUpThatFailedAnywhereCanBeCleared)
{
    const std::vector<std::string> operations = {
        "createInterior", "createBoundary",          "createInterface",         "rename", "name",
        "destroy",        "activateDefaultInterior", "activateDefaultBoundary", "unmask"};
    for (const std::string& operation : operations) {
        int nth = 0;
        bool hasFailed = true;
        while (hasFailed) {
            world.throwOn(operation, ++nth);
            hasFailed = failsToBuildOrClear();
            world.throwOnNothing();
            expectThatAllCanEnd();
        }
        EXPECT_GE(nth, 2) << operation;
    }
}

// ---- Vocabulary

TEST_F(PhysicsTest, namesTypesAsTheVocabularyDoes)
{
    const Physics& readOnly = physics;

    EXPECT_EQ(readOnly.typeToName(BoundaryType::Unset), "Unset");
    EXPECT_EQ(readOnly.typeToName<ThreadType>(ThreadType(-1)), "");
    EXPECT_EQ(readOnly.typeToName(physics::TopologyType::Internal), "Internal");
    EXPECT_EQ(readOnly.typeToName(physics::SettingsType::InterfaceSettings), "InterfaceSettings");
    EXPECT_EQ(readOnly.typeToName(physics::BoundaryTag(1)), "");
    EXPECT_EQ(readOnly.typeToName(physics::Connectivity::Partial), "Partial");
    EXPECT_EQ(readOnly.typeToName(physics::DomainType::Phase), "Phase");
    EXPECT_EQ(readOnly.typeToName(InterfaceType::PorousJump), "PorousJump");
    EXPECT_EQ(readOnly.typeToName(physics::MeshConnectivity::NonConformal), "NonConformal");
    EXPECT_EQ(readOnly.typeToName(Periodicity::NonPeriodic), "NonPeriodic");
    EXPECT_EQ(readOnly.typeToName(physics::ShellType::HeatConduction), "HeatConduction");
    EXPECT_EQ(readOnly.typeToName(VolumeType::Porous), "Porous");
    EXPECT_EQ(readOnly.typeToSchemeName(physics::BoundaryTag::Interface), "bt-interface");
    EXPECT_EQ(readOnly.typeToSchemeName(BoundaryType(18)), "b-");
    EXPECT_EQ(readOnly.typeToSchemeName(physics::Connectivity::None), "no-connectivity");
    EXPECT_EQ(readOnly.typeToSchemeName(physics::DomainType::Geometry), "geometry");
    EXPECT_EQ(readOnly.typeToSchemeName(InterfaceType::Fan), "i-fan");
    EXPECT_EQ(readOnly.typeToSchemeName(physics::MeshConnectivity::NonConformal), "non-conformal-mesh-connectivity");
    EXPECT_EQ(readOnly.typeToSchemeName(physics::ShellType::Unset), "s-unset");
    EXPECT_EQ(readOnly.typeToSchemeName<ThreadType>(ThreadType::RansLesInterface), "rans-les-interface");
    EXPECT_EQ(readOnly.typeToSchemeName(VolumeType::Solid), "v-solid");
}

TEST_F(PhysicsTest, answersQuestionsAboutTypesAsItsTablesDo)
{
    physics::TypeManager types;

    EXPECT_EQ(physics.allowedVolumeTypes(), types.allowedVolumeTypes());
    EXPECT_EQ(physics.allowedInterfaceTypes(), types.allowedInterfaceTypes());
    EXPECT_EQ(physics.allowedShellTypes(), types.allowedShellTypes());
    EXPECT_EQ(physics.allowedThreadTypes(), types.allowedThreadTypes());
    EXPECT_EQ(physics.allowedDomainTypes(), types.allowedDomainTypes());
    EXPECT_EQ(physics.allowedBoundaryTags(), types.allowedBoundaryTags());
    EXPECT_EQ(physics.allowedPeriodicities(), types.allowedPeriodicities());
    EXPECT_EQ(physics.allowedConnectivities(), types.allowedConnectivities());
    EXPECT_EQ(physics.allowedMeshConnectivities(), types.allowedMeshConnectivities());
    EXPECT_EQ(physics.allowedBoundaryTypes(), types.allowedBoundaryTypes());
    EXPECT_EQ(physics.allowedInternalBoundaryTypes(), types.allowedInternalBoundaryTypes());
    EXPECT_EQ(physics.allowedExternalBoundaryTypes(), types.allowedExternalBoundaryTypes());
    EXPECT_EQ(physics.allowedBoundaryTypes(physics::ShellType::HeatConduction), std::vector{BoundaryType::Wall});
    EXPECT_EQ(physics.allowedShellTypes(BoundaryType::Wall), std::vector{physics::ShellType::HeatConduction});
    EXPECT_TRUE(physics.isAllowedShellType(BoundaryType::Wall, physics::ShellType::HeatConduction));
    EXPECT_FALSE(physics.isAllowedShellType(BoundaryType::Symmetry, physics::ShellType::HeatConduction));
    EXPECT_TRUE(physics.isInternalBoundaryType(BoundaryType::Radiator));
    EXPECT_FALSE(physics.isInternalBoundaryType(BoundaryType::ExhaustFan));
    EXPECT_TRUE(physics.isSharedInterfaceType(InterfaceType::Fan));
    EXPECT_FALSE(physics.isSharedInterfaceType(InterfaceType::Wall));
}

TEST_F(PhysicsTest, answersForEveryVolumeTypeAsItsTablesDo)
{
    physics::TypeManager types;

    for (const VolumeType volumeType : physics::enumerators<VolumeType>()) {
        EXPECT_EQ(physics.allowedBoundaryTypes(volumeType), types.allowedBoundaryTypes(volumeType));
        EXPECT_EQ(physics.defaultBoundaryType(volumeType), types.defaultBoundaryType(volumeType));
        for (const BoundaryType boundaryType : physics::enumerators<BoundaryType>()) {
            EXPECT_EQ(physics.isAllowedBoundaryType(volumeType, boundaryType),
                      types.isAllowedBoundaryType(volumeType, boundaryType));
            EXPECT_EQ(physics.allowedInterfaceTypes(boundaryType, volumeType),
                      types.allowedInterfaceTypes(boundaryType, volumeType));
        }
    }
}

TEST_F(PhysicsTest, answersForEveryInterfaceTypeAsItsTablesDo)
{
    physics::TypeManager types;

    for (const InterfaceType interfaceType : physics::enumerators<InterfaceType>()) {
        for (const VolumeType volumeType : physics::enumerators<VolumeType>()) {
            EXPECT_EQ(physics.allowedBoundaryTypes(interfaceType, volumeType),
                      types.allowedBoundaryTypes(interfaceType, volumeType));
            for (const BoundaryType boundaryType : physics::enumerators<BoundaryType>()) {
                EXPECT_EQ(physics.isAllowedBoundaryType(interfaceType, volumeType, boundaryType),
                          types.isAllowedBoundaryType(interfaceType, volumeType, boundaryType));
                EXPECT_EQ(physics.isAllowedInterfaceType(boundaryType, volumeType, interfaceType),
                          types.isAllowedInterfaceType(boundaryType, volumeType, interfaceType));
            }
        }
    }
}

TEST_F(PhysicsTest, translatesThreadTypesForTheSolver)
{
    EXPECT_EQ(physics.threadTypeToSolverThreadType(ThreadType::Shadow), 8);
    EXPECT_EQ(physics.threadTypeToSolverThreadType(ThreadType::Outflow), 36);
    EXPECT_EQ(physics.threadTypeToSolverThreadType(ThreadType::Unset), -1);
    EXPECT_EQ(physics.threadTypeToSolverThreadType(ThreadType(31)), -1);
}

TEST_F(PhysicsTest, restrictionsDoNotChangeTheTypeTables)
{
    const std::vector<BoundaryType> before = physics.allowedBoundaryTypes(VolumeType::Solid);

    physics.setEnforceRestrictions(false);

    EXPECT_EQ(before.size(), 3U);
    EXPECT_EQ(physics.allowedBoundaryTypes(VolumeType::Solid), before);
}

} // namespace
