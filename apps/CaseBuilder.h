#pragma once

#include "apps/Problem.h"

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace gtm::bundled {
class LocationModel;
}

namespace physics {
class Physics;
}

namespace physics::apps {

class Progress;
struct CaseFile;

/// A set-up made from a case file.
struct BuiltCase {
    BuiltCase();
    BuiltCase(BuiltCase&&) noexcept;
    BuiltCase& operator=(BuiltCase&&) noexcept;
    ~BuiltCase();

    std::unique_ptr<Physics> physics; ///< never null; must end before its location model

    /// What the file asks for and the set-up does not have, and why; in the order of the attempts.
    std::vector<Problem> refusals;

    /// The names that the file gives to the models, by their ids.
    std::map<int, std::string> modelNames;
};

/// Builds the set-up: the mask, then models, volumes with their boundaries, interfaces, solver threads and
/// groups of deactivated volumes, each in the order of the file. Whatever can be built is built; what needs
/// something that was refused is refused too. The references of the file must have been checked. `progress`, which
/// may be null, is told each step.
BuiltCase buildCase(const CaseFile& file, const gtm::bundled::LocationModel& model, Progress* progress = nullptr);

/// How many steps that takes: one for each volume, boundary and interface.
std::size_t noOfSteps(const CaseFile& file);

} // namespace physics::apps
