// What comes back from a saved text, kind by kind, and what does not.

#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Volume.h"
#include "tests/physics/PhysicsCase.h"
#include "tests/physics/saved/FullSetUp.h"
#include "tests/physics/saved/Texts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

namespace physics {
namespace {

template <class Object>
std::vector<int> idsOf(const std::vector<Object*>& objects)
{
    std::vector<int> ids;
    for (const Object* object : objects)
        ids.push_back(object == nullptr ? -1 : object->id());
    return ids;
}

template <class Object>
std::vector<std::string> namesOf(const std::vector<Object*>& objects)
{
    std::vector<std::string> names;
    for (const Object* object : objects)
        names.push_back(object->name());
    return names;
}

using Ids = std::vector<int>;
using Names = std::vector<std::string>;

/// The row of bodies, with ids from 1 and a second set-up into which texts are restored.
class Restoring : public PhysicsCase {
protected:
    void SetUp() override { ASSERT_TRUE(physics.restore(emptyText(0))); }

    /// Saves the set-up and restores it in the other one, which must then save the same text.
    Physics& saveAndRestore()
    {
        const std::string text = physics.serialise();
        EXPECT_EQ(other.checkSerialised(text), Names());
        EXPECT_TRUE(other.restore(text));
        EXPECT_EQ(other.serialise(), text);
        return other;
    }

    /// What was restored once comes back the same for ever.
    void saveAndRestoreAgain()
    {
        const std::string text = other.serialise();
        ASSERT_TRUE(other.restore(text));
        EXPECT_EQ(other.serialise(), text);
    }

