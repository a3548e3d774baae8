#include "apps/gmsh/MeshTool.h"

#include "apps/Output.h"
#include "apps/Verb.h"
#include "locationmodel/LocationModel.h"
#include "locationmodel/TopologyFile.h"
#include "physics/Physics.h"
#include "tests/apps/ToolRun.h"
#include "tests/golden/Golden.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <gmsh.h>

#include <algorithm>
#include <filesystem>
#include <random>
#include <sstream>
#include <string>
#include <vector>

namespace {

using testing::HasSubstr;

/// One run of the program inside the test.
struct MeshRun {
    explicit MeshRun(const std::vector<std::string>& arguments)
    {
        std::ostringstream outStream;
        std::ostringstream errStream;
        physics::apps::Output output(outStream, errStream, false, false);
        code = static_cast<int>(runMeshTool(arguments, output));
        out = outStream.str();
        err = errStream.str();
    }

    int code = 0;
    std::string out;
    std::string err;
};

/// Two boxes with a face in common, the left called "left" with a face "inlet", meshed and written.
class TwoBoxes {
public:
    enum class Kernel { OwnOfTheMesher, Cad };

    /// With all surfaces in groups, files of every version have all of them.
    explicit TwoBoxes(Kernel kernel, bool areAllInGroups = true)
    {
        gmsh::initialize(0, nullptr, false);
        gmsh::option::setNumber("General.Terminal", 0);
        kernel == Kernel::Cad ? makeByCad() : makeByMesher();
        gmsh::option::setNumber("Mesh.MeshSizeMax", 0.6);
        gmsh::model::setPhysicalName(3, gmsh::model::addPhysicalGroup(3, {1}), "left");
        gmsh::model::setPhysicalName(3, gmsh::model::addPhysicalGroup(3, {2}), "right");
        gmsh::model::setPhysicalName(2, gmsh::model::addPhysicalGroup(2, {1}), "inlet");
        gmsh::vectorpair surfaces;
        gmsh::model::getEntities(surfaces, 2);
        for (const auto& [dimension, tag] : surfaces) {
            if (areAllInGroups && tag != 1) {
                gmsh::model::setPhysicalName(2, gmsh::model::addPhysicalGroup(2, {tag}), "s" + std::to_string(tag));
            }
        }
        gmsh::model::mesh::generate(3);
    }
    ~TwoBoxes() { gmsh::finalize(); }
    TwoBoxes(const TwoBoxes&) = delete;
    TwoBoxes& operator=(const TwoBoxes&) = delete;

    static std::string written(double version, bool isBinary)
    {
        const TemporaryFile file("two-boxes.msh", "");
        gmsh::option::setNumber("Mesh.MshFileVersion", version);
        gmsh::option::setNumber("Mesh.Binary", isBinary ? 1 : 0);
        gmsh::write(file.path());
        return contentOf(file.path());
    }

private:
    static void makeByCad()
    {
        gmsh::model::occ::addBox(0, 0, 0, 1, 1, 1, 1);
        gmsh::model::occ::addBox(1, 0, 0, 1, 1, 1, 2);
        gmsh::vectorpair made;
        std::vector<gmsh::vectorpair> madeOf;
        gmsh::model::occ::fragment({{3, 1}}, {{3, 2}}, made, madeOf);
        gmsh::model::occ::synchronize();
    }

    static void makeByMesher()
    {
        using namespace gmsh::model;
        const std::vector<int> points = {geo::addPoint(0, 0, 0), geo::addPoint(0, 1, 0), geo::addPoint(0, 1, 1),
                                         geo::addPoint(0, 0, 1)};
        std::vector<int> lines;
        for (std::size_t i = 0; i < points.size(); ++i) {
            lines.push_back(geo::addLine(points[i], points[(i + 1) % points.size()]));
        }
        const int surface = geo::addPlaneSurface({geo::addCurveLoop(lines)}, 1);
        gmsh::vectorpair left;
        geo::extrude({{2, surface}}, 1, 0, 0, left);
        gmsh::vectorpair right;
        geo::extrude({left[0]}, 1, 0, 0, right);
        geo::synchronize();
    }
};

std::string topologyOf(const std::string& mesh)
{
    const TemporaryFile file("mesh.msh", mesh);
    const MeshRun run({file.path()});
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.code, 0);
    return run.out;
}

