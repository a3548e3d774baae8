#pragma once

#include "apps/Problem.h"
#include "apps/check/Coverage.h"
#include "apps/check/Finding.h"
#include "apps/check/Places.h"

#include <cstddef>
#include <string>
#include <vector>

namespace physics {
class Physics;
class Region;
} // namespace physics

namespace physics::apps {

/// All that a check has to say of a set-up; it must not outlive that.
struct CheckReport {
    /// What is wrong with one object, or, when `region` is null, with the set-up as a whole.
    struct Object {
        const Region* region = nullptr;
        std::vector<Finding> findings;  ///< in ascending order of their kinds
        std::vector<std::string> lines; ///< what the rules of the library say, in its own words
    };

    std::string file; ///< what was checked, as its user names it
    Places places;
    std::vector<Object> objects; ///< those with something wrong: the set-up, then in its order
    Coverage coverage;

    std::size_t noOf(Severity severity) const;

    /// Those of all objects, in their order.
    std::vector<const Finding*> findings() const;
};

/// Checks a set-up on `model`. `refusals` are what was asked for and could not be made.
CheckReport check(const Physics& physics, const gtm::bundled::LocationModel& model,
                  const std::vector<Problem>& refusals, bool ignoreWarnings);

} // namespace physics::apps
