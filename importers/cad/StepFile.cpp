#include "importers/cad/StepFile.h"

#include "importers/RegionIds.h"

#include <Interface_Check.hxx>
#include <Interface_InterfaceModel.hxx>
#include <NCollection_DataMap.hxx>
#include <Quantity_Color.hxx>
#include <STEPCAFControl_Reader.hxx>
#include <StepData_StepModel.hxx>
#include <StepData_UndefinedEntity.hxx>
#include <StepDimTol_GeometricTolerance.hxx>
#include <StepRepr_RepresentationItem.hxx>
#include <StepShape_Face.hxx>
#include <StepShape_SolidModel.hxx>
#include <StepVisual_PresentationLayerAssignment.hxx>
#include <StepVisual_StyledItem.hxx>
#include <TCollection_AsciiString.hxx>
#include <TCollection_ExtendedString.hxx>
#include <TCollection_HAsciiString.hxx>
#include <TDF_Label.hxx>
#include <TDF_LabelSequence.hxx>
#include <TDataStd_Name.hxx>
#include <TDocStd_Document.hxx>
#include <TopLoc_Location.hxx>
#include <TopTools_ShapeMapHasher.hxx>
#include <TransferBRep.hxx>
#include <Transfer_TransientProcess.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <XSControl_TransferReader.hxx>
#include <XSControl_WorkSession.hxx>

#include <algorithm>
#include <sstream>
#include <string_view>

namespace gtm::bundled {

namespace {

constexpr std::string_view firstWord = "ISO-10303-21;";
constexpr std::string_view lastWord = "END-ISO-10303-21;";

std::string utf8(const TCollection_ExtendedString& text) { return TCollection_AsciiString(text).ToCString(); }

using ShapeTexts = NCollection_DataMap<TopoDS_Shape, std::string, TopTools_ShapeMapHasher>;

TopoDS_Shape withoutPlace(const TopoDS_Shape& shape) { return shape.Located(TopLoc_Location()); }

/// The names that the file gives to solids and faces themselves, by their shape without its place: a
/// product that is used several times names its faces once.
class ShapeNames {
public:
    explicit ShapeNames(STEPCAFControl_Reader& reader)
    {
        const Handle(StepData_StepModel) model = reader.ChangeReader().StepModel();
        const Handle(Transfer_TransientProcess) process = reader.Reader().WS()->TransferReader()->TransientProcess();
        for (int i = 1; i <= model->NbEntities(); ++i) {
            const auto item = Handle(StepRepr_RepresentationItem)::DownCast(model->Value(i));
            const bool mayHaveName =
                !item.IsNull() && !item->Name().IsNull() &&
                (item->IsKind(STANDARD_TYPE(StepShape_Face)) || item->IsKind(STANDARD_TYPE(StepShape_SolidModel)));
            if (!mayHaveName)
                continue;
            const TopoDS_Shape shape = TransferBRep::ShapeResult(process, item);
            if (!shape.IsNull())
                m_names.Bind(withoutPlace(shape), utf8(TCollection_ExtendedString(item->Name()->ToCString(), true)));
        }
    }

    std::string of(const TopoDS_Shape& shape) const
    {
        const std::string* name = m_names.Seek(withoutPlace(shape));
        return name ? *name : std::string();
    }

private:
    ShapeTexts m_names;
};

/// The colours that the file gives to products, solids and faces, by their shape without its place.
class ShapeColors {
public:
    explicit ShapeColors(const TDF_Label& main) : m_tool(XCAFDoc_DocumentTool::ColorTool(main))
    {
        TDF_LabelSequence products;
        XCAFDoc_DocumentTool::ShapeTool(main)->GetShapes(products);
        for (const TDF_Label& product : products) {
            add(product);
            TDF_LabelSequence pieces;
            XCAFDoc_ShapeTool::GetSubShapes(product, pieces);
            for (const TDF_Label& piece : pieces)
                add(piece);
        }
    }

    std::string of(const TopoDS_Shape& shape) const
    {
        const std::string* color = m_colors.Seek(withoutPlace(shape));
        return color ? *color : std::string();
    }

    std::size_t size() const { return static_cast<std::size_t>(m_colors.Extent()); }

private:
    void add(const TDF_Label& label)
    {
        Quantity_Color color;
        for (const XCAFDoc_ColorType type : {XCAFDoc_ColorSurf, XCAFDoc_ColorGen}) {
            if (m_tool->GetColor(label, type, color)) {
                m_colors.Bind(withoutPlace(XCAFDoc_ShapeTool::GetShape(label)), asText(color));
                return;
            }
        }
    }

