#include "apps/verbs/SaveVerb.h"

#include "tests/apps/ProgramRun.h"
#include "tests/apps/ToolRun.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace {

std::string dataFile(const std::string& name) { return sourceFile("tests/data/" + name).string(); }

TEST(SaveVerb, valuesThatTheTextDoesNotKeepAreTold)
{
    const TemporaryFile text("everything.setup", "");

    const ToolRun run({"save", dataFile("good-cases/everything.json"), "-o", text.path()});

    EXPECT_EQ(run.err, text.path() +
                           ": the interface \"repeat\" is kept as periodic, but without the values of its translation; "
                           "set them again after restoring.\n" +
                           text.path() +
                           ": the interface \"turn\" is kept as periodic, but without the values of its rotation; "
                           "set them again after restoring.\n");
    EXPECT_EQ(run.code, 0);
}

TEST(SaveVerb, aRefusedCaseLeavesTheOldTextAlone)
{
    const TemporaryFile text("old.setup", "old");

    const ToolRun run({"save", dataFile("bad-cases/refused/unknown-body.json"), "-o", text.path()});

    EXPECT_EQ(contentOf(text.path()), "old");
    EXPECT_EQ(run.err, ToolRun({"build", dataFile("bad-cases/refused/unknown-body.json")}).err + text.path() +
                           ": not written, because part of the case is refused.\n");
    EXPECT_EQ(run.code, 1);
}

TEST(SaveVerb, aCaseThatATextCannotKeepLeavesTheOldTextAlone)
{
    const TemporaryFile geometry("blank-topology.json", contentOf(dataFile("good-cases/channel-topology.json")));
    std::string content = contentOf(dataFile("good-cases/channel.json"));
    const auto replace = [&content](const std::string& what, const std::string& by) {
        ASSERT_NE(content.find(what), std::string::npos) << what;
        content.replace(content.find(what), what.size(), by);
    };
    replace("channel-topology.json", geometry.path());
    replace(R"("walls")", R"(" walls")");
    replace(R"("channel/east")", R"("channel/east,\nchannel/east")");
    replace(R"("heat")", R"("  ")");
    const TemporaryFile file("blanks.json", content);
    const TemporaryFile text("old.setup", "old");

    const ToolRun run({"save", file.path(), "-o", text.path()});

    const auto lost = [&text](const std::string& what) {
        return text.path() + ": the " + what +
               " would not come back: a saved text keeps no name or location that begins with a blank or has a line "
               "end, and no list of regions with a comma in an id; change it.\n";
    };
    EXPECT_EQ(contentOf(text.path()), "old");
    EXPECT_EQ(run.err, lost(R"(name of the boundary "water:: walls")") +
                           lost(R"(location of the boundary "water::outlet")") + lost(R"(name of the interface "  ")") +
                           text.path() + ": not written, because part of the case would be lost.\n");
    EXPECT_EQ(run.code, 1);
}

TEST(SaveVerb, aFullDiskIsNotTakenForSuccess)
{
    const ToolRun run({"save", dataFile("good-cases/channel.json"), "-o", "/dev/full"});

    EXPECT_EQ(run.err, "/dev/full: cannot write this file: No space left on device.\n");
    EXPECT_EQ(run.code, 2);
}

TEST(SaveVerb, theCaseFileItselfIsNeverOverwritten)
{
    const TemporaryFile file("case.json", "{}");

    const ToolRun run({"save", file.path(), "-o", file.path()});

    EXPECT_EQ(contentOf(file.path()), "{}");
    EXPECT_EQ(run.err, file.path() + ": a saved text with this name would be taken for a case file; choose one that "
                                     "does not end in .json.\n");
    EXPECT_EQ(run.code, 2);
}

TEST(SaveVerb, twoRunsSaveTheSameBytes)
{
    const std::string command = "save tests/data/good-cases/everything.json -o /dev/stdout";

    const ProgramRun first(command);

    EXPECT_EQ(first.code, 0);
    EXPECT_EQ(first.out.substr(0, 2), "0\n");
    EXPECT_EQ(first.out, ProgramRun(command).out);
}

} // namespace
