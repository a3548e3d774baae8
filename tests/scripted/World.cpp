#include "tests/scripted/World.h"

#include "tests/scripted/WorkingCopy.h"

#include <algorithm>
#include <stdexcept>

namespace scripted {

namespace {

template <class Entity>
Entity* withName(const std::vector<Entity*>& entities, const std::string& name)
{
    const auto found =
        std::find_if(entities.begin(), entities.end(), [&](const Entity* entity) { return entity->name() == name; });
    return found == entities.end() ? nullptr : *found;
}

} // namespace

World::World() : m_model(*this) { m_model.m_zoneMap.emplace(); }

World::~World() = default;

gtm::Part* World::part(const std::string& id) { return m_model.m_topology.addPart(id); }

gtm::Body* World::body(const std::string& id, gtm::Part* part)
{
    return m_model.m_topology.addBody(id, static_cast<Part*>(part));
}

FaceWithUses World::face(const std::string& id, gtm::Body* first, gtm::Body* second)
{
    const std::string secondId = second ? id + "@" + second->id() + (first == second ? "#2" : "") : "";
    return face(id, NamedSide(first, id + "@" + first->id()), NamedSide(second, secondId));
}

FaceWithUses World::face(const std::string& id, const NamedSide& first, const NamedSide& second)
{
    Topology& topology = m_model.m_topology;
    Face* face = topology.addFace(id);
    const auto addSide = [&](const NamedSide& side) {
        return side.first ? topology.addFaceUse(side.second, face, scriptedOf(side.first)) : nullptr;
    };
    FaceUse* firstUse = addSide(first);
    FaceUse* secondUse = addSide(second);
    face->setFaceUses(firstUse, secondUse);
    return {face, firstUse, secondUse};
}

void World::zones(gtm::Body* body, const std::vector<int>& zoneIds)
{
    auto& zones = scriptedOf(body)->m_zones;
    zones.clear();
    for (const int zoneId : zoneIds) {
        zones.push_back({zoneId});
    }
}

void World::sideZones(gtm::FaceUse* faceUse, const std::vector<gtm::ExternalFaceSide>& sides)
{
    scriptedOf(faceUse)->m_zones = sides;
}

void World::withoutZoneMap() { m_model.m_zoneMap.reset(); }

void World::answerParts(const std::vector<gtm::Part*>& parts) { m_model.m_topology.m_parts = parts; }

void World::answerBodies(gtm::Part* part, const std::vector<gtm::Body*>& bodies)
{
    static_cast<Part*>(part)->m_bodies = bodies;
}

VirtualTopologyAnswers& World::answers(std::size_t virtualTopology) { return m_answers[virtualTopology]; }

gtm::VirtualTopology* World::virtualTopology(std::size_t index) const
{
    const bool isAlive = index < m_workingCopies.size() && m_workingCopies[index];
    return isAlive ? m_workingCopies[index]->virtualTopology() : nullptr;
}

gtm::Interior* World::interior(const std::string& name, std::size_t topology) const
{
    return withName(virtualTopology(topology)->interiors(), name);
}

gtm::Boundary* World::boundary(const std::string& name, std::size_t topology) const
{
    for (const gtm::Interior* interior : virtualTopology(topology)->interiors()) {
        if (gtm::Boundary* boundary = withName(interior->boundaries(), name)) {
            return boundary;
        }
    }
    return nullptr;
}

gtm::Interface* World::interface(const std::string& name, std::size_t topology) const
{
    return withName(virtualTopology(topology)->interfaces(), name);
}

void World::throwIfAsked(const char* operation)
{
    if (m_throwing.empty()) {
        return;
    }
    const auto found = m_throwing.find(operation);
    if (found != m_throwing.end() && --found->second == 0) {
        m_throwing.erase(found);
        throw std::runtime_error("The scripted location model fails in " + std::string(operation) + ".");
    }
}

} // namespace scripted
