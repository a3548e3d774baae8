#include "locationmodel/LocationModel.h"

#include "locationmodel/ModelTopology.h"

#include <optional>
#include <utility>

namespace gtm::bundled {
namespace {

template <class Public, class Own>
std::vector<Public*> pointersTo(const std::vector<std::unique_ptr<Own>>& owned)
{
    std::vector<Public*> pointers;
    pointers.reserve(owned.size());
    for (const auto& one : owned) {
        pointers.push_back(one.get());
    }
    return pointers;
}

} // namespace

class LocationModel::Lists {
public:
    explicit Lists(const ModelTopology& topology, bool hasZones)
        : parts(pointersTo<Part>(topology.ownParts())),
          bodies(pointersTo<Body>(topology.ownBodies())),
          faces(pointersTo<Face>(topology.ownFaces())),
          faceUses(pointersTo<FaceUse>(topology.ownFaceUses()))
    {
        if (hasZones) {
            zones.emplace();
        }
    }

    std::vector<Part*> parts;
    std::vector<Body*> bodies;
    std::vector<Face*> faces;
    std::vector<FaceUse*> faceUses;
    std::optional<ModelMap> zones; ///< none before there is a mesh
};

LocationModel::LocationModel(std::unique_ptr<ModelTopology> topology, bool hasZones)
    : m_topology(std::move(topology)), m_lists(std::make_unique<Lists>(*m_topology, hasZones))
{}

LocationModel::~LocationModel() = default;

const std::vector<Part*>& LocationModel::parts() const { return m_lists->parts; }
const std::vector<Body*>& LocationModel::bodies() const { return m_lists->bodies; }
const std::vector<Face*>& LocationModel::faces() const { return m_lists->faces; }
const std::vector<FaceUse*>& LocationModel::faceUses() const { return m_lists->faceUses; }

std::vector<FaceUse*> LocationModel::faceUses(const Body* body) const
{
    const auto& uses = static_cast<const ModelBody*>(body)->faceUses;
    return {uses.begin(), uses.end()};
}

Part* LocationModel::part(const Body* body) const { return static_cast<const ModelBody*>(body)->part; }

const BodyFacts& LocationModel::facts(const Body* body) const { return static_cast<const ModelBody*>(body)->facts; }
const FaceFacts& LocationModel::facts(const Face* face) const { return static_cast<const ModelFace*>(face)->facts; }

std::string LocationModel::lastRefusal() const { return m_topology->lastRefusal().text(); }

std::int32_t LocationModel::lastRefusedState() const { return m_topology->lastRefusal().refusedState(); }

} // namespace gtm::bundled

namespace gtm {

Topology* Model::topology() const { return static_cast<const bundled::LocationModel&>(*this).m_topology.get(); }

TopologyMap* Model::solverZoneMap() const
{
    auto& zones = static_cast<const bundled::LocationModel&>(*this).m_lists->zones;
    return zones ? &*zones : nullptr;
}

} // namespace gtm
