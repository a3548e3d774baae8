#include "physics/Model.h"

#include "tests/physics/ContactCase.h"

#include <gtest/gtest.h>

#include <string>

namespace physics {
namespace {

class ModelTest : public ContactCase {
protected:
    Model* other = physics.createModel();
};

// ---- Domains

TEST_F(ModelTest, beginsWithTheDefaultDomain)
{
    EXPECT_EQ(model->domainIds(), Ids{1});
    EXPECT_EQ(model->domainName(1), "Default");
    EXPECT_EQ(model->domainSymbol(1), "default");
    EXPECT_EQ(model->domainType(1), DomainType::Geometry);
    EXPECT_EQ(model->physics(), &physics);
    EXPECT_EQ(other->id(), model->id() + 1);
}

TEST_F(ModelTest, replacesADomainWithTheSameIdEntirely)
{
    model->addDomain(1, DomainType::Phase, "Water Vapour");

    EXPECT_EQ(model->domainIds(), Ids{1});
    EXPECT_EQ(model->domainName(1), "Water Vapour");
    EXPECT_EQ(model->domainSymbol(1), "water-vapour");
    EXPECT_EQ(model->domainType(1), DomainType::Phase);
}

TEST_F(ModelTest, acceptsEveryDomain)
{
    model->addDomain(-5, DomainType(99), "");
    model->addDomain(7, DomainType::Phase, "Default");

    EXPECT_EQ(model->domainIds(), (Ids{-5, 1, 7}));
    EXPECT_EQ(model->domainName(-5), "");
    EXPECT_EQ(model->domainSymbol(-5), "!");
    EXPECT_EQ(model->domainType(-5), DomainType(99));
    EXPECT_EQ(model->domainName(7), "Default");
}

TEST_F(ModelTest, listsTheDomainsOfOneType)
{
    model->addDomain(4, DomainType::Phase, "gas");
    model->addDomain(-2, DomainType::Phase, "liquid");

    EXPECT_EQ(model->domainIdsOfType(DomainType::Phase), (Ids{-2, 4}));
    EXPECT_EQ(model->domainIdsOfType(DomainType::Geometry), Ids{1});
    EXPECT_EQ(model->domainIdsOfType(DomainType::Interaction), Ids{});
}

TEST_F(ModelTest, answersEmptyForAnUnknownDomain)
{
    EXPECT_EQ(model->domainName(2), "");
    EXPECT_EQ(model->domainSymbol(2), "");
    EXPECT_EQ(model->domainType(2), DomainType::Unset);
}

TEST_F(ModelTest, removesTheDefaultDomainLikeAnyOtherAndLeavesBundlesAlone)
{
    ThreadBundle* bundle = hot->settings()->createThreadBundle(0, ThreadType::Fluid, 1, {1});

    EXPECT_TRUE(model->removeDomain(1));
    EXPECT_FALSE(model->removeDomain(1));

    EXPECT_EQ(model->domainIds(), Ids{});
    EXPECT_EQ(bundle->domainIds(), Ids{1});
}

// ---- Settings on request

TEST_F(ModelTest, makesTheSettingsOfAMemberOnce)
{
    Interface* contact = join(hotWall, coldWall);

    EXPECT_EQ(model->settings(hot), model->settings(hot));
    EXPECT_EQ(model->internalSettings(hot), model->internalSettings(hot));
    EXPECT_EQ(model->settings(contact), model->settings(contact));
    EXPECT_NE(model->settings(hot), model->internalSettings(hot));
    EXPECT_EQ(model->settings(hot)->volume(), hot);
    EXPECT_EQ(model->settings(hot)->model(), model);
    EXPECT_EQ(model->internalSettings(hot)->topologyType(), TopologyType::Internal);
}

TEST_F(ModelTest, makesNoSettingsForTheMembersOfAnother)
{
    Interface* contact = join(hotWall, coldWall);
    const int before = drawSettingsId();

    EXPECT_EQ(other->settings(hot), nullptr);
    EXPECT_EQ(other->internalSettings(hot), nullptr);
    EXPECT_EQ(other->settings(contact), nullptr);
    EXPECT_EQ(model->settings(static_cast<const Volume*>(nullptr)), nullptr);
    EXPECT_EQ(model->internalSettings(nullptr), nullptr);
    EXPECT_EQ(model->settings(static_cast<const Interface*>(nullptr)), nullptr);
    EXPECT_EQ(drawSettingsId(), before + 1);
}

TEST_F(ModelTest, answersNullForAVolumeThatHasEnded)
{
    const Volume* ended = cold;

    cold->destroy();

    EXPECT_EQ(model->settings(ended), nullptr);
    EXPECT_EQ(model->internalSettings(ended), nullptr);
}

TEST_F(ModelTest, keepsSettingsForAnyPatchOfTheSetUp)
{
    Settings* kept = other->settings(hotWall->patch(nullptr), SettingsType::VolumeSettings);

    EXPECT_EQ(kept->model(), other);
    EXPECT_EQ(other->settings(hotWall->patch(nullptr), SettingsType::VolumeSettings), kept);
    EXPECT_NE(kept, hotWall->nonOverlappingBoundarySettings());
    EXPECT_EQ(other->boundaryPatchSettings(), SettingsList{kept});
}

TEST_F(ModelTest, makesShellSettingsOnlyWhereThereIsAShell)
{
    BoundaryPatch* patch = hotWall->patch(nullptr);
    const int before = drawSettingsId();
    EXPECT_EQ(model->settings(patch, SettingsType::ShellSettings), nullptr);
    EXPECT_EQ(drawSettingsId(), before + 1);

    hotWall->setShellModel(other);

    EXPECT_NE(model->settings(patch, SettingsType::ShellSettings), nullptr); // also in another model than the shell's
    EXPECT_NE(model->settings(patch, SettingsType::ShellSettings), hotWall->shellSettings(nullptr));
}

TEST_F(ModelTest, neverMakesInterfaceSettingsOfAPatch)
{
    Interface* contact = join(hotWall, coldWall);
    const int before = drawSettingsId();

    EXPECT_EQ(model->settings(hotWall->patch(contact), SettingsType::InterfaceSettings), nullptr);
    EXPECT_EQ(model->settings(hotWall->patch(nullptr), SettingsType::InterfaceSettings), nullptr);
    EXPECT_EQ(drawSettingsId(), before + 1);
}

TEST_F(ModelTest, makesNewSettingsAtEachRequestForAKindOutsideTheEnumeration)
{
    BoundaryPatch* patch = hotWall->patch(nullptr);

    Settings* first = model->settings(patch, SettingsType(3));
    Settings* second = model->settings(patch, SettingsType(3));

    EXPECT_NE(first, second);
    EXPECT_EQ(physics.findSettingsById(first->id()), first);
    EXPECT_EQ(first->boundaryPatch(), patch);
    EXPECT_EQ(first->type(), SettingsType(3));
    EXPECT_EQ(model->volumeSettings(hotWall).size(), 1u); // held by no map
    EXPECT_EQ(physics.settings(), model->settings());
}

TEST_F(ModelTest, makesNoSettingsForNoPatchOrAForeignOne)
{
    const Stranger stranger;
    const BoundaryPatch* foreign = stranger.boundary->patch(nullptr);
    const int before = drawSettingsId();

    EXPECT_EQ(model->settings(nullptr, SettingsType::VolumeSettings), nullptr);
    EXPECT_EQ(model->settings(nullptr, SettingsType(3)), nullptr);
    EXPECT_EQ(model->settings(foreign, SettingsType::VolumeSettings), nullptr);
    EXPECT_EQ(model->settings(foreign, SettingsType(3)), nullptr);
    EXPECT_EQ(model->settings(stranger.volume), nullptr);
    EXPECT_EQ(drawSettingsId(), before + 1);
}

// ---- Lists

TEST_F(ModelTest, listsItsMembersById)
{
    Interface* second = join(inlet, outlet, "a");
    Interface* third = join(hotWall, coldWall, "A");

    EXPECT_EQ(model->volumes(), (Volumes{hot, cold}));
    EXPECT_EQ(model->interfaces(), (Interfaces{second, third}));
    EXPECT_EQ(other->volumes(), Volumes{});
}

TEST_F(ModelTest, listsEachOfItsBoundariesOnceWhereverItsClaimComesFrom)
{
    Interface* contact = join(inlet, coldWall, "contact", InterfaceType::Wall, other);
    coldWall->setShellModel(other);
    outlet->setShellModel(other);

    EXPECT_EQ(model->boundaries(), (Boundaries{hotWall, coldWall, inlet, outlet}));
    EXPECT_EQ(other->boundaries(), (Boundaries{coldWall, inlet, outlet}));
    EXPECT_EQ(other->boundaryPatches(),
              (Patches{coldWall->patch(nullptr), inlet->patch(nullptr), outlet->patch(nullptr), inlet->patch(contact),
                       coldWall->patch(contact)}));
}

TEST_F(ModelTest, listsSettingsWithoutMakingAny)
{
    Interface* contact = join(hotWall, coldWall);
    Settings* eager = hotWall->nonOverlappingBoundarySettings();
    const int before = drawSettingsId();

    EXPECT_EQ(model->volumeSettings(), SettingsList{});
    EXPECT_EQ(model->internalSettings(), SettingsList{});
    EXPECT_EQ(model->interfaceSettings(), SettingsList{});
    EXPECT_EQ(model->volumeSettings(hotWall), SettingsList{eager});
    EXPECT_EQ(model->shellSettings(hotWall), SettingsList{});
    EXPECT_EQ(model->volumeSettings(static_cast<const Boundary*>(nullptr)), SettingsList{});
    EXPECT_EQ(model->boundaryPatchSettings().size(), 4u);
    EXPECT_EQ(model->settings().size(), 4u);
    EXPECT_EQ(drawSettingsId(), before + 1);
    EXPECT_EQ(hotWall->patch(contact)->boundarySettings()->id(), before + 2);
}

TEST_F(ModelTest, listsPatchSettingsByKindAndThenByPatch)
{
    coldWall->setShellModel(model);
    hotWall->setShellModel(model);
    Settings* coldShell = coldWall->nonOverlappingShellSettings();
    Settings* hotShell = hotWall->nonOverlappingShellSettings();

    EXPECT_EQ(model->boundaryPatchSettings(),
              (SettingsList{hotWall->nonOverlappingBoundarySettings(), coldWall->nonOverlappingBoundarySettings(),
                            inlet->nonOverlappingBoundarySettings(), outlet->nonOverlappingBoundarySettings(), hotShell,
                            coldShell}));
    EXPECT_EQ(model->shellSettings(coldWall), SettingsList{coldShell});
}

TEST_F(ModelTest, listsAllItsSettingsByTheirIds)
{
    Settings* ofCold = cold->settings();
    Settings* inside = hot->internalSettings();
    Settings* ofContact = join(hotWall, coldWall)->settings();

    EXPECT_EQ(model->settings(),
              (SettingsList{hotWall->nonOverlappingBoundarySettings(), coldWall->nonOverlappingBoundarySettings(),
                            inlet->nonOverlappingBoundarySettings(), outlet->nonOverlappingBoundarySettings(), ofCold,
                            inside, ofContact}));
    EXPECT_EQ(model->volumeSettings(), SettingsList{ofCold});
    EXPECT_EQ(model->internalSettings(), SettingsList{inside});
    EXPECT_EQ(model->interfaceSettings(), SettingsList{ofContact});
}

// ---- Joining and leaving

TEST_F(ModelTest, givesAJoiningVolumeTheSettingsOfItsPatchesOnly)
{
    EXPECT_EQ(model->volumeSettings(), SettingsList{});
    EXPECT_EQ(model->volumeSettings(hotWall).size(), 1u);
    EXPECT_EQ(model->volumeSettings(hotWall)[0]->boundaryPatch(), hotWall->patch(nullptr));
}

TEST_F(ModelTest, givesAJoiningVolumeTheSettingsOfBoundariesThatAnEqualNameHides)
{
    hot->createBoundary("hot wall", std::string("upper@left"), BoundaryType::Wall);
    ASSERT_EQ(hot->boundaries().size(), 2u);
    model->destroy();

    hot->setModel(other);

    ASSERT_EQ(other->volumeSettings(hotWall).size(), 1u);
    EXPECT_EQ(other->volumeSettings(hotWall).front()->boundaryPatch(), hotWall->patch(nullptr));
}

TEST_F(ModelTest, givesALeavingVolumeSettingsOnlyToEndThem)
{
    Volume* bare = physics.createVolume("bare", std::string(), VolumeType::Fluid);
    const int before = drawSettingsId();

    bare->destroy();

    EXPECT_EQ(drawSettingsId(), before + 2);
    EXPECT_EQ(physics.findSettingsById(before + 1), nullptr);
}

TEST_F(ModelTest, endsTheSettingsOfALeavingVolumeButNotItsInternalOnes)
{
    const int ofVolume = cold->settings()->id();
    Settings* internal = cold->internalSettings();
    const int ofPatch = coldWall->nonOverlappingBoundarySettings()->id();

    cold->destroy();

    EXPECT_EQ(physics.findSettingsById(ofVolume), nullptr);
    EXPECT_EQ(physics.findSettingsById(ofPatch), nullptr);
    EXPECT_EQ(physics.findSettingsById(internal->id()), internal);
    EXPECT_EQ(model->internalSettings(), SettingsList{});
    EXPECT_EQ(model->settings().size(), 2u); // those of the two boundaries of the other volume
}

TEST_F(ModelTest, endsTheShellSettingsOfALeavingShell)
{
    hotWall->setShellModel(other);
    const int id = hotWall->nonOverlappingShellSettings()->id();
    EXPECT_EQ(other->boundaries(), Boundaries{hotWall});

    hotWall->setShellModel(nullptr);

    EXPECT_EQ(physics.findSettingsById(id), nullptr);
    EXPECT_EQ(other->boundaries(), Boundaries{});
    EXPECT_EQ(other->settings(), SettingsList{});
}

// ---- Moving

TEST_F(ModelTest, handsAllSettingsOfAVolumeToItsNewModel)
{
    Settings* ofVolume = hot->settings();
    Settings* internal = hot->internalSettings();
    Settings* ofPatch = hotWall->nonOverlappingBoundarySettings();
    ThreadBundle* bundle = ofVolume->createThreadBundle(0, ThreadType::Fluid, 3, {});
    const int before = drawSettingsId();

    EXPECT_TRUE(hot->setModel(other));

    EXPECT_EQ(hot->settings(), ofVolume);
    EXPECT_EQ(hot->internalSettings(), internal);
    EXPECT_EQ(hotWall->nonOverlappingBoundarySettings(), ofPatch);
    for (const Settings* moved : {ofVolume, internal, ofPatch})
        EXPECT_EQ(moved->model(), other);
    EXPECT_EQ(physics.findThreadBundleByThreadId(3), bundle);
    EXPECT_EQ(model->volumes(), Volumes{cold});
    EXPECT_EQ(other->volumes(), Volumes{hot});
    EXPECT_EQ(other->settings().size(), 4u);
    EXPECT_EQ(model->settings().size(), 2u);
    EXPECT_EQ(drawSettingsId(), before + 1);
}

TEST_F(ModelTest, handsTheSettingsOfAllPatchesOfAVolumeOn)
{
    Interface* contact = join(hotWall, coldWall);
    Settings* ofPatch = hotWall->boundarySettings(contact);

    hot->setModel(other);

    EXPECT_EQ(hotWall->boundarySettings(contact), ofPatch);
    EXPECT_EQ(ofPatch->model(), other);
    EXPECT_EQ(contact->model(), model); // the interface stays
}

TEST_F(ModelTest, handsTheSettingsOfBoundariesThatAnEqualNameHidesOn)
{
    hot->createBoundary("hot wall", std::string("upper@left"), BoundaryType::Wall);
    Settings* ofHidden = hotWall->nonOverlappingBoundarySettings();

    hot->setModel(other);

    EXPECT_EQ(ofHidden->model(), other);
    EXPECT_EQ(other->volumeSettings(hotWall), SettingsList{ofHidden});
}

TEST_F(ModelTest, keepsAVolumeThatMovesToWhereItIs)
{
    Settings* ofVolume = hot->settings();

    EXPECT_TRUE(hot->setModel(model));

    EXPECT_EQ(hot->settings(), ofVolume);
    EXPECT_EQ(model->volumes(), (Volumes{hot, cold}));
}

TEST_F(ModelTest, dropsWhatItKeptForAPatchThatArrivesWithSettings)
{
    Settings* kept = other->settings(hotWall->patch(nullptr), SettingsType::VolumeSettings);
    const int keptId = kept->id();
    Settings* arriving = hotWall->nonOverlappingBoundarySettings();

    hot->setModel(other);

    EXPECT_EQ(hotWall->nonOverlappingBoundarySettings(), arriving);
    EXPECT_EQ(physics.findSettingsById(keptId), nullptr);
    EXPECT_EQ(other->volumeSettings(hotWall), SettingsList{arriving});
}

TEST_F(ModelTest, handsTheSettingsOfAShellToItsNewModel)
{
    hotWall->setShellModel(model);
    Settings* ofShell = hotWall->nonOverlappingShellSettings();
    Settings* ofVolume = hotWall->nonOverlappingBoundarySettings();

    hotWall->setShellModel(other);

    EXPECT_EQ(hotWall->nonOverlappingShellSettings(), ofShell);
    EXPECT_EQ(ofShell->model(), other);
    EXPECT_EQ(ofVolume->model(), model);
    EXPECT_EQ(other->boundaries(), Boundaries{hotWall});
    EXPECT_EQ(model->shellSettings(hotWall), SettingsList{});
}

TEST_F(ModelTest, keepsAShellThatMovesToWhereItIsAndRefusesAForeignOne)
{
    const Stranger stranger;
    hotWall->setShellModel(model);
    Settings* ofShell = hotWall->nonOverlappingShellSettings();

    hotWall->setShellModel(model);
    hotWall->setShellModel(stranger.model);

    EXPECT_EQ(hotWall->shellModel(), model);
    EXPECT_EQ(hotWall->nonOverlappingShellSettings(), ofShell);
    EXPECT_EQ(stranger.model->boundaries(), Boundaries{stranger.boundary});
}

// ---- End

TEST_F(ModelTest, leavesItsMembersWithoutModelWhenItEnds)
{
    hotWall->setShellModel(model);
    Interface* contact = join(hotWall, coldWall);
    const int id = model->id();

    model->destroy();

    EXPECT_EQ(physics.findModelById(id), nullptr);
    EXPECT_EQ(physics.models(), std::vector<Model*>{other});
    EXPECT_EQ(hot->model(), nullptr);
    EXPECT_EQ(hotWall->volumeModel(), nullptr);
    EXPECT_EQ(hotWall->shellModel(), nullptr);
    EXPECT_EQ(contact->model(), nullptr);
    EXPECT_EQ(hot->settings(), nullptr);
    EXPECT_EQ(hot->internalSettings(), nullptr);
    EXPECT_EQ(hotWall->boundarySettings(contact), nullptr);
    EXPECT_EQ(hotWall->allSettings(), SettingsList{});
}

TEST_F(ModelTest, leavesItsSettingsFindableWhenItEnds)
{
    Settings* ofVolume = hot->settings();
    ofVolume->createThreadBundle(0, ThreadType::Fluid, 6, {})->setZoneIds({60});

    model->destroy();

    EXPECT_EQ(physics.findSettingsById(ofVolume->id()), ofVolume);
    EXPECT_EQ(physics.findSettingsByThreadId(6), ofVolume);
    EXPECT_EQ(physics.findSettingsByZoneId(60), ofVolume);
    EXPECT_EQ(ofVolume->model(), nullptr);
    EXPECT_EQ(ofVolume->volume(), hot);
    EXPECT_EQ(physics.settings(), SettingsList{});
    EXPECT_EQ(physics.threadIds(), Ids{}); // those of the settings that a model holds
}

TEST_F(ModelTest, leavesSettingsThatEndWithTheirObjects)
{
    Interface* contact = join(inlet, outlet);
    const Ids ids = {hot->settings()->id(), hotWall->nonOverlappingBoundarySettings()->id(), contact->settings()->id()};
    Settings* internal = hot->internalSettings();

    model->destroy();
    hot->destroy();

    for (const int id : ids)
        EXPECT_EQ(physics.findSettingsById(id), nullptr);
    EXPECT_EQ(physics.findSettingsById(internal->id()), internal);
}

TEST_F(ModelTest, takesUpMembersThatAnotherLeftWithoutModel)
{
    Settings* orphan = hot->settings();
    model->destroy();

    EXPECT_TRUE(hot->setModel(other));
    hotWall->setShellModel(other);

    EXPECT_EQ(other->volumes(), Volumes{hot});
    EXPECT_NE(hot->settings(), orphan);
    EXPECT_EQ(hot->settings()->model(), other);
    EXPECT_EQ(hotWall->nonOverlappingShellSettings()->model(), other);
    EXPECT_EQ(physics.findSettingsById(orphan->id()), orphan);
}

TEST_F(ModelTest, isFollowedByTheNextLowestAsPrimary)
{
    EXPECT_EQ(physics.primaryModel(), model);
    model->destroy();
    EXPECT_EQ(physics.primaryModel(), other);
    const int id = other->id();
    other->destroy();
    EXPECT_EQ(physics.primaryModel()->id(), id + 1);
}

TEST_F(ModelTest, mayEndBeforeABoundaryIsMadeOnItsVolume)
{
    model->destroy();

    Boundary* boundary = hot->createBoundary("late", std::string("inlet"));

    EXPECT_EQ(boundary->nonOverlappingBoundarySettings(), nullptr);
    EXPECT_EQ(boundary->allBoundarySettings(), SettingsList{});
    hot->setModel(other);
    EXPECT_EQ(other->volumeSettings(boundary).size(), 1u);
}

} // namespace
} // namespace physics
