#pragma once

#include <string>

/// What the real program does with a command line, run by a shell in the folder of the repository. Ids are
/// drawn from counters of the process, so only a run of its own always lists the same.
struct ProgramRun {
    explicit ProgramRun(const std::string& arguments);

    int code = 0; ///< -1 when the program was ended by a signal
    std::string out;
    std::string err;
};
