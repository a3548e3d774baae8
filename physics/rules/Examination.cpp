#include "physics/rules/Examination.h"

#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Physics.h"
#include "physics/Volume.h"
#include "physics/rules/RuleAdjacentPhysics.h"
#include "physics/rules/RuleInternalBoundaries.h"
#include "physics/rules/RuleUnmatchedInterfaceBCs.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <utility>

namespace physics {
namespace {

constexpr const char* boundaryHasError = "Error: One of more of the boundaries has an error.";

template <class T>
void append(std::vector<T>& items, std::vector<T> more)
{
    std::move(more.begin(), more.end(), std::back_inserter(items));
}

void add(std::vector<Physics::Complaint>& complaints, const Region* region, std::vector<std::string> lines)
{
    if (!lines.empty())
        complaints.push_back({region, std::move(lines)});
}

} // namespace

Examination::Examination(bool ignoreWarnings) : m_ignoreWarnings(ignoreWarnings)
{
    m_rules.push_back(std::make_unique<RuleAdjacentPhysics>());
    m_rules.push_back(std::make_unique<RuleInternalBoundaries>());
    m_rules.push_back(std::make_unique<RuleUnmatchedInterfaceBCs>());
}

std::vector<Physics::Complaint> Examination::complaints(const Physics& physics)
{
    std::vector<Physics::Complaint> complaints;
    std::vector<Physics::Complaint> ofBoundaries;
    for (const Volume* volume : physics.volumes()) {
        std::vector<std::string> lines = ownLinesOf(*volume);
        const std::size_t noOfFaultyBefore = ofBoundaries.size();
        for (const Boundary* boundary : volume->boundaries()) {
            lookAt(*boundary);
            add(ofBoundaries, boundary, linesOf(*boundary));
        }
        if (ofBoundaries.size() > noOfFaultyBefore)
            lines.emplace_back(boundaryHasError);
        add(complaints, volume, std::move(lines));
    }
    append(complaints, std::move(ofBoundaries));
    for (const Interface* interface : physics.interfaces())
        add(complaints, interface, linesOf(*interface));
    if (std::vector<std::string> ofAll = conclusions(); !ofAll.empty())
        complaints.insert(complaints.begin(), {nullptr, std::move(ofAll)});
    return complaints;
}

std::vector<std::string> Examination::linesOf(const Physics& physics)
{
    for (const Boundary* boundary : physics.boundaries())
        lookAt(*boundary);
    return conclusions();
}

void Examination::lookAt(const Boundary& boundary)
{
    for (const auto& rule : m_rules)
        rule->lookAt(&boundary, m_ignoreWarnings);
}

std::vector<std::string> Examination::conclusions()
{
    std::vector<std::string> lines;
    for (const auto& rule : m_rules)
        append(lines, rule->conclude());
    return lines;
}

std::vector<std::string> Examination::ownLinesOf(const Volume& volume)
{
    std::vector<std::string> lines;
    for (const auto& rule : m_rules)
        append(lines, rule->checkVolume(&volume, m_ignoreWarnings));
    return lines;
}

std::vector<std::string> Examination::linesOf(const Volume& volume)
{
    std::vector<std::string> lines = ownLinesOf(volume);
    const std::vector<Boundary*> boundaries = volume.boundaries();
    if (std::any_of(boundaries.begin(), boundaries.end(),
                    [this](const Boundary* boundary) { return isFaulty(*boundary); }))
        lines.emplace_back(boundaryHasError);
    return lines;
}

std::vector<std::string> Examination::linesOf(const Boundary& boundary)
{
    std::vector<std::string> lines;
    for (const auto& rule : m_rules)
        append(lines, rule->checkBoundary(&boundary, m_ignoreWarnings));
    return lines;
}

std::vector<std::string> Examination::linesOf(const Interface& interface)
{
    std::vector<std::string> lines;
    for (const auto& rule : m_rules)
        append(lines, rule->checkInterface(&interface, m_ignoreWarnings));
    for (const Side side : {Side::First, Side::Second}) {
        const Boundary* boundary = interface.boundary(side);
        if (boundary != nullptr && isFaulty(*boundary)) {
            lines.emplace_back(boundaryHasError);
            break;
        }
    }
    return lines;
}

bool Examination::isFaulty(const Boundary& boundary)
{
    if (boundary.noOfInterfaces() < 2)
        return !linesOf(boundary).empty();
    const auto [entry, isNew] = m_isFaulty.try_emplace(&boundary);
    if (isNew)
        entry->second = !linesOf(boundary).empty();
    return entry->second;
}

// ---- The questions that the objects answer. They are defined here, so that no object knows the rules.

std::vector<std::string> Volume::validate(bool ignoreWarnings) const
{
    return Examination(ignoreWarnings).linesOf(*this);
}

std::vector<std::string> Boundary::validate(bool ignoreWarnings) const
{
    return Examination(ignoreWarnings).linesOf(*this);
}

std::vector<std::string> Interface::validate(bool ignoreWarnings) const
{
    return Examination(ignoreWarnings).linesOf(*this);
}

bool Region::isTopologyValid(bool lenient) const
{
    const State present = state();
    return present == State::Valid || (lenient && present == State::Empty);
}

bool Region::isPhysicsValid(bool lenient) const { return validate(lenient).empty(); }
bool Region::isValid(bool lenient) const { return isTopologyValid(lenient) && isPhysicsValid(lenient); }

bool Physics::isTopologyValid(bool lenient) const { return m_virtualTopology.isValid(lenient); }
bool Physics::isValid(bool lenient) const { return isTopologyValid(lenient) && isPhysicsValid(lenient); }

bool Physics::isPhysicsValid(bool lenient) const
{
    Examination examination(lenient);
    const auto hasNothingAgainst = [&examination](const auto* object) { return examination.linesOf(*object).empty(); };
    const auto hasNothingAgainstAny = [&hasNothingAgainst](const auto& objects) {
        return std::all_of(objects.begin(), objects.end(), hasNothingAgainst);
    };
    // A volume answers for the boundaries that it lists, which are all that the set-up lists.
    return hasNothingAgainst(this) && hasNothingAgainstAny(volumes()) && hasNothingAgainstAny(interfaces());
}

std::vector<std::string> Physics::validate(bool detailed, bool ignoreWarnings) const
{
    if (!detailed)
        return Examination(ignoreWarnings).linesOf(*this);
    std::vector<std::string> lines;
    for (Complaint& complaint : complaints(ignoreWarnings)) {
        if (!lines.empty())
            lines.emplace_back();
        append(lines, std::move(complaint.lines));
    }
    return lines;
}

std::vector<Physics::Complaint> Physics::complaints(bool ignoreWarnings) const
{
    return Examination(ignoreWarnings).complaints(*this);
}

} // namespace physics
