#pragma once

#include "apps/check/Finding.h"

#include <vector>

namespace gtm::bundled {
class LocationModel;
}

namespace physics::apps {

struct Listed;

/// What the location model finds wrong, with its reasons: the unused bodies, then the listed volumes,
/// boundaries and interfaces in the order of the set-up. A region may be wrong in several ways although it
/// has one state only. The set-up must lie on `model`.
std::vector<Finding> findByState(const Listed& setUp, const gtm::bundled::LocationModel& model);

} // namespace physics::apps
