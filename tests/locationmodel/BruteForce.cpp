#include "tests/locationmodel/BruteForce.h"

#include <algorithm>
#include <map>

namespace bruteforce {
namespace {

template <class Container, class Value>
bool contains(const Container& container, const Value& value)
{
    return std::find(container.begin(), container.end(), value) != container.end();
}

bool beginsWith(const std::string& text, const std::string& prefix)
{
    return text.compare(0, prefix.size(), prefix) == 0;
}

Term termOf(gtm::Region* region, bool takesAway = false) { return {Term::Kind::Region, takesAway, region, ""}; }

} // namespace

std::string Term::text() const
{
    const std::string name = kind == Kind::Region ? region->id() : kind == Kind::Prefix ? prefix + "*" : "nobody";
    return (takesAway ? "!" : "") + name;
}

std::string Location::text() const
{
    std::string text;
    for (const Term& term : terms) {
        text += (text.empty() ? "" : ", ") + term.text();
    }
    return text;
}

std::vector<gtm::Region*> Location::regions() const
{
    std::vector<gtm::Region*> regions;
    for (const Term& term : terms) {
        regions.push_back(term.region);
    }
    return regions;
}

World::World(const gtm::bundled::LocationModel& itsModel) : model(itsModel) { defaultInterior.isDefault = true; }

// Interiors

bool World::names(const Term& term, const gtm::Body* body) const
{
    const gtm::Part* part = model.part(body);
    if (term.kind == Term::Kind::Prefix) {
        return beginsWith(body->id(), term.prefix) || (part != nullptr && beginsWith(part->id(), term.prefix));
    }
    return term.kind == Term::Kind::Region && (term.region == body || (part != nullptr && term.region == part));
}

bool World::isNamed(const Interior& interior, const gtm::Body* body) const
{
    if (interior.isDefault) {
        return isDefaultActive && std::none_of(interiors.begin(), interiors.end(),
                                               [&](const auto& other) { return isNamed(*other, body); });
    }
    bool isIn = false;
    for (const Term& term : interior.location.terms) {
        isIn = isIn || (!term.takesAway && names(term, body));
    }
    for (const Term& term : interior.location.terms) {
        isIn = isIn && !(term.takesAway && names(term, body));
    }
    return isIn;
}

bool World::has(const Interior& interior, const gtm::Body* body) const
{
    return !contains(masked, const_cast<gtm::Body*>(body)) && isNamed(interior, body);
}

World::Bodies World::bodies(const Interior& interior) const
{
    Bodies found;
    for (gtm::Body* body : model.bodies()) {
        if (has(interior, body)) {
            found.push_back(body);
        }
    }
    return found;
}

bool World::isOutward(const Interior& interior, const gtm::FaceUse* faceUse) const
{
    return faceUse->partner() == nullptr || !has(interior, faceUse->partner()->body());
}

std::vector<gtm::Face*> World::internalFaces(const Interior& interior) const
{
    std::vector<gtm::Face*> faces;
    for (gtm::Face* face : model.faces()) {
        if (face->secondFaceUse() != nullptr && has(interior, face->firstFaceUse()->body()) &&
            has(interior, face->secondFaceUse()->body())) {
            faces.push_back(face);
        }
    }
    return faces;
}

std::vector<gtm::Face*> World::unusedInternalFaces(const Interior& interior) const
{
    std::vector<gtm::Face*> faces;
    for (gtm::Face* face : internalFaces(interior)) {
        const bool isUsed = std::any_of(boundaries.begin(), boundaries.end(), [&](const auto& boundary) {
            const FaceUses all = faceUses(*boundary);
            return boundary->interior == &interior &&
                   (contains(all, face->firstFaceUse()) || contains(all, face->secondFaceUse()));
        });
        if (!isUsed) {
            faces.push_back(face);
        }
    }
    return faces;
}

World::FaceUses World::unclaimed(const Interior& interior) const
{
    FaceUses found;
    for (gtm::FaceUse* faceUse : model.faceUses()) {
        const bool isClaimed = std::any_of(boundaries.begin(), boundaries.end(), [&](const auto& boundary) {
            return boundary->interior == &interior && contains(faceUses(*boundary), faceUse);
        });
        if (has(interior, faceUse->body()) && isOutward(interior, faceUse) && !isClaimed) {
            found.push_back(faceUse);
        }
    }
    return found;
}

std::vector<gtm::Interior*> World::overlapping(const Interior& interior) const
{
    std::vector<gtm::Interior*> found;
    for (const auto& other : interiors) {
        const Bodies all = bodies(interior);
        if (other.get() != &interior &&
            std::any_of(all.begin(), all.end(), [&](const gtm::Body* body) { return has(*other, body); })) {
            found.push_back(other->real);
        }
    }
    return found;
}

gtm::Interior::State World::placement(const Interior& interior) const
{
    using State = gtm::Interior::State;
    const auto& terms = interior.location.terms;
    const auto namesNothing = [this](const Term& term) {
        if (term.kind != Term::Kind::Prefix) {
            return term.kind == Term::Kind::Unknown;
        }
        const auto matches = [&term](const auto* region) { return beginsWith(region->id(), term.prefix); };
        return std::none_of(model.bodies().begin(), model.bodies().end(), matches) &&
               std::none_of(model.parts().begin(), model.parts().end(), matches);
    };
    const auto isSurface = [](const Term& term) {
        return dynamic_cast<gtm::Face*>(term.region) != nullptr || dynamic_cast<gtm::FaceUse*>(term.region) != nullptr;
    };
    if (std::any_of(terms.begin(), terms.end(), namesNothing)) {
        return State::Unresolvable;
    }
    if (std::any_of(terms.begin(), terms.end(), isSurface)) {
        return State::Inconsistent;
    }
    if (bodies(interior).empty()) {
        return State::Empty;
    }
    return overlapping(interior).empty() ? State::Valid : State::Overlapping;
}

gtm::Interior::State World::state(const Interior& interior) const
{
    const gtm::Interior::State placed = placement(interior);
    const bool isIncomplete = !interior.hasDefaultBoundary && !unclaimed(interior).empty();
    return placed == gtm::Interior::State::Valid && isIncomplete ? gtm::Interior::State::Incomplete : placed;
}

// Boundaries

bool World::names(const Term& term, const Interior& interior, const gtm::FaceUse* faceUse) const
{
    if (term.kind == Term::Kind::Prefix) {
        return beginsWith(faceUse->id(), term.prefix) || beginsWith(faceUse->face()->id(), term.prefix);
    }
    if (term.kind == Term::Kind::Unknown) {
        return false;
    }
    if (term.region == faceUse || term.region == faceUse->face()) {
        return true;
    }
    const gtm::FaceUse* partner = faceUse->partner();
    return isOutward(interior, faceUse) &&
           (names(term, faceUse->body()) || (partner != nullptr && names(term, partner->body())));
}

bool World::isPlaced(const Boundary& boundary, const gtm::FaceUse* faceUse) const
{
    bool isIn = false;
    for (const Term& term : boundary.location.terms) {
        isIn = isIn || (!term.takesAway && names(term, *boundary.interior, faceUse));
    }
    for (const Term& term : boundary.location.terms) {
        isIn = isIn && !(term.takesAway && names(term, *boundary.interior, faceUse));
    }
    return isIn && isNamed(*boundary.interior, faceUse->body());
}

World::FaceUses World::faceUses(const Boundary& boundary) const
{
    if (boundary.isDefault) {
        return boundary.interior->hasDefaultBoundary ? unclaimed(*boundary.interior) : FaceUses();
    }
    FaceUses found;
    for (gtm::FaceUse* faceUse : model.faceUses()) {
        if (isPlaced(boundary, faceUse) && !contains(masked, faceUse->body())) {
            found.push_back(faceUse);
        }
    }
    return found;
}

std::vector<gtm::Boundary*> World::overlapping(const Boundary& boundary) const
{
    std::vector<gtm::Boundary*> found;
    const FaceUses mine = faceUses(boundary);
    for (const auto& other : boundaries) {
        const FaceUses its = faceUses(*other);
        const auto isShared = [&its](const gtm::FaceUse* faceUse) { return contains(its, faceUse); };
        if (other.get() != &boundary && other->interior == boundary.interior && !boundary.isDefault &&
            std::any_of(mine.begin(), mine.end(), isShared)) {
            found.push_back(other->real);
        }
    }
    return found;
}

bool World::isInternal(const Boundary& boundary) const
{
    const FaceUses all = faceUses(boundary);
    return !all.empty() && std::none_of(all.begin(), all.end(), [&](const gtm::FaceUse* faceUse) {
        return isOutward(*boundary.interior, faceUse);
    });
}

const gtm::Boundary* World::pair(const Boundary& boundary) const
{
    FaceUses partners;
    for (const gtm::FaceUse* faceUse : faceUses(boundary)) {
        partners.push_back(faceUse->partner());
        if (partners.back() == nullptr) {
            return nullptr;
        }
    }
    if (partners.empty()) {
        return nullptr;
    }
    const std::set<gtm::FaceUse*> wanted(partners.begin(), partners.end());
    const auto isMadeOfThem = [&](const Boundary& other) {
        const FaceUses all = faceUses(other);
        return other.real != boundary.real && std::set<gtm::FaceUse*>(all.begin(), all.end()) == wanted;
    };
    for (const auto& other : boundaries) {
        if (isMadeOfThem(*other)) {
            return other->real;
        }
    }
    std::vector<const Interior*> all;
    for (const auto& interior : interiors) {
        all.push_back(interior.get());
    }
    all.push_back(&defaultInterior);
    for (const Interior* interior : all) {
        const Boundary rest{const_cast<Interior*>(interior), true, {}, "", interior->real->defaultBoundary()};
        if (isMadeOfThem(rest)) {
            return rest.real;
        }
    }
    return nullptr;
}

bool World::touches(const Term& term, const Interior& interior) const
{
    return std::any_of(model.faceUses().begin(), model.faceUses().end(), [&](const gtm::FaceUse* faceUse) {
        if (!isNamed(interior, faceUse->body())) {
            return false;
        }
        const gtm::FaceUse* partner = faceUse->partner();
        return names(term, interior, faceUse) ||
               (term.kind == Term::Kind::Region &&
                (names(term, faceUse->body()) || (partner != nullptr && names(term, partner->body()))));
    });
}

gtm::Boundary::State World::state(const Boundary& boundary) const
{
    using State = gtm::Boundary::State;
    if (boundary.isDefault) {
        return faceUses(boundary).empty() ? State::Empty : State::Valid;
    }
    const auto& terms = boundary.location.terms;
    const auto misses = [&](const Term& term) { return !touches(term, *boundary.interior); };
    if (std::any_of(terms.begin(), terms.end(),
                    [&](const Term& term) { return term.kind != Term::Kind::Region && misses(term); })) {
        return State::Unresolvable;
    }
    if (std::any_of(terms.begin(), terms.end(), misses)) {
        return State::Inconsistent;
    }
    if (faceUses(boundary).empty()) {
        return State::Empty;
    }
    return overlapping(boundary).empty() ? State::Valid : State::Overlapping;
}

std::vector<const Boundary*> World::boundariesOf(const Interior& interior) const
{
    std::vector<const Boundary*> found;
    for (const auto& boundary : boundaries) {
        if (boundary->interior == &interior) {
            found.push_back(boundary.get());
        }
    }
    return found;
}

// Interfaces

gtm::Interface::State World::state(const Interface& interface) const
{
    using State = gtm::Interface::State;
    std::map<gtm::FaceUse*, int> noOf;
    bool isBad = false;
    bool hasManyVolumes = false;
    bool hasBothSides = false;
    bool isEmpty = false;
    for (const auto* side : {&interface.first, &interface.second}) {
        std::set<const Interior*> volumes;
        FaceUses all;
        for (const Boundary* boundary : *side) {
            if (side == &interface.first && contains(interface.second, const_cast<Boundary*>(boundary))) {
                return State::SameBoundary;
            }
            const gtm::Boundary::State its = state(*boundary);
            isBad = isBad || (its != gtm::Boundary::State::Valid && its != gtm::Boundary::State::Empty);
            volumes.insert(boundary->interior);
            for (gtm::FaceUse* faceUse : faceUses(*boundary)) {
                isBad = isBad || ++noOf[faceUse] > 1;
                all.push_back(faceUse);
            }
        }
        hasManyVolumes = hasManyVolumes || volumes.size() > 1;
        isEmpty = isEmpty || all.empty();
        hasBothSides = hasBothSides || std::any_of(all.begin(), all.end(), [&all](const gtm::FaceUse* faceUse) {
                           return faceUse->partner() != nullptr && contains(all, faceUse->partner());
                       });
    }
    return isBad            ? State::InconsistentBoundaries
           : hasManyVolumes ? State::MoreThanOneVolumePerSide
           : hasBothSides   ? State::InconsistentSharedFaces
           : isEmpty        ? State::Empty
                            : State::Valid;
}

// Removal

Location World::without(const Interior& interior, const std::vector<gtm::Region*>& regions) const
{
    Location left = interior.location;
    std::set<gtm::Body*> removed;
    for (gtm::Region* region : regions) {
        bool isNew = false;
        for (gtm::Body* body : model.bodies()) {
            if (names(termOf(region), body)) {
                isNew = isNew || (isNamed(interior, body) && !contains(removed, body));
                removed.insert(body);
            }
        }
        if (isNew && !left.isList) {
            left.terms.push_back(termOf(region, true));
        }
    }
    if (!left.isList) {
        return left;
    }
    left.terms.clear();
    for (const Term& term : interior.location.terms) {
        std::vector<Term> rest;
        bool isTouched = contains(regions, term.region);
        for (gtm::Body* body : model.bodies()) {
            if (names(term, body) && !contains(removed, body)) {
                rest.push_back(termOf(body));
            }
            isTouched = isTouched || (names(term, body) && contains(removed, body));
        }
        if (!isTouched) {
            left.terms.push_back(term);
        } else if (!contains(regions, term.region)) {
            left.terms.insert(left.terms.end(), rest.begin(), rest.end());
        }
    }
    return left;
}

Location World::without(const Boundary& boundary, const std::vector<gtm::Region*>& regions) const
{
    std::set<gtm::FaceUse*> removed;
    for (gtm::FaceUse* faceUse : model.faceUses()) {
        for (gtm::Region* region : regions) {
            if (region == faceUse || region == faceUse->face() || names(termOf(region), faceUse->body())) {
                removed.insert(faceUse);
            }
        }
    }
    Location left = boundary.location;
    if (!left.isList) {
        for (gtm::FaceUse* faceUse : model.faceUses()) {
            if (contains(removed, faceUse) && isPlaced(boundary, faceUse)) {
                left.terms.push_back(termOf(faceUse, true));
            }
        }
        return left;
    }
    left.terms.clear();
    for (const Term& term : boundary.location.terms) {
        std::vector<Term> rest;
        bool isTouched = contains(regions, term.region);
        for (gtm::FaceUse* faceUse : model.faceUses()) {
            const bool isPiece =
                isNamed(*boundary.interior, faceUse->body()) && names(term, *boundary.interior, faceUse);
            if (isPiece && !contains(removed, faceUse)) {
                rest.push_back(termOf(faceUse));
            }
            isTouched = isTouched || (isPiece && contains(removed, faceUse));
        }
        if (!isTouched) {
            left.terms.push_back(term);
        } else if (!contains(regions, term.region)) {
            left.terms.insert(left.terms.end(), rest.begin(), rest.end());
        }
    }
    return left;
}

} // namespace bruteforce
