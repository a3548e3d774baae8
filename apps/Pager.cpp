#include "apps/Pager.h"

#include <sys/wait.h>

#include <csignal>
#include <cstdio>
#include <cstdlib>

namespace physics::apps {

std::string pagerOfUser()
{
    const char* command = std::getenv("PAGER");
    const std::string pager = command == nullptr ? "less -FRX" : command;
    return pager == "cat" ? "" : pager;
}

bool showThrough(const std::string& command, const std::string& text)
{
    // A pager that is left early closes the pipe: that ends the text, not this program.
    auto* const before = std::signal(SIGPIPE, SIG_IGN);
    FILE* const pipe = popen(command.c_str(), "w");
    if (pipe != nullptr) {
        std::fwrite(text.data(), 1, text.size(), pipe);
    }
    const int status = pipe == nullptr ? -1 : pclose(pipe);
    std::signal(SIGPIPE, before);
    constexpr int noSuchCommand = 127;
    constexpr int notRunnable = 126;
    return status != -1 &&
           !(WIFEXITED(status) && (WEXITSTATUS(status) == noSuchCommand || WEXITSTATUS(status) == notRunnable));
}

} // namespace physics::apps
