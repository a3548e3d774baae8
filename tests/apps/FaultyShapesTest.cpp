#include "tests/apps/ProgramRun.h"
#include "tests/apps/ToolRun.h"
#include "tests/importers/cad/StepText.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <random>
#include <string>
#include <vector>

namespace {

using cadtests::replaced;
using cadtests::stepWithData;

/// One way in which a geometry file can be bad, and what the program says of it behind its name.
struct Faulty {
    std::string name;
    std::string content;
    std::string message;
};

std::string step() { return contentOf(sourceFile("examples/fan_passage.step")); }

const std::string neither =
    "the file is neither STEP, which begins with \"ISO-10303-21;\", nor BREP, which begins with \"CASCADE Topology\"; "
    "export the geometry as one of these.";
const std::string cut = "the file ends before \"END-ISO-10303-21;\", its last word; copy or export it again.";

std::vector<Faulty> faultyFiles()
{
    return {
        {"empty.step", "", "the file is empty; export it again."},
        {"empty.brep", "", "the file is empty; export it again."},
        {"prose.stp", "see the drawing\n", neither},
        {"mesh.brp", "solid cube\n facet normal 0 0 1\n", neither},
        {"zeros.brep", std::string(4096, '\0'), neither},
        {"cut-early.step", step().substr(0, 100), cut},
        {"cut-late.step", step().substr(0, step().size() - 100), cut},
        {"no-shape.step", stepWithData("#1 = CARTESIAN_POINT('',(0.,0.,0.));\n"),
         "the file has no product with a shape that can be read; export it again."},
        {"dangling.step", replaced(step(), "AXIS2_PLACEMENT_3D('',#12", "AXIS2_PLACEMENT_3D('',#999999"),
         "entity #11 (StepGeom_Axis2Placement3d) is damaged: Parameter n0.2 (location) : Entity has illegal type; "
         "export the file again."},
        {"head-only.brep", "CASCADE Topology V1, (c) Matra-Datavision\n",
         "the file ends too early or is damaged, in line 2; copy or export it again."},
        {"words.brep", "CASCADE Topology V1, (c) Matra-Datavision\nLocations many\n",
         "the file ends too early or is damaged, in line 2; copy or export it again."},
    };
}

TEST(FaultyShapes, eachEndsTheProgramWithItsReason)
{
    for (const Faulty& faulty : faultyFiles()) {
        const TemporaryFile file(faulty.name, faulty.content);

        const ToolRun run({"topology", file.path()});

        EXPECT_EQ(run.err, file.path() + ": " + faulty.message + '\n') << faulty.name;
        EXPECT_EQ(run.out, "") << faulty.name;
        EXPECT_EQ(run.code, 2) << faulty.name;
    }
}

TEST(FaultyShapes, aFolderIsRefused)
{
    const std::string folder = (std::filesystem::temp_directory_path() / "folder.step").string();
    std::filesystem::create_directory(folder);
    const ToolRun run({"topology", folder});
    std::filesystem::remove(folder);

    EXPECT_EQ(run.err, folder + ": this is not a file but a folder or a device; name the STEP or BREP file itself.\n");
    EXPECT_EQ(run.code, 2);
}

/// Whatever is done to a file, the program ends by itself, with a listing or with a sentence.
TEST(FaultyShapes, noDamageMakesTheProgramCrash)
{
    const std::string brep = std::string(PHYSICS_TEST_DATA) + "/own/box_cylinder_box.brep";
    const std::string whole = std::filesystem::exists(brep) ? contentOf(brep) : step();
    std::mt19937 random(20); // the same damage on every run
    for (int round = 0; round < 25; ++round) {
        std::string content = whole;
        for (int i = 0; i < 3; ++i) {
            const std::size_t at = random() % content.size();
            content[at] = static_cast<char>("0123456789 -+.*\n"[random() % 16]);
        }
        const TemporaryFile file("damaged.brep", content);

        const ToolRun run({"topology", file.path()});

        EXPECT_TRUE(run.code == 0 || run.code == 2) << "round " << round << ": " << run.err;
        EXPECT_EQ(run.code == 2, run.out.empty()) << "round " << round;
        EXPECT_EQ(run.code == 2 && run.err.rfind(file.path() + ": ", 0) != 0, false) << run.err;
    }
}

} // namespace
