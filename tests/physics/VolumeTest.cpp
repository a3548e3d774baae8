#include "physics/Volume.h"

#include "gtm/Location.h"
#include "physics/BoundaryPatch.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "tests/physics/PhysicsCase.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

using physics::Boundary;
using physics::BoundaryType;
using physics::Interface;
using physics::InterfaceType;
using physics::Model;
using physics::Physics;
using physics::Settings;
using physics::State;
using physics::Volume;
using physics::VolumeType;
using Boundaries = std::vector<Boundary*>;
using Volumes = std::vector<Volume*>;

class VolumeTest : public PhysicsCase {
protected:
    Volume* fluid = volume("fluid", "left");

    scripted::InteriorAnswers& answers() { return scripted::answersOf(fluid->interior()); }
};

TEST_F(VolumeTest, beginsActiveWithoutBoundariesAndSettings)
{
    EXPECT_EQ(fluid->type(), VolumeType::Fluid);
    EXPECT_EQ(fluid->model(), physics.primaryModel());
    EXPECT_EQ(fluid->physics(), &physics);
    EXPECT_EQ(fluid->activationGroup(), -1);
    EXPECT_TRUE(fluid->isActive());
    EXPECT_FALSE(fluid->isDefaultVolume());
    EXPECT_FALSE(fluid->hasDefaultBoundary());
    EXPECT_EQ(fluid->defaultBoundary(), nullptr);
    EXPECT_EQ(fluid->boundaries(), Boundaries{});
    EXPECT_EQ(fluid->topologyType(), physics::TopologyType::Volume);
    EXPECT_EQ(physics.settings(), std::vector<Settings*>{});
}

TEST_F(VolumeTest, passesTheAnswersOfItsInteriorOn)
{
    answers().bodies = {right, far};
    answers().internalFaces = {middle.face};
    answers().unusedFaceUses = {outlet.first, casing.first};
    answers().unusedInternalFaces = {casing.face};
    answers().unresolvableNames = {"no", "where"};

    EXPECT_EQ(fluid->name(), "fluid");
    EXPECT_EQ(fluid->fullName(), "fluid");
    EXPECT_EQ(fluid->bodies(), (std::vector{right, far}));
    EXPECT_EQ(fluid->internalFaces(), std::vector{middle.face});
    EXPECT_EQ(fluid->unusedFaceUses(), (std::vector{outlet.first, casing.first}));
    EXPECT_EQ(fluid->unusedInternalFaces(), std::vector{casing.face});
    EXPECT_EQ(fluid->unresolvableNames(), (std::vector<std::string>{"no", "where"}));
    EXPECT_EQ(fluid->location(), fluid->interior()->location());
    EXPECT_EQ(fluid->location()->locationString(false), "left");
}

TEST_F(VolumeTest, hasTheStateOfItsInterior)
{
    const std::vector<State> states = {State::Valid,      State::Empty,        State::Unresolvable,
                                       State::Incomplete, State::Inconsistent, State::Overlapping};

    for (const State state : states) {
        answers().state = gtm::Interior::State(static_cast<int>(state));
        EXPECT_EQ(fluid->state(), state);
    }
}

TEST_F(VolumeTest, isEmptyWithoutBodies)
{
    EXPECT_FALSE(fluid->isEmpty());
    answers().bodies.emplace();
    EXPECT_TRUE(fluid->isEmpty());
}

TEST_F(VolumeTest, renamesItsInteriorAndPassesTheResultOn)
{
    answers().renameResult = "as told";
    calls();

    EXPECT_EQ(fluid->rename("asked"), "as told");

    EXPECT_EQ(calls(), (Calls{R"(interior "fluid": rename("asked"))"}));
    EXPECT_EQ(fluid->name(), "asked");
}

TEST_F(VolumeTest, asksTheVocabularyForItsType)
{
    EXPECT_EQ(fluid->defaultBoundaryType(), BoundaryType::Wall);
    EXPECT_EQ(fluid->allowedBoundaryTypes(), physics.allowedBoundaryTypes(VolumeType::Fluid));
    EXPECT_TRUE(fluid->isAllowedBoundaryType(BoundaryType::VelocityInlet));
    fluid->setType(VolumeType::Solid);
    EXPECT_EQ(fluid->allowedBoundaryTypes(), physics.allowedBoundaryTypes(VolumeType::Solid));
    EXPECT_FALSE(fluid->isAllowedBoundaryType(BoundaryType::VelocityInlet));
}