    /// As the file says it: the kernel holds colours in another scale, and knows how to go back.
    static std::string asText(const Quantity_Color& color)
    {
        std::string text = Quantity_Color::ColorToHex(color).ToCString();
        std::transform(text.begin(), text.end(), text.begin(),
                       [](char c) { return c >= 'A' && c <= 'F' ? static_cast<char>(c - 'A' + 'a') : c; });
        return text;
    }

    Handle(XCAFDoc_ColorTool) m_tool;
    ShapeTexts m_colors;
};

/// Walks the products of a file from the assemblies down and collects their solids.
class ProductWalk {
public:
    ProductWalk(const ShapeNames& names, const ShapeColors& colors, CadShapes& shapes)
        : m_names(names), m_colors(colors), m_shapes(shapes)
    {}

    void walk(const TDF_Label& label) { walk(label, TopLoc_Location(), nullptr); }

    void noteOtherNames()
    {
        if (const std::string names = m_otherNames.text(); !names.empty())
            note("Left out, because bodies and parts are called as their products: " + names + ".");
    }

private:
    /// A product that may become a part: it does with the first body directly below it.
    struct Product {
        std::string name;
        std::string path; ///< its name behind those of the assemblies around it: "engine/stage"
        bool hasSolids;
        std::optional<std::size_t> part;
    };

    void walk(const TDF_Label& label, const TopLoc_Location& above, Product* assembly)
    {
        TDF_Label referred = label;
        TopLoc_Location place = above;
        if (XCAFDoc_ShapeTool::GetReferredShape(label, referred))
            place = above * XCAFDoc_ShapeTool::GetLocation(label);
        Product product{nameOf(referred), pathTo(referred, assembly), false, {}};
        countOtherName(nameOf(label), product, "name of an instance", "names of instances");
        if (!XCAFDoc_ShapeTool::IsAssembly(referred)) {
            addSolids(XCAFDoc_ShapeTool::GetShape(referred).Moved(place), product, assembly);
        } else {
            TDF_LabelSequence components;
            XCAFDoc_ShapeTool::GetComponents(referred, components);
            for (const TDF_Label& component : components)
                walk(component, place, &product);
            if (!product.hasSolids)
                note("Product \"" + product.name + "\" has no solid, so no part stands for it.");
        }
        if (assembly)
            assembly->hasSolids |= product.hasSolids;
    }

    static std::string pathTo(const TDF_Label& product, const Product* assembly)
    {
        const std::string name = nameOf(product);
        const bool isBelow = assembly && !assembly->path.empty();
        return isBelow && !name.empty() ? assembly->path + "/" + name : isBelow ? assembly->path : name;
    }

    static std::string nameOf(const TDF_Label& product)
    {
        Handle(TDataStd_Name) name;
        return product.FindAttribute(TDataStd_Name::GetID(), name) ? utf8(name->Get()) : std::string();
    }

    void countOtherName(const std::string& name, const Product& product, const char* one, const char* many)
    {
        if (name != product.name && !RegionIds::asId(name).empty())
            m_otherNames.add(one, many, 1);
    }

    void addSolids(const TopoDS_Shape& shape, Product& product, Product* assembly)
    {
        countLoose(shape, m_shapes.loose);
        const std::vector<TopoDS_Shape> solids = subShapes(shape, TopAbs_SOLID);
        Product* owner = solids.size() > 1 ? &product : assembly;
        const bool isOneSolid = solids.size() == 1 && !RegionIds::asId(product.name).empty();
        product.hasSolids = !solids.empty();
        for (const TopoDS_Shape& shapeOfSolid : solids) {
            CadSolid& solid = addSolid(shapeOfSolid, m_shapes);
            solid.name = isOneSolid ? product.name : m_names.of(shapeOfSolid);
            if (isOneSolid)
                countOtherName(m_names.of(shapeOfSolid), product, "name of a solid", "names of solids");
            if (owner)
                solid.part = partOf(*owner);
            solid.color = m_colors.of(shapeOfSolid);
            if (solid.color.empty())
                solid.color = m_colors.of(shape);
            for (CadFace& face : solid.faces) {
                face.name = m_names.of(face.shape);
                face.color = m_colors.of(face.shape);
            }
        }
    }

    std::size_t partOf(Product& product)
    {
        if (!product.part) {
            product.part = m_shapes.parts.size();
            m_shapes.parts.push_back(product.path);
        }
        return *product.part;
    }

    void note(const std::string& sentence) { m_shapes.notes.push_back(sentence); }

