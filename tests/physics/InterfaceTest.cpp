#include "physics/Interface.h"

#include "tests/physics/ContactCase.h"

#include <gtest/gtest.h>

#include <array>
#include <stdexcept>
#include <string>
#include <vector>

namespace physics {
namespace {

using Point = std::array<double, 3>;

class InterfaceTest : public ContactCase {
protected:
    Interface* contact = join(hotWall, coldWall);
    gtm::Interface* entity() { return contact->interface(); }
};

// ---- Creation

TEST_F(InterfaceTest, isPlainAtFirst)
{
    EXPECT_EQ(contact->type(), InterfaceType::Wall);
    EXPECT_EQ(contact->periodicity(), Periodicity::NonPeriodic);
    EXPECT_FALSE(contact->isPeriodic());
    EXPECT_EQ(contact->meshConnectivity(), MeshConnectivity::Automatic);
    EXPECT_FALSE(contact->isMapped());
    EXPECT_FALSE(contact->isStatic());
    EXPECT_FALSE(contact->isMeshValid());
    EXPECT_EQ(contact->getPeriodicOffset(), (Point{1, 0, 0}));
    EXPECT_EQ(contact->getPeriodicAngle(), 0);
    EXPECT_EQ(contact->getPeriodicOrigin(), (Point{0, 0, 0}));
    EXPECT_EQ(contact->getPeriodicDirection(), (Point{1, 0, 0}));
    EXPECT_FALSE(contact->requiresBoundaryInterfaceSettings());
    EXPECT_EQ(contact->topologyType(), TopologyType::Interface);
    EXPECT_EQ(contact->physics(), &physics);
}

TEST_F(InterfaceTest, drawsTheNextId)
{
    Interface* next = join(inlet, outlet, "next");

    EXPECT_EQ(next->id(), contact->id() + 1);
    EXPECT_EQ(physics.findInterfaceById(next->id()), next);
}

TEST_F(InterfaceTest, belongsToThePrimaryModelUnlessAnotherIsGiven)
{
    Model* other = physics.createModel();

    Interface* given = join(inlet, outlet, "given", InterfaceType::Wall, other);

    EXPECT_EQ(contact->model(), model);
    EXPECT_EQ(given->model(), other);
    EXPECT_EQ(model->interfaces(), Interfaces{contact});
    EXPECT_EQ(other->interfaces(), Interfaces{given});
}

TEST_F(InterfaceTest, givesEachBoundaryAPatchWithoutSettings)
{
    ASSERT_NE(hotWall->patch(contact), nullptr);
    EXPECT_EQ(hotWall->patch(contact)->interface(), contact);
    EXPECT_EQ(hotWall->interfaces(), Interfaces{contact});
    EXPECT_EQ(coldWall->patches(), (Patches{coldWall->patch(nullptr), coldWall->patch(contact)}));
    EXPECT_EQ(model->volumeSettings(hotWall), SettingsList{hotWall->nonOverlappingBoundarySettings()});
}

TEST_F(InterfaceTest, isCreatedPeriodicInOneStep)
{
    Interface* translated = physics.createTranslationallyPeriodicInterface("translated", hotWall, coldWall, {2, 3, 4},
                                                                           InterfaceType::Interior);
    Interface* rotated = physics.createRotationallyPeriodicInterface("rotated", hotWall, coldWall, 30, {1, 1, 1},
                                                                     {0, 0, 2}, InterfaceType::Interior);

    EXPECT_EQ(translated->periodicity(), Periodicity::TranslationallyPeriodic);
    EXPECT_EQ(translated->getPeriodicOffset(), (Point{2, 3, 4}));
    EXPECT_EQ(rotated->periodicity(), Periodicity::RotationallyPeriodic);
    EXPECT_EQ(rotated->getPeriodicAngle(), 30);
    EXPECT_EQ(rotated->getPeriodicOrigin(), (Point{1, 1, 1}));
    EXPECT_EQ(rotated->getPeriodicDirection(), (Point{0, 0, 2})); // not normalised
}

TEST_F(InterfaceTest, thatTheLocationModelRefusesIsNull)
{
    const auto refuse = [this] { world.answers().refuseNextInterface = gtm::Interface::State::SameBoundary; };

    refuse();
    EXPECT_EQ(join(inlet, outlet, "refused"), nullptr);
    refuse();
    EXPECT_EQ(physics.createTranslationallyPeriodicInterface("refused", inlet, outlet, {}, InterfaceType::Wall),
              nullptr);
    refuse();
    EXPECT_EQ(physics.createRotationallyPeriodicInterface("refused", inlet, outlet, 1, {}, {}, InterfaceType::Wall),
              nullptr);
    EXPECT_EQ(inlet->noOfInterfaces(), 0);
    EXPECT_EQ(physics.interfaces(), Interfaces{contact});
}

TEST_F(InterfaceTest, isNotMadeOfNothingOrOfForeignObjects)
{
    const Stranger stranger;
    world.takeCalls();

    EXPECT_EQ(join(nullptr, coldWall), nullptr);
    EXPECT_EQ(join(hotWall, nullptr), nullptr);
    EXPECT_EQ(join(stranger.boundary, coldWall), nullptr);
    EXPECT_EQ(join(hotWall, stranger.boundary), nullptr);
    EXPECT_EQ(join(hotWall, coldWall, "foreign", InterfaceType::Wall, stranger.model), nullptr);
    EXPECT_EQ(world.calls(), std::vector<std::string>{});
    EXPECT_EQ(physics.interfaces(), Interfaces{contact});
}

TEST_F(InterfaceTest, leavesNothingBehindWhenTheLocationModelFailsDuringItsCreation)
{
    for (const char* operation : {"createInterface", "name"}) {
        world.throwOn(operation);

        EXPECT_THROW(join(inlet, outlet, "half made"), std::runtime_error) << operation;
        EXPECT_EQ(inlet->noOfInterfaces(), 0) << operation;
        EXPECT_EQ(outlet->patches(), Patches{outlet->patch(nullptr)}) << operation;
        EXPECT_EQ(model->interfaces(), Interfaces{contact}) << operation;
        EXPECT_EQ(physics.interfaces(), Interfaces{contact}) << operation;
        EXPECT_EQ(physics.findInterfaceById(contact->id() + 1), nullptr) << operation;
        EXPECT_EQ(world.interface("half made"), nullptr) << operation;
    }
}

// ---- Sides

TEST_F(InterfaceTest, hasItsSecondBoundaryOnEverySideButTheFirst)
{
    EXPECT_EQ(contact->boundary(Side::First), hotWall);
    EXPECT_EQ(contact->boundary(Side::Second), coldWall);
    EXPECT_EQ(contact->boundary(Side(2)), coldWall);
    EXPECT_EQ(contact->boundary(Side(-1)), coldWall);
    EXPECT_EQ(contact->volume(Side::First), hot);
    EXPECT_EQ(contact->volume(Side(7)), cold);
}

TEST_F(InterfaceTest, knowsTheOtherBoundaryOfItsOwnOnly)
{
    EXPECT_EQ(contact->otherBoundary(hotWall), coldWall);
    EXPECT_EQ(contact->otherBoundary(coldWall), hotWall);
    EXPECT_EQ(contact->otherBoundary(inlet), nullptr);
    EXPECT_EQ(contact->otherBoundary(nullptr), nullptr);
}

TEST_F(InterfaceTest, makesTheSettingsOfItsSidesAtTheFirstRequest)
{
    hotWall->setShellModel(model);

    Settings* onFirst = contact->boundarySettings(Side::First);
    ASSERT_NE(onFirst, nullptr);
    EXPECT_EQ(onFirst->boundaryPatch(), hotWall->patch(contact));
    EXPECT_EQ(contact->boundarySettings(Side::First), onFirst);
    EXPECT_EQ(contact->boundarySettings(Side(-1))->boundaryPatch(), coldWall->patch(contact));
    EXPECT_EQ(contact->boundaryShellSettings(Side::First)->type(), SettingsType::ShellSettings);
    EXPECT_EQ(contact->boundaryShellSettings(Side::Second), nullptr); // no shell there
    EXPECT_EQ(contact->volumeSettings(Side::Second), cold->settings());
}

TEST_F(InterfaceTest, neverHasInterfaceSettingsOfItsBoundaries)
{
    EXPECT_EQ(contact->boundaryInterfaceSettings(Side::First), nullptr);
    EXPECT_EQ(contact->boundaryInterfaceSettings(Side::Second), nullptr);
}

TEST_F(InterfaceTest, makesItsSettingsAtTheFirstRequest)
{
    EXPECT_EQ(model->interfaceSettings(), SettingsList{});

    Settings* settings = contact->settings();

    EXPECT_EQ(settings->interface(), contact);
    EXPECT_EQ(settings->type(), SettingsType::InterfaceSettings);
    EXPECT_EQ(contact->settings(), settings);
    EXPECT_EQ(model->interfaceSettings(), SettingsList{settings});
}

// ---- The same boundary on both sides

TEST_F(InterfaceTest, withOneBoundaryOnBothSidesHasOnePatchButDrawsTwoPatchIds)
{
    const int before = drawPatchId();

    Interface* self = join(inlet, inlet, "self");

    EXPECT_EQ(inlet->noOfInterfaces(), 1);
    EXPECT_EQ(inlet->patch(self)->id(), before + 2);
    EXPECT_EQ(self->otherBoundary(inlet), inlet);
    EXPECT_EQ(self->boundarySettings(Side::First), self->boundarySettings(Side::Second));
}

TEST_F(InterfaceTest, withOneBoundaryOnBothSidesEndsOnce)
{
    Interface* self = join(inlet, inlet, "self");
    Settings* onPatch = self->boundarySettings(Side::First);
    onPatch->createThreadBundle(0, ThreadType::Wall, 4, {});
    const int settingsId = onPatch->id();

    self->destroy();

    EXPECT_EQ(inlet->noOfInterfaces(), 0);
    EXPECT_EQ(physics.findSettingsById(settingsId), nullptr);
    EXPECT_EQ(physics.findThreadBundleByThreadId(4), nullptr);
    EXPECT_EQ(physics.interfaces(), Interfaces{contact});
}

// ---- Region operations

TEST_F(InterfaceTest, takesNameAndStateFromTheLocationModel)
{
    for (const int state : {0, 1, 2, 10, 11, 12, 20, 21, 22, 23}) {
        scripted::answersOf(entity()).state = gtm::Interface::State(state);
        EXPECT_EQ(contact->state(), State(state));
    }
    EXPECT_EQ(contact->name(), "contact");
    EXPECT_EQ(contact->fullName(), "contact");
}

TEST_F(InterfaceTest, passesOnWhatTheLocationModelAnswersToARenaming)
{
    scripted::answersOf(entity()).renameResult = "as asked, almost";

    EXPECT_EQ(contact->rename("skin"), "as asked, almost");
    EXPECT_EQ(contact->name(), "skin");
}

TEST_F(InterfaceTest, keepsItsPlaceInTheListWhenRenamed)
{
    Interface* later = join(inlet, outlet, "later");

    contact->rename("zzz");

    EXPECT_EQ(physics.interfaces(), (Interfaces{contact, later}));
}

TEST_F(InterfaceTest, leavesTheListWhenAnotherTakesTheNameOfItsCreation)
{
    contact->rename("renamed");

    Interface* second = join(inlet, outlet, "contact");

    EXPECT_EQ(physics.interfaces(), Interfaces{second});
    EXPECT_EQ(physics.findInterfaceById(contact->id()), contact);
    EXPECT_EQ(hotWall->interfaces(), Interfaces{contact});
}

TEST_F(InterfaceTest, thatWasRenamedIsHandedOutByNoListOnceItHasEnded)
{
    contact->rename("zzz");

    contact->destroy();

    EXPECT_EQ(physics.interfaces(), Interfaces{});
    EXPECT_EQ(hotWall->interfaces(), Interfaces{});
}

TEST_F(InterfaceTest, isActiveWhenBothVolumesAre)
{
    EXPECT_TRUE(contact->isActive());
    cold->deactivate();
    EXPECT_FALSE(contact->isActive());
    cold->activate();
    hot->deactivate();
    EXPECT_FALSE(contact->isActive());
}

TEST_F(InterfaceTest, isEmptyWhenBothBoundariesAre)
{
    EXPECT_FALSE(contact->isEmpty());
    scripted::answersOf(hotWall->boundary()).faceUses.emplace();
    EXPECT_FALSE(contact->isEmpty());
    scripted::answersOf(coldWall->boundary()).faceUses.emplace();
    EXPECT_TRUE(contact->isEmpty());
}

// ---- Plain values

TEST_F(InterfaceTest, storesWhateverTypeItIsGiven)
{
    contact->setType(InterfaceType::Fan); // no boundary here allows it
    EXPECT_EQ(contact->type(), InterfaceType::Fan);
    contact->setType(InterfaceType(99));
    EXPECT_EQ(contact->type(), InterfaceType(99));
}

TEST_F(InterfaceTest, storesFlagsAndMeshConnectivity)
{
    contact->setIsMapped(true);
    contact->setIsStatic(true);
    contact->setIsMeshValid(true);
    contact->setMeshConnectivity(MeshConnectivity::NonConformal);

    EXPECT_TRUE(contact->isMapped());
    EXPECT_TRUE(contact->isStatic());
    EXPECT_TRUE(contact->isMeshValid());
    EXPECT_EQ(contact->meshConnectivity(), MeshConnectivity::NonConformal);
}

TEST_F(InterfaceTest, allowsTheBoundaryTypesOfItsType)
{
    EXPECT_TRUE(contact->isAllowedBoundaryType(VolumeType::Fluid, BoundaryType::Wall));
    EXPECT_FALSE(contact->isAllowedBoundaryType(VolumeType::Fluid, BoundaryType::VelocityInlet));
    EXPECT_EQ(contact->allowedBoundaryTypes(VolumeType::Fluid),
              physics.allowedBoundaryTypes(InterfaceType::Wall, VolumeType::Fluid));
    EXPECT_EQ(contact->allowedBoundaryTypes(VolumeType(9)), std::vector<BoundaryType>{});
}

TEST_F(InterfaceTest, keepsTheValuesOfOneKindOfPeriodicityUnderTheOther)
{
    contact->setTranslationalPeriodicity({5, 6, 7});
    contact->setRotationalPeriodicity(400, {1, 2, 3}, {0, 0, 9});

    EXPECT_EQ(contact->periodicity(), Periodicity::RotationallyPeriodic);
    EXPECT_EQ(contact->getPeriodicOffset(), (Point{5, 6, 7}));

    contact->setTranslationalPeriodicity({8, 8, 8});

    EXPECT_EQ(contact->periodicity(), Periodicity::TranslationallyPeriodic);
    EXPECT_EQ(contact->getPeriodicAngle(), 400);
    EXPECT_EQ(contact->getPeriodicOrigin(), (Point{1, 2, 3}));
    EXPECT_EQ(contact->getPeriodicDirection(), (Point{0, 0, 9}));
}

TEST_F(InterfaceTest, keepsAllPeriodicValuesWhenMadePlain)
{
    contact->setRotationalPeriodicity(90, {1, 2, 3}, {0, 1, 0});

    contact->setNonPeriodic();

    EXPECT_FALSE(contact->isPeriodic());
    EXPECT_EQ(contact->getPeriodicAngle(), 90);
    EXPECT_EQ(contact->getPeriodicOrigin(), (Point{1, 2, 3}));
    EXPECT_EQ(contact->getPeriodicDirection(), (Point{0, 1, 0}));
}

// ---- Connectivity

TEST_F(InterfaceTest, isTotalWhenTheSidesMirrorEachOther)
{
    EXPECT_EQ(contact->connectivity(), Connectivity::Total);
    EXPECT_FALSE(contact->isSliding());
}

TEST_F(InterfaceTest, isPartialWhenOneSideHasMoreFaces)
{
    scripted::answersOf(coldWall->boundary()).faceUses = {upper.second};
    EXPECT_EQ(contact->connectivity(), Connectivity::Partial);

    scripted::answersOf(hotWall->boundary()).faceUses = {upper.first};
    scripted::answersOf(coldWall->boundary()).faceUses = {upper.second, lower.second};
    EXPECT_EQ(contact->connectivity(), Connectivity::Partial);

    scripted::answersOf(coldWall->boundary()).faceUses = {upper.second, outletFace.first};
    EXPECT_EQ(contact->connectivity(), Connectivity::Partial);
}

TEST_F(InterfaceTest, slidesWhenTheSidesShareNoFace)
{
    Interface* apart = join(inlet, outlet, "apart");
    Interface* facing = join(inlet, coldWall, "facing others");

    EXPECT_EQ(apart->connectivity(), Connectivity::None);
    EXPECT_TRUE(apart->isSliding());
    EXPECT_EQ(facing->connectivity(), Connectivity::None);
}

TEST_F(InterfaceTest, withTwoEmptySidesIsTotalAndWithOneItIsNot)
{
    scripted::answersOf(coldWall->boundary()).faceUses.emplace();
    EXPECT_EQ(contact->connectivity(), Connectivity::None);

    scripted::answersOf(hotWall->boundary()).faceUses.emplace();
    EXPECT_EQ(contact->connectivity(), Connectivity::Total);

    scripted::answersOf(coldWall->boundary()).faceUses = {upper.second};
    EXPECT_EQ(contact->connectivity(), Connectivity::None);
}

TEST_F(InterfaceTest, doesNotCountMissingFaceUses)
{
    scripted::answersOf(hotWall->boundary()).faceUses = {upper.first, nullptr};
    scripted::answersOf(coldWall->boundary()).faceUses = {nullptr, upper.second};

    EXPECT_EQ(contact->connectivity(), Connectivity::Total);
}

TEST_F(InterfaceTest, withinOneBodyConnectsTheTwoUsesOfAFace)
{
    const scripted::FaceWithUses baffle = world.face("baffle", left, left);
    Boundary* front = hot->createBoundary("front", std::string("baffle@left"));
    Boundary* back = hot->createBoundary("back", std::string("baffle@left#2"));

    Interface* within = join(front, back, "within");

    EXPECT_EQ(within->connectivity(), Connectivity::Total);
    EXPECT_EQ(within->volume(Side::First), within->volume(Side::Second));
    EXPECT_EQ(front->faceUses(), std::vector<gtm::FaceUse*>{baffle.first});
}

// ---- Model

TEST_F(InterfaceTest, movesToAnotherModelWithItsSettings)
{
    Model* target = physics.createModel();
    Settings* settings = contact->settings();
    ThreadBundle* bundle = settings->createThreadBundle(0, ThreadType::Interface, 3, {});

    EXPECT_TRUE(contact->setModel(target));

    EXPECT_EQ(contact->model(), target);
    EXPECT_EQ(contact->settings(), settings);
    EXPECT_EQ(settings->model(), target);
    EXPECT_EQ(settings->primaryThreadBundle(), bundle);
    EXPECT_EQ(model->interfaces(), Interfaces{});
    EXPECT_EQ(model->interfaceSettings(), SettingsList{});
    EXPECT_EQ(target->interfaces(), Interfaces{contact});
}

TEST_F(InterfaceTest, staysInItsModelWhenMovedToItOrToNoneOrToAForeignOne)
{
    const Stranger stranger;
    Settings* settings = contact->settings();

    EXPECT_TRUE(contact->setModel(model));
    EXPECT_FALSE(contact->setModel(nullptr));
    EXPECT_FALSE(contact->setModel(stranger.model));

    EXPECT_EQ(contact->model(), model);
    EXPECT_EQ(contact->settings(), settings);
    EXPECT_EQ(model->interfaces(), Interfaces{contact});
    EXPECT_EQ(stranger.model->interfaces(), Interfaces{});
}

TEST_F(InterfaceTest, joinsANewModelAfterItsOwnWasDestroyed)
{
    Model* target = physics.createModel();
    model->destroy();
    EXPECT_EQ(contact->model(), nullptr);
    EXPECT_EQ(contact->settings(), nullptr);

    EXPECT_TRUE(contact->setModel(target));

    EXPECT_EQ(target->interfaces(), Interfaces{contact});
    EXPECT_EQ(contact->settings()->model(), target);
}

// ---- Relocation

TEST_F(InterfaceTest, isRelocatedWithTheCallersFlagAndLosesItsMesh)
{
    contact->setIsMeshValid(true);
    world.takeCalls();

    EXPECT_TRUE(contact->relocate(inlet, outlet, true));

    EXPECT_EQ(world.calls(), std::vector<std::string>{R"(interface "contact": relocate(["inlet"], ["outlet"], true))"});
    EXPECT_EQ(contact->boundary(Side::First), inlet);
    EXPECT_EQ(contact->boundary(Side::Second), outlet);
    EXPECT_EQ(hotWall->noOfInterfaces(), 0);
    EXPECT_EQ(coldWall->noOfInterfaces(), 0);
    EXPECT_EQ(inlet->interfaces(), Interfaces{contact});
    EXPECT_FALSE(contact->isMeshValid());
}

TEST_F(InterfaceTest, staysWhenAnEnforcedRelocationIsRefused)
{
    scripted::answersOf(entity()).relocateResult = gtm::Interface::State::Incomplete;
    contact->setIsMeshValid(true);
    BoundaryPatch* patch = hotWall->patch(contact);

    EXPECT_FALSE(contact->relocate(inlet, outlet, true));

    EXPECT_EQ(contact->boundary(Side::First), hotWall);
    EXPECT_EQ(hotWall->patch(contact), patch);
    EXPECT_EQ(inlet->noOfInterfaces(), 0);
    EXPECT_TRUE(contact->isMeshValid());
}

TEST_F(InterfaceTest, isRelocatedAlthoughInvalidWhenRestrictionsAreNotEnforced)
{
    scripted::answersOf(entity()).relocateResult = gtm::Interface::State::Inconsistent;
    contact->setIsMeshValid(true);

    EXPECT_FALSE(contact->relocate(inlet, outlet, false));

    EXPECT_EQ(contact->boundary(Side::First), inlet);
    EXPECT_EQ(inlet->interfaces(), Interfaces{contact});
    EXPECT_EQ(hotWall->noOfInterfaces(), 0);
    EXPECT_FALSE(contact->isMeshValid());
}

TEST_F(InterfaceTest, isNotRelocatedToNothingOrToForeignBoundaries)
{
    const Stranger stranger;
    contact->setIsMeshValid(true);
    world.takeCalls();

    EXPECT_FALSE(contact->relocate(nullptr, coldWall, false));
    EXPECT_FALSE(contact->relocate(hotWall, nullptr, false));
    EXPECT_FALSE(contact->relocate(stranger.boundary, coldWall, false));
    EXPECT_FALSE(contact->relocate(hotWall, stranger.boundary, false));

    EXPECT_EQ(world.calls(), std::vector<std::string>{});
    EXPECT_TRUE(contact->isMeshValid());
    EXPECT_EQ(contact->boundary(Side::First), hotWall);
}

class InterfaceRelocation : public InterfaceTest {
protected:
    /// Patches of the four boundaries for the interface, in this order.
    std::vector<const BoundaryPatch*> patches() const
    {
        return {hotWall->patch(contact), coldWall->patch(contact), inlet->patch(contact), outlet->patch(contact)};
    }