TEST(MeshTool, allVersionsAndFormsOfAMeshMakeTheSameTopology)
{
    for (const auto kernel : {TwoBoxes::Kernel::OwnOfTheMesher, TwoBoxes::Kernel::Cad}) {
        const TwoBoxes boxes(kernel);
        const std::string topology = topologyOf(TwoBoxes::written(4.1, false));

        const auto model = gtm::bundled::readTopologyText(topology, "t");
        EXPECT_EQ(model->bodies().size(), 2U);
        EXPECT_EQ(model->faces().size(), 11U);
        EXPECT_EQ(model->faceUses().size(), 12U);
        EXPECT_THAT(topology, HasSubstr("{\"id\":\"left/inlet\",\"sides\":[\"left\"]}"));
        EXPECT_THAT(topology, HasSubstr("\"sides\":[\"left\",\"right\"]"));
        EXPECT_EQ(topologyOf(TwoBoxes::written(2.2, false)), topology);
        EXPECT_EQ(topologyOf(TwoBoxes::written(4.1, true)), topology);
        EXPECT_EQ(topologyOf(TwoBoxes::written(2.2, true)), topology);
    }
}

TEST(MeshTool, whatAnOldFileDoesNotCoverIsTold)
{
    const TwoBoxes boxes(TwoBoxes::Kernel::OwnOfTheMesher, false);
    const TemporaryFile file("mesh.msh", TwoBoxes::written(2.2, false));

    const MeshRun run({file.path()});

    EXPECT_THAT(run.out, HasSubstr("{\"id\":\"left/inlet\",\"sides\":[\"left\"]}"));
    EXPECT_THAT(run.out, HasSubstr("{\"id\":\"left/uncovered\",\"sides\":[\"left\"]}"));
    EXPECT_THAT(run.out, HasSubstr("{\"id\":\"left/to right\",\"sides\":[\"left\",\"right\"]}"));
    EXPECT_THAT(run.out, HasSubstr("{\"id\":\"right/uncovered\",\"sides\":[\"right\"]}"));
    EXPECT_THAT(run.err, HasSubstr("element faces of its surface are on no surface of the file; they are the face "
                                   "\"left/uncovered\".\n"));
    EXPECT_EQ(run.code, 0);
}

TEST(MeshTool, theTopologyIsWrittenToAFileOnRequest)
{
    const TwoBoxes boxes(TwoBoxes::Kernel::OwnOfTheMesher);
    const TemporaryFile mesh("mesh.msh", TwoBoxes::written(4.1, false));
    const TemporaryFile target("topology.json", "");

    const MeshRun run({mesh.path(), "-o", target.path()});

    EXPECT_EQ(run.out, "");
    EXPECT_EQ(contentOf(target.path()), MeshRun({mesh.path()}).out);
}

TEST(MeshTool, faultyFilesAreRefusedWithTheirReason)
{
    const TwoBoxes boxes(TwoBoxes::Kernel::OwnOfTheMesher);
    const std::string whole = TwoBoxes::written(4.1, false);
    const auto refusalOf = [](const std::string& content) {
        const TemporaryFile file("faulty.msh", content);
        const MeshRun run({file.path()});
        EXPECT_EQ(run.code, 2);
        EXPECT_EQ(run.out, "");
        EXPECT_EQ(run.err.rfind(file.path() + ": ", 0), 0U) << run.err;
        return run.err.substr(std::min(run.err.size(), file.path().size() + 2));
    };
    const std::string noMesh =
        "this is no mesh file, which begins with \"$MeshFormat\"; save the mesh as MSH 4.1 or 2.2.\n";

    EXPECT_EQ(refusalOf(""), noMesh);
    EXPECT_EQ(refusalOf("see the drawing\n"), noMesh);
    EXPECT_EQ(refusalOf(std::string(5000, '\0')), noMesh);
    EXPECT_EQ(refusalOf("$MeshFormat\n4 0 8\n$EndMeshFormat\n"),
              "the file is of version 4; save the mesh as MSH 4.1 or 2.2.\n");
    EXPECT_EQ(refusalOf(whole.substr(0, whole.size() / 2)),
              "the file ends within a section, before its \"$End\"; copy or save it again.\n");
    EXPECT_EQ(refusalOf("$MeshFormat\n4.1 0 8\n$EndMeshFormat\n"),
              "the file has no volume; mesh the volumes and save all elements.\n");
}

