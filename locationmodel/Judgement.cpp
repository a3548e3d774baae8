#include "locationmodel/Judgement.h"

#include "locationmodel/BoundaryEntity.h"
#include "locationmodel/InterfaceEntity.h"
#include "locationmodel/InteriorEntity.h"
#include "locationmodel/Workspace.h"

#include <algorithm>
#include <cstddef>
#include <set>
#include <string>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

namespace gtm::bundled {
namespace {

std::string quoted(const std::string& name) { return "\"" + name + "\""; }

/// Hands the state back and, when somebody wants to know, the reason.
template <class State, class MakeReason>
State verdict(State state, Reason* why, MakeReason makeReason)
{
    if (why != nullptr) {
        *why = Reason(makeReason());
    }
    return state;
}

/// "The WHAT "X" is also in the OWNER "Y"." or the same about several, of which X is the first.
std::string sharingSentence(std::size_t noOf, const std::string& one, const std::string& many, const std::string& first,
                            const std::string& owner, const std::string& owners, const std::string& firstOwner)
{
    return noOf == 1 ? "The " + one + " " + quoted(first) + " is also in the " + owner + " " + quoted(firstOwner) + "."
                     : std::to_string(noOf) + " " + many + " are also in other " + owners + ", the first of them, " +
                           quoted(first) + ", in " + quoted(firstOwner) + ".";
}

Reason unresolvedReason(const UnresolvedTerm& term, const ModelTopology& topology, bool ofSurface)
{
    return term.problem.empty()
               ? Reason::unknown("The term " + quoted(term.text) + " names nothing", term.text, topology, ofSurface)
               : Reason(term.problem);
}

/// The first other interior that has the body, or null.
const InteriorEntity* otherWith(const ModelBody& body, const InteriorEntity* self, const Workspace& workspace)
{
    for (const InteriorEntity* interior : workspace.interiorsOf(body)) {
        if (interior != self) {
            return interior;
        }
    }
    return nullptr;
}

bool touches(const SurfaceTerm& term, const InteriorEntity& interior)
{
    return std::any_of(term.candidates.begin(), term.candidates.end(), [&interior](const Candidate& candidate) {
        return interior.names(candidate.faceUse->ownBody());
    });
}

std::string namesNothingIn(const std::string& term, const InteriorEntity& interior)
{
    return "The term " + quoted(term) + " names nothing in the interior " + quoted(interior.name) + ".";
}

/// The boundaries of a side in the order of their creation.
std::vector<BoundaryEntity*> ordered(const std::set<Boundary*>& side)
{
    std::vector<BoundaryEntity*> boundaries;
    for (Boundary* boundary : side) {
        boundaries.push_back(static_cast<BoundaryEntity*>(boundary));
    }
    std::sort(boundaries.begin(), boundaries.end(),
              [](const BoundaryEntity* a, const BoundaryEntity* b) { return a->serial < b->serial; });
    return boundaries;
}

struct OrderedSide {
    std::string name;
    std::vector<BoundaryEntity*> boundaries;
};

using OwnerOfFaceUse = std::unordered_map<const ModelFaceUse*, const BoundaryEntity*>;

} // namespace

Interior::State judge(const BodyPlacement& placement, const InteriorEntity* self, const Workspace& workspace,
                      Reason* why)
{
    using State = Interior::State;
    if (!placement.unresolved.empty()) {
        if (why != nullptr) {
            *why = unresolvedReason(placement.unresolved.front(), workspace.topology(), false);
        }
        return State::Unresolvable;
    }
    if (placement.wrongKind != nullptr) {
        return verdict(State::Inconsistent, why, [&] {
            const bool isFace = placement.wrongKind->kind == RegionInfo::Kind::Face;
            return quoted(placement.wrongKind->name) + " is a " + (isFace ? "face" : "face use") +
                   "; an interior is made of bodies and parts.";
        });
    }
    std::vector<const ModelBody*> shared;
    bool isEmpty = true;
    for (const ModelBody* body : placement.bodies) {
        if (workspace.isMasked(*body)) {
            continue;
        }
        isEmpty = false;
        if (otherWith(*body, self, workspace) != nullptr) {
            shared.push_back(body);
            if (why == nullptr) {
                break;
            }
        }
    }
    if (isEmpty) {
        return verdict(State::Empty, why, [&] {
            return std::string(placement.bodies.empty() ? "The location names no body."
                                                        : "All bodies of the location are masked.");
        });
    }
    if (!shared.empty()) {
        return verdict(State::Overlapping, why, [&] {
            return sharingSentence(shared.size(), "body", "bodies", shared.front()->name, "interior", "interiors",
                                   otherWith(*shared.front(), self, workspace)->name);
        });
    }
    return State::Valid;
}

Interior::State judge(const InteriorEntity& interior, Reason* why)
{
    using State = Interior::State;
    if (interior.isDefault()) {
        if (!interior.workspace.isDefaultInteriorActive() || interior.workspace.freeBodies().empty()) {
            return verdict(State::Empty, why, [&] {
                return std::string(interior.workspace.isDefaultInteriorActive()
                                       ? "Other interiors or the mask take every body."
                                       : "The default interior is switched off.");
            });
        }
    } else if (const State state = judge(interior.placement, &interior, interior.workspace, why);
               state != State::Valid) {
        return state;
    }
    if (interior.hasActiveDefaultBoundary || interior.unclaimed.empty()) {
        return State::Valid;
    }
    return verdict(State::Incomplete, why, [&] {
        const std::size_t noOf = interior.unclaimed.size();
        const std::string first = quoted((*interior.unclaimed.begin())->name);
        return noOf == 1 ? "The face use " + first + " is in no boundary."
                         : std::to_string(noOf) + " face uses are in no boundary, the first of them is " + first + ".";
    });
}

std::vector<UnresolvedTerm> unresolvedTerms(const SurfacePlacement& placement, const InteriorEntity& interior)
{
    std::vector<UnresolvedTerm> unresolved = placement.unresolved;
    if (!placement.dependsOnInterior) {
        return unresolved; // there is no pattern
    }
    for (const SurfaceTerm& term : placement.terms) {
        if (term.isPattern && !touches(term, interior)) {
            unresolved.push_back({term.text, namesNothingIn(term.text, interior)});
        }
    }
    return unresolved;
}

Boundary::State judge(const SurfacePlacement& placement, const BoundaryEntity* self, const InteriorEntity& interior,
                      Reason* why)
{
    using State = Boundary::State;
    const Workspace& workspace = interior.workspace;
    if (const auto unresolved = unresolvedTerms(placement, interior); !unresolved.empty()) {
        if (why != nullptr) {
            *why = unresolvedReason(unresolved.front(), workspace.topology(), true);
        }
        return State::Unresolvable;
    }
    // A single term has what the location has: the face uses below answer for it, without a look at the term.
    const auto isTaken = [&interior](const Candidate& candidate) { return interior.takes(candidate); };
    const bool isSure =
        placement.terms.size() == 1 && std::any_of(placement.candidates.begin(), placement.candidates.end(), isTaken);
    for (const SurfaceTerm& term : placement.terms) {
        if (!isSure && !touches(term, interior)) {
            return verdict(State::Inconsistent, why, [&] {
                return quoted(term.text) + " has no face use in the interior " + quoted(interior.name) + ".";
            });
        }
    }
    std::vector<const ModelFaceUse*> shared;
    std::string firstOwner;
    bool isEmpty = true;
    for (const Candidate& candidate : placement.candidates) {
        if (!interior.takes(candidate)) {
            continue;
        }
        isEmpty = false;
        for (const BoundaryEntity* other : interior.claimants(*candidate.faceUse)) {
            if (other != self) {
                firstOwner = shared.empty() ? other->name : firstOwner;
                shared.push_back(candidate.faceUse);
                break;
            }
        }
        if (!shared.empty() && why == nullptr) {
            break;
        }
    }
    if (isEmpty) {
        return verdict(State::Empty, why, [&] {
            return "The location leaves no face use of the interior " + quoted(interior.name) +
                   "; look at the terms that take away and at masked bodies.";
        });
    }
    if (!shared.empty()) {
        return verdict(State::Overlapping, why, [&] {
            return sharingSentence(shared.size(), "face use", "face uses", shared.front()->name, "boundary",
                                   "boundaries", firstOwner);
        });
    }
    return State::Valid;
}

Boundary::State judge(const BoundaryEntity& boundary, Reason* why)
{
    using State = Boundary::State;
    const InteriorEntity& interior = boundary.interior;
    if (!boundary.isDefault()) {
        return judge(boundary.placement, &boundary, interior, why);
    }
    if (interior.hasActiveDefaultBoundary && !interior.unclaimed.empty()) {
        return State::Valid;
    }
    return verdict(State::Empty, why, [&] {
        return std::string(interior.hasActiveDefaultBoundary ? "Other boundaries take the whole surface."
                                                             : "The default boundary is switched off.");
    });
}

namespace {

/// Checks the boundaries of one side and gathers their face uses; `owners` has those of both sides.
Interface::State judgeBoundaries(const OrderedSide& side, OwnerOfFaceUse& owners, Reason* why)
{
    using State = Interface::State;
    for (const BoundaryEntity* boundary : side.boundaries) {
        Reason itsReason;
        const Boundary::State itsState = judge(*boundary, why == nullptr ? nullptr : &itsReason);
        if (itsState != Boundary::State::Valid && itsState != Boundary::State::Empty) {
            return verdict(State::InconsistentBoundaries, why, [&] {
                return "The boundary " + quoted(boundary->name) + " is not valid itself. " + itsReason.text();
            });
        }
        for (const ModelFaceUse* faceUse : boundary->ownFaceUses()) {
            const auto [owner, isNew] = owners.emplace(faceUse, boundary);
            if (!isNew) {
                return verdict(State::InconsistentBoundaries, why, [&, first = owner->second] {
                    return "The boundaries " + quoted(first->name) + " and " + quoted(boundary->name) +
                           " share the face use " + quoted(faceUse->name) + ".";
                });
            }
        }
    }
    return State::Valid;
}

Interface::State judgeVolumes(const OrderedSide& side, Reason* why)
{
    for (const BoundaryEntity* boundary : side.boundaries) {
        const InteriorEntity& first = side.boundaries.front()->interior;
        if (&boundary->interior != &first) {
            return verdict(Interface::State::MoreThanOneVolumePerSide, why, [&] {
                return "The " + side.name + " side has boundaries of two interiors, " + quoted(first.name) + " and " +
                       quoted(boundary->interior.name) + ".";
            });
        }
    }
    return Interface::State::Valid;
}

/// A face that separates the two sides must not have both of its face uses on one of them.
Interface::State judgeSharedFaces(const OrderedSide& side, Reason* why)
{
    std::unordered_set<const ModelFaceUse*> faceUses;
    for (const BoundaryEntity* boundary : side.boundaries) {
        for (const ModelFaceUse* faceUse : boundary->ownFaceUses()) {
            faceUses.insert(faceUse);
            if (faceUses.count(faceUse->otherSide()) != 0) {
                return verdict(Interface::State::InconsistentSharedFaces, why, [&] {
                    return "Both sides of the face " + quoted(faceUse->ownFace().name) + " are on the " + side.name +
                           " side of the interface.";
                });
            }
        }
    }
    return Interface::State::Valid;
}

Interface::State judgeExtent(const OrderedSide& side, Reason* why)
{
    for (const BoundaryEntity* boundary : side.boundaries) {
        if (!boundary->ownFaceUses().empty()) {
            return Interface::State::Valid;
        }
    }
    return verdict(Interface::State::Empty, why, [&] { return "The " + side.name + " side has no face use."; });
}

} // namespace

Interface::State judge(const Interface::Sides& sides, Reason* why)
{
    using State = Interface::State;
    const OrderedSide both[] = {{"first", ordered(sides.first)}, {"second", ordered(sides.second)}};
    for (BoundaryEntity* boundary : both[0].boundaries) {
        if (sides.second.count(boundary) != 0) {
            return verdict(State::SameBoundary, why,
                           [&] { return "The boundary " + quoted(boundary->name) + " is on both sides."; });
        }
    }
    OwnerOfFaceUse owners;
    for (const OrderedSide& side : both) {
        if (const State state = judgeBoundaries(side, owners, why); state != State::Valid) {
            return state;
        }
    }
    for (const auto& check : {judgeVolumes, judgeSharedFaces, judgeExtent}) {
        for (const OrderedSide& side : both) {
            if (const State state = check(side, why); state != State::Valid) {
                return state;
            }
        }
    }
    return State::Valid;
}

} // namespace gtm::bundled
