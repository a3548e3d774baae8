#include "tests/scripted/Interior.h"

#include "tests/scripted/Regions.h"
#include "tests/scripted/States.h"
#include "tests/scripted/WorkingCopy.h"

namespace scripted {

Interior::Interior(WorkingCopy& copy, std::string name, std::optional<Place> place)
    : m_name(std::move(name)), m_copy(copy), m_defaultBoundary(*this, "default", std::nullopt)
{
    if (place) {
        m_location.emplace(copy.topology(), *std::move(place), [this] {
            const std::vector<gtm::Body*> found = bodies();
            return std::vector<gtm::Region*>(found.begin(), found.end());
        });
    }
}

Interior::~Interior() = default;

std::pair<gtm::Boundary*, gtm::Boundary::State> Interior::createBoundary(const std::string& name, Place place,
                                                                         bool enforceRestrictions)
{
    if (answers().refuseNextBoundary) {
        return {nullptr, *std::exchange(answersToSet().refuseNextBoundary, std::nullopt)};
    }
    Boundary& boundary = m_boundaries.emplace_back(*this, m_copy.nameFor(name), std::move(place));
    boundary.m_self = std::prev(m_boundaries.end());
    const gtm::Boundary::State state = boundary.state();
    if (enforceRestrictions && state != gtm::Boundary::State::Valid) {
        m_boundaries.erase(boundary.m_self);
        return {nullptr, state};
    }
    return {&boundary, state};
}

void Interior::end(Boundary* boundary)
{
    boundary->endInterfaces();
    m_boundaries.erase(boundary->m_self);
}

void Interior::endBoundaries()
{
    for (Boundary& boundary : m_boundaries) {
        boundary.endInterfaces();
    }
    m_boundaries.clear();
    m_defaultBoundary.endInterfaces();
    m_isDefaultBoundaryActive = false;
}

std::vector<Boundary*> Interior::ordinaryBoundaries() const
{
    std::vector<Boundary*> boundaries;
    for (Boundary& boundary : m_boundaries) {
        boundaries.push_back(&boundary);
    }
    return boundaries;
}

std::vector<gtm::Body*> Interior::resolvedBodies() const
{
    std::vector<gtm::Body*> found;
    if (!m_location) {
        found = m_copy.topology().m_bodies;
        for (const Interior* other : m_copy.interiors()) {
            if (other != this) {
                const std::vector<gtm::Body*> used = other->bodies();
                const std::set<gtm::Body*> taken(used.begin(), used.end());
                std::erase_if(found, [&](gtm::Body* body) { return taken.contains(body); });
            }
        }
        return inOrder(m_copy, std::move(found));
    }
    for (gtm::Region* region : m_location->regions()) {
        if (auto* body = dynamic_cast<gtm::Body*>(region)) {
            found.push_back(body);
        } else if (const auto* part = dynamic_cast<Part*>(region)) {
            found.insert(found.end(), part->m_bodies.begin(), part->m_bodies.end());
        }
    }
    std::erase(found, nullptr);
    return inOrder(m_copy, std::move(found));
}

std::vector<gtm::Face*> Interior::resolvedInternalFaces() const
{
    const std::vector<gtm::Body*> ownBodies = bodies();
    const std::set<gtm::Body*> own(ownBodies.begin(), ownBodies.end());
    std::vector<gtm::Face*> found;
    for (gtm::Body* body : own) {
        if (body) {
            for (const gtm::FaceUse* faceUse : scriptedOf(body)->m_faceUses) {
                if (faceUse->partner() && own.contains(faceUse->partner()->body())) {
                    found.push_back(faceUse->face());
                }
            }
        }
    }
    return inOrder(m_copy, std::move(found));
}

std::vector<gtm::FaceUse*> Interior::outwardFaceUsesBeside(const std::vector<Boundary*>& boundaries) const
{
    const std::vector<gtm::Face*> internal = internalFaces();
    const std::set<gtm::Face*> inside(internal.begin(), internal.end());
    const std::set<gtm::FaceUse*> used = faceUsesOf(boundaries);
    std::vector<gtm::FaceUse*> found;
    for (gtm::Body* body : bodies()) {
        if (body) {
            for (gtm::FaceUse* faceUse : scriptedOf(body)->m_faceUses) {
                if (!inside.contains(faceUse->face()) && !used.contains(faceUse)) {
                    found.push_back(faceUse);
                }
            }
        }
    }
    return inOrder(m_copy, std::move(found));
}

gtm::Interior::State Interior::placementState() const
{
    if (answers().state || !m_copy.isJudging()) {
        return answers().state.value_or(State::Valid);
    }
    const auto isNoBodyOrPart = [](gtm::Region* region) {
        return !dynamic_cast<gtm::Body*>(region) && !dynamic_cast<gtm::Part*>(region);
    };
    if (!unresolvableNames().empty()) {
        return State::Unresolvable;
    }
    if (m_location) {
        const std::vector<gtm::Region*> regions = m_location->regions();
        if (std::any_of(regions.begin(), regions.end(), isNoBodyOrPart)) {
            return State::Inconsistent;
        }
    }
    if (bodies().empty()) {
        return State::Empty;
    }
    return overlappingInteriors().empty() ? State::Valid : State::Overlapping;
}

gtm::Interior::State Interior::judgedState() const
{
    const State state = placementState();
    return state == State::Valid && !unusedFaceUses().empty() ? State::Incomplete : state;
}

InteriorAnswers& answersOf(gtm::Interior* interior) { return scriptedOf(interior)->answersToSet(); }

std::set<gtm::FaceUse*> faceUsesOf(const std::vector<Boundary*>& boundaries)
{
    std::set<gtm::FaceUse*> used;
    for (const Boundary* boundary : boundaries) {
        for (gtm::FaceUse* faceUse : boundary->faceUses()) {
            used.insert(faceUse);
        }
    }
    return used;
}

} // namespace scripted

