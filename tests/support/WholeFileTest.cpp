#include "support/WholeFile.h"

#include <gtest/gtest.h>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

namespace fs = std::filesystem;

using gtm::support::FileError;
using gtm::support::readWholeFile;
using gtm::support::writeWholeFile;

/// A new folder for each test, so that whatever stays behind is seen.
class WholeFile : public testing::Test {
protected:
    WholeFile() { fs::create_directory(m_folder); }
    ~WholeFile() override { fs::remove_all(m_folder); }
    WholeFile(const WholeFile&) = delete;
    WholeFile& operator=(const WholeFile&) = delete;

    fs::path path(const std::string& name) const { return m_folder / name; }

    std::ptrdiff_t noOfFiles() const
    {
        return std::distance(fs::directory_iterator(m_folder), fs::directory_iterator());
    }

private:
    fs::path m_folder = fs::temp_directory_path() / ("whole-file-" + std::to_string(getpid()));
};

/// As long as it lives, files cannot grow beyond a size: a disk that becomes full.
class FullDisk {
public:
    explicit FullDisk(rlim_t size) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit = {size, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_before = {};
    void (*m_handler)(int);
};

/// The message of the refusal; empty when the file was written.
std::string refusal(const fs::path& file, const std::string& content = "new")
{
    try {
        writeWholeFile(file, content);
    } catch (const FileError& error) {
        return error.what();
    }
    return "";
}

TEST_F(WholeFile, aNewFileHasExactlyTheContent)
{
    const std::string content("a\0b\r\n", 5);

    writeWholeFile(path("new"), content);

    EXPECT_EQ(readWholeFile(path("new")), content);
    EXPECT_EQ(noOfFiles(), 1);
}

TEST_F(WholeFile, anExistingFileIsReplacedAndKeepsItsPermissions)
{
    std::ofstream(path("old")) << "a much longer old content";
    chmod(path("old").c_str(), 0640);

    writeWholeFile(path("old"), "new");

    EXPECT_EQ(readWholeFile(path("old")), "new");
    EXPECT_EQ(fs::status(path("old")).permissions(), fs::perms(0640));
    EXPECT_EQ(noOfFiles(), 1);
}

TEST_F(WholeFile, aSymbolicLinkStaysOneAndItsTargetIsReplaced)
{
    fs::create_directory(path("elsewhere"));
    std::ofstream(path("elsewhere") / "target") << "old";
    fs::create_symlink("elsewhere/target", path("link"));

    writeWholeFile(path("link"), "new");

    EXPECT_TRUE(fs::is_symlink(path("link")));
    EXPECT_EQ(readWholeFile(path("elsewhere") / "target"), "new");
    EXPECT_EQ(noOfFiles(), 2);
}

TEST_F(WholeFile, aDiskThatBecomesFullLeavesTheOldFileWhole)
{
    std::ofstream(path("old")) << "old";
    const FullDisk disk(1000);

    EXPECT_EQ(refusal(path("old"), std::string(5000, 'x')),
              path("old").string() + ": cannot write this file: File too large.");

    EXPECT_EQ(readWholeFile(path("old")), "old");
    EXPECT_EQ(noOfFiles(), 1);
}

TEST_F(WholeFile, aDeviceIsWrittenToAndNotReplaced)
{
    EXPECT_EQ(refusal("/dev/null"), "");
    EXPECT_EQ(refusal("/dev/full"), "/dev/full: cannot write this file: No space left on device.");
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(WholeFile, aFolderThatIsMissingOrInTheWayIsRefused)
{
    EXPECT_EQ(refusal(path("no/file")),
              path("no/file").string() + ": cannot write this file: No such file or directory.");
    fs::create_directory(path("folder"));
    EXPECT_EQ(refusal(path("folder")), path("folder").string() + ": this is a folder; give the name of a file.");
    EXPECT_EQ(noOfFiles(), 1);
}

TEST_F(WholeFile, aFileThatMayNotBeWrittenIsNotReplaced)
{
    if (geteuid() == 0) {
        GTEST_SKIP() << "the superuser may write everything";
    }
    std::ofstream(path("old")) << "old";
    chmod(path("old").c_str(), 0444);

    EXPECT_EQ(refusal(path("old")), path("old").string() + ": cannot write this file: Permission denied.");

    EXPECT_EQ(readWholeFile(path("old")), "old");
    EXPECT_EQ(noOfFiles(), 1);
}

TEST_F(WholeFile, whatAKilledRunLeftIsNotInTheWay)
{
    const std::string left = ".file." + std::to_string(getpid()) + "-0";
    std::ofstream(path(left)) << "half";

    writeWholeFile(path("file"), "new");

    EXPECT_EQ(readWholeFile(path("file")), "new");
    EXPECT_EQ(readWholeFile(path(left)), "half");
}

TEST_F(WholeFile, whatCannotBeReadIsSaid)
{
    const auto message = [](const fs::path& file) -> std::string {
        try {
            return readWholeFile(file);
        } catch (const FileError& error) {
            return error.what();
        }
    };

    EXPECT_EQ(message("no-such"), "no-such: cannot read this file: No such file or directory.");
    EXPECT_EQ(message("/"), "/: this is a folder; give the name of a file.");
}

/// The signal arrives in the middle: as soon as the new file stands beside the old one.
TEST_F(WholeFile, aProcessThatIsAskedToEndWritesTheFileFirst)
{
    const std::string content(64'000'000, 'x');
    const pid_t writer = fork();
    if (writer == 0) {
        writeWholeFile(path("f"), content);
        _exit(0);
    }
    int status = 0;
    while (noOfFiles() == 0 && waitpid(writer, &status, WNOHANG) == 0) {
    }
    kill(writer, SIGTERM);
    if (status == 0) {
        waitpid(writer, &status, 0);
    }

    EXPECT_TRUE(WIFSIGNALED(status) || WEXITSTATUS(status) == 0);
    EXPECT_EQ(readWholeFile(path("f")), content);
    EXPECT_EQ(noOfFiles(), 1);
}

} // namespace
