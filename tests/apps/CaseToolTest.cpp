#include "apps/CaseTool.h"

#include "apps/Output.h"
#include "locationmodel/LocationModel.h"
#include "locationmodel/TopologyFile.h"
#include "tests/apps/ToolRun.h"
#include "tests/golden/Golden.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>
#include <string>

namespace {

using testing::HasSubstr;
using testing::StartsWith;

TEST(CaseTool, theHelpNamesEveryVerbAndTheExitCodes)
{
    const ToolRun run({"--help"});

    for (const auto& verb : physics::apps::allVerbs()) {
        EXPECT_THAT(run.out, HasSubstr(verb->name()));
        EXPECT_THAT(run.out, HasSubstr(verb->summary()));
    }
    EXPECT_THAT(run.out,
                HasSubstr("Exit code: 0 fine, 1 the case has problems, 2 usage or unreadable input, 3 a fault"));
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.code, 0);
}

TEST(CaseTool, verbsHaveNamesOfTheirOwnAndSayHowTheyAreUsed)
{
    std::set<std::string> names;
    for (const auto& verb : physics::apps::allVerbs()) {
        EXPECT_TRUE(names.insert(verb->name()).second) << verb->name();
        const ToolRun run({verb->name(), "--help"});
        EXPECT_THAT(run.out, StartsWith(verb->summary()));
        EXPECT_EQ(run.code, 0);
    }
}

TEST(CaseTool, withoutAVerbTheUsageIsToldAsAMistake)
{
    const ToolRun run({});

    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, "physics-case: A subcommand is required; try \"physics-case --help\".\n");
    EXPECT_EQ(run.code, 2);
}

TEST(CaseTool, anUnknownVerbIsRefusedWithTheNearestOne)
{
    EXPECT_EQ(ToolRun({"topolgy"}).err, "physics-case: there is no verb \"topolgy\"; did you mean \"topology\"?\n");
    EXPECT_EQ(ToolRun({"bulid", "x"}).err, "physics-case: there is no verb \"bulid\"; did you mean \"build\"?\n");
    EXPECT_EQ(ToolRun({"bulid"}).code, 2);
}

TEST(CaseTool, anUnknownOptionIsRefused)
{
    const ToolRun run({"build", "a.json", "--colour"});

    EXPECT_EQ(run.err,
              "physics-case: The following argument was not expected: --colour; try \"physics-case --help\".\n");
    EXPECT_EQ(run.code, 2);
}

TEST(CaseTool, aMissingFileNameIsRefused)
{
    const ToolRun run({"build"});

    EXPECT_EQ(run.err, "physics-case: case is required; try \"physics-case --help\".\n");
    EXPECT_EQ(run.code, 2);
}

TEST(CaseTool, aFileThatCannotBeReadIsRefused)
{
    EXPECT_EQ(ToolRun({"build", "no-such.json"}).err,
              "no-such.json: cannot read this file: No such file or directory.\n");
    EXPECT_EQ(ToolRun({"build", "/"}).err, "/: this is a folder; give the name of a JSON file.\n");
    EXPECT_EQ(ToolRun({"topology", "no-such.json"}).err,
              "no-such.json: cannot read this file: No such file or directory.\n");
    EXPECT_EQ(ToolRun({"topology", "no-such.json"}).code, 2);
}

TEST(CaseTool, aFileOfNoKnownKindIsRefused)
{
    const ToolRun run({"topology", "mesh.txt"});

    EXPECT_EQ(run.err, "mesh.txt: cannot tell the kind of this file; its name should end in .json for a topology file, "
                       "or in .step, .stp, .brep, .brp or .cgns for a geometry file.\n");
    EXPECT_EQ(run.code, 2);
}

TEST(CaseTool, aMeshOfAnotherProgramIsSentThere)
{
    EXPECT_EQ(ToolRun({"topology", "mesh.msh"}).err,
              "mesh.msh: make a topology file of this mesh with physics-gmsh, and use that.\n");
}

TEST(CaseTool, aTopologyIsListed)
{
    const ToolRun run({"topology", sourceFile("tests/data/bad-cases/boxes.json")});

    EXPECT_TRUE(golden::matches(run.out, "topology-boxes.txt"));
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.code, 0);
}

TEST(CaseTool, aTopologyAsJsonIsATopologyFile)
{
    const std::filesystem::path file = sourceFile("tests/data/bad-cases/boxes.json");
    const ToolRun run({"topology", "--format=json", file});

    EXPECT_EQ(run.out, gtm::bundled::writeTopology(*gtm::bundled::readTopology(file)));
    EXPECT_EQ(gtm::bundled::readTopologyText(run.out, "out")->faces().size(), 8U);
    EXPECT_EQ(run.code, 0);
}

TEST(CaseTool, anUnknownFormatIsRefused)
{
    const ToolRun run({"topology", "--format=xml", "a.json"});

    EXPECT_EQ(run.err, "physics-case: --format: xml not in {text,json}; try \"physics-case --help\".\n");
    EXPECT_EQ(run.code, 2);
}

TEST(CaseTool, aTopologyFileCannotBeImprinted)
{
    const ToolRun run({"topology", "--imprint", "a.json"});

    EXPECT_EQ(run.err, "a.json: a topology file has no shapes that could be imprinted; leave that choice out.\n");
    EXPECT_EQ(run.code, 2);
}

TEST(CaseTool, anOutputThatCannotBeWrittenIsNotTakenForSuccess)
{
    std::ofstream unwritable("/");
    std::ostringstream err;
    physics::apps::Output output(unwritable, err, false, false);

    const physics::apps::ExitCode code =
        physics::apps::runCaseTool({"topology", sourceFile("tests/data/bad-cases/boxes.json")}, output);

    EXPECT_EQ(err.str(), "physics-case: cannot write the result; is the disk full?\n");
    EXPECT_EQ(code, physics::apps::ExitCode::BadInput);
}

TEST(CaseTool, complaintsAreRedWhereColorsAreOn)
{
    std::ostringstream out;
    std::ostringstream err;
    physics::apps::Output output(out, err, true, true);

    physics::apps::runCaseTool({"bulid"}, output);

    EXPECT_EQ(err.str(), "\x1B[31mphysics-case: there is no verb \"bulid\"; did you mean \"build\"?\x1B[0m\n");
}

TEST(CaseTool, theCaseOfTheDocumentationIsTheOneThatIsTested)
{
    EXPECT_THAT(contentOf(sourceFile("docs/case-file.md")),
                HasSubstr("```json\n" + contentOf(sourceFile("tests/data/good-cases/channel.json")) + "```\n"));
}

} // namespace
