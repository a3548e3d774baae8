#include "importers/cad/Imprint.h"

#include <BRepAlgoAPI_BuilderAlgo.hxx>
#include <BRepGProp.hxx>
#include <GProp_GProps.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_DataMapOfShapeInteger.hxx>
#include <TopTools_ListOfShape.hxx>
#include <TopTools_MapOfShape.hxx>
#include <gp_Pnt.hxx>

#include <algorithm>
#include <array>
#include <cmath>
#include <sstream>
#include <tuple>

namespace gtm::bundled {

namespace {

std::vector<TopoDS_Shape> piecesOf(const TopoDS_Shape& shape, BRepAlgoAPI_BuilderAlgo& fuse)
{
    const TopTools_ListOfShape& pieces = fuse.Modified(shape);
    if (pieces.IsEmpty())
        return {shape};
    return {pieces.begin(), pieces.end()};
}

/// The centre of a face, rounded: the last digits may differ where the kernel met two faces in another
/// order, and the order of pieces must not.
std::array<long long, 3> centreOf(const TopoDS_Shape& face)
{
    constexpr double steps = 1e6;
    GProp_GProps surface;
    BRepGProp::SurfaceProperties(face, surface);
    const gp_Pnt centre = surface.CentreOfMass();
    return {std::llround(centre.X() * steps), std::llround(centre.Y() * steps), std::llround(centre.Z() * steps)};
}

/// The faces of a piece of a solid. A face that cuts through the solid, because another one overlaps it,
/// has no origin in the solid and comes last.
std::vector<CadFace> facesOf(const TopoDS_Shape& piece, const CadSolid& solid, BRepAlgoAPI_BuilderAlgo& fuse)
{
    TopTools_DataMapOfShapeInteger origins;
    for (std::size_t i = 0; i < solid.faces.size(); ++i)
        for (const TopoDS_Shape& part : piecesOf(solid.faces[i].shape, fuse))
            origins.Bind(part, static_cast<int>(i));

    std::vector<CadFace> faces;
    for (TopExp_Explorer found(piece, TopAbs_FACE); found.More(); found.Next()) {
        const int* origin = origins.Seek(found.Current());
        const CadFace cut{{}, {}, solid.faces.size() + 1};
        const CadFace& from = origin ? solid.faces[static_cast<std::size_t>(*origin)] : cut;
        faces.push_back({found.Current(), from.name, from.number, from.color});
    }
    std::stable_sort(faces.begin(), faces.end(), [](const CadFace& a, const CadFace& b) {
        return a.number != b.number ? a.number < b.number : centreOf(a.shape) < centreOf(b.shape);
    });
    return faces;
}

std::size_t noOfDivided(const CadShapes& shapes, BRepAlgoAPI_BuilderAlgo& fuse)
{
    std::size_t count = 0;
    for (const CadSolid& solid : shapes.solids)
        count +=
            static_cast<std::size_t>(std::count_if(solid.faces.begin(), solid.faces.end(), [&](const CadFace& face) {
                return fuse.Modified(face.shape).Size() > 1;
            }));
    return count;
}

void fuseAll(const CadShapes& shapes, BRepAlgoAPI_BuilderAlgo& fuse)
{
    TopTools_ListOfShape arguments;
    for (const CadSolid& solid : shapes.solids)
        arguments.Append(solid.shape);
    fuse.SetArguments(arguments);
    fuse.SetNonDestructive(true);
    fuse.SetRunParallel(false);
    fuse.Build();
    if (!fuse.HasErrors())
        return;
    std::ostringstream reasons;
    fuse.DumpErrors(reasons);
    throw CadError("the solids cannot be imprinted on each other (" + reasons.str() +
                   "); repair the geometry, or read the file without imprinting.");
}

} // namespace

void imprint(CadShapes& shapes)
{
    if (shapes.solids.size() < 2)
        return;
    BRepAlgoAPI_BuilderAlgo fuse;
    fuseAll(shapes, fuse);
    std::vector<CadSolid> result;
    TopTools_MapOfShape taken;
    for (const CadSolid& solid : shapes.solids) {
        const std::vector<TopoDS_Shape> pieces = piecesOf(solid.shape, fuse);
        if (pieces.size() > 1)
            shapes.notes.push_back(inWords(solid) + " is divided into " + std::to_string(pieces.size()) +
                                   " bodies by imprinting.");
        for (const TopoDS_Shape& piece : pieces) {
            if (taken.Add(piece))
                result.push_back(
                    {piece, solid.name, solid.number, solid.part, facesOf(piece, solid, fuse), solid.color});
            else
                shapes.notes.push_back(inWords(solid) +
                                       " overlaps an earlier solid; the space in common is left to that one.");
        }
    }
    if (const std::size_t divided = noOfDivided(shapes, fuse); divided > 0)
        shapes.notes.push_back("Imprinting divided " + std::to_string(divided) + (divided == 1 ? " face" : " faces") +
                               " where bodies touch in part.");
    shapes.solids = std::move(result);
}

} // namespace gtm::bundled
