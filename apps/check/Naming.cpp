#include "apps/check/Naming.h"

#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Volume.h"
#include "support/InQuotes.h"

#include <algorithm>

namespace physics::apps {

using gtm::support::inQuotes;

Finding::Subject subjectOf(const Volume& volume) { return {"volume", volume.fullName()}; }
Finding::Subject subjectOf(const Boundary& boundary) { return {"boundary", boundary.fullName()}; }
Finding::Subject subjectOf(const Interface& interface) { return {"interface", interface.fullName()}; }

std::string theSubject(const Finding::Subject& subject) { return "The " + subject.type + " " + inQuotes(subject.name); }

std::string listed(const std::vector<std::string>& names)
{
    constexpr std::size_t most = 5;
    std::string text;
    for (std::size_t i = 0; i < std::min(most, names.size()); ++i) {
        text += (i == 0 ? "" : ", ") + inQuotes(names[i]);
    }
    return names.size() <= most ? text : text + " and " + std::to_string(names.size() - most) + " more";
}

} // namespace physics::apps
