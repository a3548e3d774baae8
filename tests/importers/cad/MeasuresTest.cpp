#include "importers/cad/Measures.h"

#include "importers/cad/CadReader.h"
#include "tests/importers/cad/Listing.h"
#include "tests/importers/cad/Shapes.h"

#include <BRepPrimAPI_MakeSphere.hxx>
#include <gp_Pnt.hxx>
#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace {

using cadtests::box;
using cadtests::brepOf;
using cadtests::compound;
using cadtests::first;
using cadtests::TemporaryFile;
using gtm::bundled::CadOptions;
using gtm::bundled::CadResult;
using gtm::bundled::CadTriangles;
using gtm::bundled::factsOf;
using gtm::bundled::readCad;
using gtm::bundled::volumeOf;
using Point = std::array<double, 3>;

Point minus(const Point& a, const Point& b) { return {a[0] - b[0], a[1] - b[1], a[2] - b[2]}; }

Point cross(const Point& a, const Point& b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

double dot(const Point& a, const Point& b) { return a[0] * b[0] + a[1] * b[1] + a[2] * b[2]; }

/// Six times the volume that triangles with outward normals enclose, seen from the origin.
double enclosedBy(const std::vector<CadTriangles>& faces)
{
    double volume = 0;
    for (const CadTriangles& face : faces)
        for (const auto& [a, b, c] : face.triangles)
            volume += dot(face.points[a], cross(face.points[b], face.points[c]));
    return volume;
}

double areaOf(const CadTriangles& face)
{
    double area = 0;
    for (const auto& [a, b, c] : face.triangles) {
        const Point normal = cross(minus(face.points[b], face.points[a]), minus(face.points[c], face.points[a]));
        area += std::sqrt(dot(normal, normal)) / 2;
    }
    return area;
}

CadResult triangulated(const TopoDS_Shape& shape, double tolerance)
{
    const TemporaryFile file(brepOf(shape));
    CadOptions options;
    options.triangleTolerance = tolerance;
    return readCad(file.path(), options);
}

TEST(Measures, aBoxHasTheVolumeAndAreasOfItsEdges)
{
    const TopoDS_Shape shape = box({1, 0, 0}, {3, 3, 5});

    EXPECT_EQ(volumeOf(shape), 30);
    EXPECT_EQ(factsOf(first(shape, TopAbs_FACE)).area, 15);
    EXPECT_EQ(factsOf(first(shape, TopAbs_FACE)).centroid, (Point{1, 1.5, 2.5}));
}

TEST(Measures, aNumberIsRoundedToNineDigits)
{
    const TopoDS_Shape ball = BRepPrimAPI_MakeSphere(gp_Pnt(0, 0, 0), 1).Shape();

    EXPECT_EQ(volumeOf(ball), 4.18879020); // 4/3 pi
    EXPECT_EQ(factsOf(first(ball, TopAbs_FACE)).area, 12.5663706);
    EXPECT_EQ(factsOf(first(ball, TopAbs_FACE)).centroid, (Point{0, 0, 0}));
}

TEST(Measures, theReaderTellsThemOfBodiesAndFaces)
{
    const TemporaryFile file(brepOf(compound({box({0, 0, 0}, {1, 1, 1}), box({5, 0, 0}, {7, 1, 1})})));

    const CadResult result = readCad(file.path());

    EXPECT_EQ(result.model->facts(result.model->bodies()[1]).volume, 2);
    EXPECT_EQ(result.model->facts(result.model->faces()[0]).area, 1);
    EXPECT_EQ(result.model->facts(result.model->faces()[0]).centroid, (Point{0, 0.5, 0.5}));
    EXPECT_TRUE(result.triangles.empty());
}

TEST(Measures, theTrianglesOfABodyLookOutwards)
{
    const CadResult result = triangulated(box({1, 1, 1}, {2, 3, 4}), 0.1);

    ASSERT_EQ(result.triangles.size(), 6U);
    EXPECT_EQ(result.triangles[0].face, "body-1/face-1");
    EXPECT_NEAR(areaOf(result.triangles[0]), 6, 1e-12);
    EXPECT_NEAR(enclosedBy(result.triangles) / 6, 6, 1e-12);
}

TEST(Measures, trianglesAreAsNearToTheFaceAsWasAskedFor)
{
    const TopoDS_Shape ball = BRepPrimAPI_MakeSphere(gp_Pnt(0, 0, 0), 1).Shape();

    const CadResult coarse = triangulated(ball, 0.1);
    const CadResult fine = triangulated(ball, 0.001);

    ASSERT_EQ(fine.triangles.size(), 1U);
    EXPECT_NEAR(enclosedBy(fine.triangles) / 6, 4.18879020, 0.02);
    EXPECT_GT(fine.triangles[0].triangles.size(), coarse.triangles[0].triangles.size());
}

} // namespace
