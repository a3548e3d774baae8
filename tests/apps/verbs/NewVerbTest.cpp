#include "tests/apps/ProgramRun.h"
#include "tests/apps/ToolRun.h"
#include "tests/golden/Golden.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace {

std::string boxes() { return sourceFile("tests/data/bad-cases/boxes.json").string(); }

/// The name of a file that is not there, and that goes away with this object.
class NewFile : public TemporaryFile {
public:
    explicit NewFile(const std::string& name) : TemporaryFile(name, "") { std::filesystem::remove(path()); }
};

TEST(NewVerb, aCaseIsProposedAndToldPieceByPiece)
{
    const NewFile target("new.json");
    const ToolRun run({"new", boxes(), "-o", target.path()});

    EXPECT_TRUE(golden::matches(run.out, "new-boxes.txt"));
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.code, 0);
}

TEST(NewVerb, theProposalCanBeBuiltAndChecked)
{
    const NewFile target("new.json");
    ASSERT_EQ(ToolRun({"new", boxes(), "-o", target.path()}).code, 0);

    EXPECT_EQ(ToolRun({"build", target.path()}).code, 0);
    EXPECT_EQ(ToolRun({"check", "--warnings=error", target.path()}).code, 0);
}

TEST(NewVerb, theGeometryIsNamedRelativeToTheCase)
{
    const NewFile target("new.json");
    ASSERT_EQ(ToolRun({"new", boxes(), "-o", target.path()}).code, 0);

    const std::string way =
        std::filesystem::proximate(boxes(), std::filesystem::temp_directory_path()).generic_string();
    EXPECT_NE(contentOf(target.path()).find("\"geometry\": \"" + way + "\""), std::string::npos);
}

TEST(NewVerb, aFileThatIsThereIsReplacedOnlyByForce)
{
    const TemporaryFile target("there.json", "precious");

    const ToolRun refused({"new", boxes(), "-o", target.path()});
    EXPECT_EQ(refused.err,
              target.path() + ": this file is there already; name another one, or replace it with --force.\n");
    EXPECT_EQ(refused.code, 2);
    EXPECT_EQ(contentOf(target.path()), "precious");

    EXPECT_EQ(ToolRun({"new", boxes(), "--force", "-o", target.path()}).code, 0);
    EXPECT_NE(contentOf(target.path()), "precious");
}

TEST(NewVerb, aNameThatWouldBeTakenForASavedTextIsRefused)
{
    const ToolRun run({"new", boxes(), "-o", "case.txt"});

    EXPECT_EQ(run.err, "case.txt: a case file with this name would be taken for a saved text; choose one that ends in "
                       ".json.\n");
    EXPECT_EQ(run.code, 2);
}

TEST(NewVerb, aFolderThatIsNotThereIsRefused)
{
    const ToolRun run({"new", boxes(), "-o", "/no-such-folder/case.json"});

    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.code, 2);
}

} // namespace
