#pragma once

#include "apps/check/Examiner.h"

#include <memory>

namespace physics::apps {

struct Listed;

/// Finds the objects that the set-up does not list because of their names.
std::unique_ptr<Examiner> examinerOfNames(const Listed& setUp);

} // namespace physics::apps
