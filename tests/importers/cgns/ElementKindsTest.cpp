#include "importers/cgns/ElementKinds.h"

#include <cgnslib.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <utility>

namespace {

using gtm::bundled::elementKind;
using gtm::bundled::ElementKind;

TEST(ElementKinds, eachTypeHasAsManyNodesAsTheFileLibrarySays)
{
    for (int type = CGNS_ENUMV(NODE); type <= CGNS_ENUMV(HEXA_125); ++type) {
        int noOfNodes = 0;
        ASSERT_EQ(cg_npe(static_cast<CGNS_ENUMT(ElementType_t)>(type), &noOfNodes), CG_OK) << type;
        const ElementKind* kind = elementKind(type);
        EXPECT_EQ(kind ? static_cast<int>(kind->noOfNodes) : 0, std::max(noOfNodes, 0)) << type;
    }
}

TEST(ElementKinds, typesWithoutAFixedNumberOfNodesAndUnknownOnesAreNotKnown)
{
    EXPECT_EQ(elementKind(CGNS_ENUMV(MIXED)), nullptr);
    EXPECT_EQ(elementKind(CGNS_ENUMV(NGON_n)), nullptr);
    EXPECT_EQ(elementKind(CGNS_ENUMV(NFACE_n)), nullptr);
    EXPECT_EQ(elementKind(-1), nullptr);
    EXPECT_EQ(elementKind(99), nullptr);
}

TEST(ElementKinds, theFacesOfAVolumeCloseItAndAllLookOutward)
{
    for (int type = CGNS_ENUMV(NODE); type <= CGNS_ENUMV(HEXA_125); ++type) {
        const ElementKind* kind = elementKind(type);
        if (!kind || !kind->isVolume) {
            continue;
        }
        std::map<std::pair<std::size_t, std::size_t>, int> edges;
        for (const std::vector<std::size_t>& face : kind->faces) {
            for (std::size_t i = 0; i < face.size(); ++i) {
                ++edges[{face[i], face[(i + 1) % face.size()]}];
            }
        }
        // Two faces meet in each edge, and run through it in opposite directions.
        for (const auto& [edge, count] : edges) {
            EXPECT_EQ(count, 1) << type;
            EXPECT_EQ(edges.count({edge.second, edge.first}), 1U) << type;
        }
        EXPECT_GE(edges.size(), 12U) << type;
    }
}

} // namespace
