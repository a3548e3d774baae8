#include "importers/cgns/Coverage.h"

#include <gtest/gtest.h>

namespace {

using gtm::bundled::Coverage;
using Strings = std::vector<std::string>;

TEST(Coverage, cellFacesInNoPatchAreUncovered)
{
    Coverage coverage(5);
    EXPECT_EQ(coverage.noOfUncovered(), 5U);

    coverage.add("wall", {0, 3});
    coverage.add("nothing", {});

    EXPECT_EQ(coverage.size(), 5U);
    EXPECT_EQ(coverage.noOfUncovered(), 3U);
    EXPECT_EQ(coverage.overlaps("box"), Strings{});
}

TEST(Coverage, cellFacesInTwoPatchesAreCountedForEachTwoPatches)
{
    Coverage coverage(6);
    coverage.add("wall", {0, 1, 2, 3});
    coverage.add("in\nlet", {3, 4});
    coverage.add("outlet", {2, 3, 5});

    EXPECT_EQ(coverage.noOfUncovered(), 0U);
    EXPECT_EQ(coverage.overlaps("box"),
              (Strings{"Zone \"box\": 1 cell faces of its surface are in \"wall\" and in \"in\\nlet\" too; check which "
                       "of the two they belong to.",
                       "Zone \"box\": 2 cell faces of its surface are in \"wall\" and in \"outlet\" too; check which "
                       "of the two they belong to."}));
}

TEST(Coverage, aCellFaceThatAPatchNamesTwiceDoesNotOverlap)
{
    Coverage coverage(2);
    coverage.add("wall", {1, 1});

    EXPECT_EQ(coverage.noOfUncovered(), 1U);
    EXPECT_EQ(coverage.overlaps("box"), Strings{});
}

} // namespace
