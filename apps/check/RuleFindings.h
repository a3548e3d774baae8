#pragma once

#include "apps/check/Finding.h"

#include <vector>

namespace physics::apps {

struct Listed;

/// What the rules of the library object to, object by object in the order of the set-up, with what the lines
/// of the library only have in words. An object has such a finding exactly when the rules complain about the
/// object itself; the warning about tags counts for the boundary that carries the tag.
std::vector<Finding> findByRules(const Listed& setUp);

} // namespace physics::apps
