#include "apps/check/StateFindings.h"

#include "apps/check/Naming.h"
#include "gtm/Body.h"
#include "gtm/Face.h"
#include "gtm/FaceUse.h"
#include "gtm/Part.h"
#include "locationmodel/Explain.h"
#include "locationmodel/LocationModel.h"
#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Physics.h"
#include "physics/TypeNames.h"
#include "physics/Volume.h"
#include "support/NearestName.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace physics::apps {
namespace {

/// The kind of finding that a state other than `Valid` is. `Incomplete`, `Overlapping` and so on mean the same
/// for every kind of region that can be in them, but for the overlap.
FindingKind kindOf(State state, TopologyType type)
{
    switch (state) {
    case State::Empty:
        return FindingKind::EmptyRegion;
    case State::Unresolvable:
        return FindingKind::UnknownName;
    case State::Incomplete:
        return FindingKind::UncoveredSurface;
    case State::Inconsistent:
        return FindingKind::WrongRegion;
    case State::Overlapping:
        return type == TopologyType::Volume ? FindingKind::OverlappingVolumes : FindingKind::OverlappingBoundaries;
    case State::InterfaceSameBoundary:
        return FindingKind::SameBoundaryTwice;
    case State::InterfaceBoundaries:
        return FindingKind::UnsoundBoundaries;
    case State::InterfaceVolumes:
        return FindingKind::SeveralVolumesOnASide;
    case State::InterfaceSharedFaces:
        return FindingKind::BothSidesOfAFace;
    case State::Valid:
        break;
    }
    throw std::logic_error("a region is in the unknown state " + std::to_string(static_cast<int>(state)));
}

/// The words between the subject and the reason.
std::string phraseFor(FindingKind kind)
{
    switch (kind) {
    case FindingKind::UnknownName:
        return "has a location that cannot be resolved.";
    case FindingKind::WrongRegion:
        return "has a location that does not fit.";
    case FindingKind::EmptyRegion:
        return "is empty.";
    case FindingKind::OverlappingVolumes:
    case FindingKind::OverlappingBoundaries:
        return "overlaps others.";
    case FindingKind::UncoveredSurface:
        return "has surface that is in no boundary.";
    default:
        return "is not valid.";
    }
}

class StateExaminer final : public Examiner {
public:
    explicit StateExaminer(const gtm::bundled::LocationModel& model) : m_model(model) {}

    std::vector<Finding> about(const Physics& setUp) override;
    std::vector<Finding> about(const Volume& volume) override;
    std::vector<Finding> about(const Boundary& boundary) override;
    std::vector<Finding> about(const Interface& interface) override;

private:
    using Details = std::map<std::string, std::vector<std::string>>;

    /// Adds what the state of a region says, unless this kind of finding has been made about it.
    template <class R, class Entity>
    void addState(const R& region, const Entity& entity);
    template <class R>
    void add(FindingKind kind, const R& region, const std::string& sentence, Details details);
    template <class R, class Entity>
    void addUnresolvable(const R& region, const Entity& entity, const std::vector<std::string>& names,
                         const std::vector<std::string>& known);
    template <class R>
    void addOverlaps(FindingKind kind, const R& region, const std::vector<R*>& others, const std::string& what);

    const std::vector<std::string>& bodyNames();
    const std::vector<std::string>& surfaceNames();

