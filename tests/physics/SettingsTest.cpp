#include "physics/Settings.h"

#include "tests/physics/ContactCase.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace physics {
namespace {

using Handles = std::vector<void*>;

class SettingsTest : public ContactCase {
protected:
    Settings* settings = hot->settings();

    ThreadBundle* bundle(int index, int threadId, ThreadType type = ThreadType::Fluid)
    {
        return settings->createThreadBundle(index, type, threadId, {1});
    }
};

// ---- What they belong to

TEST_F(SettingsTest, ofAVolumeNameIt)
{
    EXPECT_EQ(settings->type(), SettingsType::VolumeSettings);
    EXPECT_EQ(settings->topologyType(), TopologyType::Volume);
    EXPECT_EQ(settings->volume(), hot);
    EXPECT_EQ(settings->boundaryPatch(), nullptr);
    EXPECT_EQ(settings->boundary(), nullptr);
    EXPECT_EQ(settings->interface(), nullptr);
    EXPECT_EQ(settings->name(), "hot");
    EXPECT_EQ(settings->model(), model);
    hot->rename("warm");
    EXPECT_EQ(settings->name(), "warm");
}

TEST_F(SettingsTest, ofInternalFacesAreNamedAlikeForEveryVolume)
{
    Settings* internal = hot->internalSettings();

    EXPECT_EQ(internal->type(), SettingsType::VolumeSettings);
    EXPECT_EQ(internal->topologyType(), TopologyType::Internal);
    EXPECT_EQ(internal->volume(), hot);
    EXPECT_EQ(internal->name(), "Internal settings");
    EXPECT_EQ(cold->internalSettings()->name(), "Internal settings");
    EXPECT_NE(cold->internalSettings(), internal);
}

TEST_F(SettingsTest, ofAPatchNameItsVolumeBoundaryAndInterface)
{
    Interface* contact = join(hotWall, coldWall);
    hotWall->setShellModel(model);
    Settings* ofPatch = hotWall->boundarySettings(contact);
    Settings* ofShell = hotWall->shellSettings(nullptr);

    EXPECT_EQ(ofPatch->topologyType(), TopologyType::Boundary);
    EXPECT_EQ(ofPatch->boundaryPatch(), hotWall->patch(contact));
    EXPECT_EQ(ofPatch->boundary(), hotWall);
    EXPECT_EQ(ofPatch->volume(), hot);
    EXPECT_EQ(ofPatch->interface(), contact);
    EXPECT_EQ(ofPatch->name(), "hot wall - contact");
    EXPECT_EQ(ofShell->type(), SettingsType::ShellSettings);
    EXPECT_EQ(ofShell->interface(), nullptr);
    EXPECT_EQ(ofShell->name(), "hot wall - NON-OVERLAPPING");
}

TEST_F(SettingsTest, ofAnInterfaceNameIt)
{
    Interface* contact = join(hotWall, coldWall);
    Settings* ofContact = contact->settings();

    EXPECT_EQ(ofContact->type(), SettingsType::InterfaceSettings);
    EXPECT_EQ(ofContact->topologyType(), TopologyType::Interface);
    EXPECT_EQ(ofContact->interface(), contact);
    EXPECT_EQ(ofContact->volume(), nullptr);
    EXPECT_EQ(ofContact->boundary(), nullptr);
    EXPECT_EQ(ofContact->name(), "contact");
}

TEST_F(SettingsTest, keepIdAndBundlesInAnotherModel)
{
    const int id = settings->id();
    ThreadBundle* first = bundle(0, 7);

    hot->setModel(physics.createModel());

    EXPECT_EQ(hot->settings(), settings);
    EXPECT_EQ(settings->id(), id);
    EXPECT_EQ(settings->threadBundles(), Bundles{first});
    EXPECT_EQ(physics.findThreadBundleByThreadId(7), first);
}

TEST_F(SettingsTest, endWithTheirBundles)
{
    const int id = settings->id();
    bundle(0, 7);
    bundle(1, 8)->setZoneIds({80});

    hot->destroy();

    EXPECT_EQ(physics.findSettingsById(id), nullptr);
    EXPECT_EQ(physics.findThreadBundleByThreadId(7), nullptr);
    EXPECT_EQ(physics.findSettingsByThreadId(8), nullptr);
    EXPECT_EQ(physics.findThreadBundleByZoneId(80), nullptr);
}

TEST_F(SettingsTest, areDrawnInOneSequenceForAllKinds)
{
    const int before = drawSettingsId();

    EXPECT_EQ(hot->internalSettings()->id(), before + 1);
    EXPECT_EQ(cold->settings()->id(), before + 2);
    EXPECT_EQ(join(hotWall, coldWall)->settings()->id(), before + 3);
}

// ---- Activity

TEST_F(SettingsTest, areActiveWithTheirVolume)
{
    Settings* ofPatch = hotWall->nonOverlappingBoundarySettings();
    EXPECT_TRUE(settings->isActive());
    EXPECT_TRUE(ofPatch->isActive());

    hot->deactivate();

    EXPECT_FALSE(settings->isActive());
    EXPECT_FALSE(ofPatch->isActive());
    EXPECT_TRUE(cold->settings()->isActive());
}

TEST_F(SettingsTest, ofAPatchDoNotLookAtItsInterface)
{
    Interface* contact = join(hotWall, coldWall);

    cold->deactivate();

    EXPECT_FALSE(contact->isActive());
    EXPECT_TRUE(hotWall->boundarySettings(contact)->isActive());
    EXPECT_FALSE(contact->settings()->isActive());
}

TEST_F(SettingsTest, ofAnInterfaceAreActiveWhileBothItsVolumesAre)
{
    Settings* ofContact = join(hotWall, coldWall)->settings();

    EXPECT_TRUE(ofContact->isActive());
    hot->deactivate();
    EXPECT_FALSE(ofContact->isActive());
}

TEST_F(SettingsTest, ofInternalFacesAreActiveWhileThereAreUnusedOnes)
{
    Settings* internal = hot->internalSettings();
    EXPECT_FALSE(internal->isActive()); // no internal face, although the volume is active

    const scripted::FaceWithUses baffle = world.face("baffle", left, left);
    hot->deactivate();
    EXPECT_TRUE(internal->isActive()); // also in an inactive volume

    scripted::answersOf(hot->interior()).unusedInternalFaces.emplace();
    EXPECT_FALSE(internal->isActive());
    EXPECT_EQ(hot->internalFaces(), std::vector<gtm::Face*>{baffle.face});
}

// ---- Thread bundles

TEST_F(SettingsTest, withoutBundlesAnswerNothing)
{
    EXPECT_FALSE(settings->hasThreads());
    EXPECT_EQ(settings->primaryThreadBundle(), nullptr);
    EXPECT_EQ(settings->threadBundle(3), nullptr);
    EXPECT_EQ(settings->threadBundleWithThreadId(0), nullptr);
    EXPECT_EQ(settings->threadBundles(), Bundles{});
    EXPECT_EQ(settings->threadIds(), Ids{});
    EXPECT_EQ(settings->threadId(0), -1);
    EXPECT_EQ(settings->threadType(0), ThreadType::Unset);
    EXPECT_EQ(settings->solverThreadType(0), -1);
    EXPECT_EQ(settings->domainIds(0), Ids{});
    EXPECT_EQ(settings->thread(0, 0), nullptr);
    EXPECT_EQ(settings->threads(), Handles{});
    EXPECT_FALSE(settings->deleteThreadBundle(0));
}

TEST_F(SettingsTest, answerForTheirBundlesByIndex)
{
    ThreadBundle* second = settings->createThreadBundle(4, ThreadType::Interior, 9, {3, 1, 3});
    ThreadBundle* first = settings->createThreadBundle(-2, ThreadType::Symmetry, 5, {});
    ThreadBundle* primary = settings->createThreadBundle(0, ThreadType::Wall, 7, {2});

    EXPECT_TRUE(settings->hasThreads());
    EXPECT_EQ(settings->threadBundles(), (Bundles{first, primary, second}));
    EXPECT_EQ(settings->threadIds(), (Ids{5, 7, 9}));
    EXPECT_EQ(settings->primaryThreadBundle(), primary);
    EXPECT_EQ(settings->threadId(4), 9);
    EXPECT_EQ(settings->threadType(4), ThreadType::Interior);
    EXPECT_EQ(settings->solverThreadType(-2), 7);
    EXPECT_EQ(settings->domainIds(4), (Ids{1, 3}));
    EXPECT_EQ(settings->threadBundleWithThreadId(9), second);
    EXPECT_EQ(settings->threadBundleWithThreadId(5), first);
    EXPECT_EQ(physics.findSettingsByThreadId(9), settings);
}

TEST_F(SettingsTest, changeTheBundleThatHasTheThreadIdAtTheIndex)
{
    ThreadBundle* first = settings->createThreadBundle(0, ThreadType::Fluid, 7, {1, 2});
    first->setZoneIds({70});
    int thread = 0;
    first->registerThread(1, &thread);

    EXPECT_EQ(settings->createThreadBundle(0, ThreadType::Solid, 7, {3}), first);

    EXPECT_EQ(first->threadType(), ThreadType::Solid);
    EXPECT_EQ(first->domainIds(), Ids{3});
    EXPECT_EQ(first->zoneIds(), Ids{70});
    EXPECT_EQ(first->thread(1), &thread);
}

TEST_F(SettingsTest, doNotRegisterAChangedBundleAgain)
{
    bundle(0, 7);
    ThreadBundle* ofOther = cold->settings()->createThreadBundle(0, ThreadType::Solid, 7, {});

    bundle(0, 7, ThreadType::Solid);

    EXPECT_EQ(physics.findThreadBundleByThreadId(7), ofOther);
}

TEST_F(SettingsTest, refuseAThreadIdThatAnotherIndexHas)
{
    ThreadBundle* first = bundle(0, 7);
    ThreadBundle* third = bundle(2, 9);

    EXPECT_EQ(bundle(1, 7), nullptr);
    EXPECT_EQ(bundle(2, 7, ThreadType::Solid), nullptr); // also where the index is taken

    EXPECT_EQ(settings->threadBundles(), (Bundles{first, third}));
    EXPECT_EQ(third->threadType(), ThreadType::Fluid);
    EXPECT_EQ(first->threadType(), ThreadType::Fluid);
}

TEST_F(SettingsTest, replaceTheBundleAtAnIndexByOneWithAnotherThreadId)
{
    ThreadBundle* replaced = bundle(0, 7);

    ThreadBundle* present = bundle(0, 8);

    EXPECT_NE(present, replaced);
    EXPECT_EQ(settings->threadBundles(), Bundles{present});
    EXPECT_EQ(settings->threadBundleWithThreadId(7), nullptr);
    EXPECT_EQ(physics.findThreadBundleByThreadId(7), replaced);
    EXPECT_EQ(replaced->settings(), settings);
    EXPECT_EQ(physics.threadIds(), Ids{8});
}

TEST_F(SettingsTest, giveTheThreadIdOfAReplacedBundleToAnother)
{
    bundle(0, 7);
    bundle(0, 8);

    ThreadBundle* again = bundle(1, 7);

    ASSERT_NE(again, nullptr);
    EXPECT_EQ(physics.findThreadBundleByThreadId(7), again);
    EXPECT_EQ(settings->threadIds(), (Ids{8, 7}));
}

TEST_F(SettingsTest, doNotMindWhichThreadIdAReplacedBundleTakes)
{
    ThreadBundle* replaced = bundle(0, 7);
    ThreadBundle* present = bundle(0, 8);

    replaced->setThreadId(8);
    replaced->setThreadId(5);

    EXPECT_EQ(settings->threadIds(), Ids{8});
    EXPECT_EQ(settings->threadBundleWithThreadId(8), present);
    EXPECT_EQ(settings->threadBundleWithThreadId(5), nullptr);
    EXPECT_EQ(physics.findThreadBundleByThreadId(7), replaced);
}

TEST_F(SettingsTest, endReplacedBundlesWithoutTouchingWhatOthersTookFromThem)
{
    bundle(0, 7)->setZoneIds({70});
    bundle(0, 8);
    Settings* ofCold = cold->settings();
    ThreadBundle* taker = ofCold->createThreadBundle(0, ThreadType::Solid, 7, {});

    hot->destroy();

    EXPECT_EQ(physics.findThreadBundleByThreadId(7), taker);
    EXPECT_EQ(physics.findThreadBundleByThreadId(8), nullptr);
    EXPECT_EQ(physics.findThreadBundleByZoneId(70), nullptr);
}

TEST_F(SettingsTest, clashWithPresentThreadIdsOnly)
{
    ThreadBundle* renumbered = bundle(0, 7);
    renumbered->setThreadId(17);

    ThreadBundle* second = bundle(1, 7);

    ASSERT_NE(second, nullptr);
    EXPECT_EQ(bundle(2, 17), nullptr);
    EXPECT_EQ(settings->threadIds(), (Ids{17, 7}));
    EXPECT_EQ(physics.findThreadBundleByThreadId(7), second);
}

TEST_F(SettingsTest, findTheLowestIndexOfAThreadIdThatTwoBundlesHave)
{
    ThreadBundle* third = bundle(3, 9);
    ThreadBundle* first = bundle(1, 7);
    first->setThreadId(9);

    EXPECT_EQ(settings->threadBundleWithThreadId(9), first);
    EXPECT_EQ(settings->threadIds(), (Ids{9, 9}));
    EXPECT_EQ(bundle(1, 9), first);
    EXPECT_EQ(bundle(3, 9), nullptr); // the lowest index decides
    EXPECT_TRUE(settings->deleteThreadBundle(1));
    EXPECT_EQ(settings->threadBundleWithThreadId(9), third);
}

TEST_F(SettingsTest, deleteTheBundleAtAnIndex)
{
    bundle(0, 7)->setZoneIds({70});
    ThreadBundle* second = bundle(1, 8);

    EXPECT_TRUE(settings->deleteThreadBundle(0));

    EXPECT_FALSE(settings->deleteThreadBundle(0));
    EXPECT_EQ(settings->threadBundles(), Bundles{second});
    EXPECT_EQ(physics.findThreadBundleByThreadId(7), nullptr);
    EXPECT_EQ(physics.findThreadBundleByZoneId(70), nullptr);
    EXPECT_NE(bundle(0, 7), nullptr);
}

TEST_F(SettingsTest, mayHaveAThreadIdThatOtherSettingsHave)
{
    ThreadBundle* mine = bundle(0, 7);
    ThreadBundle* other = cold->settings()->createThreadBundle(0, ThreadType::Solid, 7, {});

    EXPECT_EQ(physics.findThreadBundleByThreadId(7), other);
    EXPECT_EQ(settings->threadBundleWithThreadId(7), mine);
    EXPECT_EQ(physics.threadIds(), Ids{7});
    cold->settings()->deleteThreadBundle(0);
    EXPECT_EQ(physics.findThreadBundleByThreadId(7), nullptr); // the id goes, whoever else has it
    EXPECT_EQ(settings->threadBundles(), Bundles{mine});
}

TEST_F(SettingsTest, listHandlesByIndexAndThenBySlot)
{
    int a = 0;
    int b = 0;
    int c = 0;
    bundle(1, 8)->registerThread(0, &a);
    bundle(0, 7)->registerThread(5, &b);
    settings->threadBundle(0)->registerThread(-5, &c);

    EXPECT_EQ(settings->threads(), (Handles{&c, &b, &a}));
    EXPECT_EQ(settings->thread(0, 5), &b);
    EXPECT_EQ(settings->thread(0, 6), nullptr);
    EXPECT_EQ(settings->thread(2, 0), nullptr);
}

} // namespace
} // namespace physics
