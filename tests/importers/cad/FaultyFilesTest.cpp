#include "importers/cad/CadReader.h"

#include "tests/importers/cad/Listing.h"
#include "tests/importers/cad/Shapes.h"
#include "tests/importers/cad/StepText.h"

#include <TDF_Label.hxx>
#include <XCAFDoc_ShapeTool.hxx>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using cadtests::box;
using cadtests::brepOf;
using cadtests::contentOf;
using cadtests::first;
using cadtests::messageOf;
using cadtests::replaced;
using cadtests::stepWithData;
using cadtests::TemporaryFile;
using gtm::bundled::readCad;

const std::string neither =
    "the file is neither STEP, which begins with \"ISO-10303-21;\", nor BREP, which begins with "
    "\"CASCADE Topology\"; export the geometry as one of these.";
const std::string noEnd = "the file ends before \"END-ISO-10303-21;\", its last word; copy or export it again.";

std::string step() { return contentOf(PHYSICS_EXAMPLES "/heat_exchanger.step"); }

std::string brep() { return brepOf(box({0, 0, 0}, {1, 1, 1})); }

std::string skin(const TopoDS_Shape& shape)
{
    return cadtests::stepOf([&](XCAFDoc_ShapeTool& tool) { cadtests::product(tool, shape, "skin"); });
}

/// The text up to, and without, the last occurrence of `mark`.
std::string upTo(const std::string& text, const std::string& mark) { return text.substr(0, text.rfind(mark)); }

std::string damagedIn(std::ptrdiff_t line)
{
    return "the file ends too early or is damaged, in line " + std::to_string(line) + "; copy or export it again.";
}

std::string endsEarly(const std::string& content)
{
    return damagedIn(1 + std::count(content.begin(), content.end(), '\n'));
}

struct Faulty {
    std::string what;
    std::string content;
    std::string message;
};

std::vector<Faulty> faultyFiles()
{
    const TopoDS_Shape block = box({0, 0, 0}, {1, 1, 1});
    return {
        {"nothing", "", "the file is empty; export it again."},
        {"a line end", "\n", neither},
        {"prose", "Geometry of the pump, see drawing 7.\n", neither},
        {"zero bytes", std::string(5000, '\0'), neither},
        {"another format", "solid cube\n facet normal 0 0 1\n", neither},
        {"STEP cut in the header", step().substr(0, 60), noEnd},
        {"STEP cut in the data", step().substr(0, step().size() / 2), noEnd},
        {"STEP without its last word", upTo(step(), "END-ISO"), noEnd},
        {"STEP without data", stepWithData(""),
         "the file breaks the grammar of STEP near line 9: Incorrect syntax: unexpected ENDSEC, expecting ENTITY; "
         "export "
         "it again."},
        {"STEP with a lone point", stepWithData("#1 = CARTESIAN_POINT('',(0.,0.,0.));\n"),
         "the file has no product with a shape that can be read; export it again."},
        {"STEP with a broken line", replaced(step(), "#11 = AXIS2_PLACEMENT_3D(", "#11 = AXIS2_PLACEMENT_3D"),
         "the file breaks the grammar of STEP near line 22: Incorrect syntax: unexpected QUID, expecting '('; export "
         "it "
         "again."},
        {"STEP with a reference to nothing",
         replaced(step(), "#11 = AXIS2_PLACEMENT_3D('',#12", "#11 = AXIS2_PLACEMENT_3D('',#999999"),
         "entity #11 (StepGeom_Axis2Placement3d) is damaged: Parameter n0.2 (location) : Entity has illegal type; "
         "export "
         "the file again."},
        {"STEP with a shell and no solid", skin(first(block, TopAbs_SHELL)),
         "the file has no solid, only 1 shell; sew the surfaces into closed solids and export it again."},
        {"STEP with a face and no solid", skin(first(block, TopAbs_FACE)),
         "the file has no solid, only 1 shell; sew the surfaces into closed solids and export it again."},
        {"BREP with a face and no solid", brepOf(first(block, TopAbs_FACE)),
         "the file has no solid, only 1 face; sew the surfaces into closed solids and export it again."},
        {"BREP with an empty compound", brepOf(cadtests::compound({})),
         "the file has no solid; sew the surfaces into closed solids and export it again."},
        {"BREP without content", "CASCADE Topology V1, (c) Matra-Datavision\n", damagedIn(2)},
        {"BREP cut before its shapes", upTo(brep(), "TShapes"), endsEarly(upTo(brep(), "TShapes"))},
        {"BREP cut in its shapes", upTo(brep(), "Sh\n"), endsEarly(upTo(brep(), "Sh\n"))},
        {"BREP without its last line", upTo(brep(), "+"), endsEarly(upTo(brep(), "+"))},
        {"BREP with a letter among numbers", replaced(brep(), "\nCurve2ds 24", "\nCurve2ds x"), damagedIn(4)},
    };
}

TEST(FaultyFiles, eachIsRefusedWithItsReason)
{
    for (const Faulty& faulty : faultyFiles()) {
        const TemporaryFile file(faulty.content);

        EXPECT_EQ(messageOf([&] { readCad(file.path()); }), file.path().string() + ": " + faulty.message)
            << faulty.what;
    }
}

TEST(FaultyFiles, aMissingFileIsRefused)
{
    EXPECT_EQ(messageOf([] { readCad("no/such.step"); }),
              "no/such.step: there is no such file; check the name and the folder.");
}

TEST(FaultyFiles, aFolderIsRefused)
{
    EXPECT_EQ(messageOf([] { readCad("/"); }),
              "/: this is not a file but a folder or a device; name the STEP or BREP file itself.");
}

TEST(FaultyFiles, aDeviceIsRefused)
{
    EXPECT_EQ(messageOf([] { readCad("/dev/null"); }),
              "/dev/null: this is not a file but a folder or a device; name the STEP or BREP file itself.");
}

/// The last line of a BREP file is "+1 0": what is cut off behind it is not missed.
TEST(FaultyFiles, aBrepFileCutAnywhereIsRefused)
{
    const std::string whole = brep();
    for (std::size_t size = 0; size < whole.rfind(" 0"); size += size < 400 ? 1 : 17) {
        const TemporaryFile file(whole.substr(0, size));

        EXPECT_THROW(readCad(file.path()), gtm::bundled::CadError) << size;
    }
}

TEST(FaultyFiles, aStepFileCutAnywhereIsRefused)
{
    const std::string whole = step();
    for (std::size_t size = 0; size < whole.rfind(';'); size += 499) {
        const TemporaryFile file(whole.substr(0, size));

        EXPECT_THROW(readCad(file.path()), gtm::bundled::CadError) << size;
    }
}

/// Whatever line is lost, the kernel must not follow a reference that leads nowhere.
TEST(FaultyFiles, aStepFileWithALostEntityIsRefusedOrReadWithoutHarm)
{
    const std::string whole = step();
    std::size_t refused = 0;
    for (std::size_t at = whole.find("\n#"); at < whole.size(); at = whole.find("\n#", at + 2000)) {
        const std::size_t end = whole.find(";\n", at) + 1;
        const TemporaryFile file(whole.substr(0, at) + whole.substr(end));

        refused += messageOf([&] { readCad(file.path()); }) != "no error" ? 1 : 0;
    }
    EXPECT_GT(refused, 15U);
}

} // namespace
