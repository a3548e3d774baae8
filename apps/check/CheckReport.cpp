#include "apps/check/CheckReport.h"

#include "apps/check/Listed.h"
#include "apps/check/NameFindings.h"
#include "apps/check/RuleFindings.h"
#include "apps/check/StateFindings.h"
#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Physics.h"
#include "physics/Volume.h"

#include <algorithm>
#include <memory>
#include <unordered_map>
#include <utility>

namespace physics::apps {
namespace {

/// Takes from the front of a list, behind those that were taken before, what is about a region.
template <class T>
class InOrder {
public:
    explicit InOrder(std::vector<T> list) : m_list(std::move(list)) {}

    template <class Take>
    void takeAbout(const Region* region, const Take& take)
    {
        for (; m_next < m_list.size() && m_list[m_next].region == region; ++m_next) {
            take(m_list[m_next]);
        }
    }

private:
    std::vector<T> m_list;
    std::size_t m_next = 0;
};

std::vector<const Region*> allRegions(const Listed& setUp)
{
    std::vector<const Region*> regions = {nullptr};
    const auto add = [&regions](const auto& more) { regions.insert(regions.end(), more.begin(), more.end()); };
    add(setUp.volumes);
    add(setUp.boundaries);
    add(setUp.interfaces);
    return regions;
}

/// Those of the library, which are about what the set-up lists, and those about the rest.
std::vector<Physics::Complaint> complaintsAbout(const Listed& setUp, bool ignoreWarnings)
{
    std::vector<Physics::Complaint> complaints = setUp.physics.complaints(ignoreWarnings);
    if (setUp.unlisted.empty()) {
        return complaints;
    }
    std::unordered_map<const Region*, std::vector<std::string>> lines;
    for (Physics::Complaint& complaint : complaints) {
        lines[complaint.region] = std::move(complaint.lines);
    }
    for (const Region* region : setUp.unlisted) {
        lines[region] = region->validate(ignoreWarnings);
    }
    complaints.clear();
    for (const Region* region : allRegions(setUp)) {
        complaints.push_back({region, std::move(lines[region])});
    }
    return complaints;
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
    CheckReport report;
    const Listed setUp(physics);
    // All lists are in the order of the set-up, which begins with what is about no object.
    InOrder byCase(findingsOf(refusals));
    InOrder byName(findByName(setUp));
    InOrder byLibrary(complaintsAbout(setUp, ignoreWarnings));
    const std::unique_ptr<Examiner> byState = examinerOfStates(model);
    const std::unique_ptr<Examiner> byRules = examinerOfRules();
    const auto look = [&](const Region* region, const auto& asked) {
        CheckReport::Object object{region, {}, {}};
        const auto take = [&object, ignoreWarnings](Finding& finding) {
            if (!ignoreWarnings || !isWarning(finding)) {
                object.findings.push_back(std::move(finding));
            }
        };
        byCase.takeAbout(region, take);
        for (Examiner* examiner : {byState.get(), byRules.get()}) {
            std::vector<Finding> findings = examiner->about(asked);
            std::for_each(findings.begin(), findings.end(), take);
        }
        byName.takeAbout(region, take);
        byLibrary.takeAbout(region, [&object](Physics::Complaint& said) { object.lines = std::move(said.lines); });
        std::stable_sort(object.findings.begin(), object.findings.end(),
                         [](const Finding& left, const Finding& right) { return left.kind < right.kind; });
        if (!object.findings.empty() || !object.lines.empty()) {
            report.objects.push_back(std::move(object));
        }
    };
    look(nullptr, physics);
    for (const Volume* volume : setUp.volumes) {
        look(volume, *volume);
    }
    std::vector<Ownership> ownerships;
    for (const Boundary* boundary : setUp.boundaries) {
        look(boundary, *boundary);
        for (const gtm::FaceUse* faceUse : boundary->faceUses()) {
            ownerships.emplace_back(faceUse, boundary);
        }
    }
    for (const Interface* interface : setUp.interfaces) {
        look(interface, *interface);
    }
    report.coverage = coverageOf(setUp, model, std::move(ownerships));
    return report;
}

} // namespace physics::apps
