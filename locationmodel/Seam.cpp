// The members that gtm/ declares, each handed over to the entity or the working copy behind it.

#include "gtm/LocationModel.h"
#include "locationmodel/BoundaryEntity.h"
#include "locationmodel/InterfaceEntity.h"
#include "locationmodel/InteriorEntity.h"
#include "locationmodel/Judgement.h"
#include "locationmodel/ModelTopology.h"
#include "locationmodel/Workspace.h"

#include <algorithm>
#include <iterator>

namespace gtm {
namespace {

using bundled::BoundaryEntity;
using bundled::InterfaceEntity;
using bundled::InteriorEntity;
using bundled::LocationEntity;
using bundled::ModelBody;
using bundled::ModelFace;
using bundled::ModelFaceUse;
using bundled::ModelPart;
using bundled::ModelTopology;
using bundled::published;
using bundled::UnresolvedTerm;
using bundled::Wish;
using bundled::Workspace;

const InteriorEntity& own(const Interior& interior) { return static_cast<const InteriorEntity&>(interior); }
InteriorEntity& own(Interior& interior) { return static_cast<InteriorEntity&>(interior); }
const BoundaryEntity& own(const Boundary& boundary) { return static_cast<const BoundaryEntity&>(boundary); }
BoundaryEntity& own(Boundary& boundary) { return static_cast<BoundaryEntity&>(boundary); }
const InterfaceEntity& own(const Interface& interface) { return static_cast<const InterfaceEntity&>(interface); }
InterfaceEntity& own(Interface& interface) { return static_cast<InterfaceEntity&>(interface); }

std::vector<std::string> namesOf(const std::vector<UnresolvedTerm>& terms)
{
    std::vector<std::string> names;
    for (const UnresolvedTerm& term : terms) {
        names.push_back(term.text);
    }
    return names;
}

/// The three enumerations of states have one numbering.
std::string stateText(std::int32_t state)
{
    switch (state) {
    case 0:
        return "valid";
    case 1:
        return "empty: nothing is left of the location";
    case 2:
        return "unresolvable: a term of the location names nothing";
    case 10:
        return "incomplete: part of the surface is in no boundary";
    case 11:
        return "inconsistent: the location names the wrong kind of thing, or something outside the volume";
    case 12:
        return "overlapping: something else lies there already";
    case 20:
        return "one boundary on both sides";
    case 21:
        return "overlapping or inconsistent boundaries";
    case 22:
        return "more than one volume on a side";
    case 23:
        return "inconsistent with shared faces";
    default:
        return "unknown state " + std::to_string(state);
    }
}

} // namespace

// Topology

std::vector<Body*> Part::bodies() const { return published<Body>(static_cast<const ModelPart&>(*this).members); }

std::vector<Part*> Topology::parts() const
{
    std::vector<Part*> parts;
    for (const auto& part : static_cast<const ModelTopology&>(*this).ownParts()) {
        parts.push_back(part.get());
    }
    return parts;
}

Region* Topology::findRegionById(const std::string& id) const
{
    return static_cast<const ModelTopology&>(*this).find(id);
}

Body* Topology::findBodyById(const std::string& id) const { return dynamic_cast<Body*>(findRegionById(id)); }

std::vector<ExternalBody> TopologyMap::externalBodies(const Body* body) const
{
    return body == nullptr ? std::vector<ExternalBody>() : static_cast<const ModelBody*>(body)->zones;
}

std::vector<ExternalFaceSide> TopologyMap::externalFaceSides(const FaceUse* faceUse) const
{
    return faceUse == nullptr ? std::vector<ExternalFaceSide>() : static_cast<const ModelFaceUse*>(faceUse)->zones;
}

// Location

bool Location::isImplicit() const { return static_cast<const LocationEntity&>(*this).wish.isImplicit; }

Regions Location::components() const { return Regions(static_cast<const LocationEntity&>(*this).wish.regions); }

Primitives Location::resolve() const { return Primitives(static_cast<const LocationEntity&>(*this).resolved()); }

std::string Location::locationString(bool resolved) const
{
    const auto& self = static_cast<const LocationEntity&>(*this);
    if (!resolved && self.wish.isImplicit) {
        return self.wish.text;
    }
    std::string text;
    for (const Region* region : resolved ? self.resolved() : self.wish.regions) {
        text += (text.empty() ? "" : ", ") + region->id();
    }
    return text;
}

// Interior

std::string Interior::stateAsString(State state) { return stateText(static_cast<std::int32_t>(state)); }
std::string Interior::name() const { return own(*this).name; }
std::string Interior::rename(const std::string& name) { return own(*this).name = name; }

std::pair<Boundary*, Boundary::State> Interior::createBoundary(const std::string& name, const std::string& location,
                                                               bool enforceRestrictions)
{
    return own(*this).workspace.createBoundary(own(*this), name, Wish(location), enforceRestrictions);
}

std::pair<Boundary*, Boundary::State>
Interior::createBoundary(const std::string& name, const std::vector<Region*>& regions, bool enforceRestrictions)
{
    return own(*this).workspace.createBoundary(own(*this), name, Wish(regions), enforceRestrictions);
}

Boundary* Interior::defaultBoundary() const
{
    // The default boundary is a member of its interior, but not part of the interior's own value.
    return const_cast<BoundaryEntity*>(&own(*this).ownDefaultBoundary);
}

void Interior::activateDefaultBoundary(bool active) { own(*this).hasActiveDefaultBoundary = active; }
bool Interior::isDefaultBoundaryActive() const { return own(*this).hasActiveDefaultBoundary; }

std::vector<Boundary*> Interior::boundaries() const
{
    std::vector<Boundary*> boundaries;
    for (const auto& [serial, boundary] : own(*this).boundaries) {
        boundaries.push_back(boundary.get());
    }
    if (isDefaultBoundaryActive()) {
        boundaries.push_back(defaultBoundary());
    }
    return boundaries;
}

std::vector<Body*> Interior::bodies() const { return published<Body>(own(*this).ownBodies()); }
std::vector<Face*> Interior::internalFaces() const { return own(*this).ownInternalFaces(); }

std::vector<FaceUse*> Interior::unusedFaceUses() const
{
    const InteriorEntity& self = own(*this);
    return self.hasActiveDefaultBoundary ? std::vector<FaceUse*>()
                                         : std::vector<FaceUse*>(self.unclaimed.begin(), self.unclaimed.end());
}

std::vector<Face*> Interior::unusedInternalFaces() const { return own(*this).ownUnusedInternalFaces(); }
std::vector<Interior*> Interior::overlappingInteriors() const { return own(*this).ownOverlappingInteriors(); }

std::vector<Body*> Interior::overlap(const Interior* other) const
{
    std::vector<Body*> shared;
    if (other != nullptr && &own(*this).workspace == &own(*other).workspace) {
        const std::vector<ModelBody*> bodies = own(*this).ownBodies();
        std::copy_if(bodies.begin(), bodies.end(), std::back_inserter(shared),
                     [other](const ModelBody* body) { return own(*other).has(*body); });
    }
    return shared;
}

std::vector<std::string> Interior::unresolvableNames() const { return namesOf(own(*this).placement.unresolved); }

const Location* Interior::location() const { return own(*this).location ? &*own(*this).location : nullptr; }
bool Interior::isDefaultInterior() const { return own(*this).isDefault(); }
VirtualTopology* Interior::virtualTopology() const { return &own(*this).workspace.owner(); }
Interior::State Interior::state() const { return judge(own(*this)); }

Interior::State Interior::relocate(const std::string& location, bool enforceRestrictions)
{
    return own(*this).workspace.relocate(own(*this), Wish(location), enforceRestrictions);
}

Interior::State Interior::relocate(const std::vector<Region*>& regions, bool enforceRestrictions)
{
    return own(*this).workspace.relocate(own(*this), Wish(regions), enforceRestrictions);
}

bool Interior::remove(const std::vector<Region*>& regions) { return own(*this).workspace.remove(own(*this), regions); }
void Interior::destroy() { own(*this).workspace.destroy(own(*this)); }

// Boundary

std::string Boundary::stateAsString(State state) { return stateText(static_cast<std::int32_t>(state)); }
std::string Boundary::name() const { return own(*this).name; }
std::string Boundary::rename(const std::string& name) { return own(*this).name = name; }
Interior* Boundary::interior() const { return &own(*this).interior; }
const Location* Boundary::location() const { return own(*this).location ? &*own(*this).location : nullptr; }
bool Boundary::isDefaultBoundary() const { return own(*this).isDefault(); }
std::vector<FaceUse*> Boundary::faceUses() const { return published<FaceUse>(own(*this).ownFaceUses()); }
std::vector<Boundary*> Boundary::overlappingBoundaries() const { return own(*this).ownOverlappingBoundaries(); }

std::vector<FaceUse*> Boundary::overlap(const Boundary* other) const
{
    std::vector<FaceUse*> shared;
    if (other != nullptr && &own(*this).interior.workspace == &own(*other).interior.workspace) {
        const std::vector<ModelFaceUse*> faceUses = own(*this).ownFaceUses();
        std::copy_if(faceUses.begin(), faceUses.end(), std::back_inserter(shared),
                     [other](const ModelFaceUse* faceUse) { return own(*other).hasFaceUse(*faceUse); });
    }
    return shared;
}

std::vector<std::string> Boundary::unresolvableNames() const
{
    return namesOf(unresolvedTerms(own(*this).placement, own(*this).interior));
}

bool Boundary::isInternal() const { return own(*this).liesOnInternalFaces(); }
Boundary* Boundary::pair() const { return own(*this).ownPair(); }
Boundary::State Boundary::state() const { return judge(own(*this)); }

Boundary::State Boundary::relocate(const std::string& location, bool enforceRestrictions)
{
    return own(*this).interior.workspace.relocate(own(*this), Wish(location), enforceRestrictions);
}

Boundary::State Boundary::relocate(const std::vector<Region*>& regions, bool enforceRestrictions)
{
    return own(*this).interior.workspace.relocate(own(*this), Wish(regions), enforceRestrictions);
}

bool Boundary::remove(const std::vector<Region*>& regions)
{
    return own(*this).interior.workspace.remove(own(*this), regions);
}

void Boundary::destroy() { own(*this).interior.workspace.destroy(own(*this)); }

// Interface

std::string Interface::stateAsString(State state) { return stateText(static_cast<std::int32_t>(state)); }
std::string Interface::name() const { return own(*this).name; }
std::string Interface::rename(const std::string& name) { return own(*this).name = name; }
Interface::Sides Interface::sides() const { return own(*this).sides; }
Interface::State Interface::state() const { return bundled::judge(own(*this).sides); }

Interface::State Interface::relocate(const Sides& sides, bool enforceRestrictions)
{
    return own(*this).workspace.relocate(own(*this), sides, enforceRestrictions);
}

void Interface::destroy() { own(*this).workspace.destroy(own(*this)); }

// Working copy

class VirtualTopology::Implementation : public Workspace {
public:
    using Workspace::Workspace;

