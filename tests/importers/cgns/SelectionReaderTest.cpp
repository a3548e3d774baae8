#include "importers/cgns/SelectionReader.h"

#include "importers/cgns/CgnsReader.h"
#include "tests/importers/cgns/MemoryTree.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using cgnstests::MemoryNode;
using cgnstests::MemoryTree;
using cgnstests::Numbers;
using gtm::bundled::CgnsError;
using gtm::bundled::readDonorSelection;
using gtm::bundled::readSelection;
using Selection = gtm::bundled::CgnsDescription::Selection;
using Location = Selection::Location;

MemoryTree patchWith(std::vector<MemoryTree> children) { return {"patch", "BC_t", "BCWall", std::move(children)}; }

MemoryTree location(const std::string& text) { return {"GridLocation", "GridLocation_t", text}; }

Selection selectionOf(const MemoryTree& patch, std::size_t axes)
{
    return readSelection(MemoryNode(patch).children(), axes, "Patch");
}

TEST(SelectionReader, withoutALocationVerticesAreMeant)
{
    const Selection selection = selectionOf(patchWith({{"PointRange", "IndexRange_t", Numbers{2, 5}}}), 1);

    EXPECT_EQ(selection.location, Location::Vertex);
    EXPECT_TRUE(selection.isRange);
    EXPECT_EQ(selection.values, (Numbers{2, 5}));
}

TEST(SelectionReader, eachLocationIsToldApart)
{
    const auto locationOf = [](const std::string& text) {
        return selectionOf(patchWith({location(text), {"PointList", "IndexArray_t", Numbers{7}}}), 1).location;
    };

    EXPECT_EQ(locationOf("Vertex"), Location::Vertex);
    EXPECT_EQ(locationOf("FaceCenter"), Location::Face);
    EXPECT_EQ(locationOf("IFaceCenter"), Location::IFace);
    EXPECT_EQ(locationOf("JFaceCenter"), Location::JFace);
    EXPECT_EQ(locationOf("KFaceCenter"), Location::KFace);
    EXPECT_EQ(locationOf("CellCenter"), Location::Cell);
    EXPECT_EQ(locationOf("EdgeCenter"), Location::Other);
    EXPECT_EQ(locationOf(""), Location::Other);
}

TEST(SelectionReader, elementsAreFacesWhateverTheLocationSays)
{
    const MemoryTree patch = patchWith({location("Vertex"), {"ElementList", "IndexArray_t", Numbers{7, 8, 9}}});

    const Selection selection = selectionOf(patch, 1);

    EXPECT_EQ(selection.location, Location::Face);
    EXPECT_FALSE(selection.isRange);
    EXPECT_EQ(selection.values, (Numbers{7, 8, 9}));
}

TEST(SelectionReader, withoutPointsTheSelectionIsEmpty) { EXPECT_TRUE(selectionOf(patchWith({}), 3).values.empty()); }

TEST(SelectionReader, numbersThatDoNotFitTheAxesAreRefused)
{
    const auto refusalOf = [](const MemoryTree& patch, std::size_t axes) -> std::string {
        try {
            selectionOf(patch, axes);
        } catch (const CgnsError& error) {
            return error.what();
        }
        return {};
    };
    const MemoryTree range = patchWith({{"PointRange", "IndexRange_t", Numbers{1, 2, 3, 4}}});
    const MemoryTree list = patchWith({{"PointList", "IndexArray_t", Numbers{1, 2, 3, 4}}});

    EXPECT_EQ(refusalOf(range, 3),
              "Patch: \"PointRange\" has 4 numbers, which does not fit the zone; export the file again.");
    EXPECT_EQ(refusalOf(list, 3),
              "Patch: \"PointList\" has 4 numbers, which does not fit the zone; export the file again.");
    EXPECT_EQ(refusalOf(list, 1), "");
}

TEST(SelectionReader, theDonorIsAPointRangeAPointListOrAListOfCells)
{
    const auto donorOf = [](std::vector<MemoryTree> children) {
        const MemoryTree patch = patchWith(std::move(children));
        return readDonorSelection(MemoryNode(patch).children());
    };

    const Selection range = donorOf({{"PointRangeDonor", "IndexRange_t", Numbers{1, 1, 1, 1, 3, 3}}});
    const Selection list = donorOf({location("FaceCenter"), {"PointListDonor", "IndexArray_t", Numbers{4}}});
    const Selection cells = donorOf({location("Vertex"), {"CellListDonor", "IndexArray_t", Numbers{5}}});

    EXPECT_TRUE(range.isRange);
    EXPECT_EQ(range.values, (Numbers{1, 1, 1, 1, 3, 3}));
    EXPECT_EQ(list.location, Location::Face);
    EXPECT_EQ(list.values, Numbers{4});
    EXPECT_EQ(cells.location, Location::Cell);
    EXPECT_EQ(donorOf({}).values, Numbers{});
}

} // namespace
