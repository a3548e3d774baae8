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

class NameExaminer final : public Examiner {
public:
    explicit NameExaminer(const Listed& setUp)
        : m_unlisted(setUp.unlisted.begin(), setUp.unlisted.end()), m_listedByVolume(boundariesBesideUnlisted(setUp))
    {}

    std::vector<Finding> about(const Physics& /*setUp*/) override { return {}; }
    std::vector<Finding> about(const Volume& volume) override { return aboutUnlisted(volume); }
    std::vector<Finding> about(const Interface& interface) override { return aboutUnlisted(interface); }

    /// Not of one of which only the volume is not listed.
    std::vector<Finding> about(const Boundary& boundary) override
    {
        return m_listedByVolume.count(&boundary) > 0 ? std::vector<Finding>() : aboutUnlisted(boundary);
    }

private:
    template <class R>
    std::vector<Finding> aboutUnlisted(const R& region) const
    {
        return m_unlisted.count(&region) > 0 ? std::vector<Finding>{findingAbout(region)} : std::vector<Finding>();
    }

    const std::unordered_set<const Region*> m_unlisted;
    const std::unordered_set<const Region*> m_listedByVolume;
};

} // namespace

std::unique_ptr<Examiner> examinerOfNames(const Listed& setUp) { return std::make_unique<NameExaminer>(setUp); }

} // namespace physics::apps
