#include "apps/Progress.h"

#include "apps/Output.h"
#include "tests/apps/ToolRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <poll.h>
#include <pty.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <thread>

namespace {

using physics::apps::Output;
using physics::apps::Progress;
using testing::HasSubstr;
using testing::StartsWith;
using namespace std::chrono_literals;

TEST(Progress, theLineCountsAndGoesAway)
{
    std::ostringstream out;
    std::ostringstream err;
    Output output(out, err, false, false);
    output.showProgress();
    {
        Progress progress(output, "building", 7, 0s);
        progress.step();
        progress.step();
        std::this_thread::sleep_for(700ms);
    }

    EXPECT_EQ(out.str(), "");
    EXPECT_THAT(err.str(), HasSubstr("\r\x1B[Kbuilding: 2 of 7, 0 s"));
    EXPECT_EQ(err.str().substr(err.str().rfind('\r')), "\r\x1B[K");
}

TEST(Progress, shortWorkShowsNothing)
{
    std::ostringstream err;
    Output output(err, err, false, false);
    output.showProgress();
    {
        const Progress progress(output, "building");
    }

    EXPECT_EQ(err.str(), "");
}

TEST(Progress, withoutATerminalNothingIsShown)
{
    std::ostringstream err;
    Output output(err, err, false, false);
    {
        const Progress progress(output, "building", 0, 0s);
        std::this_thread::sleep_for(50ms);
    }

    EXPECT_EQ(err.str(), "");
}

/// The program in a process of its own, whose messages go to a terminal or a pipe that the test reads.
class Running {
public:
    enum class Messages { Terminal, Pipe };

    Running(const std::vector<std::string>& arguments, Messages messages)
    {
        std::array<int, 2> ends{};
        const bool isOpen = messages == Messages::Terminal
                                ? openpty(ends.data(), &ends[1], nullptr, nullptr, nullptr) == 0
                                : pipe(ends.data()) == 0;
        EXPECT_TRUE(isOpen);
        m_process = fork();
        if (m_process == 0) {
            dup2(ends[1], STDERR_FILENO);
            std::freopen("/dev/null", "w", stdout);
            std::vector<char*> words = {const_cast<char*>(PHYSICS_CASE_PROGRAM)};
            for (const std::string& argument : arguments) {
                words.push_back(const_cast<char*>(argument.c_str()));
            }
            words.push_back(nullptr);
            execv(words[0], words.data());
            _exit(127);
        }
        close(ends[1]);
        m_messages = ends[0];
    }
    ~Running()
    {
        close(m_messages);
        if (m_process > 0) {
            kill(m_process, SIGKILL);
            waitpid(m_process, nullptr, 0);
        }
    }
    Running(const Running&) = delete;
    Running& operator=(const Running&) = delete;

    void interrupt() const { kill(m_process, SIGINT); }

    /// What it says within this time, or until it has said so much.
    std::string saysWithin(std::chrono::milliseconds time, const std::string& until = "\n") const
    {
        std::string text;
        const auto end = std::chrono::steady_clock::now() + time;
        while (std::chrono::steady_clock::now() < end && text.find(until) == std::string::npos) {
            pollfd waiting = {m_messages, POLLIN, 0};
            std::array<char, 4096> buffer{};
            if (poll(&waiting, 1, 50) > 0) {
                const ssize_t size = read(m_messages, buffer.data(), buffer.size());
                if (size <= 0) {
                    break;
                }
                text.append(buffer.data(), static_cast<std::size_t>(size));
            }
        }
        return text;
    }

    /// Waits for its end: the exit code, or minus the signal that ended it.
    int end()
    {
        int status = 0;
        waitpid(m_process, &status, 0);
        m_process = -1;
        return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
    }

private:
    pid_t m_process = -1;
    int m_messages = -1;
};

/// A topology file whose reader waits until the test gives it its content.
class SlowFile {
public:
    SlowFile() { EXPECT_EQ(mkfifo(m_path.c_str(), 0600), 0); }
    ~SlowFile() { std::filesystem::remove(m_path); }
    SlowFile(const SlowFile&) = delete;
    SlowFile& operator=(const SlowFile&) = delete;

    std::string path() const { return m_path.string(); }
    void give() const
    {
        std::ofstream(m_path) << R"({"format": "physics-topology", "version": 1, "bodies": [{"id": "a"}]})";
    }

private:
    const std::filesystem::path m_path =
        std::filesystem::temp_directory_path() / (std::to_string(getpid()) + "-slow.json");
};

TEST(Progress, longWorkIsToldOnATerminal)
{
    const SlowFile file;
    Running program({"topology", file.path()}, Running::Messages::Terminal);

    EXPECT_THAT(program.saysWithin(30s, " s"), StartsWith("\r\x1B[Kreading " + file.path() + ", "));
    file.give();
    EXPECT_EQ(program.end(), 0);
    EXPECT_THAT(program.saysWithin(100ms), HasSubstr("\r\x1B[K"));
}

TEST(Progress, longWorkIsNotToldInAPipe)
{
    const SlowFile file;
    Running program({"topology", file.path()}, Running::Messages::Pipe);

    EXPECT_EQ(program.saysWithin(1200ms), "");
    file.give();
    EXPECT_EQ(program.end(), 0);
    EXPECT_EQ(program.saysWithin(100ms), "");
}

TEST(Interruption, endsTheProgramWhileItShowsProgress)
{
    const SlowFile file;
    Running program({"topology", file.path()}, Running::Messages::Terminal);
    ASSERT_THAT(program.saysWithin(30s, " s"), HasSubstr("reading"));

    program.interrupt();

    EXPECT_EQ(program.end(), -SIGINT);
}

/// Interrupted at any moment, the program leaves the old file or the new one, and nothing beside it.
TEST(Interruption, leavesNoHalfWrittenFile)
{
    const std::filesystem::path folder =
        std::filesystem::temp_directory_path() / (std::to_string(getpid()) + "-interrupted");
    std::filesystem::create_directory(folder);
    {
        std::ofstream topology(folder / "t.json");
        topology << R"({"format": "physics-topology", "version": 1, "bodies": [)";
        for (int i = 0; i < 2000; ++i) {
            topology << (i == 0 ? "" : ",") << "{\"id\": \"body " << i << "\"}";
        }
        topology << "]}";
    }
    const std::string target = (folder / "case.json").string();
    const std::vector<std::string> arguments = {"new", (folder / "t.json").string(), "--force", "-o", target};
    const auto begin = std::chrono::steady_clock::now();
    ASSERT_EQ(Running(arguments, Running::Messages::Pipe).end(), 0);
    const auto wholeTime = std::chrono::steady_clock::now() - begin;
    const std::string proposal = contentOf(target);
    int noOfInterrupted = 0;
    for (int i = 0; i < 20; ++i) {
        std::ofstream(target) << "old";

        Running program(arguments, Running::Messages::Pipe);
        std::this_thread::sleep_for(wholeTime * i / 20);
        program.interrupt();
        const int code = program.end();

        noOfInterrupted += code == -SIGINT ? 1 : 0;
        EXPECT_TRUE(code == -SIGINT || code == 0) << code;
        const std::string content = contentOf(target);
        EXPECT_TRUE(content == proposal || (content == "old" && code == -SIGINT)) << i;
        EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 2) << i;
    }
    std::filesystem::remove_all(folder);
    EXPECT_GT(noOfInterrupted, 0);
}

} // namespace
