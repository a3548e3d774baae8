#include "support/NearestName.h"

#include <gtest/gtest.h>

namespace {

using gtm::support::hintForName;
using gtm::support::nearestName;

TEST(NearestName, aMissingAnAddedAWrongAndTwoSwappedLettersAreForgiven)
{
    const std::vector<std::string> known{"coolant", "casing", "oil"};

    EXPECT_EQ(nearestName("colant", known), "coolant");
    EXPECT_EQ(nearestName("coollant", known), "coolant");
    EXPECT_EQ(nearestName("koolant", known), "coolant");
    EXPECT_EQ(nearestName("coolnat", known), "coolant");
}

TEST(NearestName, capitalsHardlyCount)
{
    EXPECT_EQ(nearestName("WALL", {"fall", "wall"}), "wall");
    EXPECT_EQ(nearestName("Wall", {"wall", "Wall"}), "Wall");
}

TEST(NearestName, theFirstOfEquallyNearOnesIsMeant)
{
    EXPECT_EQ(nearestName("tube-3", {"tube-1", "tube-2"}), "tube-1");
}

TEST(NearestName, moreThanAThirdOfTheLettersWrongIsNotNear)
{
    EXPECT_EQ(nearestName("abc", {"axc"}), "axc");
    EXPECT_EQ(nearestName("abc", {"axx"}), std::nullopt);
    EXPECT_EQ(nearestName("wall", {"inlet", "outlet"}), std::nullopt);
    EXPECT_EQ(nearestName("wall", {}), std::nullopt);
    EXPECT_EQ(nearestName("", {"a"}), std::nullopt);
}

TEST(NearestName, theHintNamesTheNearestOrTheFewKnownOnes)
{
    EXPECT_EQ(hintForName("colant", {"coolant", "oil"}), "; did you mean \"coolant\"?");
    EXPECT_EQ(hintForName("steel", {"coolant", "oil"}), "; known are \"coolant\", \"oil\".");
    EXPECT_EQ(hintForName("steel", {"oil"}), "; the only known one is \"oil\".");
    EXPECT_EQ(hintForName("steel", {}), ".");
    EXPECT_EQ(hintForName("steel", std::vector<std::string>(13, "oil")), ".");
}

} // namespace
