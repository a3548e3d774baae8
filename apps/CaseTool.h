#pragma once

#include "apps/Verb.h"

#include <memory>
#include <string>
#include <vector>

namespace physics::apps {

class Output;

/// Everything that the program can be asked to do, in the order of its help.
std::vector<std::unique_ptr<Verb>> allVerbs();

/// Runs the program on the words behind its name. Nothing escapes: every failure is told through `output`
/// and the result.
ExitCode runCaseTool(const std::vector<std::string>& arguments, Output& output);

} // namespace physics::apps
