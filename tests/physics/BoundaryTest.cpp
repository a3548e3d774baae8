#include "physics/Boundary.h"

#include "gtm/Location.h"
#include "physics/BoundaryPatch.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "tests/physics/PhysicsCase.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <vector>

namespace {

using physics::Boundary;
using physics::BoundaryPatch;
using physics::BoundaryTag;
using physics::BoundaryType;
using physics::Interface;
using physics::InterfaceType;
using physics::Model;
using physics::Physics;
using physics::Settings;
using physics::SettingsType;
using physics::ShellType;
using physics::State;
using physics::ThreadType;
using physics::Volume;
using physics::VolumeType;
using Boundaries = std::vector<Boundary*>;
using Interfaces = std::vector<Interface*>;
using Patches = std::vector<BoundaryPatch*>;
using SettingsList = std::vector<Settings*>;

class BoundaryTest : public PhysicsCase {
protected:
    Volume* fluid = volume("fluid", "left");
    Volume* solid = volume("solid", "right", VolumeType::Solid);
    Boundary* wall = fluid->createBoundary("wall", "middle");
    Boundary* opposite = solid->createBoundary("opposite", "middle");

    scripted::BoundaryAnswers& answers() { return scripted::answersOf(wall->boundary()); }
};

TEST_F(BoundaryTest, beginsWithItsOwnPatchAndNoShell)
{
    EXPECT_EQ(wall->type(), BoundaryType::Wall);
    EXPECT_EQ(wall->shellType(), ShellType::Unset);
    EXPECT_EQ(wall->shellModel(), nullptr);
    EXPECT_EQ(wall->volume(), fluid);
    EXPECT_EQ(wall->volumeModel(), fluid->model());
    EXPECT_EQ(wall->volumeType(), VolumeType::Fluid);
    EXPECT_FALSE(wall->isDefaultBoundary());
    EXPECT_EQ(wall->topologyType(), physics::TopologyType::Boundary);
    EXPECT_EQ(wall->noOfInterfaces(), 0);
    EXPECT_EQ(wall->interfaces(), Interfaces{});
    ASSERT_TRUE(wall->patch(nullptr));
    EXPECT_EQ(wall->patches(), Patches{wall->patch(nullptr)});
    EXPECT_EQ(wall->tags(), std::vector<BoundaryTag>{});
}

TEST_F(BoundaryTest, beginsWithOneSettingsObjectOnTheVolumeSide)
{
    const SettingsList settings = fluid->model()->volumeSettings(wall);

    ASSERT_EQ(settings.size(), 1U);
    EXPECT_EQ(settings.front(), wall->boundarySettings(nullptr));
    EXPECT_EQ(fluid->model()->shellSettings(wall), SettingsList{});
}

TEST_F(BoundaryTest, passesTheAnswersOfTheLocationModelOn)
{
    answers().faceUses = {inlet.first, outlet.first};
    answers().unresolvableNames = {"nowhere"};
    answers().isInternal = true;

    EXPECT_EQ(wall->name(), "wall");
    EXPECT_EQ(wall->faceUses(), (std::vector{inlet.first, outlet.first}));
    EXPECT_EQ(wall->unresolvableNames(), std::vector<std::string>{"nowhere"});
    EXPECT_TRUE(wall->couldBeInternal());
    EXPECT_EQ(wall->location(), wall->boundary()->location());
    EXPECT_EQ(wall->location()->locationString(false), "middle");
}

TEST_F(BoundaryTest, hasTheStateOfItsLocation)
{
    const std::vector<State> states = {State::Valid,      State::Empty,        State::Unresolvable,
                                       State::Incomplete, State::Inconsistent, State::Overlapping};

    for (const State state : states) {
        answers().state = gtm::Boundary::State(static_cast<int>(state));
        EXPECT_EQ(wall->state(), state);
    }
}

TEST_F(BoundaryTest, isEmptyWithoutFaceUses)
{
    EXPECT_FALSE(wall->isEmpty());
    answers().faceUses.emplace();
    EXPECT_TRUE(wall->isEmpty());
}

TEST_F(BoundaryTest, isActiveWithItsVolume)
{
    EXPECT_TRUE(wall->isActive());
    fluid->deactivate();
    EXPECT_FALSE(wall->isActive());
    EXPECT_TRUE(opposite->isActive());
}

TEST_F(BoundaryTest, isFullyNamedByThePresentNameOfItsVolume)
{
    EXPECT_EQ(wall->fullName(), "fluid::wall");
    fluid->rename("coolant");
    EXPECT_EQ(wall->fullName(), "coolant::wall");
    wall->rename("roof");
    EXPECT_EQ(wall->fullName(), "coolant::roof");
}

TEST_F(BoundaryTest, renamesItsLocationAndPassesTheResultOn)
{
    answers().renameResult = "as told";
    calls();

    EXPECT_EQ(wall->rename("asked"), "as told");

    EXPECT_EQ(calls(), (Calls{R"(boundary "wall": rename("asked"))"}));
    EXPECT_EQ(wall->name(), "asked");
}

// ---- Kinds

TEST_F(BoundaryTest, isInternalByItsTypeAndNotByItsPlace)
{
    answers().isInternal = true;
    EXPECT_FALSE(wall->isInternal());

    answers().isInternal = false;
    wall->setBoundaryType(BoundaryType::Fan);

    EXPECT_TRUE(wall->isInternal());
    EXPECT_FALSE(wall->couldBeInternal());
}

TEST_F(BoundaryTest, findsItsPairInTheSetUp)
{
    answers().pair = opposite->boundary();
    EXPECT_EQ(wall->pair(), opposite);

    answers().pair = nullptr;
    EXPECT_EQ(wall->pair(), nullptr);
}

TEST_F(BoundaryTest, hasNoPairInAnEntityThatIsNoBoundaryOfTheSetUp)
{
    answers().pair = fluid->interior()->createBoundary("unknown", "inlet", true).first;

    EXPECT_EQ(wall->pair(), nullptr);
}

TEST_F(BoundaryTest, findsItsPairAlsoAfterARenaming)
{
    answers().pair = opposite->boundary();

    opposite->rename("other");

    EXPECT_EQ(wall->pair(), opposite);
}

TEST_F(BoundaryTest, aReusedLocationNeverAnswersWithAnEndedBoundary)
{
    for (int i = 0; i < 50; ++i) {
        Boundary* ended = fluid->createBoundary("short", "inlet");
        ended->destroy();
        gtm::Boundary* unknown = fluid->interior()->createBoundary("unknown", "inlet", true).first;
        answers().pair = unknown;
        EXPECT_EQ(wall->pair(), nullptr);
        unknown->destroy();
    }
    answers().pair.reset();
}

TEST_F(BoundaryTest, listsOverlappingBoundariesWithNullForUnknownOnes)
{
    Boundary* other = fluid->createBoundary("other", "inlet");
    gtm::Boundary* unknown = fluid->interior()->createBoundary("unknown", "inlet", true).first;
    answers().overlappingBoundaries = {other->boundary(), unknown, nullptr};

    EXPECT_EQ(wall->overlappingBoundaries(), (Boundaries{other, nullptr, nullptr}));
}

TEST_F(BoundaryTest, overlapsWithOtherBoundaries)
{
    Boundary* both = fluid->createBoundary("both", "middle, inlet");

    EXPECT_EQ(wall->overlap(both), std::vector{middle.first});
    EXPECT_EQ(wall->overlap(opposite), std::vector<gtm::FaceUse*>{});
    EXPECT_EQ(wall->overlap(nullptr), std::vector<gtm::FaceUse*>{});
}

TEST_F(BoundaryTest, sharesNothingWithABoundaryOfAnotherSetUp)
{
    Physics other(world.model(), false);
    Volume* theirs = other.createVolume("both", std::string("left, right"), VolumeType::Fluid);

    EXPECT_EQ(wall->overlap(theirs->createBoundary("wall", std::string("middle"))), std::vector<gtm::FaceUse*>{});
}

// ---- Types

TEST_F(BoundaryTest, takesTypesThatItsVolumeAllows)
{
    EXPECT_TRUE(wall->setBoundaryType(BoundaryType::VelocityInlet));
    EXPECT_EQ(wall->type(), BoundaryType::VelocityInlet);

    EXPECT_FALSE(opposite->setBoundaryType(BoundaryType::VelocityInlet));
    EXPECT_EQ(opposite->type(), BoundaryType::Wall);
    EXPECT_FALSE(opposite->setBoundaryType(BoundaryType::Unset));
    EXPECT_FALSE(opposite->setBoundaryType(BoundaryType(18)));
    EXPECT_EQ(opposite->type(), BoundaryType::Wall);
}

TEST_F(BoundaryTest, refusesATypeThatOneOfItsInterfacesForbids)
{
    interface("wide", wall, opposite, InterfaceType::Interior);
    EXPECT_TRUE(wall->setBoundaryType(BoundaryType::Symmetry));
    interface("narrow", wall, opposite, InterfaceType::Wall);

    EXPECT_FALSE(wall->setBoundaryType(BoundaryType::PressureOutlet));

    EXPECT_EQ(wall->type(), BoundaryType::Symmetry);
}

TEST_F(BoundaryTest, asksItsInterfacesAboutItsOwnVolumeOnTheSecondSideToo)
{
    interface("fan", opposite, wall, InterfaceType::Fan); // which allows nothing next to a solid

    EXPECT_TRUE(wall->setBoundaryType(BoundaryType::PressureOutlet));
    EXPECT_FALSE(opposite->setBoundaryType(BoundaryType::Symmetry));

    EXPECT_EQ(wall->type(), BoundaryType::PressureOutlet);
    EXPECT_EQ(opposite->type(), BoundaryType::Wall);
}

TEST_F(BoundaryTest, refusesItsPresentTypeWhenThatIsForbidden)
{
    Boundary* in = solid->createBoundary("in", "outlet", BoundaryType::VelocityInlet);

    EXPECT_FALSE(in->setBoundaryType(BoundaryType::VelocityInlet));
}

TEST_F(BoundaryTest, asksTheVocabularyForItsTypes)
{
    EXPECT_EQ(wall->allowedInterfaceTypes(), physics.allowedInterfaceTypes(BoundaryType::Wall, VolumeType::Fluid));
    EXPECT_EQ(opposite->allowedInterfaceTypes(), (std::vector{InterfaceType::Interior, InterfaceType::Wall}));
    EXPECT_TRUE(wall->isAllowedInterfaceType(InterfaceType::Fan));
    EXPECT_FALSE(opposite->isAllowedInterfaceType(InterfaceType::Fan));
    EXPECT_EQ(wall->allowedShellTypes(), std::vector{ShellType::HeatConduction});
    EXPECT_TRUE(wall->isAllowedShellType(ShellType::HeatConduction));
    wall->setBoundaryType(BoundaryType::Symmetry);
    EXPECT_EQ(wall->allowedShellTypes(), std::vector<ShellType>{});
    EXPECT_FALSE(wall->isAllowedShellType(ShellType::HeatConduction));
}

TEST_F(BoundaryTest, takesAShellTypeOnlyWithAShellModel)
{
    EXPECT_FALSE(wall->setShellType(ShellType::HeatConduction));
    EXPECT_EQ(wall->shellType(), ShellType::Unset);

    wall->setShellModel(physics.primaryModel());

    EXPECT_TRUE(wall->setShellType(ShellType::HeatConduction));
    EXPECT_EQ(wall->shellType(), ShellType::HeatConduction);
}

TEST_F(BoundaryTest, refusesShellTypesThatItsTypeForbids)
{
    wall->setShellModel(physics.primaryModel());
    wall->setBoundaryType(BoundaryType::Symmetry);

    EXPECT_FALSE(wall->setShellType(ShellType::HeatConduction));
    EXPECT_FALSE(wall->setShellType(ShellType::Unset));
    EXPECT_EQ(wall->shellType(), ShellType::Unset);
}

TEST_F(BoundaryTest, keepsItsShellTypeForGood)
{
    wall->setShellModel(physics.primaryModel());
    wall->setShellType(ShellType::HeatConduction);

    wall->setBoundaryType(BoundaryType::Symmetry);
    EXPECT_FALSE(wall->setShellType(ShellType::Unset));
    wall->setShellModel(nullptr);

    EXPECT_EQ(wall->shellType(), ShellType::HeatConduction);
    EXPECT_EQ(wall->shellModel(), nullptr);
}

// ---- The shell model

TEST_F(BoundaryTest, joinsItsShellModelAsAMemberWithoutSettings)
{
    Model* shell = physics.createModel();

    wall->setShellModel(shell);

    EXPECT_EQ(wall->shellModel(), shell);
    EXPECT_EQ(shell->boundaries(), Boundaries{wall});
    EXPECT_EQ(shell->settings(), SettingsList{});
}

TEST_F(BoundaryTest, movesItsShellSettingsToAnotherModel)
{
    Model* before = physics.createModel();
    Model* after = physics.createModel();
    wall->setShellModel(before);
    Settings* settings = wall->shellSettings(nullptr);

    wall->setShellModel(after);

    EXPECT_EQ(wall->shellModel(), after);
    EXPECT_EQ(wall->shellSettings(nullptr), settings);
    EXPECT_EQ(settings->model(), after);
    EXPECT_EQ(before->boundaries(), Boundaries{});
    EXPECT_EQ(before->settings(), SettingsList{});
    EXPECT_EQ(after->settings(), SettingsList{settings});
}

TEST_F(BoundaryTest, movesTheShellSettingsOfAllItsPatches)
{
    Model* before = physics.createModel();
    Model* after = physics.createModel();
    Interface* joint = interface("joint", wall, opposite);
    wall->setShellModel(before);
    const SettingsList settings = {wall->shellSettings(nullptr), wall->shellSettings(joint)};

    wall->setShellModel(after);

    EXPECT_EQ(after->shellSettings(wall), settings);
    EXPECT_EQ(settings.back()->model(), after);
    EXPECT_EQ(before->settings(), SettingsList{});
}

TEST_F(BoundaryTest, theSameShellModelAgainChangesNothing)
{
    Model* shell = physics.createModel();
    wall->setShellModel(shell);
    Settings* settings = wall->shellSettings(nullptr);

    wall->setShellModel(shell);

    EXPECT_EQ(shell->boundaries(), Boundaries{wall});
    EXPECT_EQ(wall->shellSettings(nullptr), settings);
}

TEST_F(BoundaryTest, takingTheShellOffEndsItsSettings)
{
    Model* shell = physics.createModel();
    wall->setShellModel(shell);
    const int id = wall->shellSettings(nullptr)->id();

    wall->setShellModel(nullptr);

    EXPECT_EQ(wall->shellSettings(nullptr), nullptr);
    EXPECT_EQ(physics.findSettingsById(id), nullptr);
    EXPECT_EQ(shell->boundaries(), Boundaries{});
    wall->setShellModel(nullptr);
    EXPECT_EQ(wall->shellModel(), nullptr);
}

TEST_F(BoundaryTest, takingTheShellOffEndsTheSettingsOfAllPatches)
{
    Model* shell = physics.createModel();
    Interface* joint = interface("joint", wall, opposite);
    wall->setShellModel(shell);
    const std::vector<int> ids = {wall->shellSettings(nullptr)->id(), wall->shellSettings(joint)->id()};

    wall->setShellModel(nullptr);

    for (const int id : ids)
        EXPECT_EQ(physics.findSettingsById(id), nullptr);
    EXPECT_EQ(shell->settings(), SettingsList{});
}

TEST_F(BoundaryTest, ignoresAShellModelOfAnotherSetUp)
{
    Physics other(world.model(), true);

    wall->setShellModel(other.createModel());

    EXPECT_EQ(wall->shellModel(), nullptr);
}

TEST_F(BoundaryTest, hasNoShellModelAnyMoreWhenThatEnds)
{
    Model* shell = physics.createModel();
    wall->setShellModel(shell);
    wall->shellSettings(nullptr);

    shell->destroy();

    EXPECT_EQ(wall->shellModel(), nullptr);
    EXPECT_EQ(wall->shellSettings(nullptr), nullptr);
    EXPECT_TRUE(wall->destroy());
}

// ---- Tags

TEST_F(BoundaryTest, keepsTagsInAscendingOrderOnce)
{
    wall->addTag(BoundaryTag(5));
    wall->addTag(BoundaryTag::Interface);
    wall->addTag(BoundaryTag::Interface);

    EXPECT_TRUE(wall->hasTag(BoundaryTag::Interface));
    EXPECT_EQ(wall->tags(), (std::vector{BoundaryTag::Interface, BoundaryTag(5)}));
    wall->removeTag(BoundaryTag::Interface);
    wall->removeTag(BoundaryTag::Interface);
    EXPECT_FALSE(wall->hasTag(BoundaryTag::Interface));
    EXPECT_EQ(wall->tags(), std::vector{BoundaryTag(5)});
}

// ---- Interfaces and patches

TEST_F(BoundaryTest, hasAPatchForEachInterface)
{
    Interface* z = interface("z", wall, opposite);
    Interface* a = interface("a", opposite, wall);

    EXPECT_EQ(wall->noOfInterfaces(), 2);
    EXPECT_EQ(wall->interfaces(), (Interfaces{z, a}));
    EXPECT_EQ(wall->patches(), (Patches{wall->patch(nullptr), wall->patch(z), wall->patch(a)}));
    EXPECT_EQ(wall->patch(z)->interface(), z);
    EXPECT_NE(wall->patch(z), opposite->patch(z));
}

TEST_F(BoundaryTest, hasNoPatchForTheInterfaceOfOthers)
{
    Boundary* other = fluid->createBoundary("other", "inlet");
    Interface* joint = interface("joint", other, opposite);

    EXPECT_EQ(wall->patch(joint), nullptr);
    EXPECT_EQ(wall->settings(SettingsType::VolumeSettings, joint), nullptr);
    EXPECT_EQ(wall->boundarySettings(joint), nullptr);
}

TEST_F(BoundaryTest, losesThePatchOfAnEndedInterfaceWithItsSettings)
{
    Interface* joint = interface("joint", wall, opposite);
    const int id = wall->boundarySettings(joint)->id();

    joint->destroy();

    EXPECT_EQ(wall->noOfInterfaces(), 0);
    EXPECT_EQ(wall->patch(joint), nullptr);
    EXPECT_EQ(wall->patches().size(), 1U);
    EXPECT_EQ(physics.findSettingsById(id), nullptr);
}

TEST_F(BoundaryTest, keepsTheZonesOfItsOwnPatchWhenAnInterfaceEnds)
{
    world.sideZones(middle.first, {{5, 0}});
    auto* own = wall->boundarySettings(nullptr)->createThreadBundle(0, ThreadType::Wall, 1, {});
    ASSERT_EQ(physics.findThreadBundleByZoneId(5), own);
    Interface* joint = interface("joint", wall, opposite);
    wall->boundarySettings(joint)->createThreadBundle(0, ThreadType::Wall, 2, {});

    joint->destroy();

    EXPECT_EQ(physics.findThreadBundleByZoneId(5), own);
    EXPECT_EQ(physics.findThreadBundleByThreadId(2), nullptr);
}

// ---- Settings

TEST_F(BoundaryTest, findsTheSettingsOfAPatchInTheModelForTheirKind)
{
    Model* shell = physics.createModel();
    wall->setShellModel(shell);
    Interface* joint = interface("joint", wall, opposite);

    EXPECT_EQ(wall->settings(SettingsType::VolumeSettings, joint),
              fluid->model()->settings(wall->patch(joint), SettingsType::VolumeSettings));
    EXPECT_EQ(wall->boundarySettings(joint), wall->settings(SettingsType::VolumeSettings, joint));
    EXPECT_EQ(wall->settings(SettingsType::ShellSettings, joint),
              shell->settings(wall->patch(joint), SettingsType::ShellSettings));
    EXPECT_EQ(wall->shellSettings(joint), wall->settings(SettingsType::ShellSettings, joint));
    EXPECT_NE(wall->shellSettings(joint), wall->shellSettings(nullptr));
    EXPECT_EQ(wall->interfaceSettings(joint), nullptr);
    EXPECT_EQ(wall->settings(SettingsType(7), joint), nullptr);
    EXPECT_EQ(wall->nonOverlappingBoundarySettings(), wall->boundarySettings(nullptr));
    EXPECT_EQ(wall->nonOverlappingShellSettings(), wall->shellSettings(nullptr));
}

TEST_F(BoundaryTest, hasNoShellSettingsWithoutAShell)
{
    EXPECT_EQ(wall->shellSettings(nullptr), nullptr);
    EXPECT_EQ(wall->nonOverlappingShellSettings(), nullptr);
    EXPECT_EQ(wall->allShellSettings(), SettingsList{});
}

TEST_F(BoundaryTest, gathersTheSettingsOfAllPatchesById)
{
    wall->setShellModel(physics.createModel());
    Interface* joint = interface("joint", wall, opposite);

    const SettingsList ofTheVolume = {wall->boundarySettings(nullptr), wall->boundarySettings(joint)};
    const SettingsList ofTheShell = {wall->shellSettings(nullptr), wall->shellSettings(joint)};

    EXPECT_EQ(wall->allBoundarySettings(), ofTheVolume);
    EXPECT_EQ(wall->allShellSettings(), ofTheShell);
    EXPECT_EQ(wall->allInterfaceSettings(), SettingsList{});
    EXPECT_EQ(wall->allSettings(), (SettingsList{ofTheVolume[0], ofTheVolume[1], ofTheShell[0], ofTheShell[1]}));
}

TEST_F(BoundaryTest, makesTheSettingsThatAListLacks)
{
    Interface* joint = interface("joint", wall, opposite);
    EXPECT_EQ(fluid->model()->volumeSettings(wall).size(), 1U);

    EXPECT_EQ(wall->allBoundarySettings().size(), 2U);

    EXPECT_EQ(fluid->model()->volumeSettings(wall).size(), 2U);
    EXPECT_EQ(wall->allBoundarySettings().back(), wall->boundarySettings(joint));
}

TEST_F(BoundaryTest, hasNoBoundarySettingsWithoutAModelOfItsVolume)
{
    fluid->model()->destroy();

    EXPECT_EQ(wall->allBoundarySettings(), SettingsList{});
    EXPECT_EQ(wall->allSettings(), SettingsList{});
    EXPECT_EQ(wall->boundarySettings(nullptr), nullptr);
}

TEST_F(BoundaryTest, stillListsItsShellSettingsWhenItsVolumeHasNoModel)
{
    Model* shell = physics.createModel();
    wall->setShellModel(shell);
    Settings* ofShell = wall->nonOverlappingShellSettings();

    fluid->model()->destroy();

    EXPECT_EQ(wall->allBoundarySettings(), SettingsList{});
    EXPECT_EQ(wall->allShellSettings(), SettingsList{ofShell});
    EXPECT_EQ(wall->allSettings(), SettingsList{ofShell});
}

// ---- Zones and external regions

TEST_F(BoundaryTest, listsItsZonesAbsoluteAscendingAndOnce)
{
    answers().faceUses = {inlet.first, nullptr, middle.first};
    world.sideZones(inlet.first, {{9, 0}, {5, 1}});
    world.sideZones(middle.first, {{5, 0}, {-3, 0}, {-9, 1}});

    EXPECT_EQ(wall->zoneIds(), (std::vector{3, 5, 9}));
}

TEST_F(BoundaryTest, hasNoZonesBeforeThereIsAMesh)
{
    world.sideZones(middle.first, {{5, 0}});
    world.withoutZoneMap();

    EXPECT_EQ(wall->zoneIds(), std::vector<int>{});
}

TEST_F(BoundaryTest, keepsTheZoneIdThatHasNoAbsoluteValue)
{
    const int lowest = std::numeric_limits<int>::min();
    world.sideZones(middle.first, {{lowest, 0}, {lowest, 1}});

    EXPECT_EQ(wall->zoneIds(), std::vector{lowest});
}

TEST_F(BoundaryTest, isExternalAsAWholeInNoInterface)
{
    EXPECT_EQ(wall->hasExternalRegion(), 1);
    answers().faceUses.emplace();
    EXPECT_EQ(wall->hasExternalRegion(), 0);
}

TEST_F(BoundaryTest, hasNoExternalRegionWhereItsInterfacesCoverAllOfIt)
{
    interface("joint", wall, opposite);

    EXPECT_EQ(wall->hasExternalRegion(), 0);
    EXPECT_EQ(opposite->hasExternalRegion(), 0);
}

TEST_F(BoundaryTest, hasNoExternalRegionInAnInterfaceWhenItIsEmpty)
{
    interface("joint", wall, opposite);
    answers().faceUses.emplace();

    EXPECT_EQ(wall->hasExternalRegion(), 0);
}

TEST_F(BoundaryTest, isCoveredByTheOtherSidesOfAllItsInterfacesTogether)
{
    const auto second = world.face("second", left, right);
    Boundary* wide = fluid->createBoundary("wide", "middle, second");
    Boundary* other = solid->createBoundary("other", "second");
    EXPECT_EQ(other->faceUses(), std::vector{second.second});

    interface("one", wide, opposite);
    EXPECT_EQ(wide->hasExternalRegion(), 2);
    interface("two", other, wide);
    EXPECT_EQ(wide->hasExternalRegion(), 0);
}

TEST_F(BoundaryTest, hasAnExternalRegionWhereAFaceUseIsNotCovered)
{
    Boundary* wide = fluid->createBoundary("wide", "inlet, middle");
    interface("joint", wide, opposite);

    EXPECT_EQ(wide->hasExternalRegion(), 2);
}

TEST_F(BoundaryTest, isNotCoveredByFacesThatItDoesNotShare)
{
    Boundary* remote = volume("remote", "far")->createBoundary("casing", "casing");
    interface("periodic", wall, remote);

    EXPECT_EQ(wall->hasExternalRegion(), 2);
}

TEST_F(BoundaryTest, isNotCoveredByMissingFaceUses)
{
    interface("joint", wall, opposite);
    answers().faceUses = {nullptr, inlet.first};
    scripted::answersOf(opposite->boundary()).faceUses = {nullptr};

    EXPECT_EQ(wall->hasExternalRegion(), 2);
}

// ---- Placement

TEST_F(BoundaryTest, relocatesInTheLocationModel)
{
    calls();

    EXPECT_TRUE(wall->relocate("inlet", true));
    EXPECT_EQ(wall->faceUses(), std::vector{inlet.first});
    EXPECT_TRUE(wall->relocate(std::vector<gtm::Region*>{middle.first}, false));
    EXPECT_EQ(wall->faceUses(), std::vector{middle.first});

    EXPECT_EQ(calls(), (Calls{R"(boundary "wall": relocate("inlet", true))",
                              R"(boundary "wall": relocate([middle@left], false))"}));
}

TEST_F(BoundaryTest, relocationSucceedsOnlyWhenTheResultIsValid)
{
    using BoundaryState = gtm::Boundary::State;
    for (const BoundaryState state : {BoundaryState::Empty, BoundaryState::Unresolvable, BoundaryState::Incomplete,
                                      BoundaryState::Inconsistent, BoundaryState::Overlapping}) {
        answers().relocateResult = state;
        EXPECT_FALSE(wall->relocate("inlet", false)) << static_cast<int>(state);
        EXPECT_FALSE(wall->relocate(std::vector<gtm::Region*>{inlet.face}, true)) << static_cast<int>(state);
    }
    answers().relocateResult = BoundaryState::Valid;
    EXPECT_TRUE(wall->relocate("inlet", true));
}

TEST_F(BoundaryTest, passesOnWhetherRegionsWereRemoved)
{
    calls();

    answers().removeResult = true;
    EXPECT_TRUE(wall->remove({middle.face}));
    answers().removeResult = false;
    EXPECT_FALSE(wall->remove({middle.face}));

    EXPECT_EQ(calls().front(), R"(boundary "wall": remove([middle]))");
}

// ---- The end

TEST_F(BoundaryTest, endsEveryInterfaceThatUsesItThenItsLocation)
{
    interface("b", wall, opposite);
    Interface* a = interface("a", opposite, wall);
    const int id = wall->id();
    calls();

    EXPECT_TRUE(wall->destroy());

    EXPECT_EQ(calls(), (Calls{
                           R"(interface "b": destroy())",
                           R"(interface "a": destroy())",
                           R"(boundary "wall": destroy())",
                       }));
    EXPECT_EQ(physics.interfaces(), Interfaces{});
    EXPECT_EQ(physics.findBoundaryById(id), nullptr);
    EXPECT_EQ(fluid->boundaries(), Boundaries{});
    EXPECT_EQ(opposite->interfaces(), Interfaces{});
    EXPECT_EQ(a->boundary(physics::Side::First), nullptr);
}

TEST_F(BoundaryTest, endsAnInterfaceThatHasItOnBothSides)
{
    Interface* loop = interface("loop", wall, wall);

    wall->destroy();

    EXPECT_EQ(physics.interfaces(), Interfaces{});
    EXPECT_EQ(loop->interface(), nullptr);
}

TEST_F(BoundaryTest, itsSettingsEndWithIt)
{
    Model* shell = physics.createModel();
    wall->setShellModel(shell);
    Settings* volumeSide = wall->boundarySettings(nullptr);
    volumeSide->createThreadBundle(0, ThreadType::Wall, 7, {})->setZoneIds({3});
    const int volumeSideId = volumeSide->id();
    const int shellSideId = wall->shellSettings(nullptr)->id();

    wall->destroy();

    EXPECT_EQ(physics.findSettingsById(volumeSideId), nullptr);
    EXPECT_EQ(physics.findSettingsById(shellSideId), nullptr);
    EXPECT_EQ(physics.findThreadBundleByThreadId(7), nullptr);
    EXPECT_EQ(physics.findThreadBundleByZoneId(3), nullptr);
    EXPECT_EQ(shell->boundaries(), Boundaries{});
    EXPECT_EQ(shell->settings(), SettingsList{});
}

TEST_F(BoundaryTest, settingsMadeForItInAStrangeModelEndWithIt)
{
    Model* stranger = physics.createModel();
    Settings* strange = stranger->settings(wall->patch(nullptr), SettingsType::VolumeSettings);
    ASSERT_TRUE(strange);
    const int id = strange->id();

    wall->destroy();

    EXPECT_EQ(stranger->settings(), SettingsList{});
    EXPECT_EQ(physics.findSettingsById(id), nullptr);
}

TEST_F(BoundaryTest, aDefaultOneIsSwitchedOffAndNotDestroyed)
{
    Boundary* rest = fluid->createDefaultBoundary("rest");
    calls();

    EXPECT_TRUE(rest->destroy());

    EXPECT_EQ(calls(), (Calls{R"(interior "fluid": activateDefaultBoundary(false))"}));
    EXPECT_FALSE(fluid->hasDefaultBoundary());
    EXPECT_EQ(fluid->boundaries(), Boundaries{wall});
}

TEST_F(BoundaryTest, twoOnOneDefaultLocationAreFoundAsTheLaterUntilOneOfThemEnds)
{
    Volume* older = physics.createDefaultVolume("older", VolumeType::Fluid);
    Boundary* first = older->createDefaultBoundary("rest");
    Volume* newer = physics.createDefaultVolume("newer", VolumeType::Fluid);
    Boundary* second = newer->createDefaultBoundary("rest");
    ASSERT_EQ(first->boundary(), second->boundary());
    answers().pair = first->boundary();
    EXPECT_EQ(wall->pair(), second);

    first->destroy();

    EXPECT_EQ(wall->pair(), nullptr);
    EXPECT_EQ(physics.findBoundaryById(second->id()), second);
}

TEST_F(BoundaryTest, twoBoundariesWithOneIdStayOwnedAndTheNewerIsFound)
{
    --boundaryIdCounter();
    Boundary* twin = solid->createBoundary("twin", "outlet");
    ASSERT_EQ(twin->id(), opposite->id());

    EXPECT_EQ(physics.findBoundaryById(opposite->id()), twin);
    twin->destroy();
    EXPECT_EQ(physics.findBoundaryById(opposite->id()), nullptr);
    EXPECT_EQ(solid->boundaries(), Boundaries{opposite});
}

} // namespace