    Physics other{world.model(), true};
};

// ---- Places

TEST_F(Restoring, defaultVolumeTakesItsNameOnTheDefaultInterior)
{
    Volume* rest = physics.createDefaultVolume("all the rest", VolumeType::Fluid);
    rest->createDefaultBoundary("outside");
    world.takeCalls();

    saveAndRestore();

    Volume* restored = other.defaultVolume();
    ASSERT_NE(restored, nullptr);
    EXPECT_EQ(restored->id(), rest->id());
    EXPECT_EQ(restored->name(), "all the rest");
    EXPECT_TRUE(restored->isDefaultVolume());
    EXPECT_TRUE(restored->interior()->isDefaultInterior());
    ASSERT_NE(restored->defaultBoundary(), nullptr);
    EXPECT_EQ(restored->defaultBoundary()->fullName(), "all the rest::outside");
    EXPECT_TRUE(restored->defaultBoundary()->isDefaultBoundary());
    for (const std::string& call : calls())
        EXPECT_EQ(call.find("create"), std::string::npos) << call;
}

TEST_F(Restoring, severalDefaultVolumesShareTheDefaultInterior)
{
    physics.createDefaultVolume("first", VolumeType::Fluid);
    physics.createDefaultVolume("second", VolumeType::Solid);

    ASSERT_TRUE(other.restore(physics.serialise()));

    EXPECT_EQ(other.defaultVolume()->id(), 2);
    EXPECT_TRUE(other.findVolumeById(1)->isDefaultVolume());
    EXPECT_EQ(other.findVolumeById(1)->interior(), other.findVolumeById(2)->interior());
    EXPECT_EQ(other.findVolumeById(1)->type(), VolumeType::Fluid);
    // Both have the name of the one interior now, so the newer one is listed.
    EXPECT_EQ(idsOf(other.volumes()), Ids{2});
    saveAndRestoreAgain();
}

TEST_F(Restoring, defaultVolumeIsTheOneThatTheTextNames)
{
    Volume* first = physics.createDefaultVolume("first", VolumeType::Fluid);
    Volume* second = physics.createDefaultVolume("second", VolumeType::Solid);
    std::string text = physics.serialise();
    const std::string before = "0\n" + std::to_string(second->id()) + "\n0\n0\n"; // no settings, default, no groups
    ASSERT_NE(text.find(before), std::string::npos) << text;

    text.replace(text.find(before), before.size(), "0\n" + std::to_string(first->id()) + "\n0\n0\n");
    ASSERT_TRUE(other.restore(text));

    EXPECT_EQ(other.defaultVolume()->id(), first->id());
}

TEST_F(Restoring, eachKindOfLocationComesBackAsItWas)
{
    volume("string", "left, right");
    volume("empty string", "");
    physics.createVolume("list", std::vector<gtm::Region*>{far, loose}, VolumeType::Fluid);
    physics.createVolume("empty list", std::vector<gtm::Region*>{}, VolumeType::Fluid);

    saveAndRestore();

    EXPECT_EQ(namesOf(other.volumes()), (Names{"empty list", "empty string", "list", "string"}));
    const auto locationOf = [this](int id) { return other.findVolumeById(id)->location(); };
    EXPECT_TRUE(locationOf(1)->isImplicit());
    EXPECT_EQ(locationOf(1)->locationString(false), "left, right");
    EXPECT_TRUE(locationOf(2)->isImplicit());
    EXPECT_EQ(locationOf(2)->locationString(false), "");
    EXPECT_FALSE(locationOf(3)->isImplicit());
    EXPECT_EQ(other.findVolumeById(3)->bodies(), (std::vector<gtm::Body*>{far, loose}));
    EXPECT_FALSE(locationOf(4)->isImplicit());
    EXPECT_TRUE(other.findVolumeById(4)->bodies().empty());
}

TEST_F(Restoring, namesKeepTheirBlanksButThoseInFront)
{
    Volume* inner = volume("hot  and cold ");
    inner->createBoundary("  the \"inlet\", 1", std::string("inlet"));

    ASSERT_TRUE(other.restore(physics.serialise()));

    EXPECT_EQ(other.findVolumeById(1)->name(), "hot  and cold ");
    EXPECT_EQ(other.findBoundaryById(1)->name(), "the \"inlet\", 1");
}

TEST_F(Restoring, emptyNameMakesATextThatIsRefused)
{
    volume("");

    // The line of the location is taken for the name, and all fields after it are read one too early.
    EXPECT_EQ(other.checkSerialised(physics.serialise()).size(), 1U);
    EXPECT_FALSE(other.restore(physics.serialise()));
}

TEST_F(Restoring, objectsComeBackUnderTheNamesThatTheyHaveNow)
{
    volume("b")->rename("z");
    volume("c", "right");
    ASSERT_EQ(idsOf(physics.volumes()), (Ids{1, 2})); // listed as b and c

    ASSERT_TRUE(other.restore(physics.serialise()));

    EXPECT_EQ(namesOf(other.volumes()), (Names{"c", "z"}));
    EXPECT_EQ(idsOf(other.volumes()), (Ids{2, 1}));
    saveAndRestoreAgain();
}

TEST_F(Restoring, objectsThatAnEqualNameTookOutOfTheListsComeBack)
{
    Volume* older = volume("same", "left");
    Volume* newer = volume("same", "right");
    Boundary* olderWall = newer->createBoundary("wall", std::string("outlet"));
    newer->createBoundary("wall", std::string("middle@right"));
    ASSERT_EQ(idsOf(physics.volumes()), Ids{newer->id()});

    saveAndRestore();

    EXPECT_EQ(idsOf(other.volumes()), Ids{newer->id()});
    ASSERT_NE(other.findVolumeById(older->id()), nullptr);
    EXPECT_EQ(other.findVolumeById(older->id())->bodies(), std::vector<gtm::Body*>{left});
    ASSERT_NE(other.findBoundaryById(olderWall->id()), nullptr);
    EXPECT_EQ(other.findBoundaryById(olderWall->id())->volume()->id(), newer->id());
    EXPECT_EQ(idsOf(other.primaryModel()->volumes()), (Ids{older->id(), newer->id()}));
}

/// A text with an interior and a boundary that no object lies on.
const std::string idleText = "0\n3\n1 0\n0 idle\n1 left\n1 0\n0 wall\n1 inlet\n0\n1\n" + typeTables +
                             "0\n0\n0\n0\n0\n0\n-1\n0\n0\n0\n0\n0\n0\n0\n0\n";

TEST_F(Restoring, entitiesThatNoObjectLiesOnComeLast)
{
    ASSERT_TRUE(physics.restore(idleText));
    ASSERT_EQ(physics.serialise(), idleText);
    volume("fluid", "right");

    const std::string text = physics.serialise();

    const std::string expected = "0\n3\n2 0\n0 fluid\n1 right\n0 0\n1 idle\n1 left\n1 0\n0 wall\n1 inlet\n0\n";
    EXPECT_EQ(text.substr(0, expected.size()), expected);
    saveAndRestore();
}

TEST_F(Restoring, entitiesThatNoObjectLiesOnAreNotLostByARefusal)
{
    ASSERT_TRUE(other.restore(idleText));
    volume("fluid");
    const std::string before = other.serialise();
    world.answers(2).refuseNextInterior = gtm::Interior::State::Overlapping; // of the rehearsal

    EXPECT_FALSE(other.restore(physics.serialise()));

    EXPECT_EQ(other.serialise(), before);
}

// ---- Models

TEST_F(Restoring, membersOfADestroyedModelComeBackWithoutModel)
{
    Model* kept = physics.createModel();
    Model* lost = physics.createModel();
    Volume* in = physics.createVolume("in", std::string("left"), VolumeType::Fluid, lost);
    Volume* out = physics.createVolume("out", std::string("right"), VolumeType::Fluid, kept);
    Boundary* hot = in->createBoundary("hot", std::string("middle@left"));
    Boundary* cold = out->createBoundary("cold", std::string("middle@right"), BoundaryType::Wall);
    Interface* contact = physics.createInterface("contact", hot, cold, InterfaceType::Wall, lost);
    cold->setShellModel(lost);
    cold->setShellType(ShellType::HeatConduction);
    lost->destroy();

    saveAndRestore();

    EXPECT_EQ(idsOf(other.models()), Ids{kept->id()});
    EXPECT_EQ(other.findVolumeById(in->id())->model(), nullptr);
    EXPECT_EQ(other.findInterfaceById(contact->id())->model(), nullptr);
    EXPECT_EQ(other.findBoundaryById(cold->id())->shellModel(), nullptr);
    EXPECT_EQ(other.findBoundaryById(cold->id())->shellType(), ShellType::HeatConduction);
    EXPECT_EQ(other.findVolumeById(in->id())->settings(), nullptr);
}

TEST_F(Restoring, domainsComeBackWithTheSymbolsOfTheirNames)
{
    Model* model = physics.createModel();
    model->addDomain(7, DomainType::Phase, "Water Vapour");
    model->addDomain(-2, DomainType::Unset, "odd");
    model->removeDomain(1);

    saveAndRestore();

    Model* restored = other.findModelById(model->id());
    EXPECT_EQ(restored->domainIds(), (Ids{-2, 7}));
    EXPECT_EQ(restored->domainName(7), "Water Vapour");
    EXPECT_EQ(restored->domainSymbol(7), model->domainSymbol(7));
    EXPECT_NE(restored->domainSymbol(7), "");
    EXPECT_EQ(restored->domainType(7), DomainType::Phase);
}

TEST_F(Restoring, shellBelongsToItsModelOnly)
{
    Model* flow = physics.createModel();
    Model* shells = physics.createModel();
    Volume* fluid = physics.createVolume("fluid", std::string("left"), VolumeType::Fluid, flow);
    Boundary* wall = fluid->createBoundary("wall", std::string("inlet"), BoundaryType::Wall);
    wall->setShellModel(shells);
    wall->setShellType(ShellType::HeatConduction);
    Settings* settings = wall->nonOverlappingShellSettings();

    saveAndRestore();

    Boundary* restored = other.findBoundaryById(wall->id());
    EXPECT_EQ(restored->shellModel()->id(), shells->id());
    EXPECT_EQ(restored->nonOverlappingShellSettings()->id(), settings->id());
    // The shell's boundary leaves with its shell; a field that took the whole list would dangle here.
    restored->setShellModel(nullptr);
    EXPECT_EQ(other.findModelById(shells->id())->boundaries(), std::vector<Boundary*>());
}

// ---- Groups

TEST_F(Restoring, groupWithAnEndedVolumeComesBackWithTheOthers)
{
    Volume* first = volume("first", "left");
    Volume* second = volume("second", "right");
    volume("third", "far")->deactivate();
    ASSERT_EQ(physics.deactivateVolumes({second, first}), 2);
    first->destroy();

    saveAndRestore();

    EXPECT_EQ(other.activationGroups(), (Ids{1, 2}));
    EXPECT_EQ(idsOf(other.activationGroupVolumes(2)), Ids{second->id()});
    EXPECT_TRUE(other.activateGroup(2));
    EXPECT_TRUE(other.findVolumeById(second->id())->isActive());
}

TEST_F(Restoring, emptyGroupKeepsItsNumber)
{
    ASSERT_EQ(physics.deactivateVolumes({}), 1);

    saveAndRestore();

    EXPECT_EQ(other.activationGroups(), Ids{1});
    EXPECT_EQ(other.deactivateVolumes({}), 2);
}

// ---- Settings and bundles

TEST_F(Restoring, ownZonesComeBackAndInheritedOnesAreInheritedAgain)
{
    world.zones(left, {31});
    Settings* settings = volume("fluid")->settings();
    settings->createThreadBundle(0, ThreadType::Fluid, 5, {1});
    settings->createThreadBundle(3, ThreadType::Fluid, 6, {2, 1, 2})->setZoneIds({-8, 4});

    saveAndRestore();

    Settings* restored = other.findSettingsById(settings->id());
    EXPECT_EQ(restored->threadIds(), (Ids{5, 6}));
    EXPECT_FALSE(restored->threadBundle(0)->hasOwnZones());
    EXPECT_EQ(restored->threadBundle(0)->zoneIds(), Ids{31});
    EXPECT_TRUE(restored->threadBundle(3)->hasOwnZones());
    EXPECT_EQ(restored->threadBundle(3)->zoneIds(), (Ids{-8, 4}));
    EXPECT_EQ(restored->threadBundle(3)->domainIds(), (Ids{1, 2}));
    EXPECT_EQ(other.findThreadBundleByZoneId(-8), restored->threadBundle(3));
    EXPECT_EQ(other.findThreadBundleByZoneId(31), restored->threadBundle(0));
    EXPECT_EQ(restored->threadBundleWithThreadId(6), restored->threadBundle(3));
}

TEST_F(Restoring, replacedBundlesAndHandlesDoNotComeBack)
{
    Settings* settings = volume("fluid")->settings();
    settings->createThreadBundle(0, ThreadType::Fluid, 5, {1});
    settings->createThreadBundle(0, ThreadType::Fluid, 6, {1})->registerThread(0, &world);
    ASSERT_NE(physics.findThreadBundleByThreadId(5), nullptr);

    saveAndRestore();

    EXPECT_EQ(other.findThreadBundleByThreadId(5), nullptr);
    EXPECT_EQ(other.threadIds(), Ids{6});
    EXPECT_EQ(other.findThreadBundleByThreadId(6)->thread(0), nullptr);
}

TEST_F(Restoring, changedThreadIdIsFoundAfterwards)
{
    volume("fluid")->settings()->createThreadBundle(0, ThreadType::Fluid, 5, {1})->setThreadId(50);
    ASSERT_EQ(physics.findThreadBundleByThreadId(50), nullptr);

    saveAndRestore();

    EXPECT_NE(other.findThreadBundleByThreadId(50), nullptr);
    EXPECT_EQ(other.findThreadBundleByThreadId(5), nullptr);
}

TEST_F(Restoring, ofEqualThreadIdsTheOneWithTheHighestSettingsIdIsFound)
{
    Settings* first = volume("first", "left")->settings();
    Settings* second = volume("second", "right")->settings();
    second->createThreadBundle(0, ThreadType::Fluid, 5, {1});
    first->createThreadBundle(0, ThreadType::Fluid, 5, {1});
    ASSERT_EQ(physics.findSettingsByThreadId(5), first);

    saveAndRestore();

    EXPECT_EQ(other.findSettingsByThreadId(5)->id(), second->id());
}

TEST_F(Restoring, settingsThatNoModelHoldsDoNotComeBack)
{
    Model* lost = physics.createModel();
    physics.createVolume("fluid", std::string("left"), VolumeType::Fluid, lost)->settings();
    lost->destroy();

    saveAndRestore();

    EXPECT_EQ(other.findSettingsById(1), nullptr);
    EXPECT_TRUE(other.settings().empty());
}

TEST_F(Restoring, internalSettingsComeBack)
{
    Settings* settings = volume("fluid")->internalSettings();

    saveAndRestore();

    EXPECT_EQ(other.findVolumeById(1)->internalSettings()->id(), settings->id());
    EXPECT_EQ(other.findSettingsById(settings->id())->topologyType(), TopologyType::Internal);
}

TEST_F(Restoring, savingMakesNoSettings)
{
    Volume* fluid = volume("fluid");
    fluid->createBoundary("wall", std::string("inlet"));
    const std::size_t before = physics.settings().size();

    saveAndRestore();

    EXPECT_EQ(physics.settings().size(), before);
    EXPECT_EQ(other.settings().size(), before);
    EXPECT_TRUE(other.primaryModel()->volumeSettings().empty());
}

// ---- Interfaces

TEST_F(Restoring, marksOfAnInterfaceComeBackAndPeriodicValuesDoNot)
{
    Volume* fluid = volume("fluid");
    Boundary* in = fluid->createBoundary("in", std::string("inlet"));
    Boundary* out = fluid->createBoundary("out", std::string("middle@left"));
    Interface* turned =
        physics.createRotationallyPeriodicInterface("turned", in, out, 30, {1, 2, 3}, {0, 0, 1}, InterfaceType::Fan);
    turned->setTranslationalPeriodicity({4, 5, 6});
    turned->setRotationalPeriodicity(30, {1, 2, 3}, {0, 0, 1});
    turned->setMeshConnectivity(MeshConnectivity::NonConformal);
    turned->setIsMapped(true);
    turned->setIsMeshValid(true);

    saveAndRestore();

    Interface* restored = other.findInterfaceById(turned->id());
    EXPECT_EQ(restored->periodicity(), Periodicity::RotationallyPeriodic);
    EXPECT_EQ(restored->meshConnectivity(), MeshConnectivity::NonConformal);
    EXPECT_TRUE(restored->isMapped());
    EXPECT_FALSE(restored->isStatic());
    EXPECT_TRUE(restored->isMeshValid());
    EXPECT_EQ(restored->getPeriodicOffset(), (std::array<double, 3>{1, 0, 0}));
    EXPECT_EQ(restored->getPeriodicAngle(), 0);
    EXPECT_EQ(restored->getPeriodicOrigin(), (std::array<double, 3>{0, 0, 0}));
    EXPECT_EQ(restored->getPeriodicDirection(), (std::array<double, 3>{1, 0, 0}));
}

TEST_F(Restoring, interfaceWithOneBoundaryOnBothSidesHasOnePatch)
{
    Boundary* wall = volume("fluid")->createBoundary("wall", std::string("inlet"));
    Interface* loop = interface("loop", wall, wall);

    saveAndRestore();

    Boundary* restored = other.findBoundaryById(wall->id());
    EXPECT_EQ(restored->patches().size(), 2U);
    EXPECT_EQ(restored->patch(other.findInterfaceById(loop->id()))->id(), wall->patch(loop)->id());
}

TEST_F(Restoring, endedInterfacesAreNotInTheText)
{
    Volume* fluid = volume("fluid");
    Boundary* in = fluid->createBoundary("in", std::string("inlet"));
    Boundary* out = fluid->createBoundary("out", std::string("middle@left"));
    Interface* ended = interface("ended", in, out);
    ended->destroy();

    saveAndRestore();

    EXPECT_TRUE(other.interfaces().empty());
    EXPECT_EQ(other.findBoundaryById(in->id())->patches().size(), 1U);
}

TEST_F(Restoring, pointerToAnEndedInterfaceOutlivesARestore)
{
    Volume* fluid = volume("fluid");
    Boundary* in = fluid->createBoundary("in", std::string("inlet"));
    Interface* loop = interface("loop", in, in);
    const int id = loop->id();

    ASSERT_TRUE(physics.restore(physics.serialise()));

    EXPECT_EQ(loop->id(), id);
    EXPECT_EQ(loop->boundary(Side::First), nullptr);
    EXPECT_NE(physics.findInterfaceById(id), loop);
}

// ---- The whole

TEST_F(Restoring, setUpCanBeRestoredFromItsOwnText)
{
    Volume* fluid = volume("fluid");
    fluid->createDefaultBoundary("rest");
    physics.maskBodies({far});
    const std::string text = physics.serialise();

    ASSERT_TRUE(physics.restore(physics.serialise()));

    EXPECT_EQ(physics.serialise(), text);
    EXPECT_EQ(physics.maskedBodies(), std::vector<gtm::Body*>{far});
}

TEST_F(Restoring, isTriedOutThenObjectsEndThenTheLocationModelIsCleared)
{
    volume("fluid")->createBoundary("wall", std::string("inlet"));
    const std::string text = physics.serialise();
    world.takeCalls();

    ASSERT_TRUE(physics.restore(text));

    EXPECT_EQ(calls(), (Calls{"#2 VirtualTopology(\"\", 0)", // the rehearsal
                              "#2 setMaskedBodies([])", "#2 activateDefaultInterior(false)",
                              "#2 createInterior(\"fluid\", \"left\", false, false)",
                              "#2 interior \"fluid\": activateDefaultBoundary(false)",
                              "#2 interior \"fluid\": createBoundary(\"wall\", \"inlet\", false)",
                              "boundary \"wall\": destroy()", "interior \"fluid\": destroy()", "unmask([left, right])",
                              "unmask([far])", "unmask([])", "clear()", "setMaskedBodies([])",
                              "activateDefaultInterior(false)", "createInterior(\"fluid\", \"left\", false, false)",
                              "interior \"fluid\": activateDefaultBoundary(false)",
                              "interior \"fluid\": createBoundary(\"wall\", \"inlet\", false)"}));
}

TEST_F(Restoring, localeOfTheProcessDoesNotMatter)
{
    volume("fluid")->settings()->createThreadBundle(0, ThreadType::Fluid, 5000000, {1});
    const std::string text = physics.serialise();
    const GroupedDigits locale;

    saveAndRestore();

    EXPECT_EQ(physics.serialise(), text);
    EXPECT_EQ(other.threadIds(), Ids{5000000});
}

TEST_F(Restoring, typeThatIsTheDefaultAfterwardsMayNotBeAllowed)
{
    ASSERT_TRUE(physics.restore(physics.serialise()));
    Volume* fluid = volume("fluid");
    Boundary* in = fluid->createBoundary("in", std::string("inlet"), BoundaryType::PressureInlet);

    fluid->setType(VolumeType::Solid); // for which a velocity inlet is the default now

    EXPECT_EQ(in->type(), BoundaryType::PressureInlet);
    EXPECT_EQ(fluid->createBoundary("out", std::string("outlet"))->type(), BoundaryType::VelocityInlet);
    EXPECT_FALSE(fluid->isAllowedBoundaryType(BoundaryType::VelocityInlet));
}

TEST_F(Restoring, flagsComeBack)
{
    reportCreationFailures(physics);
    physics.setEnforceRestrictions(false);

    saveAndRestore();

    EXPECT_FALSE(other.enforceRestrictions());
    PrintedText printed;
    world.answers(1).refuseNextInterior = gtm::Interior::State::Overlapping;
    other.setEnforceRestrictions(true);
    EXPECT_EQ(other.createVolume("refused", std::string("left"), VolumeType::Fluid), nullptr);
    EXPECT_NE(printed.text(), "");
}

TEST_F(Restoring, nothingIsPrintedAboutARefusal)
{
    reportCreationFailures(physics);
    volume("fluid");
    const std::string text = physics.serialise();
    ASSERT_TRUE(other.restore(text)); // so that it reports failures too
    PrintedText printed;

    world.answers(2).refuseNextInterior = gtm::Interior::State::Overlapping; // of the rehearsal
    EXPECT_FALSE(other.restore(text));
    EXPECT_FALSE(other.restore("0\n"));
    other.checkSerialised(text);
    other.serialise();

    EXPECT_EQ(printed.text(), "");
}

TEST_F(Restoring, faultySetUpComesBackAlthoughRestrictionsAreEnforced)
{
    world.judgeStates();
    physics.setEnforceRestrictions(false);
    volume("first", "left, nowhere");
    Volume* second = volume("second", "left");
    Boundary* wall = second->createBoundary("wall", std::string("outlet"));
    interface("loop", wall, wall);
    physics.setEnforceRestrictions(true);
    ASSERT_EQ(volume("third", "nowhere"), nullptr);

    saveAndRestore();

    EXPECT_TRUE(other.enforceRestrictions());
    for (int id = 1; id <= 2; ++id)
        EXPECT_EQ(other.findVolumeById(id)->state(), physics.findVolumeById(id)->state()) << id;
    EXPECT_NE(other.findVolumeById(1)->state(), State::Valid);
    EXPECT_EQ(other.interfaces()[0]->state(), physics.interfaces()[0]->state());
}

TEST_F(Restoring, refusedTextLeavesTheFlagsAndTablesAlone)
{
    const std::string text = physics.serialise();
    Physics fresh(world.model(), false);
    world.answers(2).refuseNextInterior = gtm::Interior::State::Overlapping;
    volume("fluid");

    EXPECT_FALSE(fresh.restore(physics.serialise()));

    EXPECT_FALSE(fresh.enforceRestrictions());
    EXPECT_EQ(fresh.defaultBoundaryType(VolumeType::Solid), BoundaryType::Wall);
    EXPECT_TRUE(fresh.volumes().empty());
}

/// The operations of the location model that building a set-up asks for.
const std::vector<std::string> operations = {
    "setMaskedBodies", "activateDefaultInterior", "createInterior", "activateDefaultBoundary",
    "createBoundary",  "createInterface",         "clear",          "rename"};

// ---- What only a text can make

/// The full set-up from a text in which the first interface has settings of its own for its patch 3, that
/// of boundary 1: the object 5, with the thread 70. It is in model 1, so it stands before that of model 2.
class InterfaceSideSettings : public testing::Test {
protected:
    void SetUp() override
    {
        std::vector<std::string> lines = linesOf(set.physics->serialise());
        lines[38] = "5 1 2 3 4 5";
        lines[53] = "2 3 5";
        lines.insert(lines.end() - 2, {"0 5 2 1 1 -1 3 -1", "1", "0 0 70 3 0", "0"});
        text = joined(lines);
        ASSERT_EQ(set.physics->checkSerialised(text), Names());
        ASSERT_TRUE(set.physics->restore(text));
        contact = set.physics->findInterfaceById(1);
        rare = set.physics->findSettingsById(5);
        ASSERT_NE(rare, nullptr);
    }

