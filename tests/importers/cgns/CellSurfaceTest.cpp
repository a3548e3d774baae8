#include "importers/cgns/CellSurface.h"

#include "importers/cgns/CgnsReader.h"
#include "tests/importers/cgns/Cells.h"

#include <cgnslib.h>

#include <gtest/gtest.h>

namespace {

using cgnstests::section;
using cgnstests::unstructuredZone;
using gtm::bundled::CellSurface;
using gtm::bundled::CgnsDescription;
using gtm::bundled::CgnsError;
using gtm::bundled::ZoneSurface;
using Selection = CgnsDescription::Selection;
using Location = Selection::Location;

Selection range(Location location, std::int64_t first, std::int64_t last) { return {location, true, {first, last}}; }
Selection list(Location location, const std::vector<std::int64_t>& values) { return {location, false, values}; }

/// A hexahedron (element 1) with a pyramid (2) on top of it, all triangles and quadrilaterals outside (3 to 11),
/// and the quadrilateral between them (12).
CgnsDescription::Zone house()
{
    CgnsDescription::Zone zone = unstructuredZone(9);
    zone.sections = {section(CGNS_ENUMV(HEXA_8), 1, 1, {1, 2, 3, 4, 5, 6, 7, 8}),
                     section(CGNS_ENUMV(PYRA_5), 2, 2, {5, 6, 7, 8, 9}),
                     section(CGNS_ENUMV(MIXED), 3, 12,
                             {CGNS_ENUMV(QUAD_4),
                              1,
                              4,
                              3,
                              2,
                              CGNS_ENUMV(QUAD_4),
                              1,
                              2,
                              6,
                              5,
                              CGNS_ENUMV(QUAD_4),
                              2,
                              3,
                              7,
                              6,
                              CGNS_ENUMV(QUAD_4),
                              3,
                              4,
                              8,
                              7,
                              CGNS_ENUMV(QUAD_4),
                              1,
                              5,
                              8,
                              4,
                              CGNS_ENUMV(TRI_3),
                              5,
                              6,
                              9,
                              CGNS_ENUMV(TRI_3),
                              6,
                              7,
                              9,
                              CGNS_ENUMV(TRI_3),
                              7,
                              8,
                              9,
                              CGNS_ENUMV(TRI_3),
                              8,
                              5,
                              9,
                              CGNS_ENUMV(QUAD_4),
                              5,
                              6,
                              7,
                              8})};
    return zone;
}

TEST(CellSurface, cellFacesBetweenTwoCellsAreNotOnIt)
{
    const CgnsDescription::Zone zone = house();
    const CellSurface surface(zone);

    EXPECT_TRUE(surface.hasCells());
    EXPECT_EQ(surface.size(), 9U);
    EXPECT_EQ(surface.cellFaces(range(Location::Face, 3, 11), "").surface.size(), 9U);
    const ZoneSurface::CellFaces between = surface.cellFaces(list(Location::Face, {12}), "");
    EXPECT_EQ(between.surface.size(), 0U);
    EXPECT_EQ(between.inner, 1U);
    EXPECT_TRUE(between.isKnown);
}

TEST(CellSurface, verticesStandForTheCellFacesAllCornersOfWhichAreGiven)
{
    const CgnsDescription::Zone zone = house();
    const CellSurface surface(zone);

    const ZoneSurface::CellFaces roof = surface.cellFaces(range(Location::Vertex, 5, 9), "");

    EXPECT_EQ(roof.surface, surface.cellFaces(range(Location::Face, 8, 11), "").surface);
    EXPECT_EQ(surface.cellFaces(range(Location::Vertex, 1, 9), "").surface.size(), 9U);
    EXPECT_TRUE(surface.cellFaces(list(Location::Vertex, {1, 2, 9}), "").surface.empty());
}

TEST(CellSurface, cornersOfCurvedElementsTellTheirCellFacesApart)
{
    CgnsDescription::Zone zone = unstructuredZone(11);
    zone.sections = {section(CGNS_ENUMV(TETRA_10), 1, 1, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10}),
                     section(CGNS_ENUMV(TRI_6), 2, 2, {1, 3, 2, 7, 6, 5}), section(CGNS_ENUMV(TRI_3), 3, 3, {1, 2, 4})};
    const CellSurface surface(zone);

