#include "examples/own-kernel/Boundary.h"

#include "gtm/FaceUse.h"

#include "examples/own-kernel/Interior.h"
#include "examples/own-kernel/Lists.h"
#include "examples/own-kernel/WorkingCopy.h"

#include <algorithm>
#include <set>
#include <utility>

namespace own {

Boundary::Boundary(Interior& interior, std::string name, std::optional<Place> place)
    : m_interior(interior), m_name(std::move(name))
{
    if (place)
        m_location = std::make_unique<Location>(interior.m_copy.m_topology, *std::move(place), [this] {
            const std::vector<gtm::FaceUse*> now = faceUses();
            return std::vector<gtm::Region*>(now.begin(), now.end());
        });
}

gtm::Boundary::State Boundary::relocate(Place place, bool enforceRestrictions)
{
    if (m_location == nullptr)
        return State::Inconsistent;
    std::swap(m_location->m_place, place);
    const State result = state();
    if (enforceRestrictions && result != State::Valid)
        std::swap(m_location->m_place, place);
    return result;
}

} // namespace own

namespace gtm {
namespace {

const own::Boundary& self(const Boundary* boundary) { return static_cast<const own::Boundary&>(*boundary); }
own::Boundary& self(Boundary* boundary) { return static_cast<own::Boundary&>(*boundary); }

} // namespace

std::string Boundary::stateAsString(State state) { return own::stateText(static_cast<int>(state)); }
std::string Boundary::name() const { return self(this).m_name; }
std::string Boundary::rename(const std::string& name) { return self(this).m_name = name; }
Interior* Boundary::interior() const { return &self(this).m_interior; }
const Location* Boundary::location() const { return self(this).m_location.get(); }
bool Boundary::isDefaultBoundary() const { return self(this).m_location == nullptr; }

std::vector<FaceUse*> Boundary::faceUses() const
{
    const own::Interior& interior = self(this).m_interior;
    const own::Topology& topology = interior.m_copy.m_topology;
    if (isDefaultBoundary()) {
        const std::set<FaceUse*> used = interior.usedFaceUses();
        std::vector<FaceUse*> rest = interior.m_isDefaultBoundaryActive ? interior.outside() : std::vector<FaceUse*>();
        rest.erase(std::remove_if(rest.begin(), rest.end(), [&](FaceUse* side) { return used.count(side) != 0; }),
                   rest.end());
        return rest;
    }
    const std::set<FaceUse*> named = own::faceUsesOf(self(this).m_location->regions(), topology);
    const std::set<Body*> bodies = own::asSet(interior.bodies());
    return own::select<FaceUse>(topology.m_faceUses, [&](FaceUse* faceUse) {
        return named.count(faceUse) != 0 && bodies.count(faceUse->body()) != 0;
    });
}

std::vector<Boundary*> Boundary::overlappingBoundaries() const
{
    std::vector<Boundary*> found;
    for (Boundary* other : interior()->boundaries())
        if (other != this && !overlap(other).empty())
            found.push_back(other);
    return found;
}

std::vector<FaceUse*> Boundary::overlap(const Boundary* other) const
{
    return other == nullptr ? std::vector<FaceUse*>() : own::shared(faceUses(), other->faceUses());
}

std::vector<std::string> Boundary::unresolvableNames() const
{
    return isDefaultBoundary() ? std::vector<std::string>() : self(this).m_location->unresolvableNames();
}

bool Boundary::isInternal() const
{
    const std::vector<FaceUse*> sides = faceUses();
    const std::set<Face*> inside = own::asSet(interior()->internalFaces());
    return !sides.empty() &&
           std::all_of(sides.begin(), sides.end(), [&](FaceUse* side) { return inside.count(side->face()) != 0; });
}

Boundary* Boundary::pair() const
{
    std::set<FaceUse*> partners;
    for (const FaceUse* side : faceUses())
        partners.insert(side->partner());
    if (partners.empty() || partners.count(nullptr) != 0)
        return nullptr;
    for (Boundary* other : self(this).m_interior.m_copy.boundaries())
        if (other != this && own::asSet(other->faceUses()) == partners)
            return other;
    return nullptr;
}

Boundary::State Boundary::state() const
{
    if (!unresolvableNames().empty())
        return State::Unresolvable;
    if (!isDefaultBoundary()) {
        const own::Topology& topology = self(this).m_interior.m_copy.m_topology;
        const std::set<Body*> bodies = self(this).m_interior.placedBodies();
        for (Region* region : self(this).m_location->regions()) {
            const std::set<FaceUse*> named = own::faceUsesOf({region}, topology);
            if (std::none_of(named.begin(), named.end(),
                             [&](FaceUse* side) { return bodies.count(side->body()) != 0; }))
                return State::Inconsistent;
        }
    }
    if (faceUses().empty())
        return State::Empty;
    return overlappingBoundaries().empty() ? State::Valid : State::Overlapping;
}

Boundary::State Boundary::relocate(const std::string& location, bool enforceRestrictions)
{
    return self(this).relocate(own::Place(location), enforceRestrictions);
}

Boundary::State Boundary::relocate(const std::vector<Region*>& regions, bool enforceRestrictions)
{
    return self(this).relocate(own::Place(regions), enforceRestrictions);
}

bool Boundary::remove(const std::vector<Region*>& regions)
{
    if (isDefaultBoundary())
        return false;
    const own::Topology& topology = self(this).m_interior.m_copy.m_topology;
    const std::set<FaceUse*> unwanted = own::faceUsesOf(regions, topology);
    const std::set<FaceUse*> placed = own::faceUsesOf(self(this).m_location->regions(), topology);
    const std::vector<Region*> rest = own::select<Region>(
        topology.m_faceUses, [&](FaceUse* side) { return placed.count(side) != 0 && unwanted.count(side) == 0; });
    if (rest.size() == placed.size())
        return false;
    self(this).m_location->m_place = rest;
    return true;
}

void Boundary::destroy()
{
    if (isDefaultBoundary())
        interior()->activateDefaultBoundary(false);
    else
        self(this).m_interior.end(&self(this));
}

} // namespace gtm
