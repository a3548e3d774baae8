#pragma once

#include "apps/check/Finding.h"

#include <vector>

namespace physics::apps {

struct Listed;

/// The objects that the set-up does not list because of their names, in its order.
std::vector<Finding> findByName(const Listed& setUp);

} // namespace physics::apps