TEST_F(VolumeTest, findsItsSettingsInItsModel)
{
    Model* model = fluid->model();

    EXPECT_EQ(fluid->settings(), model->settings(fluid));
    EXPECT_EQ(fluid->internalSettings(), model->internalSettings(fluid));
    EXPECT_NE(fluid->settings(), fluid->internalSettings());
    EXPECT_EQ(fluid->settings()->volume(), fluid);
}

TEST_F(VolumeTest, livesOnWithoutModelAndSettingsWhenItsModelEnds)
{
    fluid->model()->destroy();

    EXPECT_EQ(fluid->model(), nullptr);
    EXPECT_EQ(fluid->settings(), nullptr);
    EXPECT_EQ(fluid->internalSettings(), nullptr);
    EXPECT_EQ(fluid->name(), "fluid");
}

TEST_F(VolumeTest, makesBoundariesWithoutSettingsWhenItHasNoModel)
{
    fluid->model()->destroy();

    Boundary* wall = fluid->createBoundary("wall", "inlet");

    ASSERT_TRUE(wall);
    EXPECT_EQ(wall->volumeModel(), nullptr);
    EXPECT_EQ(wall->boundarySettings(nullptr), nullptr);
    EXPECT_EQ(physics.findBoundaryById(wall->id()), wall);
    wall->destroy();
    fluid->destroy();
    EXPECT_EQ(physics.volumes(), Volumes{});
}

// ---- Creating boundaries

TEST_F(VolumeTest, asksItsInteriorForBoundaries)
{
    calls();

    fluid->createBoundary("in", "inlet", BoundaryType::VelocityInlet);
    fluid->createBoundary("side", std::vector<gtm::Region*>{middle.face, inlet.first}, BoundaryType::Wall);
    physics.setEnforceRestrictions(false);
    fluid->createBoundary("free", "somewhere", BoundaryType::Wall);

    EXPECT_EQ(calls(), (Calls{
                           R"(interior "fluid": createBoundary("in", "inlet", true))",
                           R"(interior "fluid": createBoundary("side", [middle, inlet@left], true))",
                           R"(interior "fluid": createBoundary("free", "somewhere", false))",
                       }));
}

TEST_F(VolumeTest, givesABoundaryTheDefaultTypeUnlessAnotherIsAskedFor)
{
    EXPECT_EQ(fluid->createBoundary("a", "inlet", BoundaryType(-1))->type(), BoundaryType::Wall);
    EXPECT_EQ(fluid->createBoundary("b", "inlet")->type(), BoundaryType::Wall);
    EXPECT_EQ(fluid->createBoundary("c", "inlet", BoundaryType::Axis)->type(), BoundaryType::Axis);
    EXPECT_EQ(fluid->createDefaultBoundary("d", BoundaryType(-1))->type(), BoundaryType::Wall);
}

TEST_F(VolumeTest, createsBoundariesOfTypesThatItDoesNotAllow)
{
    Volume* solid = volume("solid", "right", VolumeType::Solid);

    Boundary* boundary = solid->createBoundary("in", "outlet", BoundaryType::VelocityInlet);

    ASSERT_TRUE(boundary);
    EXPECT_EQ(boundary->type(), BoundaryType::VelocityInlet);
}

TEST_F(VolumeTest, aRefusedBoundaryLeavesNoTrace)
{
    const int lastId = boundaryIdCounter();
    answers().refuseNextBoundary = gtm::Boundary::State::Overlapping;
    const PrintedText printed;

    EXPECT_EQ(fluid->createBoundary("wall", "inlet"), nullptr);

    EXPECT_EQ(fluid->boundaries(), Boundaries{});
    EXPECT_EQ(boundaryIdCounter(), lastId);
    EXPECT_EQ(physics.settings(), std::vector<Settings*>{});
    EXPECT_EQ(printed.text(), "");
}

