#include "examples/own-kernel/Topology.h"

#include <cstdlib>

namespace own {

Topology::Topology(const kernel::Geometry& geometry)
{
    std::unordered_map<std::string, Part*> parts;
    for (const std::string& assembly : geometry.assemblies) {
        m_parts.push_back(std::make_unique<Part>(assembly));
        parts[assembly] = m_parts.back().get();
        m_byId[assembly] = m_parts.back().get();
    }
    for (const kernel::Solid& solid : geometry.solids) {
        m_bodies.push_back(std::make_unique<Body>(solid.name));
        m_byId[solid.name] = m_bodies.back().get();
        for (const int zone : solid.meshZones)
            m_bodies.back()->zones.push_back({zone});
        if (const auto part = parts.find(solid.assembly); part != parts.end())
            part->second->members.push_back(m_bodies.back().get());
    }
    for (const kernel::Surface& surface : geometry.surfaces) {
        m_faces.push_back(std::make_unique<Face>(surface.name));
        m_byId[surface.name] = m_faces.back().get();
        FaceUse* first = addSide(m_faces.back().get(), surface.left, surface.leftMeshZones);
        FaceUse* second =
            surface.right ? addSide(m_faces.back().get(), *surface.right, surface.rightMeshZones) : nullptr;
        m_faces.back()->setFaceUses(first, second);
    }
}

/// The id of a side must be unique too, also where both sides belong to one body.
FaceUse* Topology::addSide(Face* face, std::size_t solid, const std::vector<int>& meshZones)
{
    gtm::Body* body = m_bodies[solid].get();
    std::string id = face->id() + "@" + body->id();
    if (m_byId.count(id) != 0)
        id += "#2";
    m_faceUses.push_back(std::make_unique<FaceUse>(id, static_cast<gtm::Face*>(face), body));
    m_byId[id] = m_faceUses.back().get();
    for (const int zone : meshZones)
        m_faceUses.back()->zones.push_back({std::abs(zone), zone < 0 ? 1 : 0});
    return m_faceUses.back().get();
}

Model::Model(const kernel::Geometry& geometry) : m_topology(std::make_unique<Topology>(geometry))
{
    bool hasZones = false;
    for (const kernel::Solid& solid : geometry.solids)
        hasZones = hasZones || !solid.meshZones.empty();
    for (const kernel::Surface& surface : geometry.surfaces)
        hasZones = hasZones || !surface.leftMeshZones.empty() || !surface.rightMeshZones.empty();
    if (hasZones)
        m_zones = std::make_unique<TopologyMap>();
}

} // namespace own

namespace gtm {

std::vector<Body*> Part::bodies() const { return static_cast<const own::Part*>(this)->members; }

std::vector<Part*> Topology::parts() const
{
    std::vector<Part*> parts;
    for (const auto& part : static_cast<const own::Topology*>(this)->m_parts)
        parts.push_back(part.get());
    return parts;
}

Region* Topology::findRegionById(const std::string& id) const
{
    const auto& byId = static_cast<const own::Topology*>(this)->m_byId;
    const auto found = byId.find(id);
    return found == byId.end() ? nullptr : found->second;
}

Body* Topology::findBodyById(const std::string& id) const { return dynamic_cast<Body*>(findRegionById(id)); }

std::vector<ExternalBody> TopologyMap::externalBodies(const Body* body) const
{
    return body == nullptr ? std::vector<ExternalBody>() : static_cast<const own::Body*>(body)->zones;
}

std::vector<ExternalFaceSide> TopologyMap::externalFaceSides(const FaceUse* faceUse) const
{
    return faceUse == nullptr ? std::vector<ExternalFaceSide>() : static_cast<const own::FaceUse*>(faceUse)->zones;
}

Topology* Model::topology() const { return static_cast<const own::Model*>(this)->m_topology.get(); }
TopologyMap* Model::solverZoneMap() const { return static_cast<const own::Model*>(this)->m_zones.get(); }

} // namespace gtm
