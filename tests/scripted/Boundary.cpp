#include "tests/scripted/Boundary.h"

#include "tests/scripted/Regions.h"
#include "tests/scripted/States.h"
#include "tests/scripted/WorkingCopy.h"

namespace scripted {

Boundary::Boundary(Interior& interior, std::string name, std::optional<Place> place)
    : m_name(std::move(name)), m_interior(interior)
{
    if (place) {
        m_location.emplace(interior.copy().topology(), *std::move(place), [this] {
            const std::vector<gtm::FaceUse*> found = faceUses();
            return std::vector<gtm::Region*>(found.begin(), found.end());
        });
    }
}

void Boundary::endInterfaces()
{
    while (!m_interfaces.empty()) {
        m_interior.copy().end(m_interfaces.front());
    }
}

std::vector<gtm::FaceUse*> Boundary::resolvedFaceUses() const
{
    if (!m_location) {
        return m_interior.outwardFaceUsesBeside(m_interior.ordinaryBoundaries());
    }
    std::vector<gtm::FaceUse*> found;
    for (gtm::Region* region : m_location->regions()) {
        if (auto* faceUse = dynamic_cast<gtm::FaceUse*>(region)) {
            found.push_back(faceUse);
        } else if (const auto* face = dynamic_cast<gtm::Face*>(region)) {
            const std::vector<gtm::Body*> bodies = m_interior.bodies();
            for (gtm::FaceUse* use : {face->firstFaceUse(), face->secondFaceUse()}) {
                if (use && std::find(bodies.begin(), bodies.end(), use->body()) != bodies.end()) {
                    found.push_back(use);
                }
            }
        }
    }
    return inOrder(m_interior.copy(), std::move(found));
}

gtm::Boundary::State Boundary::judgedState() const
{
    if (!unresolvableNames().empty()) {
        return State::Unresolvable;
    }
    const std::vector<gtm::Body*> bodies = m_interior.bodies();
    const auto isOutside = [&](const gtm::FaceUse* faceUse) {
        return std::find(bodies.begin(), bodies.end(), faceUse->body()) == bodies.end();
    };
    const auto isNoSurface = [](gtm::Region* region) {
        return !dynamic_cast<gtm::FaceUse*>(region) && !dynamic_cast<gtm::Face*>(region);
    };
    const std::vector<gtm::FaceUse*> found = faceUses();
    const std::vector<gtm::Region*> named = m_location ? m_location->regions() : std::vector<gtm::Region*>();
    if (std::any_of(found.begin(), found.end(), isOutside) || std::any_of(named.begin(), named.end(), isNoSurface)) {
        return State::Inconsistent;
    }
    if (found.empty()) {
        return State::Empty;
    }
    return overlappingBoundaries().empty() ? State::Valid : State::Overlapping;
}

BoundaryAnswers& answersOf(gtm::Boundary* boundary) { return scriptedOf(boundary)->answersToSet(); }

} // namespace scripted

