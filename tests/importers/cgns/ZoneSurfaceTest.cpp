#include "importers/cgns/ZoneSurface.h"

#include "tests/importers/cgns/Cells.h"

#include <cgnslib.h>

#include <gtest/gtest.h>

namespace {

using cgnstests::section;
using cgnstests::unstructuredZone;
using gtm::bundled::CgnsDescription;
using gtm::bundled::makeSurface;

const CgnsDescription::Section tetrahedron = section(CGNS_ENUMV(TETRA_4), 1, 1, {1, 2, 3, 4});
const CgnsDescription::Section polygons =
    section(CGNS_ENUMV(NGON_n), 11, 14, {3, 1, 2, 3, 3, 1, 2, 4, 3, 2, 3, 4, 3, 3, 1, 4});
const CgnsDescription::Section polyhedron = section(CGNS_ENUMV(NFACE_n), 21, 21, {4, 11, 12, 13, 14});

/// The number of cell faces, or why it is not known.
std::string sizeOf(const std::vector<CgnsDescription::Section>& sections)
{
    CgnsDescription::Zone zone = unstructuredZone(4);
    zone.sections = sections;
    std::string obstacle;
    const auto surface = makeSurface(zone, obstacle);
    return surface ? std::to_string(surface->size()) + obstacle : obstacle;
}

TEST(ZoneSurface, eachKindOfZoneHasOne)
{
    CgnsDescription::Zone block;
    block.vertices = {2, 2, 2};
    std::string obstacle;

    EXPECT_EQ(makeSurface(block, obstacle)->size(), 6U);
    EXPECT_EQ(sizeOf({tetrahedron}), "4");
    EXPECT_EQ(sizeOf({polygons, polyhedron}), "4");
}

TEST(ZoneSurface, whyItCannotBeWorkedOutIsTold)
{
    EXPECT_EQ(sizeOf({}), "has no cells");
    EXPECT_EQ(sizeOf({section(CGNS_ENUMV(TRI_3), 1, 1, {1, 2, 3})}), "has no cells");
    EXPECT_EQ(sizeOf({tetrahedron, polygons, polyhedron}), "has polyhedra and other cells beside them");
    EXPECT_EQ(sizeOf({polygons}), "has polygons, but does not say which cells they bound");
}

} // namespace
