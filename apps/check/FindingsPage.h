#pragma once

#include <string_view>

namespace physics::apps {

/// The text of docs/findings.md, taken in when the program is built.
extern const std::string_view findingsPage;

} // namespace physics::apps
