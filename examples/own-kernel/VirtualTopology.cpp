#include "gtm/VirtualTopology.h"

#include "gtm/Body.h"
#include "gtm/Face.h"
#include "gtm/FaceUse.h"

#include "examples/own-kernel/Lists.h"
#include "examples/own-kernel/WorkingCopy.h"

namespace gtm {

/// The declaration leaves it to us what stands behind it.
class VirtualTopology::Implementation : public own::WorkingCopy {
public:
    using WorkingCopy::WorkingCopy;

    /// All regions of a kind that are masked, or are not.
    template <class Region, class Derived>
    std::vector<Region*> thatAre(const std::vector<std::unique_ptr<Derived>>& all, bool masked) const
    {
        return own::select<Region>(all, [this, masked](const Region* region) { return isMasked(region) == masked; });
    }
};

VirtualTopology::VirtualTopology(Topology* topology, const std::string& /*name*/, int /*number*/)
    : m_implementation(std::make_unique<Implementation>(*this, static_cast<own::Topology&>(*topology)))
{}

VirtualTopology::~VirtualTopology() = default;

std::pair<Interior*, Interior::State> VirtualTopology::createInterior(const std::string& name,
                                                                      const std::string& location, bool /*isTemporary*/,
                                                                      bool enforceRestrictions)
{
    return m_implementation->createInterior(name, own::Place(location), enforceRestrictions);
}

std::pair<Interior*, Interior::State> VirtualTopology::createInterior(const std::string& name,
                                                                      const std::vector<Region*>& regions,
                                                                      bool /*isTemporary*/, bool enforceRestrictions)
{
    return m_implementation->createInterior(name, own::Place(regions), enforceRestrictions);
}

std::pair<Interface*, Interface::State> VirtualTopology::createInterface(const std::string& name,
                                                                         const std::set<Boundary*>& first,
                                                                         const std::set<Boundary*>& second,
                                                                         bool enforceRestrictions)
{
    return m_implementation->createInterface(name, {first, second}, enforceRestrictions);
}

void VirtualTopology::activateDefaultInterior(bool active) { m_implementation->m_isDefaultInteriorActive = active; }
Interior* VirtualTopology::defaultInterior() const { return m_implementation->m_defaultInterior.get(); }
bool VirtualTopology::isDefaultInteriorActive() const { return m_implementation->m_isDefaultInteriorActive; }

std::vector<Interior*> VirtualTopology::interiors() const
{
    const std::vector<own::Interior*> interiors = m_implementation->interiors();
    return {interiors.begin(), interiors.end()};
}

std::vector<Interface*> VirtualTopology::interfaces() const
{
    std::vector<Interface*> interfaces;
    for (const auto& interface : m_implementation->m_interfaces)
        interfaces.push_back(interface.get());
    return interfaces;
}

std::size_t VirtualTopology::noOfInterfaces() const { return m_implementation->m_interfaces.size(); }

void VirtualTopology::mask(const std::vector<Body*>& bodies)
{
    m_implementation->m_masked.insert(bodies.begin(), bodies.end());
}

void VirtualTopology::unmask(const std::vector<Body*>& bodies)
{
    for (const Body* body : bodies)
        m_implementation->m_masked.erase(body);
}

void VirtualTopology::setMaskedBodies(const std::vector<Body*>& bodies)
{
    m_implementation->m_masked = {bodies.begin(), bodies.end()};
}

bool VirtualTopology::isMasked(Body* body) const { return body != nullptr && m_implementation->isMasked(body); }
bool VirtualTopology::isMasked(Face* face) const { return face != nullptr && m_implementation->isMasked(face); }

bool VirtualTopology::isMasked(FaceUse* faceUse) const
{
    return faceUse != nullptr && m_implementation->isMasked(faceUse);
}

std::vector<Body*> VirtualTopology::maskedBodies() const
{
    return m_implementation->thatAre<Body>(m_implementation->m_topology.m_bodies, true);
}

std::vector<Body*> VirtualTopology::unmaskedBodies() const
{
    return m_implementation->thatAre<Body>(m_implementation->m_topology.m_bodies, false);
}

std::vector<Face*> VirtualTopology::maskedFaces() const
{
    return m_implementation->thatAre<Face>(m_implementation->m_topology.m_faces, true);
}

std::vector<Face*> VirtualTopology::unmaskedFaces() const
{
    return m_implementation->thatAre<Face>(m_implementation->m_topology.m_faces, false);
}

std::vector<FaceUse*> VirtualTopology::maskedFaceUses() const
{
    return m_implementation->thatAre<FaceUse>(m_implementation->m_topology.m_faceUses, true);
}

std::vector<FaceUse*> VirtualTopology::unmaskedFaceUses() const
{
    return m_implementation->thatAre<FaceUse>(m_implementation->m_topology.m_faceUses, false);
}

std::vector<Body*> VirtualTopology::unusedBodies() const
{
    std::set<Body*> used;
    for (const Interior* interior : interiors())
        for (Body* body : interior->bodies())
            used.insert(body);
    const own::WorkingCopy& copy = *m_implementation;
    return own::select<Body>(copy.m_topology.m_bodies,
                             [&](Body* body) { return used.count(body) == 0 && !copy.isMasked(body); });
}

Topology* VirtualTopology::topology() const { return &m_implementation->m_topology; }

bool VirtualTopology::isValid(bool acceptEmpty) const
{
    const auto isAccepted = [=](auto state) {
        using State = decltype(state);
        return state == State::Valid || (acceptEmpty && state == State::Empty);
    };
    for (const Interior* interior : interiors())
        if (!isAccepted(interior->state()))
            return false;
    for (const Boundary* boundary : m_implementation->boundaries())
        if (!isAccepted(boundary->state()))
            return false;
    for (const Interface* interface : interfaces())
        if (!isAccepted(interface->state()))
            return false;
    return true;
}

void VirtualTopology::clear() { m_implementation->clear(); }

} // namespace gtm
