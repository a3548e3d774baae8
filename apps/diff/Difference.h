#pragma once

#include "apps/diff/Description.h"

#include <string>
#include <vector>

namespace physics::apps {

/// One thing in which two set-ups differ.
struct Difference {
    // The object, as its description in the first set-up that has it tells.
    std::string kind;
    std::string name;
    std::string of;
    std::string label;

    std::string change; ///< "added", "removed", "renamed", "retyped", "moved", "relocated" or "changed"
    std::string aspect; ///< what changed; empty for what was added or removed
    std::string from;   ///< how it was in the first set-up
    std::string to;     ///< how it is in the second
};

/// What is different, object by object: first all of the first set-up in its order, then what only the second
/// has. Of several objects with the same key, the first is compared with the first, and so on.
std::vector<Difference> differences(const std::vector<Description>& first, const std::vector<Description>& second);

/// A line for people, such as `volume "a": retyped from Fluid to Solid`.
std::string lineOf(const Difference& difference);

} // namespace physics::apps