TEST_F(VolumeTest, reportsARefusedBoundaryAtALocationString)
{
    reportCreationFailures(physics);
    answers().refuseNextBoundary = gtm::Boundary::State::Unresolvable;
    const PrintedText printed;

    fluid->createBoundary("hot wall", "inlet, nowhere");

    EXPECT_EQ(printed.text(), "Error: Could not create boundary \"hot wall\" at location: \"inlet, nowhere\"\n"
                              "       State = unresolvable\n");
}

TEST_F(VolumeTest, reportsARefusedBoundaryAtRegionsInBraces)
{
    reportCreationFailures(physics);
    answers().refuseNextBoundary = gtm::Boundary::State::Empty;
    const PrintedText printed;

    fluid->createBoundary("wall", std::vector<gtm::Region*>{inlet.face, middle.first});

    EXPECT_EQ(printed.text(), "Error: Could not create boundary \"wall\" at location: {inlet, middle@left}\n"
                              "       State = empty\n");
}

TEST_F(VolumeTest, keepsNoBoundaryWhenTheLocationModelThrows)
{
    world.throwOn("createBoundary");
    EXPECT_THROW(fluid->createBoundary("a", "inlet"), std::runtime_error);
    world.throwOn("name");
    EXPECT_THROW(fluid->createBoundary("b", "inlet"), std::runtime_error);

    EXPECT_EQ(fluid->boundaries(), Boundaries{});
    EXPECT_EQ(physics.findBoundaryById(boundaryIdCounter()), nullptr);
    EXPECT_EQ(fluid->interior()->boundaries(), std::vector<gtm::Boundary*>{});
    EXPECT_EQ(physics.settings(), std::vector<Settings*>{});
    Boundary* good = fluid->createBoundary("good", "inlet");
    EXPECT_EQ(fluid->boundaries(), Boundaries{good});
}

// ---- The default boundary

TEST_F(VolumeTest, theDefaultBoundaryLiesOnTheRenamedDefaultOfItsInterior)
{
    calls();

    Boundary* rest = fluid->createDefaultBoundary("rest", BoundaryType::Symmetry);

    EXPECT_EQ(calls(),
              (Calls{R"(interior "fluid": activateDefaultBoundary(true))", R"(boundary "default": rename("rest"))"}));
    EXPECT_EQ(rest->boundary(), fluid->interior()->defaultBoundary());
    EXPECT_TRUE(rest->isDefaultBoundary());
    EXPECT_EQ(rest->type(), BoundaryType::Symmetry);
    EXPECT_EQ(fluid->defaultBoundary(), rest);
    EXPECT_TRUE(fluid->hasDefaultBoundary());
    EXPECT_EQ(fluid->boundaries(), Boundaries{rest});
}

TEST_F(VolumeTest, aSecondDefaultBoundaryEndsTheFirstWithItsInterfaces)
{
    Boundary* first = fluid->createDefaultBoundary("first");
    const int firstId = first->id();
    interface("loop", first, first);
    calls();

    Boundary* second = fluid->createDefaultBoundary("second");

    EXPECT_EQ(calls(), (Calls{
                           R"(interface "loop": destroy())",
                           R"(interior "fluid": activateDefaultBoundary(false))",
                           R"(interior "fluid": activateDefaultBoundary(true))",
                           R"(boundary "first": rename("second"))",
                       }));
    EXPECT_EQ(physics.findBoundaryById(firstId), nullptr);
    EXPECT_EQ(second->id(), firstId + 1);
    EXPECT_EQ(fluid->defaultBoundary(), second);
    EXPECT_EQ(fluid->boundaries(), Boundaries{second});
    EXPECT_EQ(physics.interfaces(), std::vector<Interface*>{});
}

TEST_F(VolumeTest, hasADefaultBoundaryWhenOneWasMadeWhateverTheLocationModelSays)
{
    fluid->interior()->activateDefaultBoundary(true);
    EXPECT_FALSE(fluid->hasDefaultBoundary());

    fluid->createDefaultBoundary("rest");
    fluid->interior()->activateDefaultBoundary(false);

    EXPECT_TRUE(fluid->hasDefaultBoundary());
}

TEST_F(VolumeTest, aSecondDefaultBoundaryEndsTheFirstAlsoWhenTheLocationModelSwitchedThatOff)
{
    const int firstId = fluid->createDefaultBoundary("first")->id();
    fluid->interior()->activateDefaultBoundary(false);

    Boundary* second = fluid->createDefaultBoundary("second");

    EXPECT_EQ(physics.findBoundaryById(firstId), nullptr);
    EXPECT_EQ(fluid->boundaries(), Boundaries{second});
    EXPECT_TRUE(fluid->interior()->isDefaultBoundaryActive());
}

