#include "importers/cgns/VertexFaces.h"

#include <gtest/gtest.h>

namespace {

using gtm::bundled::VertexFaces;
using Numbers = std::vector<std::int64_t>;
using Faces = std::vector<std::size_t>;

TEST(VertexFaces, aFaceStandsOnTheVerticesWhenAllItsCornersAreAmongThem)
{
    const std::vector<Numbers> corners = {{1, 2, 3}, {2, 3, 4, 5}, {1, 2, 3, 4, 5}};
    const VertexFaces faces(6, corners.size(), [&](std::size_t face) { return std::span(corners[face]); });

    EXPECT_EQ(faces.facesOn({}), Faces{});
    EXPECT_EQ(faces.facesOn({1, 2, 6}), Faces{});
    EXPECT_EQ(faces.facesOn({1, 2, 3}), Faces{0});
    EXPECT_EQ(faces.facesOn({2, 3, 4, 5}), Faces{1});
    EXPECT_EQ(faces.facesOn({1, 2, 3, 4, 5, 6}), (Faces{0, 1, 2}));
}

} // namespace
