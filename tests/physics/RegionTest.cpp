#include "physics/Region.h"

#include "tests/physics/PhysicsCase.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>
#include <vector>

namespace {

using physics::Boundary;
using physics::Interface;
using physics::Region;
using physics::State;
using physics::TopologyType;
using physics::Volume;

class RegionTest : public PhysicsCase {
protected:
    Volume* fluid = volume("fluid");
    Boundary* wall = fluid->createBoundary("wall", "inlet");
    Interface* loop = interface("loop", wall, wall);
};

TEST_F(RegionTest, answersForEachKindThroughTheCommonBase)
{
    const std::vector<Region*> regions = {fluid, wall, loop};
    const std::vector<std::string> fullNames = {"fluid", "fluid::wall", "loop"};
    const std::vector<TopologyType> types = {TopologyType::Volume, TopologyType::Boundary, TopologyType::Interface};
    const std::vector<int> ids = {fluid->id(), wall->id(), loop->id()};

    for (std::size_t i = 0; i < regions.size(); ++i) {
        EXPECT_EQ(regions[i]->fullName(), fullNames[i]);
        EXPECT_EQ(regions[i]->topologyType(), types[i]);
        EXPECT_EQ(regions[i]->id(), ids[i]);
        EXPECT_EQ(regions[i]->state(), State::Valid);
        EXPECT_TRUE(regions[i]->isActive());
        EXPECT_FALSE(regions[i]->isEmpty());
    }
    for (Region* region : regions) {
        EXPECT_EQ(region->rename("new"), "new");
        EXPECT_EQ(region->name(), "new");
    }
}

TEST_F(RegionTest, endsOnlyThroughItsOwnMembers)
{
    EXPECT_FALSE(std::is_destructible_v<Region>);
    EXPECT_FALSE(std::is_destructible_v<Volume>);
    EXPECT_FALSE(std::is_destructible_v<Boundary>);
    EXPECT_FALSE(std::is_destructible_v<Interface>);
    EXPECT_TRUE(std::is_final_v<Volume> && std::is_final_v<Boundary> && std::is_final_v<Interface>);
    EXPECT_FALSE(std::is_copy_constructible_v<Volume> || std::is_copy_assignable_v<Volume>);
}

} // namespace
