#include "physics/ThreadBundle.h"

#include "tests/physics/ContactCase.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <tuple>
#include <vector>

namespace physics {
namespace {

using Adjacent = std::tuple<ThreadBundle*, ThreadBundle*, ThreadBundle*, bool>;

/// The hot body has the zones 1 and 2; the inner wall has zone 5 on the hot side.
class ThreadBundleTest : public ContactCase {
protected:
    ThreadBundleTest()
    {
        world.zones(left, {2, 1});
        world.sideZones(upper.first, {{5, 0}});
        world.sideZones(lower.first, {{5, 1}});
    }

    static ThreadBundle* on(Settings* settings, int threadId, int index = 0)
    {
        return settings->createThreadBundle(index, ThreadType::Fluid, threadId, {});
    }
};

// ---- Plain values

TEST_F(ThreadBundleTest, keepsWhatItWasMadeWith)
{
    ThreadBundle* bundle = hot->settings()->createThreadBundle(3, ThreadType::MassFlowInlet, 11, {4, 2, 4});

    EXPECT_EQ(bundle->settings(), hot->settings());
    EXPECT_EQ(bundle->index(), 3);
    EXPECT_FALSE(bundle->isPrimary());
    EXPECT_EQ(bundle->threadType(), ThreadType::MassFlowInlet);
    EXPECT_EQ(bundle->threadId(), 11);
    EXPECT_EQ(bundle->id(), 11);
    EXPECT_EQ(bundle->domainIds(), (Ids{2, 4}));
    EXPECT_FALSE(bundle->hasOwnZones());
    EXPECT_EQ(bundle->threads(), std::vector<void*>{});
    EXPECT_EQ(bundle->solverThreadType(), 20);
    EXPECT_TRUE(on(hot->settings(), 12)->isPrimary());
}

TEST_F(ThreadBundleTest, answersMinusOneForAThreadTypeThatTheSolverDoesNotKnow)
{
    ThreadBundle* bundle = on(hot->settings(), 1);
    bundle->setThreadType(ThreadType::Unset);
    EXPECT_EQ(bundle->solverThreadType(), -1);
    bundle->setThreadType(ThreadType(31));
    EXPECT_EQ(bundle->solverThreadType(), -1);
    EXPECT_EQ(bundle->threadType(), ThreadType(31));
}

TEST_F(ThreadBundleTest, keepsEachDomainOnceWhetherTheModelHasItOrNot)
{
    ThreadBundle* bundle = on(hot->settings(), 1);

    EXPECT_TRUE(bundle->addDomainId(9));
    EXPECT_FALSE(bundle->addDomainId(9));
    EXPECT_TRUE(bundle->addDomainId(-3));
    EXPECT_EQ(bundle->domainIds(), (Ids{-3, 9}));
    EXPECT_TRUE(bundle->removeDomainId(9));
    EXPECT_FALSE(bundle->removeDomainId(9));
    bundle->setDomainIds({5, 4, 5});
    EXPECT_EQ(bundle->domainIds(), (Ids{4, 5}));
}

TEST_F(ThreadBundleTest, keepsHandlesBySlotWithoutLookingAtThem)
{
    ThreadBundle* bundle = on(hot->settings(), 1);
    void* const first = reinterpret_cast<void*>(1); // no address of anything
    int second = 0;

    bundle->registerThread(2, first);
    bundle->registerThread(-1, &second);
    EXPECT_EQ(bundle->threads(), (std::vector<void*>{&second, first}));
    bundle->registerThread(2, &second);
    EXPECT_EQ(bundle->thread(2), &second);
    bundle->registerThread(2, nullptr);
    bundle->registerThread(7, nullptr);
    EXPECT_EQ(bundle->thread(2), nullptr);
    EXPECT_EQ(bundle->threads(), std::vector<void*>{&second});
    bundle->clearThreads();
    EXPECT_EQ(bundle->threads(), std::vector<void*>{});
}

// ---- Thread ids

TEST_F(ThreadBundleTest, isFoundByTheThreadIdOfItsCreationOnly)
{
    ThreadBundle* bundle = on(hot->settings(), 7);

    bundle->setThreadId(17);

    EXPECT_EQ(bundle->id(), 17);
    EXPECT_EQ(physics.findThreadBundleByThreadId(7), bundle);
    EXPECT_EQ(physics.findThreadBundleByThreadId(17), nullptr);
    EXPECT_EQ(physics.threadIds(), Ids{17});
}

TEST_F(ThreadBundleTest, isNotFoundByANegativeThreadId)
{
    on(hot->settings(), -1);

    EXPECT_EQ(physics.findThreadBundleByThreadId(-1), nullptr);
    EXPECT_EQ(physics.findSettingsByThreadId(-1), nullptr);
    EXPECT_EQ(physics.threadIds(), Ids{-1});
}

TEST_F(ThreadBundleTest, thatWasRenumberedLeavesBothThreadIdsWhenItEnds)
{
    ThreadBundle* bundle = on(hot->settings(), 7);
    bundle->setThreadId(17);
    ThreadBundle* other = on(cold->settings(), 17);

    hot->settings()->deleteThreadBundle(0);

    EXPECT_EQ(physics.findThreadBundleByThreadId(7), nullptr);
    EXPECT_EQ(physics.findThreadBundleByThreadId(17), nullptr); // whoever else has it
    EXPECT_EQ(cold->settings()->threadBundles(), Bundles{other});
}

TEST_F(ThreadBundleTest, thatWasRenumberedLeavesItsOldThreadIdToWhoeverTookIt)
{
    on(hot->settings(), 7)->setThreadId(17);
    ThreadBundle* taker = on(cold->settings(), 7);

    hot->settings()->deleteThreadBundle(0);

    EXPECT_EQ(physics.findThreadBundleByThreadId(7), taker);
}

// ---- Zones

TEST_F(ThreadBundleTest, ofAVolumeInheritsItsZones)
{
    ThreadBundle* bundle = on(hot->settings(), 1);

    EXPECT_EQ(bundle->zoneIds(), (Ids{2, 1}));
    EXPECT_EQ(physics.findThreadBundleByZoneId(1), bundle);
    EXPECT_EQ(physics.findSettingsByZoneId(2), hot->settings());
}

TEST_F(ThreadBundleTest, ofInternalFacesInheritsTheZonesOfTheirFirstSides)
{
    const scripted::FaceWithUses baffle = world.face("baffle", left, left);
    world.sideZones(baffle.first, {{-9, 0}, {8, 1}});
    world.sideZones(baffle.second, {{3, 0}});

    EXPECT_EQ(on(hot->internalSettings(), 1)->zoneIds(), (Ids{8, 9}));
}

TEST_F(ThreadBundleTest, ofAnUndividedBoundaryInheritsItsZones)
{
    ThreadBundle* bundle = on(hotWall->nonOverlappingBoundarySettings(), 1);
    hotWall->setShellModel(model);
    ThreadBundle* ofShell = on(hotWall->nonOverlappingShellSettings(), 2);

    EXPECT_EQ(bundle->zoneIds(), Ids{5});
    EXPECT_EQ(ofShell->zoneIds(), Ids{5});
    EXPECT_EQ(physics.findThreadBundleByZoneId(5), ofShell); // the later one is found
}

TEST_F(ThreadBundleTest, ofADividedBoundaryInheritsNothing)
{
    ThreadBundle* whole = on(hotWall->nonOverlappingBoundarySettings(), 1);

    Interface* contact = join(hotWall, coldWall);

    EXPECT_EQ(whole->zoneIds(), Ids{});
    EXPECT_EQ(on(hotWall->boundarySettings(contact), 2)->zoneIds(), Ids{});
    EXPECT_EQ(on(contact->settings(), 3)->zoneIds(), Ids{});
    contact->destroy();
    EXPECT_EQ(whole->zoneIds(), Ids{5});
}

TEST_F(ThreadBundleTest, hasNoZonesBeforeThereIsAMesh)
{
    world.withoutZoneMap();

    EXPECT_EQ(on(hot->settings(), 1)->zoneIds(), Ids{});
    EXPECT_EQ(on(hotWall->nonOverlappingBoundarySettings(), 2)->zoneIds(), Ids{});
}

TEST_F(ThreadBundleTest, withOwnZonesReportsTheseAscending)
{
    ThreadBundle* bundle = on(hot->settings(), 1);

    EXPECT_TRUE(bundle->setZoneIds({30, 10, 30}));

    EXPECT_TRUE(bundle->hasOwnZones());
    EXPECT_EQ(bundle->zoneIds(), (Ids{10, 30}));
    EXPECT_EQ(physics.findThreadBundleByZoneId(30), bundle);
    EXPECT_EQ(physics.findThreadBundleByZoneId(1), nullptr); // inherited until now
}

TEST_F(ThreadBundleTest, cannotTakeAZoneThatAnotherIsFoundUnder)
{
    ThreadBundle* holder = on(cold->settings(), 1);
    holder->setZoneIds({3});
    ThreadBundle* bundle = on(hot->settings(), 2);

    EXPECT_FALSE(bundle->setZoneIds({4, 3}));

    EXPECT_FALSE(bundle->hasOwnZones());
    EXPECT_EQ(physics.findThreadBundleByZoneId(4), nullptr);
    EXPECT_EQ(physics.findThreadBundleByZoneId(1), bundle);
    EXPECT_TRUE(holder->setZoneIds({}));
    EXPECT_TRUE(bundle->setZoneIds({4, 3}));
    EXPECT_EQ(physics.findThreadBundleByZoneId(3), bundle);
}

TEST_F(ThreadBundleTest, mayTakeTheZonesAgainThatItHasOrInherits)
{
    ThreadBundle* bundle = on(hot->settings(), 1);

    EXPECT_TRUE(bundle->setZoneIds({1, 3}));
    EXPECT_TRUE(bundle->setZoneIds({3, 4}));

    EXPECT_EQ(bundle->zoneIds(), (Ids{3, 4}));
    EXPECT_EQ(physics.findThreadBundleByZoneId(1), nullptr);
    EXPECT_EQ(physics.findThreadBundleByZoneId(3), bundle);
}

TEST_F(ThreadBundleTest, cannotTakeAZoneThatAnotherInheritedWhenItWasMade)
{
    on(hot->settings(), 1);
    ThreadBundle* bundle = on(cold->settings(), 2);

    EXPECT_FALSE(bundle->setZoneIds({1}));
}

TEST_F(ThreadBundleTest, canTakeAZoneThatAnotherReportsWithoutBeingFoundUnderIt)
{
    ThreadBundle* heir = on(hot->settings(), 1);
    heir->setZoneIds({});
    ThreadBundle* bundle = on(cold->settings(), 2);

    EXPECT_TRUE(bundle->setZoneIds({1}));

    EXPECT_EQ(heir->zoneIds(), (Ids{2, 1}));
    EXPECT_EQ(physics.findThreadBundleByZoneId(1), bundle);
}

TEST_F(ThreadBundleTest, givenNoZonesReleasesWhatItReportedAndInheritsUnfound)
{
    ThreadBundle* bundle = on(hot->settings(), 1);

    EXPECT_TRUE(bundle->setZoneIds({}));

    EXPECT_EQ(bundle->zoneIds(), (Ids{2, 1}));
    EXPECT_EQ(physics.findThreadBundleByZoneId(1), nullptr);
    EXPECT_EQ(physics.findThreadBundleByZoneId(2), nullptr);
}

TEST_F(ThreadBundleTest, releasesTheZonesThatItReportsWhoeverTookThem)
{
    ThreadBundle* heir = on(hot->settings(), 1);
    heir->setZoneIds({});
    ThreadBundle* taker = on(cold->settings(), 2);
    taker->setZoneIds({1});

    heir->setZoneIds({40});

    EXPECT_EQ(physics.findThreadBundleByZoneId(1), nullptr);
    EXPECT_EQ(taker->zoneIds(), Ids{1});
}

TEST_F(ThreadBundleTest, erasesASharedZoneWhenItEndsAlthoughAnotherReportsIt)
{
    hotWall->setShellModel(model);
    ThreadBundle* ofShell = on(hotWall->nonOverlappingShellSettings(), 2);
    on(hotWall->nonOverlappingBoundarySettings(), 1);

    hotWall->nonOverlappingBoundarySettings()->deleteThreadBundle(0);

    EXPECT_EQ(physics.findThreadBundleByZoneId(5), nullptr);
    EXPECT_EQ(ofShell->zoneIds(), Ids{5});
}

TEST_F(ThreadBundleTest, leavesZonesThatItNoLongerReportsWhenItEnds)
{
    on(hotWall->nonOverlappingBoundarySettings(), 1);
    join(hotWall, coldWall);

    hotWall->nonOverlappingBoundarySettings()->deleteThreadBundle(0);

    EXPECT_EQ(physics.findThreadBundleByZoneId(5), nullptr);
}

TEST_F(ThreadBundleTest, isFoundUnderSignedZonesButListedWithoutSigns)
{
    constexpr int smallest = std::numeric_limits<int>::min();
    ThreadBundle* bundle = on(cold->settings(), 1);
    bundle->setZoneIds({-5, 5, -6, smallest});

    EXPECT_EQ(physics.zoneIds(), (Ids{smallest, 5, 6}));
    EXPECT_EQ(physics.findThreadBundleByZoneId(-6), bundle);
    EXPECT_EQ(physics.findThreadBundleByZoneId(6), nullptr);
    EXPECT_EQ(physics.findSettingsByZoneId(-5), cold->settings());
}

// ---- Neighbours

TEST_F(ThreadBundleTest, ofAVolumeHasNoNeighbours)
{
    EXPECT_EQ(on(hot->settings(), 1)->adjacentThreadBundles(), Adjacent(nullptr, nullptr, nullptr, false));
}

TEST_F(ThreadBundleTest, ofInternalFacesHasItsVolumeOnBothSides)
{
    ThreadBundle* ofHot = on(hot->settings(), 1);
    on(hot->settings(), 2, 1);

    EXPECT_EQ(on(hot->internalSettings(), 3)->adjacentThreadBundles(), Adjacent(ofHot, ofHot, nullptr, false));
    EXPECT_EQ(on(hot->internalSettings(), 4, 9)->adjacentThreadBundles(), Adjacent(nullptr, nullptr, nullptr, false));
}

TEST_F(ThreadBundleTest, ofABoundaryOutsideInterfacesHasItsVolumeOnly)
{
    ThreadBundle* ofHot = on(hot->settings(), 1, 2);

    EXPECT_EQ(on(hotWall->nonOverlappingBoundarySettings(), 3, 2)->adjacentThreadBundles(),
              Adjacent(ofHot, nullptr, nullptr, false));
}

TEST_F(ThreadBundleTest, ofABoundaryInAnInterfaceHasBothVolumesAndTheOtherSide)
{
    Interface* contact = join(hotWall, coldWall);
    ThreadBundle* ofHot = on(hot->settings(), 1);
    ThreadBundle* ofCold = on(cold->settings(), 2);
    ThreadBundle* onHot = on(hotWall->boundarySettings(contact), 3);
    ThreadBundle* onCold = on(coldWall->boundarySettings(contact), 4);

    EXPECT_EQ(onHot->adjacentThreadBundles(), Adjacent(ofHot, ofCold, onCold, true));
    EXPECT_EQ(onCold->adjacentThreadBundles(), Adjacent(ofCold, ofHot, onHot, false));
}

TEST_F(ThreadBundleTest, ofAShellTakesTheFirstSideForTheOther)
{
    Interface* contact = join(hotWall, coldWall);
    hotWall->setShellModel(model);
    ThreadBundle* ofHot = on(hot->settings(), 1);
    ThreadBundle* onHot = on(hotWall->boundarySettings(contact), 3);
    ThreadBundle* ofShell = on(hotWall->shellSettings(contact), 5);

    EXPECT_EQ(ofShell->adjacentThreadBundles(), Adjacent(ofHot, ofHot, onHot, false));
}

TEST_F(ThreadBundleTest, ofAnInterfaceHasTheVolumesOfItsSides)
{
    Interface* contact = join(hotWall, coldWall);
    ThreadBundle* bundle = on(contact->settings(), 3);
    EXPECT_EQ(bundle->adjacentThreadBundles(), Adjacent(nullptr, nullptr, nullptr, false));

    ThreadBundle* ofHot = on(hot->settings(), 1);
    ThreadBundle* ofCold = on(cold->settings(), 2);

    EXPECT_EQ(bundle->adjacentThreadBundles(), Adjacent(ofHot, ofCold, nullptr, false));
}

TEST_F(ThreadBundleTest, ofSettingsWhoseSubjectEndedHasNeitherZonesNorNeighbours)
{
    on(hot->settings(), 1);
    ThreadBundle* detached = on(hot->internalSettings(), 3);

    hot->destroy();

    EXPECT_EQ(physics.findThreadBundleByThreadId(3), detached);
    EXPECT_EQ(detached->zoneIds(), Ids{});
    EXPECT_EQ(detached->adjacentThreadBundles(), Adjacent(nullptr, nullptr, nullptr, false));
}

TEST_F(ThreadBundleTest, makesTheSettingsInWhichItLooksForItsNeighbours)
{
    Interface* contact = join(hotWall, coldWall);
    ThreadBundle* onHot = on(hotWall->boundarySettings(contact), 3);
    ASSERT_EQ(model->volumeSettings(), SettingsList{});
    ASSERT_EQ(model->volumeSettings(coldWall).size(), 1u);

    onHot->adjacentThreadBundles();

    EXPECT_EQ(model->volumeSettings(), (SettingsList{hot->settings(), cold->settings()}));
    EXPECT_EQ(model->volumeSettings(coldWall).size(), 2u);
}

TEST_F(ThreadBundleTest, ofInternalFacesOrOfAnInterfaceHasNoNeighboursWithoutModel)
{
    ThreadBundle* inside = on(hot->internalSettings(), 1);
    ThreadBundle* between = on(join(hotWall, coldWall)->settings(), 2);
    on(hot->settings(), 3);

    model->destroy();

    EXPECT_EQ(inside->adjacentThreadBundles(), Adjacent(nullptr, nullptr, nullptr, false));
    EXPECT_EQ(between->adjacentThreadBundles(), Adjacent(nullptr, nullptr, nullptr, false));
}

TEST_F(ThreadBundleTest, withoutModelHasNoNeighbours)
{
    Interface* contact = join(hotWall, coldWall);
    on(hot->settings(), 1);
    ThreadBundle* onHot = on(hotWall->boundarySettings(contact), 3);

    model->destroy();

    EXPECT_EQ(onHot->adjacentThreadBundles(), Adjacent(nullptr, nullptr, nullptr, false));
}

} // namespace
} // namespace physics
