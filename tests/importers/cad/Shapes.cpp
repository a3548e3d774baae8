#include "tests/importers/cad/Shapes.h"

#include <BRepBuilderAPI_Transform.hxx>
#include <BRepPrimAPI_MakeBox.hxx>
#include <BRepTools.hxx>
#include <BRep_Builder.hxx>
#include <Interface_Static.hxx>
#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <STEPCAFControl_Controller.hxx>
#include <STEPCAFControl_Writer.hxx>
#include <StepData_Protocol.hxx>
#include <StepData_StepModel.hxx>
#include <StepData_StepWriter.hxx>
#include <TCollection_ExtendedString.hxx>
#include <TDF_Label.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Document.hxx>
#include <TopExp_Explorer.hxx>
#include <TopLoc_Location.hxx>
#include <TopoDS_Compound.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <gp_Pnt.hxx>
#include <gp_Trsf.hxx>
#include <gp_Vec.hxx>

#include <sstream>

namespace cadtests {

TopoDS_Shape box(const Point& from, const Point& to)
{
    return BRepPrimAPI_MakeBox(gp_Pnt(from.x, from.y, from.z), gp_Pnt(to.x, to.y, to.z)).Shape();
}

TopoDS_Shape compound(const std::vector<TopoDS_Shape>& shapes)
{
    TopoDS_Compound all;
    BRep_Builder builder;
    builder.MakeCompound(all);
    for (const TopoDS_Shape& shape : shapes)
        builder.Add(all, shape);
    return all;
}

TopoDS_Shape shifted(const TopoDS_Shape& shape, double x)
{
    gp_Trsf move;
    move.SetTranslation(gp_Vec(x, 0, 0));
    return shape.Moved(TopLoc_Location(move));
}

TopoDS_Shape first(const TopoDS_Shape& shape, TopAbs_ShapeEnum kind) { return TopExp_Explorer(shape, kind).Current(); }

std::string brepOf(const TopoDS_Shape& shape)
{
    std::ostringstream content;
    BRepTools::Write(shape, content);
    return content.str();
}

std::string stepOf(const std::function<void(XCAFDoc_ShapeTool&)>& fill)
{
    Message::DefaultMessenger()->ChangePrinters().Clear();
    const Handle(TDocStd_Document) document = new TDocStd_Document("test");
    const Handle(XCAFDoc_ShapeTool) tool = XCAFDoc_DocumentTool::ShapeTool(document->Main());
    fill(*tool);
    tool->UpdateAssemblies();

    STEPCAFControl_Controller::Init();
    Interface_Static::SetIVal("write.stepcaf.subshapes.name", 1);
    STEPCAFControl_Writer writer;
    writer.Transfer(document);
    const Handle(StepData_StepModel) model = writer.ChangeWriter().Model();
    StepData_StepWriter text(model);
    text.SendModel(Handle(StepData_Protocol)::DownCast(model->Protocol()));
    std::ostringstream content;
    text.Print(content);
    return content.str();
}

TDF_Label product(XCAFDoc_ShapeTool& tool, const TopoDS_Shape& shape, const std::string& name)
{
    const TDF_Label label = tool.AddShape(shape, false);
    TDataStd_Name::Set(label, name.c_str());
    return label;
}

TDF_Label assembly(XCAFDoc_ShapeTool& tool, const std::string& name)
{
    const TDF_Label label = tool.NewShape();
    TDataStd_Name::Set(label, name.c_str());
    return label;
}

void addTo(XCAFDoc_ShapeTool& tool, const TDF_Label& assembly, const TDF_Label& product, const TopLoc_Location& place,
           const std::string& name)
{
    Handle(TDataStd_Name) own;
    product.FindAttribute(TDataStd_Name::GetID(), own);
    const TCollection_ExtendedString given = name.empty() ? own->Get() : TCollection_ExtendedString(name.c_str());
    TDataStd_Name::Set(tool.AddComponent(assembly, product, place), given);
}

void nameSubShape(XCAFDoc_ShapeTool& tool, const TDF_Label& product, const TopoDS_Shape& shape, const std::string& name)
{
    TDataStd_Name::Set(tool.AddSubShape(product, shape), name.c_str());
}

} // namespace cadtests