TEST_F(VolumeTest, createsNoDefaultBoundaryWhereTheLocationModelHasNone)
{
    answers().hasNoDefaultBoundary = true;

    EXPECT_EQ(fluid->createDefaultBoundary("rest"), nullptr);

    EXPECT_FALSE(fluid->hasDefaultBoundary());
    EXPECT_EQ(fluid->boundaries(), Boundaries{});
}

TEST_F(VolumeTest, aDefaultBoundaryTakesThePlaceOfAnOrdinaryOneWithItsName)
{
    Boundary* ordinary = fluid->createBoundary("wall", "inlet");
    const int id = ordinary->id();

    Boundary* rest = fluid->createDefaultBoundary("wall");

    EXPECT_EQ(fluid->boundaries(), Boundaries{rest});
    EXPECT_EQ(physics.findBoundaryById(id), ordinary);
    fluid->destroy();
    EXPECT_EQ(physics.findBoundaryById(id), nullptr);
}

// ---- Listing boundaries

TEST_F(VolumeTest, listsBoundariesByTheirNamesAtCreation)
{
    Boundary* b = fluid->createBoundary("b", "inlet");
    Boundary* a = fluid->createBoundary("a", "inlet");
    Boundary* capital = fluid->createBoundary("Z", "inlet");

    a->rename("zzz");

    EXPECT_EQ(fluid->boundaries(), (Boundaries{capital, a, b}));
}

TEST_F(VolumeTest, listsABoundaryUnderTheNameThatTheLocationModelGaveIt)
{
    world.nameHook([](const std::string& name) { return name == "a" ? "z" : name; });
    Boundary* a = fluid->createBoundary("a", "inlet");
    Boundary* b = fluid->createBoundary("b", "inlet");

    EXPECT_EQ(fluid->boundaries(), (Boundaries{b, a}));
}

TEST_F(VolumeTest, neverListsABoundaryThatWasRenamedAndDestroyed)
{
    Boundary* a = fluid->createBoundary("a", "inlet");
    a->rename("z");

    a->destroy();

    EXPECT_EQ(fluid->boundaries(), Boundaries{});
    fluid->destroy();
}

TEST_F(VolumeTest, aBoundaryThatEndsTakesTheListEntryUnderItsPresentNameAlong)
{
    Boundary* renamed = fluid->createBoundary("a", "inlet");
    Boundary* other = fluid->createBoundary("b", "inlet");
    renamed->rename("b");

    renamed->destroy();

    EXPECT_EQ(fluid->boundaries(), Boundaries{});
    EXPECT_EQ(physics.findBoundaryById(other->id()), other);
}

TEST_F(VolumeTest, endsABoundaryHiddenByAnEqualNameToo)
{
    const int hidden = fluid->createBoundary("same", "inlet")->id();
    Boundary* listed = fluid->createBoundary("same", "inlet");
    EXPECT_EQ(fluid->boundaries(), Boundaries{listed});
    EXPECT_TRUE(physics.findBoundaryById(hidden));

    fluid->destroy();

    EXPECT_EQ(physics.findBoundaryById(hidden), nullptr);
}

// ---- Placement

TEST_F(VolumeTest, relocatesItsInterior)
{
    calls();

    EXPECT_TRUE(fluid->relocate("right", true));
    EXPECT_EQ(fluid->bodies(), std::vector{right});
    EXPECT_TRUE(fluid->relocate(std::vector<gtm::Region*>{far, loose}, false));
    EXPECT_EQ(fluid->bodies(), (std::vector{far, loose}));

    EXPECT_EQ(calls(), (Calls{R"(interior "fluid": relocate("right", true))",
                              R"(interior "fluid": relocate([far, loose], false))"}));
}