TEST(MeshTool, aFileThatIsNotThereAndAFolderAreRefused)
{
    EXPECT_EQ(MeshRun({"no-such.msh"}).code, 2);
    EXPECT_THAT(MeshRun({"no-such.msh"}).err, HasSubstr("no-such.msh"));
    EXPECT_EQ(MeshRun({"/"}).code, 2);
}

TEST(MeshTool, aWrongCommandLineIsRefusedInOneLine)
{
    const MeshRun run({});

    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "physics-gmsh: mesh is required; try \"physics-gmsh --help\".\n");
    EXPECT_EQ(run.code, 2);
}

TEST(MeshTool, theHelpIsAResult)
{
    const MeshRun run({"--help"});

    EXPECT_THAT(run.out, HasSubstr("Makes a topology file of a mesh file of Gmsh."));
    EXPECT_THAT(run.out, HasSubstr("Exit code: 0 fine, 2 usage or unreadable input, 3 a fault of ours."));
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.code, 0);
}

TEST(MeshTool, aTopologyThatCannotBeWrittenIsAnError)
{
    const TwoBoxes boxes(TwoBoxes::Kernel::OwnOfTheMesher);
    const TemporaryFile mesh("mesh.msh", TwoBoxes::written(4.1, false));
    std::ostringstream out;
    std::ostringstream err;
    out.setstate(std::ios::badbit);
    physics::apps::Output output(out, err, false, false);

    EXPECT_EQ(runMeshTool({mesh.path()}, output), physics::apps::ExitCode::BadInput);
    EXPECT_EQ(err.str(), "physics-gmsh: cannot write the result; is the disk full?\n");
}

/// Whatever is done to a file, the program ends by itself, with a topology or with a sentence.
TEST(MeshTool, noDamageMakesTheProgramCrash)
{
    const TwoBoxes boxes(TwoBoxes::Kernel::OwnOfTheMesher);
    const std::string whole = TwoBoxes::written(4.1, false);
    std::mt19937 random(4); // the same damage on every run
    for (int round = 0; round < 20; ++round) {
        std::string content = whole;
        for (int i = 0; i < 3; ++i) {
            content[random() % content.size()] = static_cast<char>("0123456789 -.$\n"[random() % 15]);
        }
        const TemporaryFile file("damaged.msh", content);

        const MeshRun run({file.path()});

        EXPECT_TRUE(run.code == 0 || run.code == 2) << "round " << round << ": " << run.err;
    }
}

TEST(MeshTool, aRealFileIsListedAsItWasRead)
{
    for (const std::string name : {"gmsh/tagged_mesh", "own/two_boxes_periodic"}) {
        const std::string file = std::string(PHYSICS_TEST_DATA) + "/" + name + ".msh";
        if (!std::filesystem::exists(file)) {
            GTEST_SKIP() << "no file " << file;
        }
        const MeshRun run({file});

        const std::string golden = "real/" + name.substr(name.find('/') + 1);
        EXPECT_TRUE(golden::matches(run.out, golden + "-topology.json"));
        EXPECT_TRUE(golden::matches(run.err, golden + "-notes.txt"));
        EXPECT_EQ(run.code, 0);
        const TemporaryFile topology("topology.json", run.out);
        const TemporaryFile proposal("case.json", "");
        EXPECT_TRUE(golden::matches(ToolRun({"new", topology.path(), "--force", "-o", proposal.path()}).out,
                                    golden + "-new.txt"));
        EXPECT_EQ(ToolRun({"check", "--warnings=error", proposal.path()}).code, 0);
        EXPECT_EQ(ToolRun({"build", proposal.path()}).code, 0);
        EXPECT_EQ(ToolRun({"report", proposal.path()}).code, 0);

        const TemporaryFile saved("saved", "");
        EXPECT_EQ(ToolRun({"save", proposal.path(), "-o", saved.path()}).code, 0);
        EXPECT_EQ(ToolRun({"restore", topology.path(), saved.path()}).code, 0);
        const auto model = gtm::bundled::readTopologyText(run.out, "t");
        physics::Physics restored(model.get(), true);
        ASSERT_TRUE(restored.restore(contentOf(saved.path())));
        EXPECT_EQ(restored.serialise(), contentOf(saved.path()));
    }
}

} // namespace
