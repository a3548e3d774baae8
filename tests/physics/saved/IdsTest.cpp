#include "physics/saved/Ids.h"

#include "tests/scripted/World.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace physics {
namespace {

using Texts = std::vector<std::string>;

TEST(Ids, textIsSplitAtCommasWithoutOneBlankBehindEach)
{
    EXPECT_EQ(splitIds(""), Texts());
    EXPECT_EQ(splitIds("a"), Texts{"a"});
    EXPECT_EQ(splitIds("a, b,c"), (Texts{"a", "b", "c"}));
    EXPECT_EQ(splitIds("a,  b "), (Texts{"a", " b "}));
    EXPECT_EQ(splitIds("cold side, hot side"), (Texts{"cold side", "hot side"}));
}

TEST(Ids, commasWithoutIdsGiveEmptyOnes)
{
    EXPECT_EQ(splitIds(","), (Texts{"", ""}));
    EXPECT_EQ(splitIds("a, "), (Texts{"a", ""}));
    EXPECT_EQ(splitIds(",,a"), (Texts{"", "", "a"}));
}

TEST(Ids, joinedIdsAreSplitAgain)
{
    scripted::World world;
    const std::vector<gtm::Body*> bodies = {world.body("one two"), nullptr, world.body("three")};

    EXPECT_EQ(joinedIds(bodies), "one two, three");
    EXPECT_EQ(splitIds(joinedIds(bodies)), (Texts{"one two", "three"}));
    EXPECT_EQ(joinedIds(std::vector<gtm::Body*>()), "");
}

TEST(Ids, regionsThatTheGeometryLacksAreLeftOut)
{
    scripted::World world;
    gtm::Body* body = world.body("body");

    EXPECT_EQ(findRegions(*world.model()->topology(), "far, body, "), std::vector<gtm::Region*>{body});
}

} // namespace
} // namespace physics
