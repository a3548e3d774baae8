#pragma once

#include "apps/check/Examiner.h"

#include <memory>

namespace physics::apps {

/// Finds what the rules of the library object to, with what the lines of the library only have in words. An object has
/// such a finding exactly when the rules complain about the object itself; the warning about tags counts for the
/// boundary that carries the tag.
std::unique_ptr<Examiner> examinerOfRules();

} // namespace physics::apps
