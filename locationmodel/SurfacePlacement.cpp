#include "locationmodel/SurfacePlacement.h"

#include "locationmodel/ModelTopology.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <utility>

namespace gtm::bundled {
namespace {

using Candidates = std::vector<Candidate>;

/// A body stands for what lies outward on its faces, seen from whichever side belongs to the interior.
void appendBody(Candidates& candidates, const ModelBody& body)
{
    for (ModelFaceUse* faceUse : body.faceUses) {
        candidates.push_back({faceUse, true, false});
        if (ModelFaceUse* partner = faceUse->otherSide()) {
            candidates.push_back({partner, true, false});
        }
    }
}

void append(Candidates& candidates, Region& region)
{
    if (auto* faceUse = dynamic_cast<ModelFaceUse*>(&region)) {
        candidates.push_back({faceUse, true, true});
    } else if (auto* face = dynamic_cast<ModelFace*>(&region)) {
        candidates.push_back({static_cast<ModelFaceUse*>(face->firstFaceUse()), true, true});
        if (face->secondFaceUse() != nullptr) {
            candidates.push_back({static_cast<ModelFaceUse*>(face->secondFaceUse()), true, true});
        }
    } else if (auto* body = dynamic_cast<ModelBody*>(&region)) {
        appendBody(candidates, *body);
    } else if (auto* part = dynamic_cast<ModelPart*>(&region)) {
        for (const ModelBody* member : part->members) {
            appendBody(candidates, *member);
        }
    }
}

/// Finds the face uses that names stand for, within the surface of an interior where that is known.
class Finder {
public:
    Finder(const ModelTopology& topology, const BodyPlacement* interior) : m_topology(topology), m_interior(interior) {}

    Candidates find(const Pattern& pattern) const
    {
        Candidates found = findByIds(pattern);
        return found.empty() ? findByPath(pattern) : found;
    }

private:
    bool isInside(const ModelBody& body) const
    {
        return m_interior == nullptr ||
               std::binary_search(m_interior->bodies.begin(), m_interior->bodies.end(), &body, ByIndex());
    }

    std::vector<ModelBody*> bodiesNamed(const Pattern& pattern) const
    {
        return findBodies(pattern, m_topology).value_or(std::vector<ModelBody*>());
    }

    /// The ids of faces and face uses. Walks whichever is shorter: the ids with the pattern's literal
    /// beginning, or the surface of the interior.
    Candidates findByIds(const Pattern& pattern) const
    {
        Candidates found;
        const auto appendSurface = [&found](Region& region) {
            const RegionInfo::Kind kind = infoOf(region).kind;
            if (kind == RegionInfo::Kind::Face || kind == RegionInfo::Kind::FaceUse) {
                append(found, region);
            }
        };
        const std::size_t limit =
            m_interior == nullptr ? std::numeric_limits<std::size_t>::max() : m_interior->noOfFaceUses;
        if (m_topology.forEachMatch(pattern, appendSurface, limit)) {
            const auto isOutside = [this](const Candidate& one) { return !isInside(one.faceUse->ownBody()); };
            found.erase(std::remove_if(found.begin(), found.end(), isOutside), found.end());
            return found;
        }
        found.clear();
        for (const ModelBody* body : m_interior->bodies) {
            for (ModelFaceUse* faceUse : body->faceUses) {
                if (pattern.matches(faceUse->name) || pattern.matches(faceUse->ownFace().name)) {
                    found.push_back({faceUse, true, true});
                }
            }
        }
        return found;
    }

    /// At any slash, bodies before it and faces of theirs behind it; or a path of a body. A path without
    /// wildcards is found outside the interior too, so that it can be told from a path to nothing.
    Candidates findByPath(const Pattern& pattern) const
    {
        const bool isWide = !pattern.hasWildcard();
        Candidates found;
        for (const auto& [before, behind] : pattern.divisions()) {
            for (const ModelBody* body : bodiesNamed(before)) {
                for (ModelFaceUse* faceUse : body->faceUses) {
                    if ((isWide || isInside(*body)) && behind.matches(faceUse->ownFace().name)) {
                        found.push_back({faceUse, true, true});
                    }
                }
            }
        }
        if (found.empty() && isWide) {
            for (const ModelBody* body : bodiesNamed(pattern)) {
                appendBody(found, *body);
            }
        }
        return found;
    }

    const ModelTopology& m_topology;
    const BodyPlacement* m_interior;
};

bool isBefore(const Candidate& a, const Candidate& b) { return a.faceUse->index < b.faceUse->index; }

/// Each face use once, wanted wherever one of its entries wants it.
void mergeEqual(Candidates& candidates)
{
    std::stable_sort(candidates.begin(), candidates.end(), isBefore);
    std::size_t kept = 0;
    for (std::size_t i = 0; i < candidates.size(); ++i) {
        if (kept > 0 && candidates[kept - 1].faceUse == candidates[i].faceUse) {
            candidates[kept - 1].whenOutward |= candidates[i].whenOutward;
            candidates[kept - 1].whenInternal |= candidates[i].whenInternal;
        } else {
            candidates[kept++] = candidates[i];
        }
    }
    candidates.resize(kept);
}

Candidates difference(const Candidates& added, const Candidates& takenAway)
{
    Candidates result;
    auto away = takenAway.begin();
    for (Candidate candidate : added) {
        while (away != takenAway.end() && isBefore(*away, candidate)) {
            ++away;
        }
        if (away != takenAway.end() && away->faceUse == candidate.faceUse) {
            candidate.whenOutward = candidate.whenOutward && !away->whenOutward;
            candidate.whenInternal = candidate.whenInternal && !away->whenInternal;
        }
        if (candidate.whenOutward || candidate.whenInternal) {
            result.push_back(candidate);
        }
    }
    return result;
}

} // namespace

std::vector<Candidate> candidatesOf(Region& region)
{
    Candidates candidates;
    append(candidates, region);
    return candidates;
}

SurfacePlacement placeSurface(const std::vector<LocationTerm>& terms, const ModelTopology& topology,
                              const BodyPlacement* interior)
{
    const Finder finder(topology, interior);
    SurfacePlacement placement;
    Candidates takenAway;
    for (const LocationTerm& term : terms) {
        if (!term.problem.empty()) {
            placement.unresolved.push_back({term.text, term.problem});
            continue;
        }
        SurfaceTerm placed{term.text, nullptr, term.pattern.hasWildcard(), {}};
        placement.dependsOnInterior = placement.dependsOnInterior || placed.isPattern;
        Region* region = findNamed(term, topology);
        if (region != nullptr) {
            placed.region = &infoOf(*region);
            placed.candidates = candidatesOf(*region);
        } else {
            placed.candidates = finder.find(term.pattern);
        }
        if (region == nullptr && placed.candidates.empty() && !placed.isPattern) {
            placement.unresolved.push_back({term.text, {}});
            continue;
        }
        Candidates& target = term.takesAway ? takenAway : placement.candidates;
        target.insert(target.end(), placed.candidates.begin(), placed.candidates.end());
        placement.terms.push_back(std::move(placed));
    }
    mergeEqual(placement.candidates);
    mergeEqual(takenAway);
    placement.candidates = difference(placement.candidates, takenAway);
    return placement;
}

} // namespace gtm::bundled