    FullSetUp set;
    std::string text;
    Interface* contact = nullptr;
    Settings* rare = nullptr;
};

TEST_F(InterfaceSideSettings, areListedByTheirModelBehindThoseOfTheOtherSides)
{
    Model* model = contact->model();

    EXPECT_EQ(rare->type(), SettingsType::InterfaceSettings);
    EXPECT_EQ(rare->topologyType(), TopologyType::Boundary);
    EXPECT_EQ(rare->boundaryPatch(), contact->boundary(Side::First)->patch(contact));
    EXPECT_EQ(idsOf(model->boundaryPatchSettings()), (Ids{1, 2, 5}));
    EXPECT_EQ(idsOf(model->settings()), (Ids{1, 2, 3, 5}));
    EXPECT_EQ(set.physics->findSettingsByThreadId(70), rare);
    EXPECT_EQ(set.physics->serialise(), text);
}

TEST_F(InterfaceSideSettings, areHandedOutByNoLookUp)
{
    Boundary* hot = contact->boundary(Side::First);

    EXPECT_EQ(contact->model()->settings(rare->boundaryPatch(), SettingsType::InterfaceSettings), nullptr);
    EXPECT_EQ(contact->boundaryInterfaceSettings(Side::First), nullptr);
    EXPECT_EQ(hot->interfaceSettings(contact), nullptr);
    EXPECT_EQ(hot->allInterfaceSettings(), std::vector<Settings*>());
}

TEST_F(InterfaceSideSettings, moveWithTheInterface)
{
    Model* before = contact->model();
    Model* after = set.physics->findModelById(2);

    contact->setModel(after);

    EXPECT_EQ(rare->model(), after);
    EXPECT_EQ(idsOf(after->boundaryPatchSettings()), (Ids{4, 5}));
    EXPECT_EQ(idsOf(before->boundaryPatchSettings()), (Ids{1, 2}));
    EXPECT_EQ(set.physics->findSettingsByThreadId(70), rare);
}

TEST_F(InterfaceSideSettings, endWithTheInterface)
{
    Model* model = contact->model();

    contact->destroy();

    EXPECT_EQ(set.physics->findSettingsById(5), nullptr);
    EXPECT_EQ(set.physics->findThreadBundleByThreadId(70), nullptr);
    EXPECT_EQ(idsOf(model->boundaryPatchSettings()), (Ids{1, 2}));
}

TEST_F(InterfaceSideSettings, endWithTheirPatchWhenTheInterfaceIsRelocated)
{
    Boundary* other = set.physics->findVolumeById(1)->createBoundary("other", std::string("shared@left"));

    contact->relocate(other, contact->boundary(Side::Second), false);

    EXPECT_EQ(set.physics->findSettingsById(5), nullptr);
    EXPECT_EQ(set.physics->findThreadBundleByThreadId(70), nullptr);
}

TEST(RestoredGroups, makeActiveWhateverTheyListWhicheverGroupThatIsIn)
{
    FullSetUp set;
    std::vector<std::string> lines = linesOf(set.physics->serialise());
    lines[40] = "2";
    lines[42] += "\n2\n1 2"; // group 2 lists the volume of group 1 once more
    ASSERT_TRUE(set.physics->restore(joined(lines)));
    const Volume* solid = set.physics->findVolumeById(2);
    ASSERT_EQ(solid->activationGroup(), 1);

    EXPECT_TRUE(set.physics->activateGroup(2));

    EXPECT_TRUE(solid->isActive());
    EXPECT_EQ(set.physics->activationGroups(), Ids{1});
    EXPECT_TRUE(set.physics->activateGroup(1));
}

TEST(RestoringWithAFailingLocationModel, keepsTheSetUpOrLeavesAnEmptyOne)
{
    for (const std::string& operation : operations) {
        int kept = 0;
        int emptied = 0;
        for (int nth = 1;; ++nth) {
            FullSetUp set;
            set.physics->createDefaultVolume("rest", VolumeType::Fluid)->createDefaultBoundary("rest of the rest");
            const std::string text = set.physics->serialise();
            set.world.throwOn(operation, nth);
            bool hasThrown = false;
            try {
                EXPECT_TRUE(set.physics->restore(text)) << operation;
            } catch (const std::runtime_error&) {
                hasThrown = true;
            }
            set.world.throwOnNothing();
            if (!hasThrown)
                break;
            if (!set.physics->volumes().empty()) {
                ++kept;
                EXPECT_EQ(set.physics->serialise(), text) << operation << nth;
            } else {
                ++emptied;
                EXPECT_TRUE(set.physics->models().empty()) << operation << nth;
                EXPECT_TRUE(set.physics->boundaries().empty()) << operation << nth;
                EXPECT_TRUE(set.physics->interfaces().empty()) << operation << nth;
                EXPECT_TRUE(set.physics->settings().empty()) << operation << nth;
                EXPECT_TRUE(set.physics->activationGroups().empty()) << operation << nth;
            }
            EXPECT_TRUE(set.physics->restore(text)) << operation << nth;
            EXPECT_EQ(set.physics->serialise(), text) << operation << nth;
        }
        EXPECT_GT(emptied, 0) << operation;
        EXPECT_EQ(kept > 0, operation != "clear") << operation; // all but that is rehearsed
    }
}

} // namespace
} // namespace physics
