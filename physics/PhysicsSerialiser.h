#pragma once

#include "physics/NonCopyable.h"
#include "physics/saved/Records.h"

#include <map>
#include <set>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace gtm {
class Boundary;
class Interface;
class Interior;
class Location;
class Topology;
class VirtualTopology;
} // namespace gtm

namespace physics {

class Boundary;
class BoundaryPatch;
class Interface;
class Model;
class NodePool;
class Physics;
class Settings;
class Volume;

/// One saving or one restoring of a set-up: it lives as long as the call, and knows which topology index
/// stands for which location-model entity and which id for which object.
///
/// Restoring has three steps. The whole text is read and checked without touching anything; when there is
/// a set-up to lose, the location-model part is tried out in a working copy of its own; only then is the
/// set-up cleared and built anew, each object complete before the next begins.
class PhysicsSerialiser : private NonCopyable {
public:
    static std::string save(const Physics& physics);

    /// False when the text is not accepted, with the set-up as it was, or when the location model refuses
    /// what it did not refuse before, with an empty set-up.
    static bool restore(Physics& physics, const std::string& text);

    /// Why a text would not be accepted, a line for each reason; empty when it would be.
    static std::vector<std::string> complaints(const Physics& physics, const std::string& text);

    // For the records of the objects. An entity that is not in the topology section has index 0; a negative
    // id or index stands for none.
    int indexOf(const gtm::Interior* interior) const { return find(m_interiorIndices, interior); }
    int indexOf(const gtm::Boundary* boundary) const { return find(m_boundaryIndices, boundary); }
    int indexOf(const gtm::Interface* interface) const { return find(m_interfaceIndices, interface); }
    gtm::Interior* interior(int index) const { return find(m_entities.interiors, index); }
    gtm::Boundary* place(int index) const { return find(m_entities.boundaries, index); }
    gtm::Interface* join(int index) const { return find(m_entities.interfaces, index); }
    Model* model(int id) const { return find(m_models, id); }
    Volume* volume(int id) const { return find(m_volumes, id); }
    Boundary* boundary(int id) const { return find(m_boundaries, id); }
    Interface* interface(int id) const { return find(m_interfaces, id); }
    BoundaryPatch* patch(int id) const { return find(m_patches, id); }

    /// The id of the patch of a boundary for an interface, or for none (-1).
    int patchId(int boundary, int interface) const { return find(m_patchIds, {boundary, interface}); }
    Physics* physics() const { return m_physics; }

    /// Where the objects are made.
    NodePool& nodes() const;

private:
    /// What stands for the indices of the topology section.
    struct Entities {
        std::unordered_map<int, gtm::Interior*> interiors;
        std::unordered_map<int, gtm::Boundary*> boundaries;
        std::unordered_map<int, gtm::Interface*> interfaces;
    };

    PhysicsSerialiser() = default;
    explicit PhysicsSerialiser(Physics* physics) : m_physics(physics) {}

    template <class Record>
    struct LiveBlock;
    using LiveSetUp = SetUpRecord<LiveBlock>;

    LiveSetUp describe(const Physics& physics);
    void describeInteriors(const Physics& physics, LiveSetUp& saved);
    void describeJoins(const Physics& physics, LiveSetUp& saved);
    void describeObjects(const Physics& physics, LiveSetUp& saved) const;

    /// Ascending.
    std::vector<int> indicesOf(const std::set<gtm::Boundary*>& boundaries) const;

    static bool read(const Physics& physics, const std::string& text, SavedSetUp& saved,
                     std::vector<std::string>& complaints);
    static bool buildTopology(const SavedSetUp& saved, gtm::VirtualTopology& topology, Entities& entities);
    static bool buildBoundaries(const InteriorRecord& record, gtm::Interior* interior, const gtm::Topology& topology,
                                Entities& entities);
    static bool hasSomethingToLose(const Physics& physics);
    bool build(const SavedSetUp& saved);
    void buildObjects(const SavedSetUp& saved);
    void emptySetUp();

    template <class Map>
    static typename Map::mapped_type find(const Map& map, const typename Map::key_type& key)
    {
        const auto entry = map.find(key);
        return entry == map.end() ? typename Map::mapped_type() : entry->second;
    }

    Physics* const m_physics = nullptr; // the one that is restored
    std::unordered_map<const gtm::Interior*, int> m_interiorIndices;
    std::unordered_map<const gtm::Boundary*, int> m_boundaryIndices;
    std::unordered_map<const gtm::Interface*, int> m_interfaceIndices;
    Entities m_entities;
    std::unordered_map<int, Model*> m_models;
    std::unordered_map<int, Volume*> m_volumes;
    std::unordered_map<int, Boundary*> m_boundaries;
    std::unordered_map<int, Interface*> m_interfaces;
    std::unordered_map<int, BoundaryPatch*> m_patches;
    std::map<std::pair<int, int>, int> m_patchIds;
};

} // namespace physics
