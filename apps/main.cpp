#include "apps/CaseTool.h"
#include "apps/Output.h"
#include "apps/Pager.h"

#include <unistd.h>

#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

namespace {

/// Whether a stream wants colours: only a terminal that can show them, and a user who has not said no.
bool wantsColor(int descriptor)
{
    const char* refused = std::getenv("NO_COLOR");
    const char* terminal = std::getenv("TERM");
    return isatty(descriptor) == 1 && (refused == nullptr || *refused == '\0') && terminal != nullptr &&
           std::string_view(terminal) != "dumb";
}

} // namespace

int main(int argc, char** argv)
{
    physics::apps::Output output(std::cout, std::cerr, wantsColor(STDOUT_FILENO), wantsColor(STDERR_FILENO));
    if (isatty(STDOUT_FILENO) == 1) {
        output.setPager(physics::apps::pagerOfUser());
    }
    if (isatty(STDERR_FILENO) == 1) {
        output.showProgress();
    }
    const std::vector<std::string> arguments(argv + (argc > 0 ? 1 : 0), argv + argc);
    return static_cast<int>(physics::apps::runCaseTool(arguments, output));
}
