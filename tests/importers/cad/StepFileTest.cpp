#include "importers/cad/StepFile.h"

#include "importers/cad/CadDescription.h"
#include "tests/importers/cad/Listing.h"
#include "tests/importers/cad/Shapes.h"
#include "tests/importers/cad/StepText.h"

#include <Quantity_Color.hxx>
#include <TDF_Label.hxx>
#include <TopExp_Explorer.hxx>
#include <TopLoc_Location.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <gtest/gtest.h>

#include <map>

namespace {

using cadtests::addTo;
using cadtests::assembly;
using cadtests::box;
using cadtests::compound;
using cadtests::first;
using cadtests::listingOf;
using cadtests::nameSubShape;
using cadtests::product;
using cadtests::replaced;
using cadtests::shifted;
using cadtests::stepOf;
using gtm::bundled::buildModel;
using gtm::bundled::CadResult;
using gtm::bundled::readStep;
using Strings = std::vector<std::string>;

CadResult read(const std::string& content) { return buildModel(describe(readStep(content))); }

/// The lines of a listing that tell of bodies.
std::string bodiesOf(const CadResult& result)
{
    const std::string listing = listingOf(*result.model);
    return listing.substr(0, listing.find("face "));
}

/// The kernel's writer gives solids names of its own choice.
std::string withSolidsCalled(const std::string& name, std::string content)
{
    const std::string solid = "MANIFOLD_SOLID_BREP('";
    for (std::size_t at = content.find(solid); at != std::string::npos; at = content.find(solid, at + 1)) {
        const std::size_t begin = at + solid.size();
        content.replace(begin, content.find('\'', begin) - begin, name);
    }
    return content;
}

std::string boxCalled(const std::string& name)
{
    const std::string content = stepOf([](XCAFDoc_ShapeTool& tool) {
        const TopoDS_Shape shape = box({0, 0, 0}, {1, 1, 1});
        const TDF_Label block = product(tool, shape, "block");
        nameSubShape(tool, block, first(shape, TopAbs_FACE), "inlet");
    });
    return replaced(content, "PRODUCT('block','block'", "PRODUCT('block','" + name + "'");
}

TEST(StepFile, aProductWithOneSolidIsABody)
{
    const CadResult result = read(boxCalled("block"));

    EXPECT_EQ(listingOf(*result.model), "body block\n"
                                        "face block/inlet: block\n"
                                        "face block/face-2: block\n"
                                        "face block/face-3: block\n"
                                        "face block/face-4: block\n"
                                        "face block/face-5: block\n"
                                        "face block/face-6: block\n");
    EXPECT_TRUE(result.notes.empty());
}

TEST(StepFile, anAssemblyIsAPartAndEachUseOfAProductABody)
{
    const std::string content = stepOf([](XCAFDoc_ShapeTool& tool) {
        const TopoDS_Shape shape = box({0, 0, 0}, {1, 1, 1});
        const TDF_Label rotor = assembly(tool, "rotor");
        const TDF_Label blade = product(tool, shape, "blade");
        nameSubShape(tool, blade, first(shape, TopAbs_FACE), "root");
        addTo(tool, rotor, blade, TopLoc_Location());
        addTo(tool, rotor, blade, shifted(shape, 5).Location());
    });

    const CadResult result = read(content);

    EXPECT_EQ(bodiesOf(result), "body blade in rotor\nbody blade-2 in rotor\n");
    EXPECT_TRUE(listingOf(*result.model).find("face blade/root: ") != std::string::npos);
    EXPECT_TRUE(listingOf(*result.model).find("face blade-2/root: ") != std::string::npos);
    EXPECT_EQ(result.model->faces().size(), 12U);
    EXPECT_EQ(result.notes, (Strings{"Body \"blade\" is called \"blade-2\" here, because \"blade\" is taken."}));
}

TEST(StepFile, aProductWithSeveralSolidsIsAPart)
{
    const std::string content = stepOf([](XCAFDoc_ShapeTool& tool) {
        const TopoDS_Shape left = box({0, 0, 0}, {1, 1, 1});
        const TopoDS_Shape right = box({5, 0, 0}, {6, 1, 1});
        const TDF_Label pair = product(tool, compound({left, right}), "pair");
        nameSubShape(tool, pair, right, "right");
    });

    const CadResult result = read(content);

    EXPECT_EQ(bodiesOf(result), "body body-1 in pair\nbody right in pair\n");
}

TEST(StepFile, nestedAssembliesArePartsCalledByTheWayToThem)
{
    const std::string content = stepOf([](XCAFDoc_ShapeTool& tool) {
        const TDF_Label engine = assembly(tool, "engine");
        const TDF_Label stage = assembly(tool, "stage");
        addTo(tool, stage, product(tool, box({0, 0, 0}, {1, 1, 1}), "rotor"), TopLoc_Location());
        addTo(tool, engine, stage, TopLoc_Location());
    });

    const CadResult result = read(withSolidsCalled("", content));

    EXPECT_EQ(bodiesOf(result), "body rotor in engine/stage\n");
    EXPECT_TRUE(result.notes.empty());
}

TEST(StepFile, namesBesideThoseOfProductsAreToldAsLeftOut)
{
    const std::string content = stepOf([](XCAFDoc_ShapeTool& tool) {
        const TopoDS_Shape shape = box({0, 0, 0}, {1, 1, 1});
        const TDF_Label rotor = assembly(tool, "rotor");
        const TDF_Label blade = product(tool, shape, "blade");
        addTo(tool, rotor, blade, TopLoc_Location(), "first blade");
        addTo(tool, rotor, blade, shifted(shape, 5).Location());
    });

    const CadResult result = read(withSolidsCalled("Body1", content));

    EXPECT_EQ(result.notes, (Strings{"Left out, because bodies and parts are called as their products: 1 name of an "
                                     "instance and 2 names of solids.",
                                     "Body \"blade\" is called \"blade-2\" here, because \"blade\" is taken."}));
}

TEST(StepFile, anAssemblyWithoutSolidsIsToldAsLeftOut)
{
    const std::string content = stepOf([](XCAFDoc_ShapeTool& tool) {
        const TDF_Label engine = assembly(tool, "engine");
        const TDF_Label trim = assembly(tool, "trim");
        addTo(tool, trim, product(tool, first(box({0, 0, 0}, {1, 1, 1}), TopAbs_SHELL), "skin"), TopLoc_Location());
        addTo(tool, engine, trim, TopLoc_Location());
        addTo(tool, engine, product(tool, box({5, 0, 0}, {6, 1, 1}), "rotor"), TopLoc_Location());
    });

    const CadResult result = read(withSolidsCalled("", content));

    EXPECT_EQ(bodiesOf(result), "body rotor in engine\n");
    EXPECT_EQ(result.notes, (Strings{"Product \"trim\" has no solid, so no part stands for it.",
                                     "Left out, because they bound no solid: 1 shell."}));
}

TEST(StepFile, coloursOfProductsAndFacesArrive)
{
    const std::string content = stepOf([](XCAFDoc_ShapeTool& tool) {
        const TopoDS_Shape shape = box({0, 0, 0}, {1, 1, 1});
        const TDF_Label block = product(tool, shape, "block");
        const TDF_Label face = tool.AddSubShape(block, first(shape, TopAbs_FACE));
        const auto colors = XCAFDoc_DocumentTool::ColorTool(block);
        colors->SetColor(block, Quantity_Color(Quantity_NOC_RED), XCAFDoc_ColorSurf);
        colors->SetColor(face, Quantity_Color(Quantity_NOC_BLUE), XCAFDoc_ColorSurf);
    });

    const CadResult result = read(content);

    EXPECT_EQ(result.model->facts(result.model->bodies()[0]).color, "#ff0000");
    EXPECT_EQ(result.model->facts(result.model->faces()[0]).color, "#0000ff");
    EXPECT_EQ(result.model->facts(result.model->faces()[1]).color, "");
    EXPECT_TRUE(result.notes.empty());
}

TEST(StepFile, entitiesOfUnknownKindAreToldAsLeftOut)
{
    const std::string content =
        replaced(boxCalled("block"), "ENDSEC;\nEND-ISO", "#9999 = FLUX_CAPACITOR('',1.21);\nENDSEC;\nEND-ISO");

    EXPECT_EQ(read(content).notes,
              (Strings{"Left out, because the reader does not know these kinds of entity: 1 FLUX_CAPACITOR."}));
}

TEST(StepFile, surfacesBesideSolidsAreToldAsLeftOut)
{
    const std::string content = stepOf([](XCAFDoc_ShapeTool& tool) {
        const TDF_Label all = assembly(tool, "all");
        const TopoDS_Shape spare = box({5, 0, 0}, {6, 1, 1});
        addTo(tool, all, product(tool, box({0, 0, 0}, {1, 1, 1}), "block"), TopLoc_Location());
        addTo(tool, all, product(tool, first(spare, TopAbs_SHELL), "skin"), TopLoc_Location());
    });

    const CadResult result = read(content);

    EXPECT_EQ(bodiesOf(result), "body block in all\n");
    EXPECT_EQ(result.notes, (Strings{"Left out, because they bound no solid: 1 shell."}));
}

TEST(StepFile, namesInOtherAlphabetsArrive)
{
    EXPECT_EQ(bodiesOf(read(boxCalled("K\\X2\\00FC\\X0\\hlmittel \\X2\\51B7\\X0\\"))), "body Kühlmittel 冷\n");
    EXPECT_EQ(bodiesOf(read(boxCalled("Kühlmittel"))), "body Kühlmittel\n");
    EXPECT_EQ(bodiesOf(read(boxCalled("inner \\\\ ''wall''"))), "body inner \\ 'wall'\n");
}

TEST(StepFile, aNameThatCannotBeAnIdIsMappedAndTold)
{
    const CadResult result = read(boxCalled(" water, cold "));

    EXPECT_EQ(bodiesOf(result), "body water_ cold\n");
    EXPECT_EQ(result.notes,
              (Strings{"Body \" water, cold \" is called \"water_ cold\" here, because an id has no comma, "
                       "no control character and no blank at its ends."}));
    EXPECT_EQ(result.renamed, (std::map<std::string, std::string>{{"water_ cold", " water, cold "}}));
}

TEST(StepFile, bytesOfNoAlphabetDoNoHarm) { EXPECT_EQ(read(boxCalled("\xff\xfe\xe4")).model->bodies().size(), 1U); }

} // namespace
