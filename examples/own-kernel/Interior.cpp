#include "examples/own-kernel/Interior.h"

#include "gtm/Face.h"
#include "gtm/FaceUse.h"
#include "gtm/Part.h"

#include "examples/own-kernel/Lists.h"
#include "examples/own-kernel/WorkingCopy.h"

#include <algorithm>
#include <utility>

namespace own {

Interior::Interior(WorkingCopy& copy, std::string name, std::optional<Place> place)
    : m_copy(copy), m_name(std::move(name)), m_defaultBoundary(std::make_unique<Boundary>(*this, "rest", std::nullopt))
{
    if (place)
        m_location = std::make_unique<Location>(copy.m_topology, *std::move(place), [this] {
            const std::vector<gtm::Body*> now = bodies();
            return std::vector<gtm::Region*>(now.begin(), now.end());
        });
}

Interior::~Interior() = default;

std::pair<gtm::Boundary*, gtm::Boundary::State> Interior::createBoundary(const std::string& name, Place place,
                                                                         bool enforceRestrictions)
{
    m_boundaries.push_back(std::make_unique<Boundary>(*this, name, std::move(place)));
    const gtm::Boundary::State state = m_boundaries.back()->state();
    if (!enforceRestrictions || state == gtm::Boundary::State::Valid)
        return {m_boundaries.back().get(), state};
    m_boundaries.pop_back();
    return {nullptr, state};
}

void Interior::end(Boundary* boundary)
{
    m_copy.endInterfacesOf(boundary);
    m_boundaries.erase(std::find_if(m_boundaries.begin(), m_boundaries.end(),
                                    [=](const auto& owned) { return owned.get() == boundary; }));
}

void Interior::endBoundaries()
{
    while (!m_boundaries.empty())
        end(m_boundaries.back().get());
    m_copy.endInterfacesOf(m_defaultBoundary.get());
    m_isDefaultBoundaryActive = false;
}

gtm::Interior::State Interior::relocate(Place place, bool enforceRestrictions)
{
    if (m_location == nullptr)
        return State::Inconsistent;
    std::swap(m_location->m_place, place);
    const State result = placementState();
    if (enforceRestrictions && result != State::Valid)
        std::swap(m_location->m_place, place);
    return result;
}

std::set<gtm::Body*> Interior::placedBodies() const
{
    if (m_location != nullptr)
        return bodiesOf(m_location->regions());
    std::set<gtm::Body*> rest;
    for (const auto& body : m_copy.m_topology.m_bodies)
        rest.insert(body.get());
    for (const auto& other : m_copy.m_interiors)
        for (gtm::Body* body : other->placedBodies())
            rest.erase(body);
    return m_copy.m_isDefaultInteriorActive ? rest : std::set<gtm::Body*>();
}

gtm::Interior::State Interior::placementState() const
{
    if (!unresolvableNames().empty())
        return State::Unresolvable;
    if (m_location != nullptr)
        for (const gtm::Region* region : m_location->regions())
            if (dynamic_cast<const gtm::Body*>(region) == nullptr && dynamic_cast<const gtm::Part*>(region) == nullptr)
                return State::Inconsistent;
    if (bodies().empty())
        return State::Empty;
    return overlappingInteriors().empty() ? State::Valid : State::Overlapping;
}

std::vector<gtm::FaceUse*> Interior::outside() const
{
    const std::set<gtm::Body*> inside = asSet(bodies());
    return select<gtm::FaceUse>(m_copy.m_topology.m_faceUses, [&](const gtm::FaceUse* side) {
        const gtm::FaceUse* partner = side->partner();
        return inside.count(side->body()) != 0 && (partner == nullptr || inside.count(partner->body()) == 0);
    });
}

std::set<gtm::FaceUse*> Interior::usedFaceUses() const
{
    std::set<gtm::FaceUse*> used;
    for (const auto& boundary : m_boundaries)
        for (gtm::FaceUse* side : boundary->faceUses())
            used.insert(side);
    return used;
}

} // namespace own

