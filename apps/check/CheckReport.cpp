#include "apps/check/CheckReport.h"

#include "apps/check/RuleFindings.h"
#include "apps/check/StateFindings.h"
#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Physics.h"
#include "physics/Volume.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace physics::apps {
namespace {

/// Gathers what is said of each object, in the order of the set-up.
class Gathering {
public:
    explicit Gathering(const Physics& physics)
    {
        addObject(nullptr);
        addObjects(physics.volumes());
        addObjects(physics.boundaries());
        addObjects(physics.interfaces());
    }

    void add(std::vector<Finding> findings)
    {
        for (Finding& finding : findings) {
            at(finding.region).findings.push_back(std::move(finding));
        }
    }

    void add(std::vector<Physics::Complaint> complaints)
    {
        for (Physics::Complaint& complaint : complaints) {
            at(complaint.region).lines = std::move(complaint.lines);
        }
    }

    std::vector<CheckReport::Object> take(bool ignoreWarnings)
    {
        for (CheckReport::Object& object : m_objects) {
            if (ignoreWarnings) {
                std::erase_if(object.findings,
                              [](const Finding& finding) { return rowOf(finding.kind).severity == Severity::Warning; });
            }
            std::stable_sort(object.findings.begin(), object.findings.end(),
                             [](const Finding& left, const Finding& right) { return left.kind < right.kind; });
        }
        std::erase_if(m_objects, [](const CheckReport::Object& object) {
            return object.findings.empty() && object.lines.empty();
        });
        return std::move(m_objects);
    }

private:
    void addObject(const Region* region)
    {
        m_indexes.emplace(region, m_objects.size());
        m_objects.push_back({region, {}, {}});
    }

    template <class R>
    void addObjects(const std::vector<R*>& regions)
    {
        for (const R* region : regions) {
            addObject(region);
        }
    }

    CheckReport::Object& at(const Region* region) { return m_objects[m_indexes.at(region)]; }

    std::vector<CheckReport::Object> m_objects;
    std::unordered_map<const Region*, std::size_t> m_indexes;
};

std::vector<Finding> findingsOf(const std::vector<Problem>& refusals)
{
    std::vector<Finding> findings;
    for (const Problem& refusal : refusals) {
        findings.push_back(
            {FindingKind::Refused, {"place", refusal.path}, nullptr, "Not made: " + refusal.sentence, {}});
    }
    return findings;
}

} // namespace

std::size_t CheckReport::noOf(Severity severity) const
{
    const std::vector<const Finding*> all = findings();
    return static_cast<std::size_t>(std::count_if(all.begin(), all.end(), [severity](const Finding* finding) {
        return rowOf(finding->kind).severity == severity;
    }));
}

std::vector<const Finding*> CheckReport::findings() const
{
    std::vector<const Finding*> all;
    for (const Object& object : objects) {
        for (const Finding& finding : object.findings) {
            all.push_back(&finding);
        }
    }
    return all;
}

CheckReport check(const Physics& physics, const gtm::bundled::LocationModel& model,
                  const std::vector<Problem>& refusals, bool ignoreWarnings)
{
    Gathering gathering(physics);
    gathering.add(findingsOf(refusals));
    gathering.add(findByState(physics, model));
    gathering.add(findByRules(physics));
    gathering.add(physics.complaints(ignoreWarnings));
    CheckReport report;
    report.objects = gathering.take(ignoreWarnings);
    report.coverage = coverageOf(physics, model);
    return report;
}

} // namespace physics::apps