TEST_F(VolumeTest, relocationSucceedsOnlyWhenTheResultIsValid)
{
    using InteriorState = gtm::Interior::State;
    for (const InteriorState state : {InteriorState::Empty, InteriorState::Unresolvable, InteriorState::Incomplete,
                                      InteriorState::Inconsistent, InteriorState::Overlapping}) {
        answers().relocateResult = state;
        EXPECT_FALSE(fluid->relocate("right", false)) << static_cast<int>(state);
        EXPECT_FALSE(fluid->relocate(std::vector<gtm::Region*>{right}, true)) << static_cast<int>(state);
    }
    answers().relocateResult = InteriorState::Valid;
    EXPECT_TRUE(fluid->relocate("right", true));
}

TEST_F(VolumeTest, passesOnWhetherRegionsWereRemoved)
{
    calls();

    answers().removeResult = true;
    EXPECT_TRUE(fluid->remove({left}));
    answers().removeResult = false;
    EXPECT_FALSE(fluid->remove({left}));

    EXPECT_EQ(calls().front(), R"(interior "fluid": remove([left]))");
}

TEST_F(VolumeTest, overlapsWithOtherVolumes)
{
    Volume* both = volume("both", "left, right");
    Volume* apart = volume("apart", "far");

    EXPECT_EQ(fluid->overlap(both), std::vector{left});
    EXPECT_EQ(fluid->overlap(apart), std::vector<gtm::Body*>{});
    EXPECT_EQ(fluid->overlap(nullptr), std::vector<gtm::Body*>{});
    EXPECT_EQ(fluid->overlappingVolumes(), Volumes{both});
}

TEST_F(VolumeTest, sharesNothingWithAVolumeOfAnotherSetUp)
{
    Physics other(world.model(), false);

    EXPECT_EQ(fluid->overlap(other.createVolume("both", std::string("left, right"), VolumeType::Fluid)),
              std::vector<gtm::Body*>{});
}

TEST_F(VolumeTest, listsNullForOverlappingInteriorsThatAreNoVolume)
{
    Volume* other = volume("other", "right");
    const auto unknown = world.virtualTopology()->createInterior("unknown", "left", false, true).first;
    answers().overlappingInteriors = {unknown, nullptr, other->interior()};

    EXPECT_EQ(fluid->overlappingVolumes(), (Volumes{nullptr, nullptr, other}));
}

// ---- Kind and model

TEST_F(VolumeTest, aNewTypeGivesBoundariesThatItForbidsTheDefaultType)
{
    Boundary* in = fluid->createBoundary("in", "inlet", BoundaryType::VelocityInlet);
    Boundary* symmetry = fluid->createBoundary("symmetry", "middle", BoundaryType::Symmetry);
    Boundary* interior = fluid->createBoundary("interior", "middle", BoundaryType::Interior);
    Boundary* axis = fluid->createBoundary("axis", "middle", BoundaryType::Axis);

    fluid->setType(VolumeType::Solid);

    EXPECT_EQ(fluid->type(), VolumeType::Solid);
    EXPECT_EQ(in->type(), BoundaryType::Wall);
    EXPECT_EQ(symmetry->type(), BoundaryType::Symmetry);
    EXPECT_EQ(interior->type(), BoundaryType::Interior);
    EXPECT_EQ(axis->type(), BoundaryType::Wall);
}

TEST_F(VolumeTest, theSameTypeChangesNothingThatIsAllowed)
{
    Boundary* in = fluid->createBoundary("in", "inlet", BoundaryType::VelocityInlet);

    fluid->setType(VolumeType::Fluid);

    EXPECT_EQ(in->type(), BoundaryType::VelocityInlet);
}

TEST_F(VolumeTest, theSameTypeRepairsBoundariesCreatedWithAForbiddenType)
{
    Volume* solid = volume("solid", "right", VolumeType::Solid);
    Boundary* in = solid->createBoundary("in", "outlet", BoundaryType::VelocityInlet);

    solid->setType(VolumeType::Solid);

    EXPECT_EQ(in->type(), BoundaryType::Wall);
}

TEST_F(VolumeTest, aBoundaryKeepsAForbiddenTypeWhereAnInterfaceForbidsTheDefaultOne)
{
    Boundary* first = fluid->createBoundary("first", "inlet", BoundaryType::VelocityInlet);
    Boundary* second = volume("other", "right")->createBoundary("second", "outlet", BoundaryType::VelocityInlet);
    interface("fan", first, second, InterfaceType::Fan);

    fluid->setType(VolumeType::Solid);

    EXPECT_EQ(fluid->type(), VolumeType::Solid);
    EXPECT_EQ(first->type(), BoundaryType::VelocityInlet);
}

