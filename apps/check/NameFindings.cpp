#include "apps/check/NameFindings.h"

#include "apps/check/Listed.h"
#include "apps/check/Naming.h"

#include <string>
#include <unordered_set>

namespace physics::apps {
namespace {

/// The boundaries that a volume lists, of all volumes that have others too.
std::unordered_set<const Region*> boundariesBesideUnlisted(const Listed& setUp)
{
    std::unordered_set<const Volume*> volumes;
    std::unordered_set<const Region*> boundaries;
    for (const Region* region : setUp.unlisted) {
        const auto* boundary = dynamic_cast<const Boundary*>(region);
        if (boundary != nullptr && volumes.insert(boundary->volume()).second) {
            const std::vector<Boundary*> listed = boundary->volume()->boundaries();
            boundaries.insert(listed.begin(), listed.end());
        }
    }
    return boundaries;
}

template <class R>
Finding findingAbout(const R& region)
{
    const Finding::Subject subject = subjectOf(region);
    return {FindingKind::EqualName,
            subject,
            &region,
            theSubject(subject) + " with the id " + std::to_string(region.id()) +
                " is not in the lists of the set-up, because another " + subject.type +
                " has its name. Give it a name of its own.",
            {}};
}

} // namespace

std::vector<Finding> findByName(const Listed& setUp)
{
    const std::unordered_set<const Region*> listedByVolume = boundariesBesideUnlisted(setUp);
    std::vector<Finding> findings;
    for (const Region* region : setUp.unlisted) {
        if (const auto* volume = dynamic_cast<const Volume*>(region)) {
            findings.push_back(findingAbout(*volume));
        } else if (const auto* interface = dynamic_cast<const Interface*>(region)) {
            findings.push_back(findingAbout(*interface));
        } else if (listedByVolume.count(region) == 0) { // else only its volume is not listed
            findings.push_back(findingAbout(static_cast<const Boundary&>(*region)));
        }
    }
    return findings;
}

} // namespace physics::apps