    /// Each side has a patch for the interface, and nobody else.
    void expectSides(Boundary* first, Boundary* second)
    {
        EXPECT_EQ(contact->boundary(Side::First), first);
        EXPECT_EQ(contact->boundary(Side::Second), second);
        for (const Boundary* boundary : {hotWall, coldWall, inlet, outlet}) {
            const bool isSide = boundary == first || boundary == second;
            EXPECT_EQ(boundary->interfaces(), isSide ? Interfaces{contact} : Interfaces{}) << boundary->name();
        }
    }
};

TEST_F(InterfaceRelocation, toSwappedSidesChangesNoPatch)
{
    const auto before = patches();
    Settings* onHot = contact->boundarySettings(Side::First);

    EXPECT_TRUE(contact->relocate(coldWall, hotWall, false));

    expectSides(coldWall, hotWall);
    EXPECT_EQ(patches(), before);
    EXPECT_EQ(contact->boundarySettings(Side::Second), onHot);
}

TEST_F(InterfaceRelocation, ofOneSideKeepsThePatchOfTheOther)
{
    const auto before = patches();

    EXPECT_TRUE(contact->relocate(inlet, coldWall, false));

    expectSides(inlet, coldWall);
    EXPECT_EQ(coldWall->patch(contact), before[1]);
}

TEST_F(InterfaceRelocation, thatMovesTheSecondBoundaryToTheFirstSideKeepsItsPatch)
{
    const auto before = patches();

    EXPECT_TRUE(contact->relocate(coldWall, inlet, false));

    expectSides(coldWall, inlet);
    EXPECT_EQ(coldWall->patch(contact), before[1]);
}

TEST_F(InterfaceRelocation, thatMovesTheFirstBoundaryToTheSecondSideKeepsItsPatch)
{
    const auto before = patches();

    EXPECT_TRUE(contact->relocate(inlet, hotWall, false));

    expectSides(inlet, hotWall);
    EXPECT_EQ(hotWall->patch(contact), before[0]);
}

TEST_F(InterfaceRelocation, toOneOfItsBoundariesOnBothSidesDropsTheOther)
{
    const auto before = patches();

    EXPECT_TRUE(contact->relocate(hotWall, hotWall, false));

    expectSides(hotWall, hotWall);
    EXPECT_EQ(hotWall->patch(contact), before[0]);
}

TEST_F(InterfaceRelocation, toANewBoundaryOnBothSidesGivesItOnePatch)
{
    const int before = drawPatchId();

    EXPECT_TRUE(contact->relocate(inlet, inlet, false));

    expectSides(inlet, inlet);
    EXPECT_EQ(inlet->patch(contact)->id(), before + 1);
    EXPECT_EQ(drawPatchId(), before + 2);
}

TEST_F(InterfaceRelocation, fromOneBoundaryOnBothSidesToTwoOthers)
{
    contact->relocate(hotWall, hotWall, false);

    EXPECT_TRUE(contact->relocate(inlet, outlet, false));

    expectSides(inlet, outlet);
}

TEST_F(InterfaceRelocation, drawsPatchIdsSideBySide)
{
    EXPECT_TRUE(contact->relocate(outlet, inlet, false));

    EXPECT_EQ(inlet->patch(contact)->id(), outlet->patch(contact)->id() + 1);
}

TEST_F(InterfaceRelocation, carriesNoSettingsOver)
{
    Settings* onHot = contact->boundarySettings(Side::First);
    onHot->createThreadBundle(0, ThreadType::Wall, 12, {});
    const int settingsId = onHot->id();

    contact->relocate(inlet, coldWall, false);

    EXPECT_EQ(physics.findSettingsById(settingsId), nullptr);
    EXPECT_EQ(physics.findThreadBundleByThreadId(12), nullptr);
    EXPECT_EQ(model->volumeSettings(inlet), SettingsList{inlet->nonOverlappingBoundarySettings()});
}

TEST_F(InterfaceRelocation, leavesTheInterfaceToItsNewBoundariesWhenTheOldOnesEnd)
{
    contact->relocate(inlet, outlet, false);

    hotWall->destroy();
    coldWall->destroy();

    EXPECT_EQ(physics.interfaces(), Interfaces{contact});
    outlet->destroy();
    EXPECT_EQ(physics.interfaces(), Interfaces{});
    EXPECT_EQ(inlet->noOfInterfaces(), 0);
}

// ---- End

TEST_F(InterfaceTest, leavesModelRegistryAndBoundariesWhenItEnds)
{
    const int id = contact->id();
    world.takeCalls();

    contact->destroy();

    EXPECT_EQ(world.calls(), std::vector<std::string>{R"(interface "contact": destroy())"});
    EXPECT_EQ(model->interfaces(), Interfaces{});
    EXPECT_EQ(physics.interfaces(), Interfaces{});
    EXPECT_EQ(physics.findInterfaceById(id), nullptr);
    EXPECT_EQ(hotWall->patches(), Patches{hotWall->patch(nullptr)});
    EXPECT_EQ(coldWall->patch(contact), nullptr);
}

TEST_F(InterfaceTest, drawsASettingsIdAtItsEndWhenItNeverHadSettings)
{
    const int before = drawSettingsId();

    contact->destroy();

    EXPECT_EQ(drawSettingsId(), before + 2);
}

TEST_F(InterfaceTest, drawsNoSettingsIdAtItsEndWhenItHadSettings)
{
    contact->settings();
    const int before = drawSettingsId();

    contact->destroy();

    EXPECT_EQ(drawSettingsId(), before + 1);
}

TEST_F(InterfaceTest, answersWithNothingAfterItsEnd)
{
    const int id = contact->id();
    contact->setTranslationalPeriodicity({3, 2, 1});

    contact->destroy();

    EXPECT_EQ(contact->id(), id);
    EXPECT_EQ(contact->name(), "");
    EXPECT_EQ(contact->fullName(), "");
    EXPECT_EQ(contact->rename("again"), "");
    EXPECT_EQ(contact->state(), State::Unresolvable);
    EXPECT_EQ(contact->boundary(Side::First), nullptr);
    EXPECT_EQ(contact->boundary(Side::Second), nullptr);
    EXPECT_EQ(contact->volume(Side::First), nullptr);
    EXPECT_EQ(contact->otherBoundary(hotWall), nullptr);
    EXPECT_EQ(contact->otherBoundary(nullptr), nullptr);
    EXPECT_EQ(contact->settings(), nullptr);
    EXPECT_EQ(contact->boundarySettings(Side::First), nullptr);
    EXPECT_EQ(contact->boundaryShellSettings(Side::First), nullptr);
    EXPECT_EQ(contact->boundaryInterfaceSettings(Side::First), nullptr);
    EXPECT_EQ(contact->volumeSettings(Side::Second), nullptr);
    EXPECT_EQ(contact->model(), nullptr);
    EXPECT_EQ(contact->interface(), nullptr);
    EXPECT_FALSE(contact->isActive());
    EXPECT_TRUE(contact->isEmpty());
    EXPECT_EQ(contact->connectivity(), Connectivity::None);
    EXPECT_EQ(contact->type(), InterfaceType::Wall);
    EXPECT_EQ(contact->getPeriodicOffset(), (Point{3, 2, 1}));
}

TEST_F(InterfaceTest, refusesNewRelationsAfterItsEndButStoresPlainValues)
{
    contact->destroy();

    EXPECT_FALSE(contact->setModel(model));
    EXPECT_FALSE(contact->relocate(hotWall, coldWall, false));
    contact->setType(InterfaceType::Fan);
    contact->setIsMapped(true);
    contact->setRotationalPeriodicity(45, {}, {});

    EXPECT_EQ(model->interfaces(), Interfaces{});
    EXPECT_EQ(hotWall->noOfInterfaces(), 0);
    EXPECT_EQ(contact->type(), InterfaceType::Fan);
    EXPECT_TRUE(contact->isMapped());
    EXPECT_EQ(contact->getPeriodicAngle(), 45);
}

TEST_F(InterfaceTest, endsOnlyOnce)
{
    contact->destroy();
    world.takeCalls();

    contact->destroy();

    EXPECT_EQ(world.calls(), std::vector<std::string>{});
}

TEST_F(InterfaceTest, outlivesTheClearingOfItsSetUp)
{
    physics.clear();

    EXPECT_EQ(contact->name(), "");
    EXPECT_EQ(contact->physics(), &physics);
    contact->destroy();
}

TEST_F(InterfaceTest, endsWithEitherBoundary)
{
    coldWall->destroy();

    EXPECT_EQ(physics.interfaces(), Interfaces{});
    EXPECT_EQ(hotWall->noOfInterfaces(), 0);
    EXPECT_EQ(contact->boundary(Side::First), nullptr);
}

TEST_F(InterfaceTest, hasEndedEvenWhenTheLocationModelFailsToEndItsEntity)
{
    world.throwOn("destroy");
    EXPECT_THROW(contact->destroy(), std::runtime_error);

    hotWall->destroy();
    coldWall->destroy();

    EXPECT_EQ(contact->boundary(Side::First), nullptr);
    EXPECT_EQ(contact->name(), "");
    physics.clear();
}

TEST_F(InterfaceTest, withoutModelEndsLikeAnyOther)
{
    model->destroy();

    contact->destroy();

    EXPECT_EQ(physics.interfaces(), Interfaces{});
    EXPECT_EQ(hotWall->noOfInterfaces(), 0);
}

TEST_F(InterfaceTest, thatAnEqualNameTookOutOfTheListEndsWithItsBoundaries)
{
    Interface* twin = join(inlet, outlet, "contact");
    EXPECT_EQ(physics.interfaces(), Interfaces{twin});

    hot->destroy();

    EXPECT_EQ(contact->name(), "");
    EXPECT_EQ(twin->name(), "");
    EXPECT_EQ(coldWall->noOfInterfaces(), 0);
}

} // namespace
} // namespace physics