TEST_F(VolumeTest, anUnsetTypeLeavesAllBoundaryTypes)
{
    Boundary* in = fluid->createBoundary("in", "inlet", BoundaryType::VelocityInlet);

    fluid->setType(VolumeType::Unset);

    EXPECT_EQ(fluid->type(), VolumeType::Unset);
    EXPECT_EQ(in->type(), BoundaryType::VelocityInlet);
    EXPECT_EQ(fluid->defaultBoundaryType(), BoundaryType::Unset);
}

TEST_F(VolumeTest, movesToAnotherModelWithItsSettings)
{
    Boundary* wall = fluid->createBoundary("wall", "inlet");
    Settings* volumeSettings = fluid->settings();
    Settings* internalSettings = fluid->internalSettings();
    Settings* wallSettings = wall->boundarySettings(nullptr);
    Model* before = fluid->model();
    Model* target = physics.createModel();

    EXPECT_TRUE(fluid->setModel(target));

    EXPECT_EQ(fluid->model(), target);
    EXPECT_EQ(before->volumes(), Volumes{});
    EXPECT_EQ(before->settings(), std::vector<Settings*>{});
    EXPECT_EQ(target->volumes(), Volumes{fluid});
    EXPECT_EQ(fluid->settings(), volumeSettings);
    EXPECT_EQ(fluid->internalSettings(), internalSettings);
    EXPECT_EQ(wall->boundarySettings(nullptr), wallSettings);
    EXPECT_EQ(volumeSettings->model(), target);
    EXPECT_EQ(internalSettings->model(), target);
    EXPECT_EQ(wallSettings->model(), target);
}

TEST_F(VolumeTest, refusesNoModelAndModelsOfAnotherSetUp)
{
    Physics other(world.model(), true);
    Model* model = fluid->model();

    EXPECT_FALSE(fluid->setModel(nullptr));
    EXPECT_FALSE(fluid->setModel(other.createModel()));

    EXPECT_EQ(fluid->model(), model);
    EXPECT_EQ(model->volumes(), Volumes{fluid});
}

TEST_F(VolumeTest, movingToItsOwnModelChangesNothing)
{
    Settings* settings = fluid->settings();

    EXPECT_TRUE(fluid->setModel(fluid->model()));

    EXPECT_EQ(fluid->model()->volumes(), Volumes{fluid});
    EXPECT_EQ(fluid->settings(), settings);
}

TEST_F(VolumeTest, joinsAModelAfterItsOwnEnded)
{
    Boundary* wall = fluid->createBoundary("wall", "inlet");
    fluid->model()->destroy();
    Model* target = physics.createModel();

    EXPECT_TRUE(fluid->setModel(target));

    EXPECT_EQ(fluid->model(), target);
    EXPECT_EQ(target->volumes(), Volumes{fluid});
    EXPECT_EQ(target->volumeSettings(wall).size(), 1U);
}

// ---- Activation

TEST_F(VolumeTest, deactivatesOnceAndActivatesAgain)
{
    EXPECT_FALSE(fluid->activate());

    EXPECT_TRUE(fluid->deactivate());
    EXPECT_FALSE(fluid->isActive());
    EXPECT_EQ(fluid->activationGroup(), 1);
    EXPECT_FALSE(fluid->deactivate());

    EXPECT_TRUE(fluid->activate());
    EXPECT_TRUE(fluid->isActive());
    EXPECT_EQ(fluid->activationGroup(), -1);
    EXPECT_FALSE(fluid->activate());
}

TEST_F(VolumeTest, activatesItsWholeGroup)
{
    Volume* other = volume("other");
    physics.deactivateVolumes({fluid, other});

    EXPECT_TRUE(other->activate());

    EXPECT_TRUE(fluid->isActive());
    EXPECT_EQ(physics.activationGroups(), std::vector<int>{});
}

// ---- Zones

TEST_F(VolumeTest, listsTheZonesOfItsBodiesBodyByBody)
{
    world.zones(left, {9, 3, 9});
    world.zones(right, {3, -4});
    Volume* both = volume("both", "right, left");

    EXPECT_EQ(both->zoneIds(), (std::vector{9, 3, 9, 3, -4}));
}

