#pragma once

#include <string>

namespace physics::apps {

/// The shell command that shows long output on a terminal: $PAGER, or one of our own choice when that is not set.
/// Empty when the user wants none, which an empty $PAGER or the value "cat" says.
std::string pagerOfUser();

/// Lets a command of the shell show a text. It need not read all of it. False when the command cannot be run.
bool showThrough(const std::string& command, const std::string& text);

} // namespace physics::apps
