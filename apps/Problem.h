#pragma once

#include <string>

namespace physics::apps {

/// Something wrong with a case: the JSON pointer of the value at fault, and a whole sentence about it.
struct Problem {
    std::string path;
    std::string sentence;
};

} // namespace physics::apps
