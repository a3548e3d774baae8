#include "physics/saved/NearestId.h"

#include "tests/scripted/World.h"

#include <gtest/gtest.h>

#include <string>

namespace physics {
namespace {

class NearestId : public testing::Test {
protected:
    std::string nearest(const std::string& id) { return nearestId(id, topology); }

    scripted::World world;
    gtm::Part* engine = world.part("engine");
    gtm::Body* cooler = world.body("cooler", engine);
    gtm::Body* cooled = world.body("cooled", engine);
    scripted::FaceWithUses inlet = world.face("inlet", cooler);
    gtm::VirtualTopology topology{world.model()->topology(), "", 0};
};

TEST_F(NearestId, isTheIdWithTheFewestChanges)
{
    EXPECT_EQ(nearest("Engine"), "engine");
    EXPECT_EQ(nearest("colled"), "cooled");
    EXPECT_EQ(nearest("inlets"), "inlet");
    EXPECT_EQ(nearest("inlet@coolr"), "inlet@cooler");
}

TEST_F(NearestId, isTheFirstOfSeveralAsNear) { EXPECT_EQ(nearest("coole"), "cooler"); }

TEST_F(NearestId, isFoundAmongMaskedRegionsToo)
{
    topology.setMaskedBodies({cooler, cooled});

    EXPECT_EQ(nearest("cooledd"), "cooled");
    EXPECT_EQ(nearest("inlte"), "inlet");
}

TEST_F(NearestId, isEmptyWhenNothingIsAlike)
{
    EXPECT_EQ(nearest("pump"), "");
    EXPECT_EQ(nearest(""), "");
    EXPECT_EQ(nearest(std::string(1000, 'x')), "");
}

TEST_F(NearestId, longerIdsMayDifferInMoreCharacters)
{
    // Three changes are too many for five letters, four are not for twelve.
    EXPECT_EQ(nearest("inxxx"), "");
    EXPECT_EQ(nearest("_n_et@co_l_r"), "inlet@cooler");
}

} // namespace
} // namespace physics