    /// The bodies of a list that belong to the topology; null and strangers are left out.
    std::vector<ModelBody*> known(const std::vector<Body*>& bodies) const
    {
        std::vector<ModelBody*> found;
        for (Body* body : bodies) {
            auto* one = static_cast<ModelBody*>(body);
            if (one != nullptr && one->topology == &topology()) {
                found.push_back(one);
            }
        }
        return found;
    }

    /// The regions of a kind that are not masked.
    template <class Public, class Own>
    static std::vector<Public*> unmasked(const VirtualTopology& self, const std::vector<std::unique_ptr<Own>>& all)
    {
        std::vector<Public*> found;
        for (const auto& region : all) {
            if (!self.isMasked(static_cast<Public*>(region.get()))) {
                found.push_back(region.get());
            }
        }
        return found;
    }
};

VirtualTopology::VirtualTopology(Topology* topology, const std::string&, int)
    : m_implementation(std::make_unique<Implementation>(*this, static_cast<ModelTopology&>(*topology)))
{}

VirtualTopology::~VirtualTopology() = default;

std::pair<Interior*, Interior::State>
VirtualTopology::createInterior(const std::string& name, const std::string& location, bool, bool enforceRestrictions)
{
    return m_implementation->createInterior(name, Wish(location), enforceRestrictions);
}

std::pair<Interior*, Interior::State> VirtualTopology::createInterior(const std::string& name,
                                                                      const std::vector<Region*>& regions, bool,
                                                                      bool enforceRestrictions)
{
    return m_implementation->createInterior(name, Wish(regions), enforceRestrictions);
}

std::pair<Interface*, Interface::State> VirtualTopology::createInterface(const std::string& name,
                                                                         const std::set<Boundary*>& first,
                                                                         const std::set<Boundary*>& second,
                                                                         bool enforceRestrictions)
{
    return m_implementation->createInterface(name, {first, second}, enforceRestrictions);
}

void VirtualTopology::activateDefaultInterior(bool active) { m_implementation->activateDefaultInterior(active); }
Interior* VirtualTopology::defaultInterior() const { return &m_implementation->defaultInterior(); }
bool VirtualTopology::isDefaultInteriorActive() const { return m_implementation->isDefaultInteriorActive(); }
std::vector<Interior*> VirtualTopology::interiors() const { return published<Interior>(m_implementation->interiors()); }

std::vector<Interface*> VirtualTopology::interfaces() const
{
    return published<Interface>(m_implementation->interfaces());
}

std::size_t VirtualTopology::noOfInterfaces() const { return m_implementation->noOfInterfaces(); }

void VirtualTopology::mask(const std::vector<Body*>& bodies)
{
    for (ModelBody* body : m_implementation->known(bodies)) {
        m_implementation->setMasked(*body, true);
    }
}

void VirtualTopology::unmask(const std::vector<Body*>& bodies)
{
    for (ModelBody* body : m_implementation->known(bodies)) {
        m_implementation->setMasked(*body, false);
    }
}

void VirtualTopology::setMaskedBodies(const std::vector<Body*>& bodies)
{
    const std::vector<ModelBody*> wanted = m_implementation->known(bodies);
    const Workspace::BodySet kept(wanted.begin(), wanted.end());
    for (Body* body : maskedBodies()) {
        if (kept.count(static_cast<ModelBody*>(body)) == 0) {
            unmask({body});
        }
    }
    mask(bodies);
}

bool VirtualTopology::isMasked(Body* body) const
{
    const auto* one = static_cast<ModelBody*>(body);
    return one != nullptr && one->topology == &m_implementation->topology() && m_implementation->isMasked(*one);
}

bool VirtualTopology::isMasked(Face* face) const
{
    return face != nullptr && isMasked(face->firstFaceUse()) &&
           (face->secondFaceUse() == nullptr || isMasked(face->secondFaceUse()));
}

bool VirtualTopology::isMasked(FaceUse* faceUse) const { return faceUse != nullptr && isMasked(faceUse->body()); }

std::vector<Body*> VirtualTopology::maskedBodies() const
{
    const Workspace::BodySet& masked = m_implementation->maskedBodies();
    return {masked.begin(), masked.end()};
}

std::vector<FaceUse*> VirtualTopology::maskedFaceUses() const
{
    std::vector<ModelFaceUse*> faceUses;
    for (const ModelBody* body : m_implementation->maskedBodies()) {
        faceUses.insert(faceUses.end(), body->faceUses.begin(), body->faceUses.end());
    }
    bundled::sortUnique(faceUses);
    return published<FaceUse>(faceUses);
}

std::vector<Face*> VirtualTopology::maskedFaces() const
{
    std::vector<ModelFace*> faces;
    for (FaceUse* faceUse : maskedFaceUses()) {
        if (isMasked(faceUse->face())) {
            faces.push_back(static_cast<ModelFace*>(faceUse->face()));
        }
    }
    bundled::sortUnique(faces);
    return published<Face>(faces);
}

std::vector<Body*> VirtualTopology::unmaskedBodies() const
{
    return Implementation::unmasked<Body>(*this, m_implementation->topology().ownBodies());
}

std::vector<Face*> VirtualTopology::unmaskedFaces() const
{
    return Implementation::unmasked<Face>(*this, m_implementation->topology().ownFaces());
}

std::vector<FaceUse*> VirtualTopology::unmaskedFaceUses() const
{
    return Implementation::unmasked<FaceUse>(*this, m_implementation->topology().ownFaceUses());
}

std::vector<Body*> VirtualTopology::unusedBodies() const
{
    const Workspace::BodySet& free = m_implementation->freeBodies();
    return isDefaultInteriorActive() ? std::vector<Body*>() : std::vector<Body*>(free.begin(), free.end());
}

Topology* VirtualTopology::topology() const { return &m_implementation->topology(); }

bool VirtualTopology::isValid(bool acceptEmpty) const
{
    const auto isGood = [acceptEmpty](const auto* entity) {
        const auto state = entity->state();
        return state == decltype(state)::Valid || (acceptEmpty && state == decltype(state)::Empty);
    };
    const auto hasGoodSurface = [&isGood](const Interior* interior) {
        const std::vector<Boundary*> boundaries = interior->boundaries();
        return isGood(interior) && std::all_of(boundaries.begin(), boundaries.end(), isGood);
    };
    const std::vector<Interior*> allInteriors = interiors();
    const std::vector<Interface*> allInterfaces = interfaces();
    return std::all_of(allInteriors.begin(), allInteriors.end(), hasGoodSurface) &&
           std::all_of(allInterfaces.begin(), allInterfaces.end(), isGood);
}

void VirtualTopology::clear() { m_implementation->clear(); }

} // namespace gtm
