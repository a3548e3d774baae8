#include "physics/saved/Consistency.h"

#include "physics/saved/Ids.h"
#include "physics/saved/NearestId.h"
#include "physics/saved/TextReader.h"

#include "gtm/LocationModel.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <utility>

namespace physics {
namespace {

constexpr std::size_t mostComplaints = 100;
constexpr std::size_t mostSuggestions = 5; // looking for a similar id walks the whole topology

template <class Record>
std::string nameOf(const Record& record)
{
    return std::string(Record::noun) + " " + std::to_string(record.id);
}

std::string numbered(const char* noun, int number) { return std::string(noun) + " " + std::to_string(number); }

/// The map in which a model must hold such a settings object; none when its fields contradict each other.
std::optional<SettingsMap> mapOf(const SettingsRecord& record)
{
    const bool isOfVolume = record.volume >= 0 && record.patch < 0 && record.interface < 0;
    const bool isOfPatch = record.volume < 0 && record.patch >= 0 && record.interface < 0;
    const bool isOfInterface = record.volume < 0 && record.patch < 0 && record.interface >= 0;
    if (isOfVolume && record.type == SettingsType::VolumeSettings && record.topologyType == TopologyType::Volume)
        return SettingsMap::Volume;
    if (isOfVolume && record.type == SettingsType::VolumeSettings && record.topologyType == TopologyType::Internal)
        return SettingsMap::Internal;
    if (isOfInterface && record.type == SettingsType::InterfaceSettings &&
        record.topologyType == TopologyType::Interface)
        return SettingsMap::Interface;
    if (!isOfPatch || record.topologyType != TopologyType::Boundary)
        return std::nullopt;
    switch (record.type) {
    case SettingsType::VolumeSettings:
        return SettingsMap::PatchVolume;
    case SettingsType::ShellSettings:
        return SettingsMap::PatchShell;
    case SettingsType::InterfaceSettings:
        return SettingsMap::PatchInterface;
    }
    return std::nullopt;
}

/// The object that a settings object with consistent fields belongs to: one of the three is not negative.
int keyOf(const SettingsRecord& record) { return std::max({record.volume, record.patch, record.interface}); }

template <class Record>
const Record* at(const std::unordered_map<int, const Record*>& records, int id)
{
    const auto entry = records.find(id);
    return entry == records.end() ? nullptr : entry->second;
}

} // namespace

std::vector<std::string> Consistency::complaints()
{
    m_complaints.clear();
    checkTopology();
    m_models = checkBlock(m_saved.models);
    m_volumes = checkBlock(m_saved.volumes);
    m_boundaries = checkBlock(m_saved.boundaries);
    m_interfaces = checkBlock(m_saved.interfaces);
    m_patches = checkBlock(m_saved.patches);
    m_settings = checkBlock(m_saved.settings);
    checkModels();
    checkVolumes();
    checkBoundaries();
    checkInterfaces();
    checkPatches();
    checkSettings();
    checkGroups();
    return std::move(m_complaints);
}

bool Consistency::isEnough() const { return m_complaints.size() >= mostComplaints; }

void Consistency::complain(std::size_t position, const std::string& sentence)
{
    if (!isEnough())
        m_complaints.push_back(std::to_string(m_reader.lineOf(position)) + ": " + sentence);
}

// ---- The topology section

void Consistency::checkTopology()
{
    const LocationRecord& mask = m_saved.maskedBodies;
    if (mask.code != LocationRecord::Regions)
        complain(mask.position, "masked bodies are a list of bodies (code 0, or 3 for none)");

    bool hasDefaultInterior = false;
    for (const InteriorRecord& interior : m_saved.interiors) {
        const PlaceRecord& place = interior.place;
        if (place.index < 0 || !m_interiors.emplace(place.index, &interior).second)
            complain(place.position,
                     "the interior index " + std::to_string(place.index) + " is negative or was used before");
        checkPlace(place, m_saved.isDefaultInteriorActive, hasDefaultInterior);
        bool hasDefaultBoundary = false;
        for (const PlaceRecord& boundary : interior.boundaries) {
            if (boundary.index < 0 || !m_places.emplace(boundary.index, &boundary).second)
                complain(boundary.position,
                         "the boundary index " + std::to_string(boundary.index) + " is negative or was used before");
            m_interiorOfPlace.emplace(boundary.index, &interior);
            checkPlace(boundary, interior.isDefaultBoundaryActive, hasDefaultBoundary);
        }
    }
    for (const JoinRecord& join : m_saved.joins) {
        if (join.index < 0 || !m_joins.insert(join.index).second)
            complain(join.position,
                     "the interface index " + std::to_string(join.index) + " is negative or was used before");
        for (const std::vector<int>& side : join.sides)
            for (const int index : side)
                if (at(m_places, index) == nullptr)
                    complain(join.position, "the interface " + inQuotes(join.name) + " lies on the boundary index " +
                                                std::to_string(index) + ", which is not above");
    }
}

/// `hasDefault` tells whether there was a default place before among those that can have only one.
void Consistency::checkPlace(const PlaceRecord& place, bool isDefaultActive, bool& hasDefault)
{
    if (!place.location.isDefault()) {
        checkRegions(place.location);
        return;
    }
    if (!isDefaultActive)
        complain(place.position, inQuotes(place.name) + " is a default place, but the default place is switched off");
    if (hasDefault)
        complain(place.position, inQuotes(place.name) + " is a second default place where there can be only one");
    hasDefault = true;
}

/// A region that the geometry lacks cannot be left out: the entity would silently lie somewhere else.
void Consistency::checkRegions(const LocationRecord& location)
{
    if (location.code != LocationRecord::Regions)
        return;
    for (const std::string& id : splitIds(location.text))
        if (!isEnough() && m_topology.topology()->findRegionById(id) == nullptr)
            complain(location.position, "the geometry has no region " + inQuotes(id) + nearestId(id));
}

std::string Consistency::nearestId(const std::string& id) const
{
    if (m_complaints.size() >= mostSuggestions)
        return {};
    const std::string nearest = physics::nearestId(id, m_topology);
    return nearest.empty() ? std::string() : "; the nearest is " + inQuotes(nearest);
}

// ---- The objects

template <class Record>
Consistency::ById<Record> Consistency::checkBlock(const ReadBlock<Record>& block)
{
    std::unordered_set<int> announced;
    for (const int id : block.ids)
        if (id < 0 || !announced.insert(id).second)
            complain(block.position,
                     "the id " + std::to_string(id) + " of a " + Record::noun + " is negative or listed twice");
    ById<Record> records;
    for (const Record& record : block.records) {
        if (announced.count(record.id) == 0)
            complain(record.position, nameOf(record) + " is not among the ids listed above");
        if (!records.emplace(record.id, &record).second)
            complain(record.position, nameOf(record) + " has a record already");
    }
    return records;
}

template <class Record>
void Consistency::checkMembers(const Record& holder, const std::vector<int>& ids,
                               const std::unordered_set<int>& expected, const char* noun)
{
    if (isEnough()) // else many records of one id would each be compared with the same many members
        return;
    std::unordered_set<int> listed(ids.begin(), ids.end());
    for (const int id : ids)
        if (expected.count(id) == 0)
            complain(holder.position, nameOf(holder) + " lists " + numbered(noun, id) +
                                          ", which is not in the text or does not name it");
    for (const int id : expected)
        if (listed.count(id) == 0)
            complain(holder.position, nameOf(holder) + " does not list " + numbered(noun, id) + ", which names it");
}

void Consistency::checkModels()
{
    std::unordered_map<int, std::unordered_set<int>> volumes;
    std::unordered_map<int, std::unordered_set<int>> interfaces;
    for (const VolumeRecord& volume : m_saved.volumes.records)
        volumes[volume.model].insert(volume.id);
    for (const InterfaceRecord& interface : m_saved.interfaces.records)
        interfaces[interface.model].insert(interface.id);
    for (const ModelRecord& model : m_saved.models.records) {
        checkMembers(model, model.volumes, volumes[model.id], VolumeRecord::noun);
        checkMembers(model, model.interfaces, interfaces[model.id], InterfaceRecord::noun);
    }
}

void Consistency::checkVolumes()
{
    std::unordered_map<int, std::unordered_set<int>> boundaries;
    std::unordered_map<int, int> defaultBoundaries;
    for (const BoundaryRecord& boundary : m_saved.boundaries.records) {
        boundaries[boundary.volume].insert(boundary.id);
        if (boundary.isDefault && !defaultBoundaries.emplace(boundary.volume, boundary.id).second)
            complain(boundary.position, nameOf(boundary) + " is a second default boundary of its volume");
    }
    std::unordered_map<int, std::unordered_set<int>> groups;
    for (const GroupRecord& group : m_saved.groups)
        groups[group.number].insert(group.volumes.begin(), group.volumes.end());

    std::unordered_set<int> interiors;
    for (const VolumeRecord& volume : m_saved.volumes.records) {
        const std::string name = nameOf(volume);
        if (volume.model >= 0 && at(m_models, volume.model) == nullptr)
            complain(volume.position, name + " names " + numbered("model", volume.model) + ", which the text lacks");
        const InteriorRecord* interior = at(m_interiors, volume.interior);
        if (interior == nullptr)
            complain(volume.position, name + " lies on the interior index " + std::to_string(volume.interior) +
                                          ", which the text lacks");
        else if (interior->place.location.isDefault() != volume.isDefault)
            complain(volume.position, name + " and its interior disagree on whether they are the default");
        if (!interiors.insert(volume.interior).second && !volume.isDefault)
            complain(volume.position, name + " lies on the interior of another volume");
        // The other way round is let pass: a group may list volumes that ended or are not in it.
        if (volume.activationGroup != -1 && groups[volume.activationGroup].count(volume.id) == 0)
            complain(volume.position, name + " is in the activation group " + std::to_string(volume.activationGroup) +
                                          ", which the text lacks or which does not list it");
        checkMembers(volume, volume.boundaries, boundaries[volume.id], BoundaryRecord::noun);
        const auto defaultBoundary = defaultBoundaries.find(volume.id);
        if (volume.defaultBoundary != (defaultBoundary == defaultBoundaries.end() ? -1 : defaultBoundary->second))
            complain(volume.position, name + " does not name its one default boundary");
    }
    const VolumeRecord* defaultVolume = at(m_volumes, m_saved.defaultVolume);
    if (m_saved.defaultVolume >= 0 && (defaultVolume == nullptr || !defaultVolume->isDefault))
        complain(m_saved.defaultVolumePosition,
                 numbered("volume", m_saved.defaultVolume) + " is not in the text or not a default volume");
}

void Consistency::checkBoundaries()
{
    std::unordered_map<int, std::map<int, int>> patches; // of a boundary: interface to patch
    for (const PatchRecord& patch : m_saved.patches.records)
        patches[patch.boundary].emplace(std::max(patch.interface, -1), patch.id);

    std::unordered_map<int, std::unordered_set<int>> shells; // of a model
    for (const ModelRecord& model : m_saved.models.records)
        shells[model.id].insert(model.boundaries.begin(), model.boundaries.end());

    std::unordered_set<int> places;
    for (const BoundaryRecord& boundary : m_saved.boundaries.records) {
        const std::string name = nameOf(boundary);
        const VolumeRecord* volume = at(m_volumes, boundary.volume);
        const PlaceRecord* place = at(m_places, boundary.place);
        if (volume == nullptr)
            complain(boundary.position,
                     name + " names " + numbered("volume", boundary.volume) + ", which the text lacks");
        if (place == nullptr)
            complain(boundary.position,
                     name + " lies on the boundary index " + std::to_string(boundary.place) + ", which the text lacks");
        else if (place->location.isDefault() != boundary.isDefault)
            complain(boundary.position, name + " and its place disagree on whether they are the default");
        if (volume != nullptr && place != nullptr &&
            m_interiorOfPlace.at(boundary.place) != at(m_interiors, volume->interior))
            complain(boundary.position, name + " does not lie on the interior of its volume");
        if (!places.insert(boundary.place).second && !boundary.isDefault)
            complain(boundary.position, name + " lies on the place of another boundary");
        // The other way round is let pass: a list of shells may name boundaries whose shell is elsewhere.
        if (boundary.shellModel >= 0 && shells[boundary.shellModel].count(boundary.id) == 0)
            complain(boundary.position, name + " has its shell in " + numbered("model", boundary.shellModel) +
                                            ", which the text lacks or which does not list it");
        std::map<int, int> listed;
        for (const auto& [interface, patch] : boundary.patches)
            listed.emplace(std::max(interface, -1), patch);
        if (listed.size() != boundary.patches.size() || listed != patches[boundary.id])
            complain(boundary.position, name + " does not list exactly the patches that name it");
        if (listed.count(-1) == 0)
            complain(boundary.position, name + " has no patch of its own");
    }
}

void Consistency::checkInterfaces()
{
    std::vector<std::pair<int, int>> patches; // interface and boundary
    for (const BoundaryRecord& boundary : m_saved.boundaries.records)
        for (const auto& [interface, patch] : boundary.patches)
            if (interface >= 0)
                patches.emplace_back(interface, boundary.id);
    std::sort(patches.begin(), patches.end());

    std::unordered_set<int> joins;
    for (const InterfaceRecord& interface : m_saved.interfaces.records) {
        const std::string name = nameOf(interface);
        if (interface.model >= 0 && at(m_models, interface.model) == nullptr)
            complain(interface.position,
                     name + " names " + numbered("model", interface.model) + ", which the text lacks");
        if (m_joins.count(interface.join) == 0)
            complain(interface.position, name + " lies on the interface index " + std::to_string(interface.join) +
                                             ", which the text lacks");
        if (!joins.insert(interface.join).second)
            complain(interface.position, name + " lies on the place of another interface");
        for (const int id : interface.boundaries) {
            if (at(m_boundaries, id) == nullptr)
                complain(interface.position, name + " names " + numbered("boundary", id) + ", which the text lacks");
            else if (!std::binary_search(patches.begin(), patches.end(), std::make_pair(interface.id, id)))
                complain(interface.position,
                         name + " joins " + numbered("boundary", id) + ", which has no patch for it");
        }
    }
}

void Consistency::checkPatches()
{
    for (const PatchRecord& patch : m_saved.patches.records) {
        if (at(m_boundaries, patch.boundary) == nullptr)
            complain(patch.position,
                     nameOf(patch) + " names " + numbered("boundary", patch.boundary) + ", which the text lacks");
        if (patch.interface < 0)
            continue;
        const InterfaceRecord* interface = at(m_interfaces, patch.interface);
        if (interface == nullptr ||
            (interface->boundaries[0] != patch.boundary && interface->boundaries[1] != patch.boundary))
            complain(patch.position, nameOf(patch) + " is for " + numbered("interface", patch.interface) +
                                         ", which the text lacks or which does not join its boundary");
    }
}

void Consistency::checkSettings()
{
    // What the maps of the models say must be what the settings objects say.
    std::map<int, std::pair<int, std::size_t>> holders; // settings to model and map
    std::map<int, int> keys;
    for (const ModelRecord& model : m_saved.models.records)
        for (std::size_t map = 0; map < noOfSettingsMaps; ++map)
            for (const auto& [key, id] : model.settings[map])
                if (!holders.emplace(id, std::make_pair(model.id, map)).second || !keys.emplace(id, key).second)
                    complain(model.position, nameOf(model) + " holds " + numbered("settings object", id) +
                                                 ", which is held elsewhere too");
    std::set<std::pair<std::pair<int, std::size_t>, int>> taken;
    for (const SettingsRecord& record : m_saved.settings.records) {
        checkSettingsObject(record);
        const auto holder = holders.find(record.id);
        const std::optional<SettingsMap> map = mapOf(record);
        if (holder == holders.end() || !map ||
            holder->second != std::make_pair(record.model, static_cast<std::size_t>(*map)) ||
            keys[record.id] != keyOf(record))
            complain(record.position, nameOf(record) + " is not held by its model for the object that it names");
        else if (!taken.emplace(holder->second, keyOf(record)).second)
            complain(record.position, nameOf(record) + " belongs to an object that has such settings already");
    }
    for (const auto& [id, holder] : holders)
        if (at(m_settings, id) == nullptr)
            complain(m_models.at(holder.first)->position, numbered("model", holder.first) + " holds " +
                                                              numbered("settings object", id) +
                                                              ", which the text lacks");
}

void Consistency::checkSettingsObject(const SettingsRecord& record)
{
    const std::string name = nameOf(record);
    if (at(m_models, record.model) == nullptr)
        complain(record.position, name + " names " + numbered("model", record.model) + ", which the text lacks");
    const VolumeRecord* volume = at(m_volumes, record.volume);
    if (record.volume >= 0 && (volume == nullptr || volume->model != record.model))
        complain(record.position, name + " names " + numbered("volume", record.volume) +
                                      ", which the text lacks or which belongs to another model");
    const InterfaceRecord* interface = at(m_interfaces, record.interface);
    if (record.interface >= 0 && (interface == nullptr || interface->model != record.model))
        complain(record.position, name + " names " + numbered("interface", record.interface) +
                                      ", which the text lacks or which belongs to another model");
    if (record.patch >= 0 && at(m_patches, record.patch) == nullptr)
        complain(record.position,
                 name + " names " + numbered("boundary patch", record.patch) + ", which the text lacks");
    std::unordered_set<int> indices;
    for (const BundleRecord& bundle : record.bundles)
        if (!indices.insert(bundle.index).second)
            complain(record.position, name + " has two thread bundles with the index " + std::to_string(bundle.index));
}

void Consistency::checkGroups()
{
    std::unordered_set<int> numbers;
    for (const GroupRecord& group : m_saved.groups)
        if (group.number < 1 || !numbers.insert(group.number).second)
            complain(group.position,
                     "the activation group number " + std::to_string(group.number) + " is below 1 or was used before");
}

} // namespace physics