    const ShapeNames& m_names;
    const ShapeColors& m_colors;
    CadShapes& m_shapes;
    LeftOut m_otherNames;
};

/// What a STEP file may say besides shapes and names.
void noteOtherContent(const StepData_StepModel& model, std::size_t noOfColors, std::vector<std::string>& notes)
{
    LeftOut known;
    LeftOut unknown;
    std::size_t noOfStyles = 0;
    for (int i = 1; i <= model.NbEntities(); ++i) {
        const Handle(Standard_Transient)& entity = model.Value(i);
        if (entity->IsKind(STANDARD_TYPE(StepVisual_StyledItem)))
            ++noOfStyles;
        else if (entity->IsKind(STANDARD_TYPE(StepVisual_PresentationLayerAssignment)))
            known.add("layer", "layers", 1);
        else if (entity->IsKind(STANDARD_TYPE(StepDimTol_GeometricTolerance)))
            known.add("tolerance", "tolerances", 1);
        else if (const auto undefined = Handle(StepData_UndefinedEntity)::DownCast(entity); !undefined.IsNull())
            unknown.add(undefined->StepType(), undefined->StepType(), 1);
    }
    known.add("style", "styles", noOfStyles - std::min(noOfStyles, noOfColors));
    if (const std::string text = known.text(); !text.empty())
        notes.push_back("Left out, because a topology has no place for them: " + text + ".");
    if (const std::string text = unknown.text(); !text.empty())
        notes.push_back("Left out, because the reader does not know these kinds of entity: " + text + ".");
}

void refuseTruncated(const std::string& content)
{
    if (content.find(lastWord) == std::string::npos)
        throw CadError("the file ends before \"" + std::string(lastWord) +
                       "\", its last word; copy or export it again.");
}

/// The kernel puts a syntax error as "Undefined Parsing: Line 763: ...", sometimes one line too late.
void refuseBrokenGrammar(const StepData_StepModel& model)
{
    constexpr std::string_view mark = "Line ";
    const Handle(Interface_Check)& file = model.GlobalCheck();
    for (int i = 1; i <= file->NbFails(); ++i) {
        const std::string_view fail = file->CFail(i);
        if (const std::size_t at = fail.find(mark); at != std::string_view::npos)
            throw CadError("the file breaks the grammar of STEP near line " +
                           std::string(fail.substr(at + mark.size())) + "; export it again.");
    }
}

/// Shapes and products. Damage elsewhere, as in dates and approvals, does no harm.
bool isNeeded(const Standard_Transient& entity)
{
    const std::string_view type = entity.DynamicType()->Name();
    const auto beginsWith = [type](std::string_view start) { return type.substr(0, start.size()) == start; };
    return beginsWith("StepGeom_") || beginsWith("StepShape_") || beginsWith("StepRepr_") ||
           beginsWith("StepBasic_Product");
}

/// The kernel would go on and follow references that lead nowhere.
void refuseDamagedEntities(const StepData_StepModel& model)
{
    for (int i = 1; i <= model.NbEntities(); ++i) {
        const Handle(Standard_Transient)& entity = model.Value(i);
        if (model.IsErrorEntity(i) && isNeeded(*entity))
            throw CadError("entity " + std::string(model.StringLabel(entity)->ToCString()) + " (" +
                           entity->DynamicType()->Name() + ") is damaged: " + model.Check(i, true)->CFail(1) +
                           "; export the file again.");
    }
}

void transfer(STEPCAFControl_Reader& reader, const std::string& content, Handle(TDocStd_Document) & document)
{
    std::istringstream stream(content);
    if (reader.ChangeReader().ReadStream("STEP", stream) != IFSelect_RetDone)
        throw CadError("the file breaks the grammar of STEP and cannot be read; export it again.");
    refuseBrokenGrammar(*reader.ChangeReader().StepModel());
    refuseDamagedEntities(*reader.ChangeReader().StepModel());
    reader.SetColorMode(true);
    reader.SetLayerMode(false);
    reader.SetPropsMode(false);
    reader.SetSHUOMode(false);
    reader.SetGDTMode(false);
    reader.SetMatMode(false);
    reader.SetViewMode(false);
    if (reader.NbRootsForTransfer() == 0 || !reader.Transfer(document))
        throw CadError("the file has no product with a shape that can be read; export it again.");
}

} // namespace

bool isStep(const std::string& content)
{
    constexpr std::size_t headLength = 1024;
    return std::string_view(content).substr(0, headLength).find(firstWord) != std::string_view::npos;
}

CadShapes readStep(const std::string& content)
{
    refuseTruncated(content);
    Handle(TDocStd_Document) document = new TDocStd_Document("STEP");
    STEPCAFControl_Reader reader;
    transfer(reader, content, document);

    CadShapes shapes;
    const ShapeNames names(reader);
    const ShapeColors colors(document->Main());
    ProductWalk products(names, colors, shapes);
    TDF_LabelSequence top;
    XCAFDoc_DocumentTool::ShapeTool(document->Main())->GetFreeShapes(top);
    for (const TDF_Label& label : top)
        products.walk(label);
    products.noteOtherNames();
    noteOtherContent(*reader.ChangeReader().StepModel(), colors.size(), shapes.notes);
    return shapes;
}

} // namespace gtm::bundled
