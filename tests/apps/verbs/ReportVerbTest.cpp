#include "apps/verbs/ReportVerb.h"

#include "tests/apps/ProgramRun.h"
#include "tests/apps/ToolRun.h"
#include "tests/golden/Golden.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

namespace {

std::string everything() { return sourceFile("tests/data/good-cases/everything.json").string(); }

std::string complaintAbout(const std::string& object)
{
    const ToolRun run({"report", everything(), "--object", object});
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.code, 2);
    return run.err;
}

TEST(ReportVerb, blocksOfSingleObjectsAreWritten)
{
    std::string blocks;
    for (const char* object : {"volume:bar", "boundary:air::in", "interface:contact", "model:2", "settings:3"}) {
        const ProgramRun run("report tests/data/good-cases/everything.json --object " + std::string(object));
        blocks += "== " + std::string(object) + "\n" + run.out;
        EXPECT_EQ(run.err, "");
        EXPECT_EQ(run.code, 0);
    }

    EXPECT_TRUE(golden::matches(blocks, "report-everything-blocks.txt"));
}

TEST(ReportVerb, aSavedTextIsReportedLikeItsCase)
{
    const TemporaryFile text("boxes.setup", "");
    ProgramRun("save tests/data/good-cases/everything.json -o '" + text.path() + "'");

    const std::string object = " --object boundary:air::top";
    const ProgramRun ofText("report '" + text.path() + "' --geometry tests/data/bad-cases/boxes.json" + object);
    const ProgramRun ofCase("report tests/data/good-cases/everything.json" + object);

    EXPECT_EQ(ofText.out, ofCase.out);
    EXPECT_NE(ofText.out, "");
    EXPECT_EQ(ofText.code, 0);
}

TEST(ReportVerb, refusalsAreToldBehindTheReport)
{
    const std::string file = sourceFile("tests/data/bad-cases/refused/boundaries-overlap.json").string();

    const ToolRun run({"report", file});

    EXPECT_EQ(run.out.substr(0, 10), "\nPhysics:\n");
    EXPECT_EQ(run.err, ToolRun({"build", file}).err);
    EXPECT_EQ(run.code, 1);
}

TEST(ReportVerb, anUnknownObjectIsRefusedWithTheNearest)
{
    EXPECT_EQ(complaintAbout("volume:ait"),
              "physics-case: --object: there is no object \"volume:ait\"; did you mean \"air\"?\n");
    EXPECT_EQ(complaintAbout("boundary:air::tpo"),
              "physics-case: --object: there is no object \"boundary:air::tpo\"; did you mean \"air::top\"?\n");
    EXPECT_EQ(complaintAbout("interface:contract"),
              "physics-case: --object: there is no object \"interface:contract\"; did you mean \"contact\"?\n");
    EXPECT_EQ(complaintAbout("volum:air"),
              "physics-case: --object: there is no kind of object \"volum\"; did you mean \"volume\"?\n");
    EXPECT_EQ(complaintAbout("boundary"),
              "physics-case: --object: there is no object \"boundary\"; known are \"air::bottom\", \"air::in\", "
              "\"air::side\", \"air::top\", \"bar::side\".\n");
}

TEST(ReportVerb, aSavedTextNeedsItsGeometryAndACaseDoesNot)
{
    EXPECT_EQ(ToolRun({"report", "a.setup"}).err,
              "a.setup: a saved text does not name its geometry; give it with --geometry. (The name of a case file "
              "ends in .json.)\n");
    EXPECT_EQ(ToolRun({"report", "a.json", "--geometry", "b.json"}).err,
              "a.json: a case file says itself which geometry it is about and how to read it; leave --geometry, "
              "--imprint, --no-imprint and --bodies-are-families out.\n");
    EXPECT_EQ(ToolRun({"report", "a.setup"}).code, 2);
}

/// What the program shows on a terminal of its own.
std::string onTerminal(const std::string& pager)
{
    const TemporaryFile screen("terminal.txt", "");
    const std::string command = "PAGER='" + pager +
                                "' script --quiet --return --command \"'" PHYSICS_CASE_PROGRAM "' report '" +
                                everything() + "' --object model:1\" '" + screen.path() + "' >/dev/null </dev/null";
    EXPECT_EQ(std::system(command.c_str()), 0);
    return contentOf(screen.path());
}

TEST(ReportVerb, aTerminalGetsTheReportThroughThePagerOfTheUser)
{
    EXPECT_NE(onTerminal("tr a-z A-Z").find("MIXTURE"), std::string::npos);
    EXPECT_EQ(onTerminal("cat").find("MIXTURE"), std::string::npos);
}

} // namespace
