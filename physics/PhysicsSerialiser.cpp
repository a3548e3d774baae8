#include "physics/PhysicsSerialiser.h"

#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Registry.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Volume.h"
#include "physics/saved/Consistency.h"
#include "physics/saved/Ids.h"
#include "physics/saved/TextReader.h"
#include "physics/saved/TextWriter.h"

#include "gtm/LocationModel.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <utility>

namespace physics {
namespace {

/// Entities in the order of the ids of the objects on them, those without an object last and as they were.
template <class Entity, class Ids>
std::vector<Entity*> inOrderOfObjects(const std::vector<Entity*>& entities, const Ids& ids)
{
    std::vector<std::pair<std::int64_t, Entity*>> ranked;
    ranked.reserve(entities.size());
    for (Entity* entity : entities) {
        const auto entry = ids.find(entity);
        ranked.emplace_back(entry == ids.end() ? std::numeric_limits<std::int64_t>::max() : entry->second, entity);
    }
    std::stable_sort(ranked.begin(), ranked.end(),
                     [](const auto& left, const auto& right) { return left.first < right.first; });
    std::vector<Entity*> sorted;
    sorted.reserve(ranked.size());
    for (const auto& entry : ranked)
        sorted.push_back(entry.second);
    return sorted;
}

LocationRecord locationOf(bool isDefault, const gtm::Location* location)
{
    LocationRecord record;
    if (isDefault) {
        record.code = LocationRecord::Default;
    } else if (location != nullptr && location->isImplicit()) {
        record.code = LocationRecord::Implicit;
        record.text = location->locationString(false);
    } else if (location != nullptr) {
        record.text = joinedIds(location->components().regions());
    }
    return record;
}

/// The records of a block in the order of their ids: so objects come back in one order, whatever the
/// order of the text.
template <class Record>
std::vector<const Record*> byId(const ReadBlock<Record>& block)
{
    std::vector<const Record*> records;
    for (const Record& record : block.records)
        records.push_back(&record);
    std::sort(records.begin(), records.end(),
              [](const Record* left, const Record* right) { return left->id < right->id; });
    return records;
}

} // namespace

NodePool& PhysicsSerialiser::nodes() const { return m_physics->registry().nodes; }

// ---- Saving

/// All objects of one class in a set-up that is saved. Their records are made one by one as they are written:
/// those of a large set-up would fill more memory than the objects.
template <class Record>
struct PhysicsSerialiser::LiveBlock {
    struct Records {
        std::vector<typename Record::Object*> objects;
        const PhysicsSerialiser* serialiser = nullptr;

        template <class Write>
        void forEach(const Write& write) const
        {
            for (const auto* object : objects)
                write(object->serialise(*serialiser));
        }
    };

