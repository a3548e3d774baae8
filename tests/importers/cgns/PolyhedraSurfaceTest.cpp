#include "importers/cgns/PolyhedraSurface.h"

#include "importers/cgns/CgnsReader.h"
#include "tests/importers/cgns/Cells.h"

#include <cgnslib.h>

#include <gtest/gtest.h>

namespace {

using cgnstests::section;
using cgnstests::unstructuredZone;
using gtm::bundled::CgnsDescription;
using gtm::bundled::CgnsError;
using gtm::bundled::PolyhedraSurface;
using gtm::bundled::ZoneSurface;
using Selection = CgnsDescription::Selection;
using Location = Selection::Location;
using Numbers = std::vector<std::int64_t>;

Selection range(Location location, std::int64_t first, std::int64_t last) { return {location, true, {first, last}}; }
Selection list(Location location, const Numbers& values) { return {location, false, values}; }

/// Two cubes on top of each other: vertices 1 to 4 below, 5 to 8 between, 9 to 12 above; polygons 1 to 11 in the
/// order below, between, above, around the lower and around the upper cube; cells 12 and 13.
const std::vector<Numbers> polygons = {{1, 2, 3, 4},   {5, 6, 7, 8},   {9, 10, 11, 12}, {1, 2, 6, 5},
                                       {2, 3, 7, 6},   {3, 4, 8, 7},   {4, 1, 5, 8},    {5, 6, 10, 9},
                                       {6, 7, 11, 10}, {7, 8, 12, 11}, {8, 5, 9, 12}};
const std::vector<Numbers> cells = {{1, 2, 4, 5, 6, 7}, {-2, 3, 8, 9, 10, 11}};

CgnsDescription::Section inOldStyle(std::int64_t type, std::int64_t first, const std::vector<Numbers>& lists)
{
    Numbers connectivity;
    for (const Numbers& numbers : lists) {
        connectivity.push_back(static_cast<std::int64_t>(numbers.size()));
        connectivity.insert(connectivity.end(), numbers.begin(), numbers.end());
    }
    return section(type, first, first + static_cast<std::int64_t>(lists.size()) - 1, connectivity);
}

CgnsDescription::Section inNewStyle(std::int64_t type, std::int64_t first, const std::vector<Numbers>& lists)
{
    Numbers connectivity;
    Numbers offsets = {0};
    for (const Numbers& numbers : lists) {
        connectivity.insert(connectivity.end(), numbers.begin(), numbers.end());
        offsets.push_back(static_cast<std::int64_t>(connectivity.size()));
    }
    return section(type, first, first + static_cast<std::int64_t>(lists.size()) - 1, connectivity, offsets);
}

CgnsDescription::Zone zoneOf(const std::vector<CgnsDescription::Section>& sections)
{
    CgnsDescription::Zone zone = unstructuredZone(12);
    zone.sections = sections;
    return zone;
}

void expectTwoCubes(const CgnsDescription::Zone& zone)
{
    const PolyhedraSurface surface(zone);

    EXPECT_TRUE(surface.hasCells());
    EXPECT_EQ(surface.size(), 10U);
    EXPECT_EQ(surface.cellFaces(list(Location::Face, {1, 3, 11}), "").surface, (std::vector<std::size_t>{0, 1, 9}));
    const ZoneSurface::CellFaces between = surface.cellFaces(list(Location::Face, {2}), "");
    EXPECT_TRUE(between.surface.empty());
    EXPECT_EQ(between.inner, 1U);
    EXPECT_EQ(surface.cellFaces(range(Location::Vertex, 1, 8), "").surface.size(), 5U) << "the lower cube";
}

TEST(PolyhedraSurface, polygonsThatBoundOneCellAreOnIt)
{
    expectTwoCubes(zoneOf({inOldStyle(CGNS_ENUMV(NGON_n), 1, polygons), inOldStyle(CGNS_ENUMV(NFACE_n), 12, cells)}));
}

TEST(PolyhedraSurface, aListOfStartsMeansTheSame)
{
    expectTwoCubes(zoneOf({inNewStyle(CGNS_ENUMV(NFACE_n), 12, cells), inNewStyle(CGNS_ENUMV(NGON_n), 1, polygons)}));
}

TEST(PolyhedraSurface, theParentsOfPolygonsStandInForCells)
{
    CgnsDescription::Section withParents = inNewStyle(CGNS_ENUMV(NGON_n), 1, polygons);
    withParents.parents = {12, 12, 13, 12, 12, 12, 12, 13, 13, 13, 13, 0, 13, 0, 0, 0, 0, 0, 0, 0, 0, 0};

    expectTwoCubes(zoneOf({withParents}));
}

TEST(PolyhedraSurface, cellsCountMoreThanParents)
{
    CgnsDescription::Section withParents = inNewStyle(CGNS_ENUMV(NGON_n), 1, polygons);
    withParents.parents = Numbers(22, 12);

    expectTwoCubes(zoneOf({withParents, inNewStyle(CGNS_ENUMV(NFACE_n), 12, cells)}));
}

TEST(PolyhedraSurface, polygonsAloneDoNotSayWhichCellsTheyBound)
{
    EXPECT_FALSE(PolyhedraSurface(zoneOf({inOldStyle(CGNS_ENUMV(NGON_n), 1, polygons)})).hasCells());
}

TEST(PolyhedraSurface, elementsThatBoundNoCellAreNotKnown)
{
    const CgnsDescription::Zone zone =
        zoneOf({inOldStyle(CGNS_ENUMV(NGON_n), 1, polygons), inOldStyle(CGNS_ENUMV(NFACE_n), 12, {cells.front()}),
                section(CGNS_ENUMV(QUAD_4), 20, 20, {1, 2, 3, 4})});
    const PolyhedraSurface surface(zone);

    EXPECT_EQ(surface.size(), 6U);
    EXPECT_FALSE(surface.cellFaces(list(Location::Face, {3}), "").isKnown) << "a polygon of no cell";
    EXPECT_FALSE(surface.cellFaces(list(Location::Face, {12}), "").isKnown) << "a cell";
    EXPECT_FALSE(surface.cellFaces(list(Location::Face, {15}), "").isKnown) << "a number that no element has";
    EXPECT_FALSE(surface.cellFaces(list(Location::Face, {20}), "").isKnown) << "no polygon";
    EXPECT_FALSE(surface.cellFaces(list(Location::Other, {1}), "").isKnown);
}

TEST(PolyhedraSurface, aZoneThatContradictsItselfIsRefused)
{
    const auto refusalOf = [](const std::vector<CgnsDescription::Section>& sections) -> std::string {
        try {
            const PolyhedraSurface surface(zoneOf(sections));
        } catch (const CgnsError& error) {
            return error.what();
        }
        return {};
    };
    const auto polygonsOf = [](const Numbers& connectivity, const Numbers& offsets = {}, const Numbers& parents = {}) {
        return section(CGNS_ENUMV(NGON_n), 1, 1, connectivity, offsets, parents);
    };
    const auto cellsOf = [](const Numbers& connectivity) { return section(CGNS_ENUMV(NFACE_n), 2, 2, connectivity); };
    const std::string part = "the elements \"part\" of the zone \"box\" ";
    const std::string doNotFit = part + "do not fit their connectivity; export the file again.";
    const std::string noPolygon = part + "use a polygon that the zone has not; export the file again.";

    EXPECT_EQ(refusalOf({polygonsOf({4, 1, 2, 3})}), doNotFit);
    EXPECT_EQ(refusalOf({polygonsOf({-1, 1, 2, 3})}), doNotFit);
    EXPECT_EQ(refusalOf({polygonsOf({INT64_MAX, 1, 2, 3})}), doNotFit);
    EXPECT_EQ(refusalOf({polygonsOf({1, 2, 3}, {0, 4})}), doNotFit);
    EXPECT_EQ(refusalOf({polygonsOf({1, 2, 3}, {3, 0})}), doNotFit);
    EXPECT_EQ(refusalOf({polygonsOf({1, 2, 3}, {-1, 3})}), doNotFit);
    EXPECT_EQ(refusalOf({polygonsOf({2, 1, 2})}),
              part + "have a polygon of fewer than three corners; export the file again.");
    EXPECT_EQ(refusalOf({polygonsOf({3, 1, 2, 13})}),
              part + "use a vertex that the zone has not; export the file again.");
    EXPECT_EQ(refusalOf({polygonsOf({3, 1, 2, 3, 3, 4, 5, 6})}),
              part + "are 2 in number, but their range has 1; export the file again.");
    EXPECT_EQ(refusalOf({polygonsOf({3, 1, 2, 3}), cellsOf({1, 2})}), noPolygon);
    EXPECT_EQ(refusalOf({polygonsOf({3, 1, 2, 3}), cellsOf({1, 0})}), noPolygon);
    EXPECT_EQ(refusalOf({polygonsOf({3, 1, 2, 3}), cellsOf({1, INT64_MIN})}), noPolygon);
    EXPECT_EQ(refusalOf({polygonsOf({3, 1, 2, 3}, {}, {1})}),
              part + "have 1 parents instead of 2; export the file again.");
}

} // namespace
