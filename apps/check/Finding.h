#pragma once

#include "apps/check/FindingKind.h"

#include <map>
#include <string>
#include <vector>

namespace physics {
class Region;
}

namespace physics::apps {

/// One thing that is wrong with a set-up.
struct Finding {
    /// What it is about: a "volume", a "boundary" or an "interface" by its full name, a "body" by its id, or
    /// a "place" of the case file by its JSON pointer.
    struct Subject {
        std::string type;
        std::string name;
    };

    FindingKind kind;
    Subject subject;
    const Region* region = nullptr; ///< the subject, when it is an object of the set-up

    /// Whole sentences. They name the subject, and the first few of many regions.
    std::string message;

    /// Lists of names and ids, all of them, by what they are.
    std::map<std::string, std::vector<std::string>> details;
};

} // namespace physics::apps
