#pragma once

#include "apps/check/Examiner.h"

#include <memory>

namespace gtm::bundled {
class LocationModel;
}

namespace physics::apps {

/// Finds what the location model finds wrong, with its reasons; the unused bodies are about the set-up. A region may be
/// wrong in several ways although it has one state only. The set-up must lie on `model`, which must outlive the
/// examiner.
std::unique_ptr<Examiner> examinerOfStates(const gtm::bundled::LocationModel& model);

} // namespace physics::apps
