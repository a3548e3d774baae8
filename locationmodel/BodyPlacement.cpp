#include "locationmodel/BodyPlacement.h"

#include "locationmodel/ModelTopology.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace gtm::bundled {
namespace {

void append(std::vector<ModelBody*>& bodies, Region& region)
{
    if (auto* body = dynamic_cast<ModelBody*>(&region)) {
        bodies.push_back(body);
    } else if (auto* part = dynamic_cast<ModelPart*>(&region)) {
        bodies.insert(bodies.end(), part->members.begin(), part->members.end());
    }
}

bool isBodyOrPart(const Region& region)
{
    const RegionInfo::Kind kind = infoOf(region).kind;
    return kind == RegionInfo::Kind::Body || kind == RegionInfo::Kind::Part;
}

/// The bodies and parts whose ids match.
std::vector<Region*> matching(const Pattern& pattern, const ModelTopology& topology)
{
    std::vector<Region*> found;
    topology.forEachMatch(pattern, [&found](Region& region) {
        if (isBodyOrPart(region)) {
            found.push_back(&region);
        }
    });
    return found;
}

/// Bodies as a path: at any slash, parts before it and their bodies behind it.
std::vector<ModelBody*> findByPath(const Pattern& pattern, const ModelTopology& topology)
{
    std::vector<ModelBody*> bodies;
    for (const auto& [before, behind] : pattern.divisions()) {
        for (Region* region : matching(before, topology)) {
            if (const auto* part = dynamic_cast<ModelPart*>(region)) {
                std::copy_if(part->members.begin(), part->members.end(), std::back_inserter(bodies),
                             [&last = behind](const ModelBody* body) { return last.matches(body->name); });
            }
        }
    }
    return bodies;
}

} // namespace

std::optional<std::vector<ModelBody*>> findBodies(const Pattern& pattern, const ModelTopology& topology)
{
    const std::vector<Region*> regions = matching(pattern, topology);
    std::vector<ModelBody*> bodies;
    for (Region* region : regions) {
        append(bodies, *region);
    }
    if (regions.empty()) {
        bodies = findByPath(pattern, topology);
    }
    sortUnique(bodies);
    return regions.empty() && bodies.empty() ? std::nullopt : std::optional(std::move(bodies));
}

BodyPlacement placeBodies(const std::vector<LocationTerm>& terms, const ModelTopology& topology)
{
    BodyPlacement placement;
    std::vector<ModelBody*> added;
    std::vector<ModelBody*> takenAway;
    for (const LocationTerm& term : terms) {
        std::vector<ModelBody*>& target = term.takesAway ? takenAway : added;
        Region* region = findNamed(term, topology);
        if (!term.problem.empty()) {
            placement.unresolved.push_back({term.text, term.problem});
        } else if (region != nullptr && isBodyOrPart(*region)) {
            append(target, *region);
        } else if (region != nullptr) {
            placement.wrongKind = placement.wrongKind != nullptr ? placement.wrongKind : &infoOf(*region);
        } else if (const auto bodies = findBodies(term.pattern, topology)) {
            target.insert(target.end(), bodies->begin(), bodies->end());
        } else {
            placement.unresolved.push_back({term.text, {}});
        }
    }
    sortUnique(added);
    sortUnique(takenAway);
    std::set_difference(added.begin(), added.end(), takenAway.begin(), takenAway.end(),
                        std::back_inserter(placement.bodies), ByIndex());
    for (const ModelBody* body : placement.bodies) {
        placement.noOfFaceUses += body->faceUses.size();
    }
    return placement;
}

} // namespace gtm::bundled