namespace gtm {

using scripted::scriptedOf;

std::string Boundary::stateAsString(State state) { return scripted::stateText(static_cast<int>(state)); }

std::string Boundary::name() const
{
    scriptedOf(this)->owner().copy().throwIfAsked("name");
    return scriptedOf(this)->m_name;
}

std::string Boundary::rename(const std::string& name)
{
    auto* self = scriptedOf(this);
    self->owner().copy().called(*self, "rename", name);
    self->m_name = self->owner().copy().nameFor(name);
    return self->answers().renameResult.value_or(self->m_name);
}

Interior* Boundary::interior() const { return &scriptedOf(this)->owner(); }

const Location* Boundary::location() const
{
    const auto* self = scriptedOf(this);
    return self->answers().hasNoLocation ? nullptr : self->location();
}

bool Boundary::isDefaultBoundary() const { return !scriptedOf(this)->location(); }

std::vector<FaceUse*> Boundary::faceUses() const
{
    const auto* self = scriptedOf(this);
    self->owner().copy().throwIfAsked("faceUses");
    return self->answers().faceUses ? *self->answers().faceUses : self->resolvedFaceUses();
}

std::vector<Boundary*> Boundary::overlappingBoundaries() const
{
    const auto* self = scriptedOf(this);
    if (self->answers().overlappingBoundaries) {
        return *self->answers().overlappingBoundaries;
    }
    std::vector<Boundary*> found;
    for (Boundary* other : interior()->boundaries()) {
        if (other != this && !overlap(other).empty()) {
            found.push_back(other);
        }
    }
    return found;
}

std::vector<FaceUse*> Boundary::overlap(const Boundary* other) const
{
    if (scriptedOf(this)->answers().overlap) {
        return *scriptedOf(this)->answers().overlap;
    }
    return other ? scripted::shared(faceUses(), other->faceUses()) : std::vector<FaceUse*>();
}

std::vector<std::string> Boundary::unresolvableNames() const
{
    const auto* self = scriptedOf(this);
    if (self->answers().unresolvableNames) {
        return *self->answers().unresolvableNames;
    }
    const bool asks = self->owner().copy().isJudging() && self->location();
    return asks ? self->location()->unknownTerms() : std::vector<std::string>();
}

bool Boundary::isInternal() const
{
    if (scriptedOf(this)->answers().isInternal) {
        return *scriptedOf(this)->answers().isInternal;
    }
    const std::vector<Face*> internal = interior()->internalFaces();
    const std::vector<FaceUse*> uses = faceUses();
    return !uses.empty() && std::all_of(uses.begin(), uses.end(), [&](const FaceUse* faceUse) {
        return std::find(internal.begin(), internal.end(), faceUse->face()) != internal.end();
    });
}

Boundary* Boundary::pair() const
{
    const auto* self = scriptedOf(this);
    if (self->answers().pair) {
        return *self->answers().pair;
    }
    std::set<FaceUse*> partners;
    for (const FaceUse* faceUse : faceUses()) {
        partners.insert(faceUse ? faceUse->partner() : nullptr);
    }
    if (partners.empty() || partners.contains(nullptr)) {
        return nullptr;
    }
    for (const Interior* interior : self->owner().copy().interiors()) {
        for (Boundary* other : interior->boundaries()) {
            const std::vector<FaceUse*> uses = other->faceUses();
            if (other != this && std::set<FaceUse*>(uses.begin(), uses.end()) == partners) {
                return other;
            }
        }
    }
    return nullptr;
}

Boundary::State Boundary::state() const
{
    const auto* self = scriptedOf(this);
    return self->answers().state.value_or(self->owner().copy().isJudging() ? self->judgedState() : State::Valid);
}

Boundary::State Boundary::relocate(const std::string& location, bool enforceRestrictions)
{
    auto* self = scriptedOf(this);
    self->owner().copy().called(*self, "relocate", location, enforceRestrictions);
    return scripted::relocated(*self, scripted::Place(location), enforceRestrictions);
}

Boundary::State Boundary::relocate(const std::vector<Region*>& regions, bool enforceRestrictions)
{
    auto* self = scriptedOf(this);
    self->owner().copy().called(*self, "relocate", regions, enforceRestrictions);
    return scripted::relocated(*self, scripted::Place(regions), enforceRestrictions);
}

bool Boundary::remove(const std::vector<Region*>& regions)
{
    auto* self = scriptedOf(this);
    self->owner().copy().called(*self, "remove", regions);
    return scripted::removed(*self, regions);
}

void Boundary::destroy()
{
    auto* self = scriptedOf(this);
    self->owner().copy().called(*self, "destroy");
    if (self->isDefaultBoundary()) {
        self->owner().m_isDefaultBoundaryActive = false;
    } else {
        self->owner().end(self);
    }
}

} // namespace gtm