TEST_F(VolumeTest, skipsMissingBodiesAndFaces)
{
    world.zones(left, {1});
    world.sideZones(inlet.first, {{2, 0}});
    answers().bodies = {nullptr, left};
    answers().unusedInternalFaces = {nullptr, inlet.face};

    EXPECT_EQ(fluid->zoneIds(), std::vector{1});
    EXPECT_EQ(fluid->internalZoneIds(), std::vector{2});
}

TEST_F(VolumeTest, hasNoZonesBeforeThereIsAMesh)
{
    answers().unusedInternalFaces = {middle.face};
    world.withoutZoneMap();

    EXPECT_EQ(fluid->zoneIds(), std::vector<int>{});
    EXPECT_EQ(fluid->internalZoneIds(), std::vector<int>{});
}

TEST_F(VolumeTest, listsTheZonesOnTheFirstSidesOfUnusedInternalFaces)
{
    const auto second = world.face("second", left, left);
    world.sideZones(middle.first, {{8, 0}, {-5, 1}});
    world.sideZones(middle.second, {{5, 0}, {8, 1}});
    world.sideZones(second.first, {{3, 0}, {8, 0}});
    world.sideZones(second.second, {{3, 1}});
    answers().unusedInternalFaces = {middle.face, second.face};

    EXPECT_EQ(fluid->internalZoneIds(), (std::vector{3, 5, 8}));
}

class NonSharedMeshes : public VolumeTest {
protected:
    NonSharedMeshes()
    {
        world.sideZones(middle.first, {{7, 0}});
        world.sideZones(middle.second, {{7, 1}, {8, 0}});
        answers().unusedInternalFaces = {middle.face};
    }
};

TEST_F(NonSharedMeshes, areReportedWithoutAClosingQuoteAtEachQuestion)
{
    reportCreationFailures(physics);
    const PrintedText printed;

    EXPECT_EQ(fluid->internalZoneIds(), std::vector{7});
    fluid->internalZoneIds();

    EXPECT_EQ(printed.text(), "Error: Non-shared meshes on internal faces in volume \"fluid\n"
                              "Error: Non-shared meshes on internal faces in volume \"fluid\n");
}

TEST_F(NonSharedMeshes, areReportedWhenABundleAsksForItsZones)
{
    reportCreationFailures(physics);
    const std::string message = "Error: Non-shared meshes on internal faces in volume \"fluid\n";

    const PrintedText atCreation;
    fluid->internalSettings()->createThreadBundle(0, physics::ThreadType::Interior, 1, {});
    EXPECT_EQ(atCreation.text(), message);

    const PrintedText atTheList;
    EXPECT_EQ(physics.zoneIds(), std::vector{7});
    EXPECT_EQ(atTheList.text(), message);
}

TEST_F(NonSharedMeshes, areReportedWhenABundleReleasesItsZones)
{
    Settings* settings = fluid->internalSettings();
    physics::ThreadBundle* bundle = settings->createThreadBundle(0, physics::ThreadType::Interior, 1, {});
    reportCreationFailures(physics);
    const std::string message = "Error: Non-shared meshes on internal faces in volume \"fluid\n";

    const PrintedText atTheChange;
    EXPECT_TRUE(bundle->setZoneIds({}));
    EXPECT_EQ(atTheChange.text(), message);

    const PrintedText atTheEnd;
    EXPECT_TRUE(settings->deleteThreadBundle(0));
    EXPECT_EQ(atTheEnd.text(), message);
}

TEST_F(NonSharedMeshes, areReportedWhenAnElementDiffers)
{
    reportCreationFailures(physics);
    world.sideZones(middle.second, {{9, 0}});
    const PrintedText printed;

    EXPECT_EQ(fluid->internalZoneIds(), std::vector{7});

    EXPECT_EQ(printed.text(), "Error: Non-shared meshes on internal faces in volume \"fluid\n");
}

TEST_F(NonSharedMeshes, areNotReportedUnlessFailuresAre)
{
    const PrintedText printed;

    EXPECT_EQ(fluid->internalZoneIds(), std::vector{7});

    EXPECT_EQ(printed.text(), "");
}

