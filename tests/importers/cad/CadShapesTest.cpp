#include "importers/cad/CadShapes.h"

#include "importers/cad/BrepFile.h"
#include "importers/cad/Imprint.h"
#include "importers/cad/StepFile.h"
#include "tests/importers/cad/Listing.h"
#include "tests/importers/cad/Shapes.h"

#include <BOPTools_AlgoTools3D.hxx>
#include <BRepClass3d_SolidClassifier.hxx>
#include <BRep_Builder.hxx>
#include <BRep_Tool.hxx>
#include <IntTools_Context.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Face.hxx>
#include <TopoDS_Shell.hxx>
#include <TopoDS_Solid.hxx>
#include <gp_Dir.hxx>
#include <gp_Pnt.hxx>
#include <gp_Pnt2d.hxx>
#include <gp_Vec.hxx>
#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <utility>

namespace {

using cadtests::box;
using cadtests::compound;
using gtm::bundled::addSolid;
using gtm::bundled::CadDescription;
using gtm::bundled::CadFace;
using gtm::bundled::CadShapes;
using gtm::bundled::CadSolid;
using gtm::bundled::describe;
using Strings = std::vector<std::string>;

CadShapes shapesOf(const std::vector<TopoDS_Shape>& solids)
{
    CadShapes shapes;
    for (const TopoDS_Shape& solid : solids)
        addSolid(solid, shapes);
    return shapes;
}

/// Asks the geometry, not the topology: is a point just in front of the face, where its surface's normal
/// points, outside the solid and one just behind it inside?
bool normalPointsOut(const TopoDS_Face& face, const TopoDS_Shape& solid)
{
    constexpr double step = 1e-3;
    const Handle(IntTools_Context) context = new IntTools_Context;
    gp_Pnt point;
    gp_Pnt2d parameters;
    BOPTools_AlgoTools3D::PointInFace(face, point, parameters, context);
    gp_Dir normal;
    BOPTools_AlgoTools3D::GetNormalToSurface(BRep_Tool::Surface(face), parameters.X(), parameters.Y(), normal);
    const auto isInside = [&](double distance) {
        BRepClass3d_SolidClassifier where(solid, point.Translated(gp_Vec(normal) * distance), 1e-7);
        return where.State() == TopAbs_IN;
    };
    EXPECT_NE(isInside(step), isInside(-step)) << "the face does not bound the solid";
    return isInside(-step);
}

/// What the description says about each face of each solid, by body and number of the face.
std::map<std::pair<std::size_t, std::size_t>, bool> outwardUses(const CadDescription& description)
{
    std::map<std::pair<std::size_t, std::size_t>, bool> uses;
    for (const CadDescription::Face& face : description.faces)
        for (const CadDescription::FaceUse& use : face.uses)
            uses[{use.body, use.number}] = use.outward;
    return uses;
}

std::size_t expectOutwardAsTheGeometrySays(const CadShapes& shapes)
{
    const auto uses = outwardUses(describe(shapes));
    std::size_t count = 0;
    for (std::size_t body = 0; body < shapes.solids.size(); ++body) {
        const CadSolid& solid = shapes.solids[body];
        for (const CadFace& face : solid.faces) {
            EXPECT_EQ(uses.at({body, face.number}), normalPointsOut(TopoDS::Face(face.shape), solid.shape))
                << inWords(solid) << ", face " << face.number;
            ++count;
        }
    }
    return count;
}

TEST(CadShapes, theSidesOfFacesAreThoseOfTheGeometryInABrepFile)
{
    const std::filesystem::path file = std::filesystem::path(PHYSICS_TEST_DATA) / "brep/test_brep_file.brep";
    if (!std::filesystem::exists(file))
        GTEST_SKIP() << "no file " << file;
    const CadShapes shapes = gtm::bundled::readBrep(cadtests::contentOf(file));

    EXPECT_EQ(expectOutwardAsTheGeometrySays(shapes), 36U);
}

TEST(CadShapes, theSidesOfFacesAreThoseOfTheGeometryInAnImprintedStepFile)
{
    CadShapes shapes = gtm::bundled::readStep(cadtests::contentOf(PHYSICS_EXAMPLES "/heat_exchanger.step"));
    imprint(shapes);

    EXPECT_EQ(expectOutwardAsTheGeometrySays(shapes), 22U);
}

TEST(CadShapes, aSolidThatIsInsideOutIsTurned)
{
    const TopoDS_Shape solid = box({0, 0, 0}, {1, 1, 1});

    const CadDescription description = describe(shapesOf({solid.Reversed()}));

    EXPECT_EQ(outwardUses(description), outwardUses(describe(shapesOf({solid}))));
    EXPECT_EQ(description.notes, (Strings{"Solid 1 is inside out in the file; it was turned."}));
}

TEST(CadShapes, aFaceInsideASolidHasTheSolidOnBothSides)
{
    const TopoDS_Shape solid = box({0, 0, 0}, {4, 4, 4});
    TopoDS_Shape shell = cadtests::first(solid, TopAbs_SHELL);
    shell.Free(true);
    const TopoDS_Shape baffle = cadtests::first(box({2, 1, 1}, {3, 3, 3}), TopAbs_FACE);
    BRep_Builder().Add(shell, baffle.Oriented(TopAbs_INTERNAL));

    const CadDescription description = describe(shapesOf({solid}));

    ASSERT_EQ(description.faces.size(), 7U);
    const std::vector<CadDescription::FaceUse>& uses = description.faces.back().uses;
    ASSERT_EQ(uses.size(), 2U);
    EXPECT_EQ(uses[0].body, uses[1].body);
    EXPECT_NE(uses[0].outward, uses[1].outward);
}

TEST(CadShapes, aSolidWithAGapIsTold)
{

    BRep_Builder builder;
    TopoDS_Shell open;
    builder.MakeShell(open);
    builder.Add(open, cadtests::first(box({0, 0, 0}, {1, 1, 1}), TopAbs_FACE));
    TopoDS_Solid solid;
    builder.MakeSolid(solid);
    builder.Add(solid, open);
    CadShapes shapes = shapesOf({solid});
    shapes.solids.front().name = "leak";

    EXPECT_EQ(describe(shapes).notes,
              (Strings{"Solid 1 (\"leak\") encloses no space: its faces leave gaps, or cross each other."}));
}

TEST(CadShapes, geometryThatBoundsNoSolidIsCountedByItsLargestPieces)
{
    const TopoDS_Shape spare = box({5, 0, 0}, {6, 1, 1});
    gtm::bundled::LeftOut loose;

    countLoose(compound({box({0, 0, 0}, {1, 1, 1}), cadtests::first(spare, TopAbs_SHELL),
                         cadtests::first(spare, TopAbs_FACE), cadtests::first(spare, TopAbs_WIRE),
                         cadtests::first(spare, TopAbs_EDGE), cadtests::first(spare, TopAbs_VERTEX)}),
               loose);

    EXPECT_EQ(loose.text(), "1 shell, 1 face, 1 wire, 1 edge and 1 vertex");
}

} // namespace
