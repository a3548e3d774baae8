#include "tests/scripted/Topology.h"

#include <stdexcept>

namespace scripted {

template <class Kind, class... Arguments>
Kind* Topology::add(std::vector<std::unique_ptr<Kind>>& owner, const std::string& id, Arguments... arguments)
{
    auto region = std::make_unique<Kind>(Label{id, owner.size()}, arguments...);
    if (!m_regions.emplace(id, region.get()).second) {
        throw std::invalid_argument("The scripted topology has \"" + id + "\" already; give it another id.");
    }
    return owner.emplace_back(std::move(region)).get();
}

Part* Topology::addPart(const std::string& id)
{
    Part* part = add(m_ownedParts, id);
    m_parts.push_back(part);
    return part;
}

Body* Topology::addBody(const std::string& id, Part* part)
{
    Body* body = add(m_ownedBodies, id, part);
    m_bodies.push_back(body);
    if (part) {
        part->m_bodies.push_back(body);
    }
    return body;
}

Face* Topology::addFace(const std::string& id)
{
    Face* face = add(m_ownedFaces, id);
    m_faces.push_back(face);
    return face;
}

FaceUse* Topology::addFaceUse(const std::string& id, Face* face, Body* body)
{
    FaceUse* faceUse = add(m_ownedFaceUses, id, static_cast<gtm::Face*>(face), static_cast<gtm::Body*>(body));
    m_faceUses.push_back(faceUse);
    body->m_faceUses.push_back(faceUse);
    return faceUse;
}

} // namespace scripted

namespace gtm {

std::vector<Body*> Part::bodies() const { return static_cast<const scripted::Part*>(this)->m_bodies; }

std::vector<Part*> Topology::parts() const { return static_cast<const scripted::Topology*>(this)->m_parts; }

Region* Topology::findRegionById(const std::string& id) const
{
    const auto& regions = static_cast<const scripted::Topology*>(this)->m_regions;
    const auto found = regions.find(id);
    return found == regions.end() ? nullptr : found->second;
}

Body* Topology::findBodyById(const std::string& id) const { return dynamic_cast<Body*>(findRegionById(id)); }

std::vector<ExternalBody> TopologyMap::externalBodies(const Body* body) const
{
    return body ? scripted::scriptedOf(body)->m_zones : std::vector<ExternalBody>();
}

std::vector<ExternalFaceSide> TopologyMap::externalFaceSides(const FaceUse* faceUse) const
{
    return faceUse ? scripted::scriptedOf(faceUse)->m_zones : std::vector<ExternalFaceSide>();
}

Topology* Model::topology() const { return &static_cast<const scripted::Model*>(this)->m_topology; }

TopologyMap* Model::solverZoneMap() const
{
    auto& map = static_cast<const scripted::Model*>(this)->m_zoneMap;
    return map ? &*map : nullptr;
}

} // namespace gtm