TEST_F(NonSharedMeshes, areNoneWhenBothSidesHaveTheSameZones)
{
    reportCreationFailures(physics);
    world.sideZones(middle.second, {{-7, 1}});
    const PrintedText printed;

    EXPECT_EQ(fluid->internalZoneIds(), std::vector{7});

    EXPECT_EQ(printed.text(), "");
}

TEST_F(VolumeTest, keepsTheZoneIdThatHasNoAbsoluteValue)
{
    const int lowest = std::numeric_limits<int>::min();
    world.sideZones(middle.first, {{lowest, 1}, {4, 0}});
    answers().unusedInternalFaces = {middle.face};

    EXPECT_EQ(fluid->internalZoneIds(), (std::vector{lowest, 4}));
}

// ---- The end

TEST_F(VolumeTest, endsItsBoundariesByNameWithTheirInterfacesThenItsInterior)
{
    Boundary* b = fluid->createBoundary("b", "inlet");
    fluid->createBoundary("a", "inlet");
    Volume* other = volume("other", "right");
    Boundary* opposite = other->createBoundary("opposite", "outlet");
    Interface* joint = interface("joint", b, opposite);
    const int id = fluid->id();
    calls();

    fluid->destroy();

    EXPECT_EQ(calls(), (Calls{
                           R"(boundary "a": destroy())",
                           R"(interface "joint": destroy())",
                           R"(boundary "b": destroy())",
                           R"(interior "fluid": destroy())",
                       }));
    EXPECT_EQ(physics.findVolumeById(id), nullptr);
    EXPECT_EQ(physics.volumes(), Volumes{other});
    EXPECT_EQ(physics.boundaries(), Boundaries{opposite});
    EXPECT_EQ(opposite->noOfInterfaces(), 0);
    EXPECT_EQ(joint->boundary(physics::Side::Second), nullptr);
    EXPECT_EQ(physics.primaryModel()->volumes(), Volumes{other});
}

TEST_F(VolumeTest, anInterfaceBetweenTwoBoundariesOfOneVolumeEndsOnce)
{
    Boundary* first = fluid->createBoundary("first", "inlet");
    Boundary* second = fluid->createBoundary("second", "middle");
    Interface* joint = interface("joint", first, second);

    fluid->destroy();

    EXPECT_EQ(physics.interfaces(), std::vector<Interface*>{});
    EXPECT_EQ(joint->interface(), nullptr);
    EXPECT_EQ(physics.boundaries(), Boundaries{});
}

TEST_F(VolumeTest, itsSettingsEndWithIt)
{
    Settings* settings = fluid->settings();
    const int id = settings->id();
    settings->createThreadBundle(0, physics::ThreadType::Fluid, 7, {})->setZoneIds({3});
    Model* model = fluid->model();

    fluid->destroy();

    EXPECT_EQ(physics.findSettingsById(id), nullptr);
    EXPECT_EQ(physics.findThreadBundleByThreadId(7), nullptr);
    EXPECT_EQ(physics.findThreadBundleByZoneId(3), nullptr);
    EXPECT_EQ(model->settings(), std::vector<Settings*>{});
}

TEST_F(VolumeTest, itsInternalSettingsStayFoundByIdWithoutAVolume)
{
    Settings* internal = fluid->internalSettings();

    fluid->destroy();

    EXPECT_EQ(physics.findSettingsById(internal->id()), internal);
    EXPECT_EQ(internal->volume(), nullptr);
    EXPECT_FALSE(internal->isActive());
    EXPECT_EQ(physics.settings(), std::vector<Settings*>{});
}

TEST_F(VolumeTest, aDestroyedVolumeIsNoMemberOfItsModelAnyMore)
{
    Model* model = fluid->model();
    const Volume* ended = fluid;

    fluid->destroy();

    EXPECT_EQ(model->settings(ended), nullptr);
    EXPECT_EQ(model->internalSettings(ended), nullptr);
}

TEST_F(VolumeTest, endsAfterItsModel)
{
    fluid->createBoundary("wall", "inlet");
    fluid->settings();
    fluid->model()->destroy();

    fluid->destroy();

    EXPECT_EQ(physics.volumes(), Volumes{});
    EXPECT_EQ(physics.virtualTopology().interiors(), std::vector<gtm::Interior*>{});
}

} // namespace
