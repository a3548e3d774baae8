#pragma once

#include "apps/CaseFile.h"

namespace gtm::support {
class JsonSource;
}

namespace physics::apps {

class Complaints;

/// Reads a case file: which keys there are, what kind of value each has, and the names of types. It goes on
/// after a mistake, so that all of them are complained about; what could not be read keeps its default, and
/// a list that is none gets one default element. Whether names refer to something is asked elsewhere.
CaseFile readCase(const gtm::support::JsonSource& source, Complaints& complaints);

} // namespace physics::apps
