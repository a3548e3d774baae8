#include "tests/physics/PhysicsCase.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

namespace {

using physics::Physics;
using physics::Volume;
using Numbers = std::vector<int>;
using Volumes = std::vector<Volume*>;

class ActivationGroupsTest : public PhysicsCase {
protected:
    Volume* a = volume("a");
    Volume* b = volume("b");
    Volume* c = volume("c");
    Volume* d = volume("d");
};

TEST_F(ActivationGroupsTest, deactivatesVolumesTogetherUnderTheFirstNumber)
{
    EXPECT_EQ(physics.deactivateVolumes({b, a}), 1);

    EXPECT_FALSE(a->isActive());
    EXPECT_FALSE(b->isActive());
    EXPECT_TRUE(c->isActive());
    EXPECT_EQ(a->activationGroup(), 1);
    EXPECT_EQ(physics.activationGroups(), Numbers{1});
    EXPECT_EQ(physics.activationGroupVolumes(1), (Volumes{b, a}));
    EXPECT_EQ(physics.activationGroupVolumes(2), Volumes{});
}

TEST_F(ActivationGroupsTest, activatingOneMemberActivatesTheGroupAndFreesItsNumber)
{
    EXPECT_EQ(physics.deactivateVolumes({a, b}), 1);
    EXPECT_EQ(physics.deactivateVolumes({c}), 2);

    EXPECT_TRUE(physics.activateVolumes({a}));

    EXPECT_TRUE(a->isActive());
    EXPECT_TRUE(b->isActive());
    EXPECT_FALSE(c->isActive());
    EXPECT_EQ(physics.activationGroups(), Numbers{2});
    EXPECT_EQ(physics.deactivateVolumes({d}), 1);
}

TEST_F(ActivationGroupsTest, takesTheFirstGapInTheNumbers)
{
    for (int expected = 1; expected <= 4; ++expected)
        EXPECT_EQ(physics.deactivateVolumes({}), expected);
    physics.activateGroup(3);

    EXPECT_EQ(physics.activationGroups(), (Numbers{1, 2, 4}));
    EXPECT_EQ(physics.deactivateVolumes({}), 3);
    physics.activateGroup(1);
    physics.activateGroup(4);
    EXPECT_EQ(physics.activationGroups(), (Numbers{2, 3}));
    EXPECT_EQ(physics.deactivateVolumes({}), 1);
    EXPECT_EQ(physics.deactivateVolumes({}), 4);
    EXPECT_EQ(physics.deactivateVolumes({}), 5);
}

TEST_F(ActivationGroupsTest, numbersAsAWalkOverTheUsedOnesWould)
{
    std::vector<bool> used(60);
    unsigned random = 1;
    for (int step = 0; step < 2000; ++step) {
        random = random * 1664525U + 1013904223U;
        const unsigned number = random / 65536U % 40U;
        if (number > 0 && used[number]) {
            EXPECT_TRUE(physics.activateGroup(static_cast<int>(number)));
            used[number] = false;
        } else {
            unsigned smallest = 1;
            while (used[smallest])
                ++smallest;
            if (smallest < 50) {
                EXPECT_EQ(physics.deactivateVolumes({}), static_cast<int>(smallest));
                used[smallest] = true;
            }
        }
    }
}

TEST_F(ActivationGroupsTest, refusesAnInactiveVolumeAndChangesNothing)
{
    physics.deactivateVolumes({b});

    EXPECT_EQ(physics.deactivateVolumes({a, b}), -1);

    EXPECT_TRUE(a->isActive());
    EXPECT_EQ(physics.activationGroups(), Numbers{1});
}

TEST_F(ActivationGroupsTest, refusesAnActiveVolumeAndChangesNothing)
{
    physics.deactivateVolumes({b});

    EXPECT_FALSE(physics.activateVolumes({b, a}));

    EXPECT_FALSE(b->isActive());
    EXPECT_EQ(physics.activationGroups(), Numbers{1});
}

TEST_F(ActivationGroupsTest, noVolumesMakeAnEmptyGroup)
{
    EXPECT_EQ(physics.deactivateVolumes({}), 1);

    EXPECT_EQ(physics.activationGroups(), Numbers{1});
    EXPECT_EQ(physics.activationGroupVolumes(1), Volumes{});
    EXPECT_TRUE(physics.activateVolumes({}));
    EXPECT_EQ(physics.activationGroups(), Numbers{1});
    EXPECT_TRUE(physics.activateGroup(1));
    EXPECT_EQ(physics.activationGroups(), Numbers{});
}

TEST_F(ActivationGroupsTest, listsAVolumeAsOftenAsItWasGiven)
{
    EXPECT_EQ(physics.deactivateVolumes({a, a}), 1);

    EXPECT_EQ(physics.activationGroupVolumes(1), (Volumes{a, a}));
    EXPECT_TRUE(physics.activateVolumes({a}));
    EXPECT_TRUE(a->isActive());
}

TEST_F(ActivationGroupsTest, hasNoGroupToActivateTwice)
{
    physics.deactivateVolumes({a});

    EXPECT_FALSE(physics.activateGroup(2));
    EXPECT_FALSE(physics.activateGroup(-1));
    EXPECT_TRUE(physics.activateGroup(1));
    EXPECT_FALSE(physics.activateGroup(1));
}

TEST_F(ActivationGroupsTest, activatesEachGroupOfTheGivenVolumesOnce)
{
    physics.deactivateVolumes({a, b});
    physics.deactivateVolumes({c});

    EXPECT_TRUE(physics.activateVolumes({a, b, c}));

    EXPECT_TRUE(a->isActive() && b->isActive() && c->isActive());
    EXPECT_EQ(physics.activationGroups(), Numbers{});
}

TEST_F(ActivationGroupsTest, refusesMissingAndForeignVolumes)
{
    Physics other(world.model(), true);
    Volume* foreign = other.createVolume("foreign", "left", physics::VolumeType::Fluid);

    EXPECT_EQ(physics.deactivateVolumes({a, nullptr}), -1);
    EXPECT_EQ(physics.deactivateVolumes({a, foreign}), -1);
    EXPECT_TRUE(a->isActive());
    EXPECT_TRUE(foreign->isActive());
    physics.deactivateVolumes({a});
    EXPECT_FALSE(physics.activateVolumes({a, nullptr}));
    other.deactivateVolumes({foreign});
    EXPECT_FALSE(physics.activateVolumes({a, foreign}));
    EXPECT_FALSE(a->isActive());
    EXPECT_EQ(other.activationGroups(), Numbers{1});
}

TEST_F(ActivationGroupsTest, aVolumeThatEndsLeavesItsGroupWhichKeepsItsNumber)
{
    physics.deactivateVolumes({a, b, a});

    a->destroy();
    EXPECT_EQ(physics.activationGroupVolumes(1), Volumes{b});
    b->destroy();

    EXPECT_EQ(physics.activationGroupVolumes(1), Volumes{});
    EXPECT_EQ(physics.activationGroups(), Numbers{1});
    EXPECT_EQ(physics.deactivateVolumes({c}), 2);
    EXPECT_TRUE(physics.activateGroup(1));
}

} // namespace
