#include "tests/apps/ToolRun.h"
#include "tests/golden/Golden.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace {

/// Runs in the folder of the broken cases, so that no output depends on where the sources lie.
ToolRun checkBroken(const std::string& name, const std::vector<std::string>& options = {})
{
    const WorkingFolder folder(sourceFile("tests/data/broken-cases"));
    std::vector<std::string> arguments = {"check", name + ".json"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return ToolRun(arguments);
}

/// A check without the lines that tell where the case file names an object.
std::string withoutPlaces(const std::string& checked)
{
    std::istringstream stream(checked);
    std::string lines;
    for (std::string line; std::getline(stream, line);) {
        if (line.find("at line ") == std::string::npos) {
            lines += line + "\n";
        }
    }
    return lines;
}

TEST(CheckVerb, aSoundCaseIsFine)
{
    const WorkingFolder folder(sourceFile("examples"));

    const ToolRun run({"check", "heat_exchanger.json"});

    EXPECT_EQ(run.out, "Coverage\n"
                       "  22 face sides of 3 bodies: 22 in one boundary, 0 in several, 0 in none, "
                       "0 inside volumes in none\n"
                       "\n"
                       "0 errors, 0 warnings\n");
    EXPECT_EQ(run.code, 0);
}

TEST(CheckVerb, aCaseWithAnErrorHasProblems)
{
    for (const char* warnings : {"ignore", "report", "error"}) {
        EXPECT_EQ(checkBroken("overlapping-volumes", {std::string("--warnings=") + warnings}).code, 1);
    }
}

TEST(CheckVerb, aWarningCountsAsTheUserSays)
{
    EXPECT_EQ(checkBroken("tag-without-interface").code, 0);
    EXPECT_EQ(checkBroken("tag-without-interface", {"--warnings=report"}).code, 0);
    EXPECT_EQ(checkBroken("tag-without-interface", {"--warnings=error"}).code, 1);

    const ToolRun ignored = checkBroken("tag-without-interface", {"--warnings=ignore"});
    EXPECT_EQ(ignored.code, 0);
    EXPECT_EQ(ignored.out, "Coverage\n"
                           "  8 face sides of 2 bodies: 6 in one boundary, 0 in several, 0 in none, "
                           "2 inside volumes in none\n"
                           "\n"
                           "0 errors, 0 warnings\n");
}

TEST(CheckVerb, theTextShowsFindingsAndTheLibrarysOwnLinesUnderEachObject)
{
    EXPECT_TRUE(golden::matches(checkBroken("many-mistakes").out, "check-many-mistakes.txt"));
    EXPECT_TRUE(golden::matches(checkBroken("tags-without-interface").out, "check-tags.txt"));
    EXPECT_TRUE(golden::matches(checkBroken("face-in-three-boundaries").out, "check-face-in-three.txt"));
}

TEST(CheckVerb, theJsonHoldsEverything)
{
    EXPECT_TRUE(golden::matches(checkBroken("many-mistakes", {"--format=json"}).out, "check-many-mistakes.json"));
}

TEST(CheckVerb, aSavedTextIsCheckedLikeItsCaseButHasNoPlaces)
{
    const WorkingFolder folder(sourceFile("tests/data/broken-cases"));
    const TemporaryFile text("broken.setup", "");
    ASSERT_EQ(ToolRun({"save", "tags-without-interface.json", "-o", text.path()}).code, 0);

    const ToolRun ofText({"check", text.path(), "--geometry", "topology.json"});
    const ToolRun ofCase({"check", "tags-without-interface.json"});

    EXPECT_EQ(ofText.out, withoutPlaces(ofCase.out));
    EXPECT_EQ(ofText.err, "");
    EXPECT_EQ(ofText.code, ofCase.code);
}

TEST(CheckVerb, aSavedTextNeedsItsGeometryAndACaseDoesNot)
{
    EXPECT_EQ(ToolRun({"check", "a.setup"}).code, 2);
    EXPECT_EQ(ToolRun({"check", "a.json", "--geometry", "b.json"}).code, 2);
}

TEST(CheckVerb, wrongUsageIsToldAsAMistake)
{
    const ToolRun nothing({"check"});
    EXPECT_EQ(nothing.err, "physics-case: check needs a set-up, or --explain; try \"physics-case check --help\".\n");
    EXPECT_EQ(nothing.code, 2);
    EXPECT_EQ(checkBroken("many-mistakes", {"--format=xml"}).code, 2);
    EXPECT_EQ(checkBroken("many-mistakes", {"--warnings=fatal"}).code, 2);
    EXPECT_EQ(checkBroken("many-mistakes", {"--explain=PS001"}).code, 2);
    EXPECT_EQ(checkBroken("missing").code, 2);
}

TEST(CheckVerb, aFileThatIsNoCaseIsUnreadable)
{
    const ToolRun run = checkBroken("topology");

    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.code, 2);
}

} // namespace