    EXPECT_EQ(surface.size(), 4U);
    EXPECT_EQ(surface.cellFaces(range(Location::Face, 2, 3), "").surface.size(), 2U);
}

TEST(CellSurface, elementsThatAreNoCellFacesAreNotKnown)
{
    CgnsDescription::Zone zone = house();
    zone.sections.push_back(section(CGNS_ENUMV(BAR_2), 21, 21, {1, 2}));
    zone.sections.push_back(section(CGNS_ENUMV(TRI_3), 22, 22, {1, 2, 9}));
    const CellSurface surface(zone);

    EXPECT_FALSE(surface.cellFaces(list(Location::Face, {1}), "").isKnown) << "a cell";
    EXPECT_FALSE(surface.cellFaces(list(Location::Face, {13}), "").isKnown) << "a number that no element has";
    EXPECT_FALSE(surface.cellFaces(list(Location::Face, {21}), "").isKnown) << "a line";
    EXPECT_FALSE(surface.cellFaces(list(Location::Face, {22}), "").isKnown) << "a triangle inside a cell";
    EXPECT_FALSE(surface.cellFaces(list(Location::IFace, {3}), "").isKnown);
    EXPECT_FALSE(surface.cellFaces(list(Location::Other, {3}), "").isKnown);
    EXPECT_EQ(surface.cellFaces(list(Location::Face, {1, 3, 4}), "").surface.size(), 2U) << "the others count";
}

TEST(CellSurface, surfaceElementsGivenAsCellsAreTheirCellFaces)
{
    const CgnsDescription::Zone zone = house();
    const CellSurface surface(zone);

    EXPECT_EQ(surface.cellFaces(list(Location::Cell, {3, 8}), "").surface,
              surface.cellFaces(list(Location::Face, {3, 8}), "").surface);
    EXPECT_FALSE(surface.cellFaces(list(Location::Cell, {1}), "").isKnown);
}

TEST(CellSurface, aZoneOfTrianglesHasNoCells)
{
    CgnsDescription::Zone zone = unstructuredZone(3);
    zone.sections = {section(CGNS_ENUMV(TRI_3), 1, 1, {1, 2, 3})};

    EXPECT_FALSE(CellSurface(zone).hasCells());
}

TEST(CellSurface, aZoneThatContradictsItselfIsRefused)
{
    const auto refusalOf = [](const CgnsDescription::Section& added) -> std::string {
        CgnsDescription::Zone zone = unstructuredZone(4);
        zone.sections = {added};
        try {
            const CellSurface surface(zone);
        } catch (const CgnsError& error) {
            return error.what();
        }
        return {};
    };
    const std::string part = "the elements \"part\" of the zone \"box\" ";

    EXPECT_EQ(refusalOf(section(99, 1, 1, {1})), part + "are of the unknown type 99; export the file again.");
    EXPECT_EQ(refusalOf(section(CGNS_ENUMV(MIXED), 1, 1, {0, 1, 2})),
              part + "are of the unknown type 0; export the file again.");
    EXPECT_EQ(refusalOf(section(CGNS_ENUMV(TETRA_4), 1, 1, {1, 2, 3})),
              part + "end within an element; export the file again.");
    EXPECT_EQ(refusalOf(section(CGNS_ENUMV(MIXED), 1, 1, {CGNS_ENUMV(TETRA_4)})),
              part + "end within an element; export the file again.");
    EXPECT_EQ(refusalOf(section(CGNS_ENUMV(TETRA_4), 1, 1, {1, 2, 3, 5})),
              part + "use a vertex that the zone has not; export the file again.");
    EXPECT_EQ(refusalOf(section(CGNS_ENUMV(TETRA_4), 1, 1, {1, 2, 3, 0})),
              part + "use a vertex that the zone has not; export the file again.");
    EXPECT_EQ(refusalOf(section(CGNS_ENUMV(TETRA_4), 1, 2, {1, 2, 3, 4})),
              part + "are 1 in number, but their range has 2; export the file again.");
}

} // namespace