namespace gtm {

using scripted::scriptedOf;

std::string Interior::stateAsString(State state) { return scripted::stateText(static_cast<int>(state)); }

std::string Interior::name() const
{
    scriptedOf(this)->copy().throwIfAsked("name");
    return scriptedOf(this)->m_name;
}

std::string Interior::rename(const std::string& name)
{
    auto* self = scriptedOf(this);
    self->copy().called(*self, "rename", name);
    self->m_name = self->copy().nameFor(name);
    return self->answers().renameResult.value_or(self->m_name);
}

std::pair<Boundary*, Boundary::State> Interior::createBoundary(const std::string& name, const std::string& location,
                                                               bool enforceRestrictions)
{
    auto* self = scriptedOf(this);
    self->copy().called(*self, "createBoundary", name, location, enforceRestrictions);
    return self->createBoundary(name, scripted::Place(location), enforceRestrictions);
}

std::pair<Boundary*, Boundary::State>
Interior::createBoundary(const std::string& name, const std::vector<Region*>& regions, bool enforceRestrictions)
{
    auto* self = scriptedOf(this);
    self->copy().called(*self, "createBoundary", name, regions, enforceRestrictions);
    return self->createBoundary(name, scripted::Place(regions), enforceRestrictions);
}

Boundary* Interior::defaultBoundary() const
{
    const auto* self = scriptedOf(this);
    return self->answers().hasNoDefaultBoundary ? nullptr : self->defaultBoundary();
}

void Interior::activateDefaultBoundary(bool active)
{
    auto* self = scriptedOf(this);
    self->copy().called(*self, "activateDefaultBoundary", active);
    self->m_isDefaultBoundaryActive = active;
}

bool Interior::isDefaultBoundaryActive() const { return scriptedOf(this)->m_isDefaultBoundaryActive; }

std::vector<Boundary*> Interior::boundaries() const
{
    const auto* self = scriptedOf(this);
    const std::vector<scripted::Boundary*> ordinary = self->ordinaryBoundaries();
    std::vector<Boundary*> boundaries(ordinary.begin(), ordinary.end());
    if (self->m_isDefaultBoundaryActive) {
        boundaries.push_back(self->defaultBoundary());
    }
    return boundaries;
}

std::vector<Body*> Interior::bodies() const
{
    const auto* self = scriptedOf(this);
    return self->answers().bodies ? *self->answers().bodies : self->resolvedBodies();
}

std::vector<Face*> Interior::internalFaces() const
{
    const auto* self = scriptedOf(this);
    return self->answers().internalFaces ? *self->answers().internalFaces : self->resolvedInternalFaces();
}

std::vector<FaceUse*> Interior::unusedFaceUses() const
{
    const auto* self = scriptedOf(this);
    if (self->answers().unusedFaceUses) {
        return *self->answers().unusedFaceUses;
    }
    // An active default boundary takes all that the others leave.
    return self->m_isDefaultBoundaryActive ? std::vector<FaceUse*>()
                                           : self->outwardFaceUsesBeside(self->ordinaryBoundaries());
}

std::vector<Face*> Interior::unusedInternalFaces() const
{
    const auto* self = scriptedOf(this);
    if (self->answers().unusedInternalFaces) {
        return *self->answers().unusedInternalFaces;
    }
    const std::set<FaceUse*> used = scripted::faceUsesOf(self->ordinaryBoundaries());
    std::vector<Face*> faces = internalFaces();
    std::erase_if(faces, [&](const Face* face) {
        return face && (used.contains(face->firstFaceUse()) || used.contains(face->secondFaceUse()));
    });
    return faces;
}

std::vector<Interior*> Interior::overlappingInteriors() const
{
    const auto* self = scriptedOf(this);
    if (self->answers().overlappingInteriors) {
        return *self->answers().overlappingInteriors;
    }
    std::vector<Interior*> found;
    for (scripted::Interior* other : self->copy().interiors()) {
        if (other != self && !overlap(other).empty()) {
            found.push_back(other);
        }
    }
    return found;
}

std::vector<Body*> Interior::overlap(const Interior* other) const
{
    if (scriptedOf(this)->answers().overlap) {
        return *scriptedOf(this)->answers().overlap;
    }
    return other ? scripted::shared(bodies(), other->bodies()) : std::vector<Body*>();
}

std::vector<std::string> Interior::unresolvableNames() const
{
    const auto* self = scriptedOf(this);
    if (self->answers().unresolvableNames) {
        return *self->answers().unresolvableNames;
    }
    const bool asks = self->copy().isJudging() && self->location();
    return asks ? self->location()->unknownTerms() : std::vector<std::string>();
}

const Location* Interior::location() const
{
    const auto* self = scriptedOf(this);
    return self->answers().hasNoLocation ? nullptr : self->location();
}

bool Interior::isDefaultInterior() const { return !scriptedOf(this)->location(); }

VirtualTopology* Interior::virtualTopology() const { return scriptedOf(this)->copy().virtualTopology(); }

Interior::State Interior::state() const
{
    const auto* self = scriptedOf(this);
    return self->answers().state.value_or(self->copy().isJudging() ? self->judgedState() : State::Valid);
}

Interior::State Interior::relocate(const std::string& location, bool enforceRestrictions)
{
    auto* self = scriptedOf(this);
    self->copy().called(*self, "relocate", location, enforceRestrictions);
    return scripted::relocated(*self, scripted::Place(location), enforceRestrictions);
}

Interior::State Interior::relocate(const std::vector<Region*>& regions, bool enforceRestrictions)
{
    auto* self = scriptedOf(this);
    self->copy().called(*self, "relocate", regions, enforceRestrictions);
    return scripted::relocated(*self, scripted::Place(regions), enforceRestrictions);
}

bool Interior::remove(const std::vector<Region*>& regions)
{
    auto* self = scriptedOf(this);
    self->copy().called(*self, "remove", regions);
    return scripted::removed(*self, regions);
}

void Interior::destroy()
{
    auto* self = scriptedOf(this);
    self->copy().called(*self, "destroy");
    if (self->isDefaultInterior()) {
        self->copy().m_isDefaultInteriorActive = false;
    } else {
        self->copy().end(self);
    }
}

} // namespace gtm