    const gtm::bundled::LocationModel& m_model;
    std::vector<Finding> m_findings; ///< about the present region
    std::vector<std::string> m_bodyNames;
    std::vector<std::string> m_surfaceNames;
    std::size_t m_noOfSearches = 0; ///< for near names, in the order in which regions are examined
};

std::vector<Finding> StateExaminer::about(const Physics& setUp)
{
    for (const std::string& body : idsOf(setUp.unusedBodies())) {
        const Finding::Subject subject{"body", body};
        m_findings.push_back(
            {FindingKind::UnusedBody, subject, nullptr, theSubject(subject) + " is in no volume.", {}});
    }
    return std::exchange(m_findings, {});
}

std::vector<Finding> StateExaminer::about(const Volume& volume)
{
    if (const auto names = volume.unresolvableNames(); !names.empty()) {
        addUnresolvable(volume, *volume.interior(), names, bodyNames());
    }
    addOverlaps(FindingKind::OverlappingVolumes, volume, volume.overlappingVolumes(), "bodies");
    if (const auto faceSides = idsOf(volume.unusedFaceUses()); !faceSides.empty()) {
        add(FindingKind::UncoveredSurface, volume, "In none: " + listed(faceSides) + ".", {{"faceSides", faceSides}});
    }
    addState(volume, *volume.interior());
    return std::exchange(m_findings, {});
}

std::vector<Finding> StateExaminer::about(const Boundary& boundary)
{
    if (const auto names = boundary.unresolvableNames(); !names.empty()) {
        addUnresolvable(boundary, *boundary.boundary(), names, surfaceNames());
    }
    addOverlaps(FindingKind::OverlappingBoundaries, boundary, boundary.overlappingBoundaries(), "faceSides");
    addState(boundary, *boundary.boundary());
    return std::exchange(m_findings, {});
}

std::vector<Finding> StateExaminer::about(const Interface& interface)
{
    addState(interface, *interface.interface());
    return std::exchange(m_findings, {});
}

template <class R, class Entity>
void StateExaminer::addState(const R& region, const Entity& entity)
{
    const State state = region.state();
    if (state == State::Valid) {
        return;
    }
    const FindingKind kind = kindOf(state, region.topologyType());
    const bool isKnown = std::any_of(m_findings.begin(), m_findings.end(),
                                     [kind](const Finding& finding) { return finding.kind == kind; });
    if (!isKnown) {
        add(kind, region, gtm::bundled::explain(entity), {});
    }
}

template <class R>
void StateExaminer::add(FindingKind kind, const R& region, const std::string& sentence, Details details)
{
    const Finding::Subject subject = subjectOf(region);
    m_findings.push_back(
        {kind, subject, &region, theSubject(subject) + " " + phraseFor(kind) + " " + sentence, std::move(details)});
}

/// Each search for a near name walks all names, so there is a limit to their number.
template <class R, class Entity>
void StateExaminer::addUnresolvable(const R& region, const Entity& entity, const std::vector<std::string>& names,
                                    const std::vector<std::string>& known)
{
    constexpr std::size_t most = 100;
    const bool isSearched = m_noOfSearches < most;
    m_noOfSearches += names.size();
    Details details = {{"names", names}};
    if (isSearched) {
        for (const std::string& name : names) {
            details["nearest"].push_back(gtm::support::nearestName(name, known).value_or(std::string()));
        }
    }
    std::string sentence = "Not found: " + listed(names) + ".";
    if (isSearched) {
        sentence = gtm::bundled::explain(entity); // about the first
        if (names.size() > 1) {
            sentence += " Not found either: " + listed({names.begin() + 1, names.end()}) + ".";
        }
    }
    add(FindingKind::UnknownName, region, sentence, std::move(details));
}

template <class R>
void StateExaminer::addOverlaps(FindingKind kind, const R& region, const std::vector<R*>& others,
                                const std::string& what)
{
    if (others.empty()) {
        return; // as nearly always
    }
    Details details;
    std::vector<std::string>& regions = details[what];
    for (const R* other : others) {
        if (other == nullptr || other == &region) {
            continue;
        }
        const std::vector<std::string> shared = idsOf(region.overlap(other));
        details["others"].push_back(subjectOf(*other).name);
        regions.insert(regions.end(), shared.begin(), shared.end());
    }
    if (regions.empty()) {
        return;
    }
    std::sort(regions.begin(), regions.end());
    regions.erase(std::unique(regions.begin(), regions.end()), regions.end());
    const std::string sentence = "It shares " + listed(regions) + " with " + listed(details["others"]) + ".";
    add(kind, region, sentence, std::move(details));
}

const std::vector<std::string>& StateExaminer::bodyNames()
{
    if (m_bodyNames.empty()) {
        m_bodyNames = idsOf(m_model.parts());
        const std::vector<std::string> bodies = idsOf(m_model.bodies());
        m_bodyNames.insert(m_bodyNames.end(), bodies.begin(), bodies.end());
    }
    return m_bodyNames;
}

const std::vector<std::string>& StateExaminer::surfaceNames()
{
    if (m_surfaceNames.empty()) {
        m_surfaceNames = idsOf(m_model.faces());
        for (const auto& more : {idsOf(m_model.faceUses()), bodyNames()}) {
            m_surfaceNames.insert(m_surfaceNames.end(), more.begin(), more.end());
        }
    }
    return m_surfaceNames;
}

} // namespace

std::unique_ptr<Examiner> examinerOfStates(const gtm::bundled::LocationModel& model)
{
    return std::make_unique<StateExaminer>(model);
}

} // namespace physics::apps
