#include "tests/apps/ProgramRun.h"
#include "tests/apps/ToolRun.h"
#include "tests/golden/Golden.h"

#include <gtest/gtest.h>

namespace {

TEST(Examples, theHeatExchangerIsBuiltFromItsGeometryFile)
{
    const ProgramRun run("build examples/heat_exchanger.json");

    EXPECT_TRUE(golden::matches(run.out, "build-heat-exchanger.txt"));
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.code, 0);
}

TEST(Examples, theFanPassageIsBuiltFromItsGeometryFile)
{
    const ProgramRun run("build examples/fan_passage.json");

    EXPECT_TRUE(golden::matches(run.out, "build-fan-passage.txt"));
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.code, 0);
}

TEST(Examples, theHeatExchangerIsReported)
{
    const ProgramRun run("report examples/heat_exchanger.json");

    EXPECT_TRUE(golden::matches(run.out, "report-heat-exchanger.txt"));
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.code, 0);
}

TEST(Examples, theFanPassageIsReported)
{
    const ProgramRun run("report examples/fan_passage.json");

    EXPECT_TRUE(golden::matches(run.out, "report-fan-passage.txt"));
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.code, 0);
}

TEST(Examples, aGeometryFileIsListedLikeATopologyFile)
{
    const ToolRun run({"topology", sourceFile("examples/fan_passage.step")});

    EXPECT_TRUE(golden::matches(run.out, "topology-fan-passage.txt"));
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.code, 0);
}

TEST(Examples, withoutImprintingTouchingBodiesKeepFacesOfTheirOwn)
{
    const ToolRun run({"topology", "--no-imprint", sourceFile("examples/fan_passage.step")});

    EXPECT_EQ(run.out.substr(0, run.out.find('\n')), "2 parts, 4 bodies, 26 faces, 26 face uses, no solver zones");
    EXPECT_EQ(run.code, 0);
}

TEST(Examples, aNameThatCannotBeAnIdIsKeptInTheProposedCase)
{
    std::string content = contentOf(sourceFile("examples/fan_passage.step"));
    for (std::size_t at = content.find("'motor'"); at != std::string::npos; at = content.find("'motor'", at)) {
        content.replace(at, 7, "'mo,tor'");
    }
    const TemporaryFile geometry("renamed.step", content);
    const TemporaryFile proposal("renamed.json", "");

    const ToolRun run({"new", geometry.path(), "--force", "-o", proposal.path()});

    EXPECT_NE(run.out.find("body \"mo,tor\""), std::string::npos);
    EXPECT_NE(run.out.find("name \"mo,tor\""), std::string::npos);
    EXPECT_NE(contentOf(proposal.path())
                  .find("\"of\": \"region\",\n      \"name\": \"mo_tor\",\n      \"inFile\": "
                        "\"mo,tor\""),
              std::string::npos);
    EXPECT_EQ(ToolRun({"build", proposal.path()}).code, 0);
}

TEST(Examples, aFileThatIsNoGeometryIsRefusedAtItsPlaceInTheCase)
{
    const TemporaryFile geometry("broken.step", "no geometry at all\n");
    const TemporaryFile file("case.json",
                             R"({"format": "physics-case", "version": 1, "geometry": ")" + geometry.path() + "\"}");

    const ToolRun run({"build", file.path()});

    EXPECT_EQ(run.err, file.path() + ":1:54: at /geometry: the geometry cannot be used. " + geometry.path() +
                           ": the file is neither STEP, which begins with \"ISO-10303-21;\", nor BREP, which begins "
                           "with \"CASCADE Topology\"; export the geometry as one of these.\n");
    EXPECT_EQ(run.code, 2);
}

} // namespace
