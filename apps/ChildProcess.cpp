#include "apps/ChildProcess.h"

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <string_view>
#include <system_error>

namespace physics::apps {
namespace {

[[noreturn]] void fail(const char* what) { throw std::system_error(errno, std::generic_category(), what); }

/// The child ends without a word to what it shares with its parent, such as output that waits to be written.
[[noreturn]] void answer(int pipe, const std::function<std::string()>& work)
{
    for (const int crash : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT}) {
        std::signal(crash, SIG_DFL);
    }
    const std::string text = work();
    for (std::string_view rest = text; !rest.empty();) {
        const ssize_t written = write(pipe, rest.data(), rest.size());
        if (written < 0 && errno != EINTR) {
            _exit(1);
        }
        rest.remove_prefix(static_cast<std::size_t>(written < 0 ? 0 : written));
    }
    _exit(0);
}

std::string readAll(int pipe)
{
    std::string text;
    std::array<char, 65536> buffer{};
    for (;;) {
        const ssize_t size = read(pipe, buffer.data(), buffer.size());
        if (size == 0 || (size < 0 && errno != EINTR)) {
            return text;
        }
        text.append(buffer.data(), static_cast<std::size_t>(size < 0 ? 0 : size));
    }
}

int statusOf(pid_t child)
{
    int status = 0;
    while (waitpid(child, &status, 0) < 0) {
        if (errno != EINTR) {
            fail("waiting for a child process");
        }
    }
    return status;
}

} // namespace

std::string answerOfChild(const std::function<std::string()>& work)
{
    std::array<int, 2> ends{};
    if (pipe(ends.data()) != 0) {
        fail("making a pipe");
    }
    const pid_t child = fork();
    if (child == 0) {
        close(ends[0]);
        answer(ends[1], work);
    }
    close(ends[1]);
    if (child < 0) {
        close(ends[0]);
        fail("starting a child process");
    }
    std::string text = readAll(ends[0]);
    close(ends[0]);
    const int status = statusOf(child);
    if (WIFSIGNALED(status)) {
        throw ChildDied("signal " + std::to_string(WTERMSIG(status)));
    }
    if (WEXITSTATUS(status) != 0) {
        throw ChildDied("exit code " + std::to_string(WEXITSTATUS(status)));
    }
    return text;
}

} // namespace physics::apps
