#include "examples/geometry/NamedSolids.h"

#include <APIHeaderSection_MakeHeader.hxx>
#include <BRepAlgoAPI_BuilderAlgo.hxx>
#include <BRepBuilderAPI_MakeVertex.hxx>
#include <BRepExtrema_DistShapeShape.hxx>
#include <Interface_Static.hxx>
#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <STEPCAFControl_Controller.hxx>
#include <STEPCAFControl_Writer.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Document.hxx>
#include <TopAbs_ShapeEnum.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopTools_ListOfShape.hxx>
#include <TopTools_MapOfShape.hxx>
#include <TopoDS_Vertex.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <gp_Pnt.hxx>

#include <map>
#include <stdexcept>

namespace examples {

namespace {

constexpr double onTheFace = 1e-6;

/// Each sub-shape of a kind once, in the order of the shape.
std::vector<TopoDS_Shape> subShapes(const TopoDS_Shape& shape, TopAbs_ShapeEnum kind)
{
    TopTools_IndexedMapOfShape found;
    TopExp::MapShapes(shape, kind, found);
    std::vector<TopoDS_Shape> shapes;
    for (int i = 1; i <= found.Extent(); ++i)
        shapes.push_back(found(i));
    return shapes;
}

bool passesThrough(const TopoDS_Shape& face, const NamedFace& named)
{
    const TopoDS_Vertex point = BRepBuilderAPI_MakeVertex(gp_Pnt(named.x, named.y, named.z));
    return BRepExtrema_DistShapeShape(point, face).Value() < onTheFace;
}

TopoDS_Shape faceOf(const TopoDS_Shape& solid, const std::string& solidName, const NamedFace& named)
{
    TopoDS_Shape found;
    for (const TopoDS_Shape& face : subShapes(solid, TopAbs_FACE)) {
        if (!passesThrough(face, named))
            continue;
        if (!found.IsNull())
            throw std::runtime_error("The point of \"" + solidName + "/" + named.name + "\" lies on two faces.");
        found = face;
    }
    if (found.IsNull())
        throw std::runtime_error("The point of \"" + solidName + "/" + named.name + "\" lies on no face.");
    return found;
}

/// The solids as they are after touching faces were made common, in the same order.
std::vector<TopoDS_Shape> fitTogether(const std::vector<NamedSolid>& solids)
{
    BRepAlgoAPI_BuilderAlgo fuse;
    TopTools_ListOfShape arguments;
    for (const NamedSolid& solid : solids)
        arguments.Append(solid.shape);
    fuse.SetArguments(arguments);
    fuse.Build();
    std::vector<TopoDS_Shape> fitted;
    for (const NamedSolid& solid : solids) {
        const std::vector<TopoDS_Shape> before = subShapes(solid.shape, TopAbs_SOLID);
        if (fuse.HasErrors() || before.size() != 1 || fuse.Modified(before.front()).Size() > 1)
            throw std::runtime_error("The solid \"" + solid.name + "\" does not fit to the others.");
        const TopTools_ListOfShape& after = fuse.Modified(before.front());
        fitted.push_back(after.IsEmpty() ? before.front() : after.First());
    }
    return fitted;
}

/// The header tells when and where a file was written; ours must not change from run to run.
void fixHeader(STEPCAFControl_Writer& writer, const std::string& assembly)
{
    APIHeaderSection_MakeHeader header(writer.ChangeWriter().Model());
    const auto text = [](const char* value) { return new TCollection_HAsciiString(value); };
    header.SetName(text(assembly.c_str()));
    header.SetTimeStamp(text("2000-01-01T00:00:00"));
    header.SetAuthorValue(1, text(""));
    header.SetOrganizationValue(1, text(""));
    header.SetAuthorisation(text(""));
}

} // namespace

void writeStep(const std::filesystem::path& file, const std::string& assembly, const std::vector<NamedSolid>& solids)
{
    Message::DefaultMessenger()->ChangePrinters().Clear();
    const Handle(TDocStd_Document) document = new TDocStd_Document("example");
    const Handle(XCAFDoc_ShapeTool) shapes = XCAFDoc_DocumentTool::ShapeTool(document->Main());
    std::map<std::string, TDF_Label> assemblies;
    const auto assemblyOf = [&](const NamedSolid& solid) {
        const std::string& name = solid.assembly.empty() ? assembly : solid.assembly;
        const auto [entry, isNew] = assemblies.try_emplace(name);
        if (isNew) {
            entry->second = shapes->NewShape();
            TDataStd_Name::Set(entry->second, name.c_str());
        }
        return entry->second;
    };

    const std::vector<TopoDS_Shape> fitted = fitTogether(solids);
    TopTools_MapOfShape named;
    for (std::size_t i = 0; i < solids.size(); ++i) {
        const TDF_Label body = shapes->AddShape(fitted[i], false);
        TDataStd_Name::Set(body, solids[i].name.c_str());
        TDataStd_Name::Set(shapes->AddComponent(assemblyOf(solids[i]), body, TopLoc_Location()),
                           solids[i].name.c_str());
        for (const NamedFace& face : solids[i].faces) {
            const TopoDS_Shape shape = faceOf(fitted[i], solids[i].name, face);
            if (!named.Add(shape))
                throw std::runtime_error("A face of \"" + solids[i].name + "\" has two names.");
            TDataStd_Name::Set(shapes->AddSubShape(body, shape), face.name.c_str());
        }
        for (const TopoDS_Shape& face : subShapes(fitted[i], TopAbs_FACE))
            if (!named.Contains(face))
                throw std::runtime_error("A face of \"" + solids[i].name + "\" has no name.");
    }
    shapes->UpdateAssemblies();

    STEPCAFControl_Controller::Init();
    Interface_Static::SetIVal("write.stepcaf.subshapes.name", 1);
    Interface_Static::SetCVal("write.step.unit", "MM");
    Interface_Static::SetIVal("write.surfacecurve.mode", 0);
    STEPCAFControl_Writer writer;
    if (!writer.Transfer(document))
        throw std::runtime_error("The assembly \"" + assembly + "\" cannot be written as STEP.");
    fixHeader(writer, assembly);
    if (writer.Write(file.c_str()) != IFSelect_RetDone)
        throw std::runtime_error("Cannot write \"" + file.string() + "\".");
}

} // namespace examples
