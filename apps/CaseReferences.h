#pragma once

#include "apps/CaseFile.h"
#include "apps/Problem.h"

#include <vector>

namespace physics::apps {

/// What the names and numbers of a case file do not agree on: a name or number given twice, a reference to
/// what the file does not define, a volume in two groups. In the order of the file, kind by kind. What could
/// not be read (it is empty) is not complained about again.
std::vector<Problem> checkReferences(const CaseFile& file);

} // namespace physics::apps
