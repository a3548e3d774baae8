#pragma once

#include "apps/check/Finding.h"

#include <string>
#include <vector>

namespace gtm {
class Region;
}

namespace physics {
class Boundary;
class Interface;
class Volume;
} // namespace physics

namespace physics::apps {

/// What findings call an object.
Finding::Subject subjectOf(const Volume& volume);
Finding::Subject subjectOf(const Boundary& boundary);
Finding::Subject subjectOf(const Interface& interface);

/// `The volume "duct"`: the beginning of a sentence about a subject.
std::string theSubject(const Finding::Subject& subject);

/// `"a", "b", "c"`, of many only the first: `"a", "b", "c", "d", "e" and 7 more`.
std::string listed(const std::vector<std::string>& names);

/// The ids of topology regions, in their order, without null.
template <class R>
std::vector<std::string> idsOf(const std::vector<R*>& regions)
{
    std::vector<std::string> ids;
    for (const R* region : regions) {
        if (region != nullptr) {
            ids.push_back(region->id());
        }
    }
    return ids;
}

} // namespace physics::apps
