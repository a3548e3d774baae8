#include "gtm/VirtualTopology.h"

#include "tests/scripted/Regions.h"
#include "tests/scripted/WorkingCopy.h"

namespace gtm {

class VirtualTopology::Implementation : public scripted::WorkingCopy {
public:
    using WorkingCopy::WorkingCopy;

    /// Those regions of `all` whose mask is as asked for.
    template <class Region>
    std::vector<Region*> withMask(std::vector<Region*> all, bool masked) const
    {
        std::erase_if(all, [&](const Region* region) { return isMasked(region) != masked; });
        return all;
    }
};

VirtualTopology::VirtualTopology(Topology* topology, const std::string& name, int number)
    : m_implementation(std::make_unique<Implementation>(this, *static_cast<scripted::Topology*>(topology)))
{
    m_implementation->called(*m_implementation, "VirtualTopology", name, number);
}

VirtualTopology::~VirtualTopology() = default;

std::pair<Interior*, Interior::State> VirtualTopology::createInterior(const std::string& name,
                                                                      const std::string& location, bool isTemporary,
                                                                      bool enforceRestrictions)
{
    m_implementation->called(*m_implementation, "createInterior", name, location, isTemporary, enforceRestrictions);
    return m_implementation->createInterior(name, scripted::Place(location), enforceRestrictions);
}

std::pair<Interior*, Interior::State> VirtualTopology::createInterior(const std::string& name,
                                                                      const std::vector<Region*>& regions,
                                                                      bool isTemporary, bool enforceRestrictions)
{
    m_implementation->called(*m_implementation, "createInterior", name, regions, isTemporary, enforceRestrictions);
    return m_implementation->createInterior(name, scripted::Place(regions), enforceRestrictions);
}

std::pair<Interface*, Interface::State> VirtualTopology::createInterface(const std::string& name,
                                                                         const std::set<Boundary*>& first,
                                                                         const std::set<Boundary*>& second,
                                                                         bool enforceRestrictions)
{
    m_implementation->called(*m_implementation, "createInterface", name, first, second, enforceRestrictions);
    return m_implementation->createInterface(name, {first, second}, enforceRestrictions);
}

void VirtualTopology::activateDefaultInterior(bool active)
{
    m_implementation->called(*m_implementation, "activateDefaultInterior", active);
    m_implementation->m_isDefaultInteriorActive = active;
}

Interior* VirtualTopology::defaultInterior() const
{
    return m_implementation->answers().hasNoDefaultInterior ? nullptr : m_implementation->defaultInterior();
}

bool VirtualTopology::isDefaultInteriorActive() const { return m_implementation->m_isDefaultInteriorActive; }

std::vector<Interior*> VirtualTopology::interiors() const
{
    const std::vector<scripted::Interior*> interiors = m_implementation->interiors();
    return {interiors.begin(), interiors.end()};
}

std::vector<Interface*> VirtualTopology::interfaces() const
{
    const std::vector<scripted::Interface*> interfaces = m_implementation->interfaces();
    return {interfaces.begin(), interfaces.end()};
}

std::size_t VirtualTopology::noOfInterfaces() const { return m_implementation->noOfInterfaces(); }

void VirtualTopology::mask(const std::vector<Body*>& bodies)
{
    m_implementation->called(*m_implementation, "mask", bodies);
    m_implementation->mask(bodies, true);
}

void VirtualTopology::unmask(const std::vector<Body*>& bodies)
{
    m_implementation->called(*m_implementation, "unmask", bodies);
    m_implementation->mask(bodies, false);
}

void VirtualTopology::setMaskedBodies(const std::vector<Body*>& bodies)
{
    m_implementation->called(*m_implementation, "setMaskedBodies", bodies);
    m_implementation->unmaskAll();
    m_implementation->mask(bodies, true);
}

bool VirtualTopology::isMasked(Body* body) const { return body && m_implementation->isMasked(body); }

bool VirtualTopology::isMasked(Face* face) const { return face && m_implementation->isMasked(face); }

bool VirtualTopology::isMasked(FaceUse* faceUse) const { return faceUse && m_implementation->isMasked(faceUse); }

std::vector<Body*> VirtualTopology::maskedBodies() const
{
    return m_implementation->withMask(m_implementation->topology().m_bodies, true);
}

std::vector<Body*> VirtualTopology::unmaskedBodies() const
{
    return m_implementation->withMask(m_implementation->topology().m_bodies, false);
}

std::vector<Face*> VirtualTopology::maskedFaces() const
{
    return m_implementation->withMask(m_implementation->topology().m_faces, true);
}

std::vector<Face*> VirtualTopology::unmaskedFaces() const
{
    return m_implementation->withMask(m_implementation->topology().m_faces, false);
}

std::vector<FaceUse*> VirtualTopology::maskedFaceUses() const
{
    return m_implementation->withMask(m_implementation->topology().m_faceUses, true);
}

std::vector<FaceUse*> VirtualTopology::unmaskedFaceUses() const
{
    return m_implementation->withMask(m_implementation->topology().m_faceUses, false);
}

std::vector<Body*> VirtualTopology::unusedBodies() const
{
    if (m_implementation->answers().unusedBodies) {
        return *m_implementation->answers().unusedBodies;
    }
    std::set<Body*> used;
    for (const Interior* interior : interiors()) {
        const std::vector<Body*> bodies = interior->bodies();
        used.insert(bodies.begin(), bodies.end());
    }
    std::vector<Body*> unused = unmaskedBodies();
    std::erase_if(unused, [&](Body* body) { return used.contains(body); });
    return unused;
}

Topology* VirtualTopology::topology() const { return &m_implementation->topology(); }

bool VirtualTopology::isValid(bool acceptEmpty) const
{
    if (m_implementation->answers().isValid) {
        return *m_implementation->answers().isValid;
    }
    const auto isGood = [&](const auto& entity) {
        using State = decltype(entity->state());
        return entity->state() == State::Valid || (acceptEmpty && entity->state() == State::Empty);
    };
    const auto areGood = [&](const auto& entities) { return std::all_of(entities.begin(), entities.end(), isGood); };
    const std::vector<Interior*> all = interiors();
    return areGood(all) && areGood(interfaces()) && std::all_of(all.begin(), all.end(), [&](const Interior* interior) {
               return areGood(interior->boundaries());
           });
}

void VirtualTopology::clear()
{
    m_implementation->called(*m_implementation, "clear");
    m_implementation->clear();
}

} // namespace gtm
