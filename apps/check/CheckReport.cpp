#include "apps/check/CheckReport.h"

#include "apps/check/Listed.h"
#include "apps/check/NameFindings.h"
#include "apps/check/RuleFindings.h"
#include "apps/check/StateFindings.h"
#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Physics.h"
#include "physics/SortByKey.h"
#include "physics/Volume.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <unordered_map>
#include <utility>

namespace physics::apps {
namespace {

using LinesOf = std::unordered_map<const Region*, std::vector<std::string>>;

/// What the library says, of what the set-up lists and of the rest.
LinesOf complaintsAbout(const Listed& setUp, bool ignoreWarnings)
{
    LinesOf lines;
    for (Physics::Complaint& complaint : setUp.physics.complaints(ignoreWarnings)) {
        lines[complaint.region] = std::move(complaint.lines);
    }
    for (const Region* region : setUp.unlisted) {
        if (std::vector<std::string> said = region->validate(ignoreWarnings); !said.empty()) {
            lines[region] = std::move(said);
        }
    }
    return lines;
}

/// Positions in a list of regions by their ids. Those that were made one after the other lie side by side in memory;
/// the order of the list, that of names, jumps about in it.
template <class R>
std::vector<std::size_t> positionsById(const std::vector<R*>& regions)
{
    std::vector<Keyed<std::size_t>> keyed;
    for (const R* region : regions) {
        keyed.push_back({region->id(), keyed.size()});
    }
    sortByKey(keyed);
    std::vector<std::size_t> positions;
    for (const Keyed<std::size_t>& each : keyed) {
        positions.push_back(each.element);
    }
    return positions;
}

bool isWarning(const Finding& finding) { return rowOf(finding.kind).severity == Severity::Warning; }

std::vector<Finding> findingsOf(const std::vector<Problem>& refusals)
{
    std::vector<Finding> findings;
    for (const Problem& refusal : refusals) {
        findings.push_back(
            {FindingKind::Refused, {"place", refusal.path}, nullptr, "Not made: " + refusal.sentence, {}});
    }
    return findings;
}

/// One check: looks at all regions, and puts what it finds in the order of the set-up.
class Check {
public:
    Check(const Physics& physics, const gtm::bundled::LocationModel& model, bool ignoreWarnings)
        : m_setUp(physics),
          m_model(model),
          m_ignoreWarnings(ignoreWarnings),
          m_lines(complaintsAbout(m_setUp, ignoreWarnings))
    {
        m_examiners.push_back(examinerOfStates(model));
        m_examiners.push_back(examinerOfNames(m_setUp));
        m_examiners.push_back(examinerOfRules());
    }

    CheckReport report(const std::vector<Problem>& refusals)
    {
        look(nullptr, m_setUp.physics, findingsOf(refusals));
        lookAtAll(m_setUp.volumes);
        lookAtAll(m_setUp.boundaries);
        lookAtAll(m_setUp.interfaces);
        CheckReport report;
        std::sort(m_objects.begin(), m_objects.end(),
                  [](const Placed& left, const Placed& right) { return left.position < right.position; });
        for (Placed& each : m_objects) {
            report.objects.push_back(std::move(each.object));
        }
        report.coverage = coverageOf(m_setUp, m_model, std::move(m_ownerships));
        return report;
    }

private:
    struct Placed {
        std::size_t position;
        CheckReport::Object object;
    };

    template <class R>
    void lookAtAll(const std::vector<R*>& regions)
    {
        for (const std::size_t position : positionsById(regions)) {
            m_position = m_noOfListed + position;
            look(regions[position], *regions[position], {});
            noteFaceUses(*regions[position], position);
        }
        m_noOfListed += regions.size();
    }

    template <class Asked>
    void look(const Region* region, const Asked& asked, std::vector<Finding> findings)
    {
        for (const auto& examiner : m_examiners) {
            std::vector<Finding> more = examiner->about(asked);
            std::move(more.begin(), more.end(), std::back_inserter(findings));
        }
        if (m_ignoreWarnings) {
            findings.erase(std::remove_if(findings.begin(), findings.end(), isWarning), findings.end());
        }
        std::stable_sort(findings.begin(), findings.end(),
                         [](const Finding& left, const Finding& right) { return left.kind < right.kind; });
        const auto lines = m_lines.find(region);
        if (!findings.empty() || lines != m_lines.end()) {
            m_objects.push_back({m_position, {region, std::move(findings), {}}});
        }
        if (lines != m_lines.end()) {
            m_objects.back().object.lines = std::move(lines->second);
        }
    }

    void noteFaceUses(const Region& /*region*/, std::size_t /*position*/) {}
    void noteFaceUses(const Boundary& boundary, std::size_t position)
    {
        for (const gtm::FaceUse* faceUse : boundary.faceUses()) {
            m_ownerships.push_back({faceUse, position});
        }
    }

    const Listed m_setUp;
    const gtm::bundled::LocationModel& m_model;
    const bool m_ignoreWarnings;
    LinesOf m_lines;
    std::vector<std::unique_ptr<Examiner>> m_examiners;
    std::vector<Placed> m_objects;
    std::vector<Ownership> m_ownerships;
    std::size_t m_position = 0;   ///< of what is looked at, among all
    std::size_t m_noOfListed = 1; ///< before the present list; the set-up itself is the first of all
};

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
    return Check(physics, model, ignoreWarnings).report(refusals);
}

} // namespace physics::apps
