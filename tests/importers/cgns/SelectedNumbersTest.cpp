#include "importers/cgns/SelectedNumbers.h"

#include "importers/cgns/CgnsReader.h"

#include <gtest/gtest.h>

namespace {

using gtm::bundled::CgnsError;
using gtm::bundled::selectedNumbers;
using Selection = gtm::bundled::CgnsDescription::Selection;
using Numbers = std::vector<std::int64_t>;

Selection range(Numbers values) { return {Selection::Location::Face, true, std::move(values)}; }
Selection list(Numbers values) { return {Selection::Location::Face, false, std::move(values)}; }

std::string refusalOf(const Selection& selection, std::int64_t last, std::size_t noOfThings)
{
    try {
        selectedNumbers(selection, last, noOfThings, "elements", "Patch");
    } catch (const CgnsError& error) {
        return error.what();
    }
    return {};
}

TEST(SelectedNumbers, aRangeIsAllFromOneEndToTheOther)
{
    EXPECT_EQ(selectedNumbers(range({3, 6}), 9, 9, "elements", ""), (Numbers{3, 4, 5, 6}));
    EXPECT_EQ(selectedNumbers(range({6, 3}), 9, 9, "elements", ""), (Numbers{3, 4, 5, 6}));
    EXPECT_EQ(selectedNumbers(range({9, 9}), 9, 9, "elements", ""), (Numbers{9}));
}

TEST(SelectedNumbers, aListIsSortedAndEachNumberMeansOneThing)
{
    EXPECT_EQ(selectedNumbers(list({7, 2, 7, 3}), 9, 9, "elements", ""), (Numbers{2, 3, 7}));
    EXPECT_EQ(selectedNumbers(list({}), 9, 9, "elements", ""), Numbers{});
}

TEST(SelectedNumbers, whatReachesOutsideIsRefused)
{
    EXPECT_EQ(refusalOf(list({0, 2}), 9, 9),
              "Patch reaches from 0 to 2, outside the zone of 9 elements; export the file again.");
    EXPECT_EQ(refusalOf(range({2, 10}), 9, 9),
              "Patch reaches from 2 to 10, outside the zone of 9 elements; export the file again.");
}

TEST(SelectedNumbers, aRangeOfMoreNumbersThanThereAreThingsIsRefused)
{
    EXPECT_EQ(refusalOf(range({1, 1000000000000}), 1000000000000, 7),
              "Patch has more indices than the zone has elements; export the file again.");
    EXPECT_EQ(refusalOf(range({1}), 9, 9),
              "Patch has 1 indices, which does not fit an unstructured zone; export the file again.");
}

} // namespace
