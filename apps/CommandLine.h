#pragma once

#include "apps/Verb.h"

#include <functional>
#include <string>
#include <vector>

namespace CLI {
class App;
}

// What the programs have in common around their own work.

namespace physics::apps {

class Output;

/// Reads the command line into the options of `app`. False when it asks for the help, which is written then.
/// Throws `InputError` when it is wrong.
bool parseCommandLine(CLI::App& app, const std::vector<std::string>& arguments, Output& output);

/// Runs the work of a program and makes complaints and exit codes of what it throws. A result that cannot be
/// written is bad input too.
ExitCode runProgram(const std::string& name, Output& output, const std::function<ExitCode()>& work);

} // namespace physics::apps
