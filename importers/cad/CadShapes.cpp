#include "importers/cad/CadShapes.h"

#include "importers/cad/Measures.h"

#include <BRepLib.hxx>
#include <BRep_Tool.hxx>
#include <TopExp.hxx>
#include <TopExp_Explorer.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS.hxx>
#include <TopoDS_Solid.hxx>

#include <algorithm>

namespace gtm::bundled {

namespace {

bool isClosed(const TopoDS_Shape& solid)
{
    const std::vector<TopoDS_Shape> shells = subShapes(solid, TopAbs_SHELL);
    return !shells.empty() && std::all_of(shells.begin(), shells.end(),
                                          [](const TopoDS_Shape& shell) { return BRep_Tool::IsClosed(shell); });
}

/// Whether the orientations of the solid's faces say the opposite of what encloses space.
bool isInsideOut(const CadSolid& solid, std::vector<std::string>& notes)
{
    TopoDS_Solid turned = TopoDS::Solid(solid.shape);
    if (!isClosed(turned) || !BRepLib::OrientClosedSolid(turned)) {
        notes.push_back(inWords(solid) + " encloses no space: its faces leave gaps, or cross each other.");
        return false;
    }
    if (turned.Orientation() == solid.shape.Orientation())
        return false;
    notes.push_back(inWords(solid) + " is inside out in the file; it was turned.");
    return true;
}

/// A face inside the solid has the solid on both sides.
void addUses(const CadFace& face, std::size_t body, bool turned, CadDescription::Face& described)
{
    const TopAbs_Orientation orientation = face.shape.Orientation();
    if (orientation == TopAbs_FORWARD || orientation == TopAbs_REVERSED) {
        described.uses.push_back({body, face.name, face.number, (orientation == TopAbs_FORWARD) != turned});
        return;
    }
    described.uses.push_back({body, face.name, face.number, true});
    described.uses.push_back({body, face.name, face.number, false});
}

CadDescription::Face measured(const CadFace& face, std::optional<double> triangleTolerance)
{
    CadDescription::Face described;
    described.facts = factsOf(face.shape);
    if (triangleTolerance)
        described.triangles = trianglesOf(face.shape, *triangleTolerance);
    return described;
}

} // namespace

std::vector<TopoDS_Shape> subShapes(const TopoDS_Shape& shape, TopAbs_ShapeEnum kind)
{
    TopTools_IndexedMapOfShape found;
    TopExp::MapShapes(shape, kind, found);
    std::vector<TopoDS_Shape> shapes;
    for (int i = 1; i <= found.Extent(); ++i)
        shapes.push_back(found(i));
    return shapes;
}

CadSolid& addSolid(const TopoDS_Shape& shape, CadShapes& shapes)
{
    CadSolid& solid = shapes.solids.emplace_back();
    solid.shape = shape;
    solid.number = shapes.solids.size();
    for (TopExp_Explorer faces(shape, TopAbs_FACE); faces.More(); faces.Next())
        solid.faces.push_back({faces.Current(), {}, solid.faces.size() + 1});
    return solid;
}

std::string inWords(const CadSolid& solid)
{
    return "Solid " + std::to_string(solid.number) + (solid.name.empty() ? "" : " (\"" + solid.name + "\")");
}

void countLoose(const TopoDS_Shape& shape, LeftOut& loose)
{
    struct Kind {
        TopAbs_ShapeEnum kind;
        TopAbs_ShapeEnum owner;
        const char* one;
        const char* many;
    };
    constexpr Kind kinds[] = {{TopAbs_SHELL, TopAbs_SOLID, "shell", "shells"},
                              {TopAbs_FACE, TopAbs_SHELL, "face", "faces"},
                              {TopAbs_WIRE, TopAbs_FACE, "wire", "wires"},
                              {TopAbs_EDGE, TopAbs_WIRE, "edge", "edges"},
                              {TopAbs_VERTEX, TopAbs_EDGE, "vertex", "vertices"}};
    for (const Kind& kind : kinds) {
        std::size_t count = 0;
        for (TopExp_Explorer found(shape, kind.kind, kind.owner); found.More(); found.Next())
            ++count;
        loose.add(kind.one, kind.many, count);
    }
}

CadDescription describe(const CadShapes& shapes, std::optional<double> triangleTolerance)
{
    CadDescription description{shapes.parts, {}, {}, shapes.notes};
    LeftOut loose = shapes.loose;
    TopTools_IndexedMapOfShape known;
    for (std::size_t body = 0; body < shapes.solids.size(); ++body) {
        const CadSolid& solid = shapes.solids[body];
        const bool turned = isInsideOut(solid, description.notes);
        description.bodies.push_back({solid.name, solid.number, solid.part, {volumeOf(solid.shape), solid.color}});
        for (const CadFace& face : solid.faces) {
            if (face.shape.Orientation() == TopAbs_EXTERNAL) {
                loose.add("face", "faces", 1);
                continue;
            }
            const auto index = static_cast<std::size_t>(known.Add(face.shape));
            if (index > description.faces.size())
                description.faces.push_back(measured(face, triangleTolerance));
            CadDescription::Face& described = description.faces[index - 1];
            if (described.facts.color.empty())
                described.facts.color = face.color;
            addUses(face, body, turned, described);
        }
    }
    if (const std::string text = loose.text(); !text.empty())
        description.notes.push_back("Left out, because they bound no solid: " + text + ".");
    return description;
}

} // namespace gtm::bundled
