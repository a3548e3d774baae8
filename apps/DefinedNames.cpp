#include "apps/DefinedNames.h"

#include "apps/Complaints.h"
#include "support/InQuotes.h"
#include "support/NearestName.h"

#include <utility>

namespace physics::apps {

using gtm::support::inQuotes;

DefinedNames::DefinedNames(std::string kind, std::vector<Problem>& problems)
    : m_kind(std::move(kind)), m_problems(problems)
{}

void DefinedNames::define(const std::string& name, const std::string& path)
{
    if (name.empty()) {
        m_isComplete = false;
        return;
    }
    const auto [known, isNew] = m_pathByName.emplace(name, path);
    if (!isNew) {
        m_problems.push_back({path + "/name", "the name " + inQuotes(name) + " is taken by the " + m_kind + " at " +
                                                  known->second + "; give each " + m_kind + " its own."});
    }
}

void DefinedNames::refer(const std::string& name, const std::string& path)
{
    const bool isEnough = m_problems.size() >= Complaints::most; // looking for a near name takes time
    if (name.empty() || !m_isComplete || isEnough || m_pathByName.count(name) != 0) {
        return;
    }
    std::vector<std::string> names;
    for (const auto& [known, where] : m_pathByName) {
        names.push_back(known);
    }
    m_problems.push_back({path, "read " + inQuotes(name) + ", expected the name of a " + m_kind +
                                    gtm::support::hintForName(name, names)});
}

} // namespace physics::apps