    std::vector<int> ids;
    int lastUsedId = 0;
    Records records;
    std::size_t position = 0;
};

std::string PhysicsSerialiser::save(const Physics& physics)
{
    PhysicsSerialiser serialiser;
    const LiveSetUp saved = serialiser.describe(physics);
    TextWriter writer;
    LiveSetUp::describe(writer, saved);
    return writer.take();
}

PhysicsSerialiser::LiveSetUp PhysicsSerialiser::describe(const Physics& physics)
{
    LiveSetUp saved;
    saved.maskedBodies.text = joinedIds(physics.maskedBodies());
    describeInteriors(physics, saved);
    describeJoins(physics, saved);
    saved.enforceRestrictions = physics.enforceRestrictions();
    saved.types = physics.m_typeManager;
    describeObjects(physics, saved);
    saved.defaultVolume = idOf(physics.defaultVolume());
    for (const int number : physics.activationGroups()) {
        GroupRecord& group = saved.groups.emplace_back();
        group.number = number;
        group.volumes = idsOf(physics.activationGroupVolumes(number));
    }
    saved.reportCreationFailures = physics.m_reportCreationFailures;
    return saved;
}

void PhysicsSerialiser::describeInteriors(const Physics& physics, LiveSetUp& saved)
{
    const gtm::VirtualTopology& topology = physics.virtualTopology();
    saved.isDefaultInteriorActive = topology.isDefaultInteriorActive();
    std::unordered_map<const gtm::Interior*, int> volumes;
    std::unordered_map<const gtm::Boundary*, int> boundaries;
    for (const Volume* volume : physics.m_registry->allVolumes())
        volumes.emplace(volume->interior(), volume->id());
    const std::vector<Boundary*> all = physics.m_registry->allBoundaries();
    boundaries.reserve(all.size());
    m_boundaryIndices.reserve(all.size());
    for (const Boundary* boundary : all)
        boundaries.emplace(boundary->boundary(), boundary->id());
    for (const gtm::Interior* interior : inOrderOfObjects(topology.interiors(), volumes)) {
        InteriorRecord& record = saved.interiors.emplace_back();
        record.place.index = static_cast<int>(m_interiorIndices.size());
        m_interiorIndices.emplace(interior, record.place.index);
        record.place.name = interior->name();
        record.place.location = locationOf(interior->isDefaultInterior(), interior->location());
        record.isDefaultBoundaryActive = interior->isDefaultBoundaryActive();
        for (const gtm::Boundary* boundary : inOrderOfObjects(interior->boundaries(), boundaries)) {
            PlaceRecord& place = record.boundaries.emplace_back();
            place.index = static_cast<int>(m_boundaryIndices.size());
            m_boundaryIndices.emplace(boundary, place.index);
            place.name = boundary->name();
            place.location = locationOf(boundary->isDefaultBoundary(), boundary->location());
        }
    }
}

void PhysicsSerialiser::describeJoins(const Physics& physics, LiveSetUp& saved)
{
    std::unordered_map<const gtm::Interface*, int> interfaces;
    for (const Interface* interface : physics.m_registry->allInterfaces())
        interfaces.emplace(interface->interface(), interface->id());
    for (const gtm::Interface* interface : inOrderOfObjects(physics.virtualTopology().interfaces(), interfaces)) {
        JoinRecord& join = saved.joins.emplace_back();
        join.index = static_cast<int>(m_interfaceIndices.size());
        m_interfaceIndices.emplace(interface, join.index);
        join.name = interface->name();
        const auto [first, second] = interface->sides();
        join.sides = {indicesOf(first), indicesOf(second)};
    }
}

std::vector<int> PhysicsSerialiser::indicesOf(const std::set<gtm::Boundary*>& boundaries) const
{
    std::set<int> indices;
    for (const gtm::Boundary* boundary : boundaries)
        indices.insert(indexOf(boundary));
    return {indices.begin(), indices.end()};
}

void PhysicsSerialiser::describeObjects(const Physics& physics, LiveSetUp& saved) const
{
    const auto describeBlock = [this](auto& block, int lastUsedId, auto objects) {
        block.lastUsedId = lastUsedId;
        block.ids = idsOf(objects);
        block.records = {std::move(objects), this};
    };
    const Registry& registry = *physics.m_registry;
    const std::vector<Boundary*> boundaries = registry.allBoundaries();
    std::vector<BoundaryPatch*> patches;
    for (const Boundary* boundary : boundaries)
        for (BoundaryPatch* patch : boundary->patches())
            patches.push_back(patch);
    describeBlock(saved.models, Model::s_lastUsedId, physics.models());
    describeBlock(saved.volumes, Volume::s_lastUsedId, registry.allVolumes());
    describeBlock(saved.boundaries, Boundary::s_lastUsedId, boundaries);
    describeBlock(saved.interfaces, Interface::s_lastUsedId, registry.allInterfaces());
    describeBlock(saved.patches, BoundaryPatch::s_lastUsedId, patches);
    describeBlock(saved.settings, Settings::s_lastUsedId, physics.settings());
}

// ---- Restoring

bool PhysicsSerialiser::read(const Physics& physics, const std::string& text, SavedSetUp& saved,
                             std::vector<std::string>& complaints)
{
    // A text with fewer default boundary types than the present tables leaves the others as they are.
    saved.types = physics.m_typeManager;
    TextReader reader(text);
    SavedSetUp::describe(reader, saved);
    if (reader.hasFailed())
        complaints.push_back(reader.complaint());
    else
        complaints = Consistency(saved, physics.virtualTopology(), reader).complaints();
    return complaints.empty();
}

std::vector<std::string> PhysicsSerialiser::complaints(const Physics& physics, const std::string& text)
{
    SavedSetUp saved;
    std::vector<std::string> complaints;
    read(physics, text, saved, complaints);
    return complaints;
}

bool PhysicsSerialiser::restore(Physics& physics, const std::string& text)
{
    SavedSetUp saved;
    std::vector<std::string> complaints;
    if (!read(physics, text, saved, complaints))
        return false;
    if (hasSomethingToLose(physics)) {
        gtm::VirtualTopology rehearsal(physics.m_virtualTopology.topology(), std::string(), 0);
        Entities entities;
        if (!buildTopology(saved, rehearsal, entities))
            return false;
    }
    return PhysicsSerialiser(&physics).build(saved);
}

bool PhysicsSerialiser::hasSomethingToLose(const Physics& physics)
{
    return !physics.m_registry->isEmpty() || !physics.activationGroups().empty() || !physics.maskedBodies().empty() ||
           !physics.m_virtualTopology.interiors().empty();
}

bool PhysicsSerialiser::build(const SavedSetUp& saved)
{
    try {
        emptySetUp();
        if (!buildTopology(saved, m_physics->m_virtualTopology, m_entities)) {
            emptySetUp();
            return false;
        }
        m_physics->m_enforceRestrictions = saved.enforceRestrictions;
        m_physics->m_typeManager = saved.types;
        buildObjects(saved);
        m_physics->m_reportCreationFailures = saved.reportCreationFailures;
    } catch (...) {
        emptySetUp(); // also what a failure of the clearing itself left
        throw;
    }
    return true;
}

void PhysicsSerialiser::emptySetUp()
{
    m_physics->clear();
    m_physics->m_virtualTopology.clear();
}

/// Restrictions are not enforced: a set-up that was saved with faults must come back with them.
bool PhysicsSerialiser::buildTopology(const SavedSetUp& saved, gtm::VirtualTopology& topology, Entities& entities)
{
    const gtm::Topology& regions = *topology.topology();
    std::vector<gtm::Body*> masked;
    for (const std::string& id : splitIds(saved.maskedBodies.text))
        if (gtm::Body* body = regions.findBodyById(id)) // a mask may name bodies of a larger geometry
            masked.push_back(body);
    topology.setMaskedBodies(masked);
    topology.activateDefaultInterior(saved.isDefaultInteriorActive);

    for (const InteriorRecord& record : saved.interiors) {
        const LocationRecord& location = record.place.location;
        gtm::Interior* interior = nullptr;
        if (location.isDefault()) {
            interior = topology.defaultInterior();
            if (interior != nullptr)
                interior->rename(record.place.name);
        } else if (location.code == LocationRecord::Implicit) {
            interior = topology.createInterior(record.place.name, location.text, false, false).first;
        } else {
            const std::vector<gtm::Region*> found = findRegions(regions, location.text);
            interior = topology.createInterior(record.place.name, found, false, false).first;
        }
        if (interior == nullptr || !buildBoundaries(record, interior, regions, entities))
            return false;
        entities.interiors[record.place.index] = interior;
    }

    for (const JoinRecord& record : saved.joins) {
        gtm::Interface::Sides sides;
        for (const int index : record.sides[0])
            sides.first.insert(find(entities.boundaries, index));
        for (const int index : record.sides[1])
            sides.second.insert(find(entities.boundaries, index));
        gtm::Interface* interface = topology.createInterface(record.name, sides.first, sides.second, false).first;
        if (interface == nullptr)
            return false;
        entities.interfaces[record.index] = interface;
    }
    return true;
}

bool PhysicsSerialiser::buildBoundaries(const InteriorRecord& record, gtm::Interior* interior,
                                        const gtm::Topology& topology, Entities& entities)
{
    interior->activateDefaultBoundary(record.isDefaultBoundaryActive);
    for (const PlaceRecord& place : record.boundaries) {
        gtm::Boundary* boundary = nullptr;
        if (place.location.isDefault()) {
            boundary = interior->defaultBoundary();
            if (boundary != nullptr)
                boundary->rename(place.name);
        } else if (place.location.code == LocationRecord::Implicit) {
            boundary = interior->createBoundary(place.name, place.location.text, false).first;
        } else {
            boundary = interior->createBoundary(place.name, findRegions(topology, place.location.text), false).first;
        }
        if (boundary == nullptr)
            return false;
        entities.boundaries[place.index] = boundary;
    }
    return true;
}

/// Each object is registered as soon as it is complete, so that the set-up can be cleared at any point.
void PhysicsSerialiser::buildObjects(const SavedSetUp& saved)
{
    for (const PatchRecord& record : saved.patches.records)
        m_patchIds.emplace(std::make_pair(record.boundary, std::max(record.interface, -1)), record.id);

    for (const ModelRecord* record : byId(saved.models))
        m_models.emplace(record->id, Model::restore(*this, *record));
    for (const VolumeRecord* record : byId(saved.volumes))
        m_volumes.emplace(record->id, Volume::restore(*this, *record));
    for (const BoundaryRecord* record : byId(saved.boundaries))
        m_boundaries.emplace(record->id, Boundary::restore(*this, *record));
    for (const InterfaceRecord* record : byId(saved.interfaces))
        m_interfaces.emplace(record->id, Interface::restore(*this, *record));
    for (const Boundary* boundary : m_physics->m_registry->allBoundaries())
        for (BoundaryPatch* patch : boundary->patches())
            m_patches.emplace(patch->id(), patch);
    for (const SettingsRecord* record : byId(saved.settings))
        Settings::restore(*this, *record);

    // Of several default volumes the last one registered counts, unless the text says which.
    if (saved.defaultVolume >= 0)
        m_physics->m_registry->defaultVolume = volume(saved.defaultVolume);
    for (const GroupRecord& record : saved.groups) {
        std::vector<Volume*> volumes;
        for (const int id : record.volumes)
            if (Volume* member = volume(id))
                volumes.push_back(member);
        m_physics->m_registry->activationGroups.restore(record.number, volumes);
    }

    Model::s_lastUsedId = saved.models.lastUsedId;
    Volume::s_lastUsedId = saved.volumes.lastUsedId;
    Boundary::s_lastUsedId = saved.boundaries.lastUsedId;
    Interface::s_lastUsedId = saved.interfaces.lastUsedId;
    BoundaryPatch::s_lastUsedId = saved.patches.lastUsedId;
    Settings::s_lastUsedId = saved.settings.lastUsedId;
}

// ---- The members of `Physics`. They are defined here, so that no object knows the text.

std::string Physics::serialise() const { return PhysicsSerialiser::save(*this); }

bool Physics::restore(const std::string& text) { return PhysicsSerialiser::restore(*this, text); }

std::vector<std::string> Physics::checkSerialised(const std::string& text) const
{
    return PhysicsSerialiser::complaints(*this, text);
}

} // namespace physics