namespace gtm {
namespace {

const own::Interior& self(const Interior* interior) { return static_cast<const own::Interior&>(*interior); }
own::Interior& self(Interior* interior) { return static_cast<own::Interior&>(*interior); }

} // namespace

std::string Interior::stateAsString(State state) { return own::stateText(static_cast<int>(state)); }
std::string Interior::name() const { return self(this).m_name; }
std::string Interior::rename(const std::string& name) { return self(this).m_name = name; }

std::pair<Boundary*, Boundary::State> Interior::createBoundary(const std::string& name, const std::string& location,
                                                               bool enforceRestrictions)
{
    return self(this).createBoundary(name, own::Place(location), enforceRestrictions);
}

std::pair<Boundary*, Boundary::State>
Interior::createBoundary(const std::string& name, const std::vector<Region*>& regions, bool enforceRestrictions)
{
    return self(this).createBoundary(name, own::Place(regions), enforceRestrictions);
}

Boundary* Interior::defaultBoundary() const { return self(this).m_defaultBoundary.get(); }
void Interior::activateDefaultBoundary(bool active) { self(this).m_isDefaultBoundaryActive = active; }
bool Interior::isDefaultBoundaryActive() const { return self(this).m_isDefaultBoundaryActive; }

std::vector<Boundary*> Interior::boundaries() const
{
    std::vector<Boundary*> boundaries;
    for (const auto& boundary : self(this).m_boundaries)
        boundaries.push_back(boundary.get());
    if (isDefaultBoundaryActive())
        boundaries.push_back(defaultBoundary());
    return boundaries;
}

std::vector<Body*> Interior::bodies() const
{
    const own::WorkingCopy& copy = self(this).m_copy;
    const std::set<Body*> placed = self(this).placedBodies();
    return own::select<Body>(copy.m_topology.m_bodies,
                             [&](Body* body) { return placed.count(body) != 0 && !copy.isMasked(body); });
}

std::vector<Face*> Interior::internalFaces() const
{
    const std::set<Body*> inside = own::asSet(bodies());
    return own::select<Face>(self(this).m_copy.m_topology.m_faces, [&](const Face* face) {
        return face->secondFaceUse() != nullptr && inside.count(face->firstFaceUse()->body()) != 0 &&
               inside.count(face->secondFaceUse()->body()) != 0;
    });
}

std::vector<FaceUse*> Interior::unusedFaceUses() const
{
    // An active default boundary takes all that the others leave.
    std::vector<FaceUse*> unused = isDefaultBoundaryActive() ? std::vector<FaceUse*>() : self(this).outside();
    const std::set<FaceUse*> used = self(this).usedFaceUses();
    unused.erase(std::remove_if(unused.begin(), unused.end(), [&](FaceUse* side) { return used.count(side) != 0; }),
                 unused.end());
    return unused;
}

std::vector<Face*> Interior::unusedInternalFaces() const
{
    std::vector<Face*> unused = internalFaces();
    const std::set<FaceUse*> used = self(this).usedFaceUses();
    const auto isUsed = [&](const Face* face) {
        return used.count(face->firstFaceUse()) != 0 || used.count(face->secondFaceUse()) != 0;
    };
    unused.erase(std::remove_if(unused.begin(), unused.end(), isUsed), unused.end());
    return unused;
}

std::vector<Interior*> Interior::overlappingInteriors() const
{
    std::vector<Interior*> found;
    for (Interior* other : self(this).m_copy.interiors())
        if (other != this && !overlap(other).empty())
            found.push_back(other);
    return found;
}

std::vector<Body*> Interior::overlap(const Interior* other) const
{
    return other == nullptr ? std::vector<Body*>() : own::shared(bodies(), other->bodies());
}

std::vector<std::string> Interior::unresolvableNames() const
{
    return isDefaultInterior() ? std::vector<std::string>() : self(this).m_location->unresolvableNames();
}

const Location* Interior::location() const { return self(this).m_location.get(); }
bool Interior::isDefaultInterior() const { return self(this).m_location == nullptr; }
VirtualTopology* Interior::virtualTopology() const { return &self(this).m_copy.m_owner; }

Interior::State Interior::state() const
{
    const State placement = self(this).placementState();
    return placement == State::Valid && !unusedFaceUses().empty() ? State::Incomplete : placement;
}

Interior::State Interior::relocate(const std::string& location, bool enforceRestrictions)
{
    return self(this).relocate(own::Place(location), enforceRestrictions);
}

Interior::State Interior::relocate(const std::vector<Region*>& regions, bool enforceRestrictions)
{
    return self(this).relocate(own::Place(regions), enforceRestrictions);
}

bool Interior::remove(const std::vector<Region*>& regions)
{
    if (isDefaultInterior())
        return false;
    const std::set<Body*> unwanted = own::bodiesOf(regions);
    const std::set<Body*> placed = self(this).placedBodies();
    const std::vector<Region*> rest = own::select<Region>(self(this).m_copy.m_topology.m_bodies, [&](Body* body) {
        return placed.count(body) != 0 && unwanted.count(body) == 0;
    });
    if (rest.size() == placed.size())
        return false;
    self(this).m_location->m_place = rest;
    return true;
}

void Interior::destroy()
{
    if (isDefaultInterior())
        self(this).m_copy.m_isDefaultInteriorActive = false;
    else
        self(this).m_copy.end(&self(this));
}

} // namespace gtm
