#include "importers/cgns/BlockSurface.h"

#include "importers/cgns/CgnsReader.h"

#include <gtest/gtest.h>

#include <numeric>
#include <set>

namespace {

using gtm::bundled::BlockSurface;
using gtm::bundled::CgnsDescription;
using gtm::bundled::CgnsError;
using gtm::bundled::ZoneSurface;
using Selection = CgnsDescription::Selection;
using Location = Selection::Location;
using Numbers = std::vector<std::int64_t>;

BlockSurface block(const Numbers& vertices)
{
    CgnsDescription::Zone zone;
    zone.vertices = vertices;
    return BlockSurface(zone);
}

Selection range(Location location, Numbers values) { return {location, true, std::move(values)}; }
Selection list(Location location, Numbers values) { return {location, false, std::move(values)}; }

std::set<std::size_t> surfaceOf(const BlockSurface& zone, const Selection& selection)
{
    const ZoneSurface::CellFaces faces = zone.cellFaces(selection, "Patch");
    EXPECT_TRUE(faces.isKnown);
    EXPECT_EQ(faces.inner, 0U);
    const std::set<std::size_t> surface(faces.surface.begin(), faces.surface.end());
    EXPECT_EQ(surface.size(), faces.surface.size()) << "each once";
    return surface;
}

TEST(BlockSurface, theSixSidesTogetherAreTheSurface)
{
    const BlockSurface zone = block({2, 3, 4});
    std::set<std::size_t> all;
    std::size_t sum = 0;
    for (const Numbers& side : {Numbers{1, 1, 1, 1, 3, 4}, Numbers{2, 1, 1, 2, 3, 4}, Numbers{1, 1, 1, 2, 1, 4},
                                Numbers{1, 3, 1, 2, 3, 4}, Numbers{1, 1, 1, 2, 3, 1}, Numbers{1, 1, 4, 2, 3, 4}}) {
        const std::set<std::size_t> faces = surfaceOf(zone, range(Location::Vertex, side));
        sum += faces.size();
        all.insert(faces.begin(), faces.end());
    }

    // Twice 2 x 3, 1 x 3 and 1 x 2 cell faces.
    EXPECT_EQ(zone.size(), 22U);
    EXPECT_EQ(sum, 22U);
    EXPECT_EQ(all.size(), 22U);
}

TEST(BlockSurface, verticesAndCellFacesNameTheSame)
{
    const BlockSurface zone = block({4, 4, 4});
    const std::set<std::size_t> byVertices = surfaceOf(zone, range(Location::Vertex, {4, 1, 2, 4, 3, 4}));

    EXPECT_EQ(byVertices.size(), 4U);
    EXPECT_EQ(surfaceOf(zone, range(Location::IFace, {4, 1, 2, 4, 2, 3})), byVertices);
    EXPECT_EQ(surfaceOf(zone, range(Location::Face, {4, 1, 2, 4, 2, 3})), byVertices);
    EXPECT_EQ(surfaceOf(zone, range(Location::Face, {4, 2, 3, 4, 1, 2})), byVertices) << "ends in the other order";
    EXPECT_EQ(surfaceOf(zone, list(Location::IFace, {4, 1, 2, 4, 2, 2, 4, 1, 3, 4, 2, 3})), byVertices);
    EXPECT_EQ(surfaceOf(zone, list(Location::Vertex,
                                   {4, 1, 2, 4, 2, 2, 4, 3, 2, 4, 1, 3, 4, 2, 3, 4, 3, 3, 4, 1, 4, 4, 2, 4, 4, 3, 4})),
              byVertices);
}

TEST(BlockSurface, aLayerOfCellsStandsForTheCellFacesOutsideIt)
{
    const BlockSurface zone = block({4, 4, 4});

    EXPECT_EQ(surfaceOf(zone, range(Location::Cell, {3, 1, 1, 3, 3, 2})),
              surfaceOf(zone, range(Location::IFace, {4, 1, 1, 4, 3, 2})));
    EXPECT_EQ(surfaceOf(zone, range(Location::Cell, {1, 1, 1, 3, 1, 3})),
              surfaceOf(zone, range(Location::JFace, {1, 1, 1, 3, 1, 3})));
}

TEST(BlockSurface, cellsThatCouldMeanSeveralSidesAreNotKnown)
{
    const auto isKnown = [](const Numbers& vertices, const Selection& selection) {
        return block(vertices).cellFaces(selection, "Patch").isKnown;
    };

    EXPECT_FALSE(isKnown({4, 4, 4}, range(Location::Cell, {1, 1, 1, 1, 1, 3}))) << "an edge";
    EXPECT_FALSE(isKnown({2, 4, 4}, range(Location::Cell, {1, 1, 1, 1, 3, 3}))) << "both sides of one layer";
    EXPECT_FALSE(isKnown({4, 4, 4}, range(Location::Cell, {2, 1, 1, 2, 3, 3}))) << "inside";
    EXPECT_FALSE(isKnown({4, 4, 4}, list(Location::Cell, {1, 1, 1})));
    EXPECT_FALSE(isKnown({4, 4, 4}, range(Location::Other, {1, 1, 1, 1, 3, 3})));
    EXPECT_FALSE(isKnown({4, 4, 4}, range(Location::Vertex, {1, 1, 1, 1, 1, 3}))) << "a line";
    EXPECT_FALSE(isKnown({4, 4, 4}, range(Location::Vertex, {1, 1, 1, 3, 3, 3}))) << "a volume";
}

TEST(BlockSurface, cellFacesBetweenTwoCellsAreInside)
{
    const ZoneSurface::CellFaces faces =
        block({4, 4, 4}).cellFaces(range(Location::Vertex, {1, 2, 1, 4, 2, 3}), "Patch");

    EXPECT_EQ(faces.inner, 6U);
    EXPECT_TRUE(faces.surface.empty());
    EXPECT_TRUE(faces.isKnown);
}

TEST(BlockSurface, anIndexThatIsListedTwiceMeansOneCellFace)
{
    EXPECT_EQ(block({3, 3, 3}).cellFaces(list(Location::KFace, {1, 2, 1, 1, 2, 1}), "Patch").surface.size(), 1U);
}

TEST(BlockSurface, whatReachesOutsideIsRefused)
{
    const BlockSurface zone = block({3, 3, 3});
    const auto refusalOf = [&](const Selection& selection) -> std::string {
        try {
            zone.cellFaces(selection, "Patch");
        } catch (const CgnsError& error) {
            return error.what();
        }
        return {};
    };
    const std::string rest = ", outside the zone of (3 3 3) vertices; export the file again.";

    EXPECT_EQ(refusalOf(range(Location::Vertex, {1, 1, 1, 1, 3, 4})), "Patch reaches from (1 1 1) to (1 3 4)" + rest);
    EXPECT_EQ(refusalOf(range(Location::IFace, {1, 1, 1, 1, 3, 2})), "Patch reaches from (1 1 1) to (1 3 2)" + rest);
    EXPECT_EQ(refusalOf(range(Location::Cell, {3, 1, 1, 3, 2, 2})), "Patch reaches from (3 1 1) to (3 2 2)" + rest);
    EXPECT_EQ(refusalOf(list(Location::JFace, {0, 1, 1})), "Patch reaches from (0 1 1) to (0 1 1)" + rest);
    EXPECT_EQ(refusalOf(list(Location::Vertex, {1, 1, 4})), "Patch reaches from (1 1 4) to (1 1 4)" + rest);
    EXPECT_EQ(refusalOf(range(Location::Vertex, {1, 1})),
              "Patch has 2 indices, which does not fit a structured zone; export the file again.");
}

} // namespace
