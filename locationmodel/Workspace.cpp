#include "locationmodel/Workspace.h"

#include "locationmodel/Judgement.h"
#include "locationmodel/Removal.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

namespace gtm::bundled {
namespace {

/// Notes for which state something is refused, and hands the state back.
template <class State>
State refused(Reason& refusal, State state)
{
    refusal.setRefusedState(static_cast<std::int32_t>(state));
    return state;
}

bool isCreatedBefore(const InteriorEntity* a, const InteriorEntity* b) { return a->serial < b->serial; }

bool claimsBefore(const Claim& a, const Claim& b) { return a.boundary->serial < b.boundary->serial; }

/// Inserts into a list that is kept sorted. New entities sort last, which costs no search.
template <class Entry, class Before>
void insertSorted(std::vector<Entry>& list, const Entry& entry, Before before)
{
    if (list.empty() || before(list.back(), entry)) {
        list.push_back(entry);
    } else {
        list.insert(std::lower_bound(list.begin(), list.end(), entry, before), entry);
    }
}

template <class Entry, class Before>
void eraseSorted(std::vector<Entry>& list, const Entry& entry, Before before)
{
    list.erase(std::lower_bound(list.begin(), list.end(), entry, before));
}

template <class Entity>
std::vector<Entity*> listed(const std::map<std::uint64_t, std::unique_ptr<Entity>>& owned)
{
    std::vector<Entity*> list;
    list.reserve(owned.size());
    for (const auto& [serial, entity] : owned) {
        list.push_back(entity.get());
    }
    return list;
}

} // namespace

Workspace::Workspace(VirtualTopology& owner, ModelTopology& topology)
    : m_owner(owner),
      m_topology(topology),
      m_interiorsOf(topology.ownBodies().size()),
      m_claimsOn(topology.ownFaceUses().size()),
      m_isMasked(topology.ownBodies().size()),
      m_defaultInterior(*this, 0, "default interior")
{
    for (const auto& body : topology.ownBodies()) {
        m_free.insert(m_free.end(), body.get());
    }
    m_boundaries.insert(&m_defaultInterior.ownDefaultBoundary);
}

// Interiors

std::pair<Interior*, Interior::State> Workspace::createInterior(const std::string& name, const Wish& wish, bool enforce)
{
    BodyPlacement placement = placeBodies(wish.terms(m_topology), m_topology);
    Reason& refusal = m_topology.lastRefusal() = Reason();
    const Interior::State state = judge(placement, nullptr, *this, enforce ? &refusal : nullptr);
    if (enforce && state != Interior::State::Valid) {
        return {nullptr, refused(refusal, state)};
    }
    const std::uint64_t serial = ++m_lastSerial;
    auto made = std::make_unique<InteriorEntity>(*this, serial, name, wish);
    const auto& interior = m_interiors[serial] = std::move(made);
    m_boundaries.insert(&interior->ownDefaultBoundary);
    interior->placement = std::move(placement);
    enterBodies(*interior);
    return {interior.get(), state};
}

Interior::State Workspace::relocate(InteriorEntity& interior, const Wish& wish, bool enforce)
{
    Reason& refusal = m_topology.lastRefusal() = Reason();
    if (interior.isDefault()) {
        refusal = Reason("The default interior has no location of its own; it takes what the others leave.");
        return refused(refusal, Interior::State::Inconsistent);
    }
    BodyPlacement placement = placeBodies(wish.terms(m_topology), m_topology);
    const Interior::State state = judge(placement, &interior, *this, enforce ? &refusal : nullptr);
    if (enforce && state != Interior::State::Valid) {
        return refused(refusal, state);
    }
    move(interior, wish, std::move(placement));
    return state;
}

bool Workspace::remove(InteriorEntity& interior, const std::vector<Region*>& regions)
{
    std::optional<Wish> left = without(interior, regions);
    if (left) {
        BodyPlacement placement = placeBodies(left->terms(m_topology), m_topology);
        move(interior, *left, std::move(placement));
    }
    return left.has_value();
}

void Workspace::move(InteriorEntity& interior, const Wish& wish, BodyPlacement placement)
{
    leaveBodies(interior);
    interior.location->wish = wish;
    interior.placement = std::move(placement);
    enterBodies(interior);
    for (const auto& [serial, boundary] : interior.boundaries) {
        if (boundary->placement.dependsOnInterior) {
            move(*boundary, boundary->location->wish,
                 placeSurface(boundary->location->wish.terms(m_topology), m_topology, interior.scope()));
        }
    }
}

void Workspace::destroy(InteriorEntity& interior)
{
    if (interior.isDefault()) {
        activateDefaultInterior(false);
        return;
    }
    endBoundariesOf(interior);
    leaveBodies(interior);
    m_boundaries.erase(&interior.ownDefaultBoundary);
    m_interiors.erase(interior.serial);
}

void Workspace::enterBodies(InteriorEntity& interior)
{
    std::vector<const ModelBody*> taken;
    for (ModelBody* body : interior.placement.bodies) {
        insertSorted(m_interiorsOf[body->index], &interior, isCreatedBefore);
        if (m_free.erase(body) != 0) {
            taken.push_back(body);
        }
    }
    for (const ModelBody* body : interior.placement.bodies) {
        refreshAround(interior, *body);
    }
    for (const ModelBody* body : taken) {
        refreshAround(m_defaultInterior, *body);
    }
}

void Workspace::leaveBodies(InteriorEntity& interior)
{
    std::vector<const ModelBody*> freed;
    for (ModelBody* body : interior.placement.bodies) {
        std::vector<InteriorEntity*>& all = m_interiorsOf[body->index];
        eraseSorted(all, &interior, isCreatedBefore);
        if (all.empty() && !isMasked(*body)) {
            m_free.insert(body);
            freed.push_back(body);
        }
    }
    interior.unclaimed.clear();
    for (const ModelBody* body : freed) {
        refreshAround(m_defaultInterior, *body);
    }
}

void Workspace::activateDefaultInterior(bool active)
{
    if (active == m_isDefaultInteriorActive) {
        return;
    }
    m_isDefaultInteriorActive = active;
    m_defaultInterior.unclaimed.clear();
    if (active) {
        for (const ModelBody* body : m_free) {
            refreshAround(m_defaultInterior, *body);
        }
    }
}

std::vector<InteriorEntity*> Workspace::interiors()
{
    std::vector<InteriorEntity*> all = listed(m_interiors);
    if (m_isDefaultInteriorActive) {
        all.push_back(&m_defaultInterior);
    }
    return all;
}

void Workspace::setMasked(ModelBody& body, bool masked)
{
    if (isMasked(body) == masked) {
        return;
    }
    m_isMasked[body.index] = masked;
    if (masked) {
        m_masked.insert(&body);
        m_free.erase(&body);
    } else {
        m_masked.erase(&body);
        if (interiorsOf(body).empty()) {
            m_free.insert(&body);
        }
    }
    refreshAround(m_defaultInterior, body);
    for (InteriorEntity* interior : interiorsOf(body)) {
        refreshAround(*interior, body);
    }
}

// Boundaries

std::pair<Boundary*, Boundary::State> Workspace::createBoundary(InteriorEntity& interior, const std::string& name,
                                                                const Wish& wish, bool enforce)
{
    SurfacePlacement placement = placeSurface(wish.terms(m_topology), m_topology, interior.scope());
    Reason& refusal = m_topology.lastRefusal() = Reason();
    const Boundary::State state = judge(placement, nullptr, interior, enforce ? &refusal : nullptr);
    if (enforce && state != Boundary::State::Valid) {
        return {nullptr, refused(refusal, state)};
    }
    const std::uint64_t serial = ++m_lastSerial;
    auto made = std::make_unique<BoundaryEntity>(interior, serial, name, wish);
    const auto& boundary = interior.boundaries[serial] = std::move(made);
    m_boundaries.insert(boundary.get());
    boundary->placement = std::move(placement);
    enterClaims(*boundary);
    return {boundary.get(), state};
}

Boundary::State Workspace::relocate(BoundaryEntity& boundary, const Wish& wish, bool enforce)
{
    Reason& refusal = m_topology.lastRefusal() = Reason();
    if (boundary.isDefault()) {
        refusal = Reason("The default boundary has no location of its own; it takes what the others leave.");
        return refused(refusal, Boundary::State::Inconsistent);
    }
    const InteriorEntity& interior = boundary.interior;
    SurfacePlacement placement = placeSurface(wish.terms(m_topology), m_topology, interior.scope());
    const Boundary::State state = judge(placement, &boundary, interior, enforce ? &refusal : nullptr);
    if (enforce && state != Boundary::State::Valid) {
        return refused(refusal, state);
    }
    move(boundary, wish, std::move(placement));
    return state;
}

bool Workspace::remove(BoundaryEntity& boundary, const std::vector<Region*>& regions)
{
    std::optional<Wish> left = without(boundary, regions);
    if (left) {
        const InteriorEntity& interior = boundary.interior;
        move(boundary, *left, placeSurface(left->terms(m_topology), m_topology, interior.scope()));
    }
    return left.has_value();
}

void Workspace::move(BoundaryEntity& boundary, const Wish& wish, SurfacePlacement placement)
{
    leaveClaims(boundary);
    boundary.location->wish = wish;
    boundary.placement = std::move(placement);
    enterClaims(boundary);
}

void Workspace::destroy(BoundaryEntity& boundary)
{
    if (boundary.isDefault()) {
        boundary.interior.hasActiveDefaultBoundary = false;
        return;
    }
    endInterfacesOf(boundary);
    leaveClaims(boundary);
    m_boundaries.erase(&boundary);
    boundary.interior.boundaries.erase(boundary.serial);
}

void Workspace::endBoundariesOf(InteriorEntity& interior)
{
    for (BoundaryEntity* boundary : listed(interior.boundaries)) {
        destroy(*boundary);
    }
    endInterfacesOf(interior.ownDefaultBoundary);
    interior.hasActiveDefaultBoundary = false;
}

void Workspace::enterClaims(BoundaryEntity& boundary)
{
    for (const Candidate& one : boundary.placement.candidates) {
        insertSorted(m_claimsOn[one.faceUse->index], {&boundary, one.whenOutward, one.whenInternal}, claimsBefore);
        refresh(boundary.interior, *one.faceUse);
    }
}

void Workspace::leaveClaims(BoundaryEntity& boundary)
{
    for (const Candidate& one : boundary.placement.candidates) {
        eraseSorted(m_claimsOn[one.faceUse->index], {&boundary, false, false}, claimsBefore);
        refresh(boundary.interior, *one.faceUse);
    }
}

/// Brings `unclaimed` of an interior up to date about one face use.
void Workspace::refresh(InteriorEntity& interior, ModelFaceUse& faceUse)
{
    if (interior.has(faceUse.ownBody()) && interior.isOutward(faceUse) && interior.claimants(faceUse).empty()) {
        interior.unclaimed.insert(&faceUse);
    } else {
        interior.unclaimed.erase(&faceUse);
    }
}

/// The same about everything that can change when a body comes to the interior or leaves it.
void Workspace::refreshAround(InteriorEntity& interior, const ModelBody& body)
{
    for (ModelFaceUse* faceUse : body.faceUses) {
        refresh(interior, *faceUse);
        if (ModelFaceUse* partner = faceUse->otherSide()) {
            refresh(interior, *partner);
        }
    }
}

// Interfaces

std::pair<Interface*, Interface::State> Workspace::createInterface(const std::string& name,
                                                                   const Interface::Sides& sides, bool enforce)
{
    const Interface::State state = judgeSides(sides, enforce);
    if (!areAllAlive(sides) || (enforce && state != Interface::State::Valid)) {
        return {nullptr, state};
    }
    const std::uint64_t serial = ++m_lastSerial;
    auto made = std::make_unique<InterfaceEntity>(*this, serial, name);
    const auto& interface = m_interfaces[serial] = std::move(made);
    setSides(*interface, sides);
    return {interface.get(), state};
}

Interface::State Workspace::relocate(InterfaceEntity& interface, const Interface::Sides& sides, bool enforce)
{
    const Interface::State state = judgeSides(sides, enforce);
    if (areAllAlive(sides) && (!enforce || state == Interface::State::Valid)) {
        setSides(interface, sides);
    }
    return state;
}

Interface::State Workspace::judgeSides(const Interface::Sides& sides, bool enforce)
{
    Reason& refusal = m_topology.lastRefusal() = Reason();
    if (!areAllAlive(sides)) {
        refusal = Reason("A side of the interface has a boundary that is not of this working copy.");
        return refused(refusal, Interface::State::InconsistentBoundaries);
    }
    const Interface::State state = judge(sides, enforce ? &refusal : nullptr);
    return enforce && state != Interface::State::Valid ? refused(refusal, state) : state;
}

bool Workspace::areAllAlive(const Interface::Sides& sides) const
{
    const auto isAlive = [this](const Boundary* boundary) { return m_boundaries.count(boundary) != 0; };
    return std::all_of(sides.first.begin(), sides.first.end(), isAlive) &&
           std::all_of(sides.second.begin(), sides.second.end(), isAlive);
}

void Workspace::setSides(InterfaceEntity& interface, const Interface::Sides& sides)
{
    for (const auto* side : {&interface.sides.first, &interface.sides.second}) {
        for (Boundary* boundary : *side) {
            static_cast<BoundaryEntity*>(boundary)->interfaces.erase(interface.serial);
        }
    }
    interface.sides = sides;
    for (const auto* side : {&interface.sides.first, &interface.sides.second}) {
        for (Boundary* boundary : *side) {
            static_cast<BoundaryEntity*>(boundary)->interfaces[interface.serial] = &interface;
        }
    }
}

void Workspace::destroy(InterfaceEntity& interface)
{
    setSides(interface, {});
    m_interfaces.erase(interface.serial);
}

void Workspace::endInterfacesOf(BoundaryEntity& boundary)
{
    while (!boundary.interfaces.empty()) {
        destroy(*boundary.interfaces.begin()->second);
    }
}

std::vector<InterfaceEntity*> Workspace::interfaces() const { return listed(m_interfaces); }

void Workspace::clear()
{
    for (InteriorEntity* interior : listed(m_interiors)) {
        destroy(*interior);
    }
    endBoundariesOf(m_defaultInterior);
    for (InterfaceEntity* interface : interfaces()) {
        destroy(*interface);
    }
    activateDefaultInterior(false);
    for (ModelBody* body : std::vector<ModelBody*>(m_masked.begin(), m_masked.end())) {
        setMasked(*body, false);
    }
}

} // namespace gtm::bundled
