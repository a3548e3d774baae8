#include "apps/verbs/RestoreVerb.h"

#include "tests/apps/ProgramRun.h"
#include "tests/apps/ToolRun.h"
#include "tests/golden/Golden.h"

#include <gtest/gtest.h>

#include <string>

namespace {

std::string boxes() { return sourceFile("tests/data/bad-cases/boxes.json").string(); }

TEST(RestoreVerb, whatCameBackIsListed)
{
    const TemporaryFile text("everything.setup", "");
    ProgramRun("save tests/data/good-cases/everything.json -o '" + text.path() + "'");

    const ProgramRun run("restore tests/data/bad-cases/boxes.json '" + text.path() + "'");

    EXPECT_TRUE(golden::matches(run.out, "restore-everything.txt"));
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.code, 0);
}

TEST(RestoreVerb, aDamagedTextIsRefusedAtItsLine)
{
    const TemporaryFile text("damaged.setup", "0\n3\n0 0\nfive\n");

    const ToolRun run({"restore", boxes(), text.path()});

    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.err, text.path() + ":4: expected the number of interfaces of the location model (a whole number of "
                                     "32 bits), found \"five\"\n");
    EXPECT_EQ(run.code, 2);
}

TEST(RestoreVerb, aTextOfAnotherGeometryIsRefusedWithTheNearestRegion)
{
    const ProgramRun saved("save tests/data/good-cases/everything.json -o /dev/stdout");
    std::string content = saved.out;
    content.replace(content.find("left/north"), 10, "left/nroth");
    const TemporaryFile text("other.setup", content);

    const ToolRun run({"restore", boxes(), text.path()});

    EXPECT_EQ(run.err, text.path() + ":10: the geometry has no region \"left/nroth\"; the nearest is \"left/north\"\n");
    EXPECT_EQ(run.code, 2);
}

TEST(RestoreVerb, filesThatCannotBeReadAreRefused)
{
    EXPECT_EQ(ToolRun({"restore", boxes(), "no-such.setup"}).err,
              "no-such.setup: cannot read this file: No such file or directory.\n");
    EXPECT_EQ(ToolRun({"restore", "no-such.json", boxes()}).err,
              "no-such.json: cannot read this file: No such file or directory.\n");
    EXPECT_EQ(ToolRun({"restore", boxes(), "no-such.setup"}).code, 2);
}

} // namespace
