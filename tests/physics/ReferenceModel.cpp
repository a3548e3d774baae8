#include "tests/physics/ReferenceModel.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace reference {

using physics::SettingsType;
using physics::TopologyType;

namespace {

/// Forgets every key under which an object was found.
template <class Key>
void sweep(std::map<Key, Id>& index, Id object)
{
    for (auto entry = index.begin(); entry != index.end();)
        entry = entry->second == object ? index.erase(entry) : std::next(entry);
}

template <class Key>
Id valueOr0(const std::map<Key, Id>& index, const Key& key)
{
    const auto entry = index.find(key);
    return entry == index.end() ? 0 : entry->second;
}

template <class Key>
std::vector<Id> valuesOf(const std::map<Key, Id>& index)
{
    std::vector<Id> values;
    for (const auto& [key, value] : index)
        values.push_back(value);
    return values;
}

/// The listed ones, then the others.
template <class Record>
std::vector<Id> listedFirst(const std::map<std::string, Id>& listed, const std::map<Id, Record>& all)
{
    std::vector<Id> ids = valuesOf(listed);
    for (const auto& [id, record] : all)
        if (std::find(ids.begin(), ids.end(), id) == ids.end())
            ids.push_back(id);
    return ids;
}

} // namespace

SetUp::SetUp(contract::TopologyDescription description, Counters counters)
    : topology(std::move(description)), last(counters)
{
    std::map<std::string, int> numbers;
    for (std::size_t body = 0; body < topology.bodies.size(); ++body)
        numbers[topology.bodies[body].id] = static_cast<int>(body);
    for (const contract::FaceDescription& face : topology.faces) {
        m_bodyOfUse.push_back(numbers.at(face.first));
        m_bodyOfUse.push_back(face.second.empty() ? -1 : numbers.at(face.second));
    }
    interiors[0];
    surfaces[++lastPlace].isDefault = true;
    defaultSurfaces[0] = lastPlace;
}

// ---- Models

Id SetUp::createModel()
{
    models[++last.model].domains[1] = {physics::DomainType::Geometry, "Default"};
    return last.model;
}

Id SetUp::primaryModel() { return models.empty() ? createModel() : models.begin()->first; }

void SetUp::destroyModel(Id model)
{
    models.erase(model);
    for (auto& [id, volume] : volumes)
        volume.model = volume.model == model ? 0 : volume.model;
    for (auto& [id, boundary] : boundaries)
        boundary.shellModel = boundary.shellModel == model ? 0 : boundary.shellModel;
    for (auto& [id, interface] : interfaces)
        interface.model = interface.model == model ? 0 : interface.model;
    for (auto& [id, object] : settings)
        object.model = object.model == model ? 0 : object.model;
}

// ---- Volumes

Id SetUp::createVolume(const std::string& name, const std::vector<int>& bodies, physics::VolumeType type, Id model)
{
    const Id interior = ++lastPlace;
    interiors[interior].bodies = bodies;
    defaultSurfaces[interior] = ++lastPlace;
    surfaces[lastPlace] = {"", interior, true, {}};
    return addVolume(name, interior, type, model != 0 ? model : primaryModel());
}

Id SetUp::createDefaultVolume(const std::string& name, physics::VolumeType type, Id model)
{
    const Id owner = model != 0 ? model : primaryModel();
    isDefaultInteriorActive = true;
    const Id volume = addVolume(name, 0, type, owner);
    volumes[volume].isDefault = true;
    defaultVolume = volume;
    return volume;
}

Id SetUp::addVolume(const std::string& name, Id interior, physics::VolumeType type, Id model)
{
    interiors[interior].name = name;
    const Id id = ++last.volume;
    volumes[id].type = type;
    volumes[id].model = model;
    volumes[id].interior = interior;
    models[model].volumes.insert(id);
    volumesByName[name] = id;
    return id;
}

void SetUp::destroyVolume(Id id)
{
    const Volume volume = volumes.at(id);
    if (volume.model != 0) {
        for (const Id boundary : volume.boundaries)
            for (const Id patch : patchesOf(boundary))
                endSettings(valueOr0(models[volume.model].patchVolumeSettings, patch));
        endSettings(settingsOfVolume(volume.model, id));
        models[volume.model].internalSettings.erase(id);
        models[volume.model].volumes.erase(id);
    }
    volumesByName.erase(nameOf(volume));
    if (defaultVolume == id)
        defaultVolume = 0;
    for (const Id boundary : valuesOf(volume.boundariesByName))
        destroyBoundary(boundary);
    while (!volumes[id].boundaries.empty())
        destroyBoundary(*volumes[id].boundaries.begin());
    if (!volume.isDefault) {
        surfaces.erase(defaultSurfaces[volume.interior]);
        defaultSurfaces.erase(volume.interior);
        interiors.erase(volume.interior);
    } else if (defaultVolume == 0) {
        isDefaultInteriorActive = false;
    }
    for (auto& [number, group] : groups)
        group.erase(std::remove(group.begin(), group.end(), id), group.end());
    for (auto& [number, object] : settings)
        object.volume = object.volume == id ? 0 : object.volume;
    endOrphans(TopologyType::Volume);
    sweep(volumesByName, id);
    volumes.erase(id);
}

void SetUp::setVolumeModel(Id id, Id to)
{
    Volume& volume = volumes.at(id);
    const Id from = std::exchange(volume.model, to);
    if (from == to)
        return;
    models[to].volumes.insert(id);
    if (from == 0) {
        std::map<Id, Boundary> owned;
        for (const Id boundary : volume.boundaries)
            owned[boundary];
        for (const Id boundary : listedFirst(volume.boundariesByName, owned))
            addPatchSettings(to, boundary);
        return;
    }
    models[from].volumes.erase(id);
    for (const Id boundary : volume.boundaries)
        for (const Id patch : patchesOf(boundary))
            moveSettings(from, to, &Model::patchVolumeSettings, patch);
    moveSettings(from, to, &Model::volumeSettings, id);
    moveSettings(from, to, &Model::internalSettings, id);
}

// ---- Boundaries

Id SetUp::createBoundary(Id volume, const std::string& name, const std::vector<int>& faces, physics::BoundaryType type)
{
    const Id surface = ++lastPlace;
    surfaces[surface] = {"", volumes.at(volume).interior, false, faces};
    return addBoundary(volume, name, surface, type);
}

Id SetUp::createDefaultBoundary(Id volume, const std::string& name, physics::BoundaryType type)
{
    if (volumes.at(volume).defaultBoundary != 0)
        destroyBoundary(volumes.at(volume).defaultBoundary);
    const Id boundary = addBoundary(volume, name, defaultSurfaces.at(volumes.at(volume).interior), type);
    volumes.at(volume).defaultBoundary = boundary;
    return boundary;
}

Id SetUp::addBoundary(Id volume, const std::string& name, Id surface, physics::BoundaryType type)
{
    surfaces[surface].name = name;
    const Id id = ++last.boundary;
    Boundary& boundary = boundaries[id];
    boundary.type = type;
    boundary.surface = surface;
    boundary.volume = volume;
    boundary.ownPatch = ++last.patch;
    patches[boundary.ownPatch] = {id, 0};
    volumes.at(volume).boundaries.insert(id);
    volumes.at(volume).boundariesByName[name] = id;
    if (volumes.at(volume).model != 0)
        addPatchSettings(volumes.at(volume).model, id);
    boundariesBySurface[surface] = id;
    return id;
}

void SetUp::addPatchSettings(Id model, Id boundary)
{
    for (const Id patch : patchesOf(boundary))
        settingsOfPatch(model, patch, SettingsType::VolumeSettings);
}

void SetUp::destroyBoundary(Id id)
{
    for (const Id interface : [&] {
             std::vector<Id> joined;
             for (const auto& [interface, patch] : boundaries.at(id).patches)
                 joined.push_back(interface);
             return joined;
         }())
        destroyInterface(interface);
    const Boundary boundary = boundaries.at(id);
    Volume& volume = volumes.at(boundary.volume);
    volume.boundariesByName.erase(nameOf(boundary));
    if (volume.defaultBoundary == id)
        volume.defaultBoundary = 0;
    if (volume.model != 0)
        endSettings(valueOr0(models[volume.model].patchVolumeSettings, boundary.ownPatch));
    boundariesBySurface.erase(boundary.surface);
    if (boundary.shellModel != 0) {
        endSettings(valueOr0(models[boundary.shellModel].patchShellSettings, boundary.ownPatch));
        models[boundary.shellModel].shells.erase(id);
    }
    endPatch(boundary.ownPatch);
    if (!surfaces.at(boundary.surface).isDefault)
        surfaces.erase(boundary.surface);
    volume.boundaries.erase(id);
    sweep(volume.boundariesByName, id);
    sweep(boundariesBySurface, id);
    boundaries.erase(id);
}

void SetUp::setShellModel(Id id, Id to)
{
    Boundary& boundary = boundaries.at(id);
    const Id from = std::exchange(boundary.shellModel, to);
    if (from == to)
        return;
    if (from != 0)
        models[from].shells.erase(id);
    if (to != 0)
        models[to].shells.insert(id);
    for (const Id patch : patchesOf(id)) {
        if (from != 0 && to != 0)
            moveSettings(from, to, &Model::patchShellSettings, patch);
        else if (from != 0)
            endSettings(valueOr0(models[from].patchShellSettings, patch));
    }
}

void SetUp::addToInterface(Id boundary, Id interface)
{
    const Id patch = ++last.patch;
    patches[patch] = {boundary, interface};
    const Id replaced = std::exchange(boundaries.at(boundary).patches[interface], patch);
    if (replaced != 0)
        endPatch(replaced);
}

void SetUp::removeFromInterface(Id boundary, Id interface)
{
    const Id patch = valueOr0(boundaries.at(boundary).patches, interface);
    if (patch == 0)
        return;
    endPatch(patch);
    boundaries.at(boundary).patches.erase(interface);
}

void SetUp::endPatch(Id patch)
{
    std::vector<Id> ofPatch;
    for (const auto& [id, object] : settings)
        if (object.patch == patch)
            ofPatch.push_back(id);
    for (const Id id : ofPatch) {
        const auto kind = settings.at(id).type;
        if (kind == SettingsType::VolumeSettings || kind == SettingsType::ShellSettings)
            endSettings(id);
        else
            settings.at(id).patch = 0;
    }
    patches.erase(patch);
}

// ---- Interfaces

Id SetUp::createInterface(const std::string& name, Id first, Id second, physics::InterfaceType type, Id model)
{
    const Id owner = model != 0 ? model : primaryModel();
    const Id id = ++last.interface;
    interfaces[id] = {.name = name, .type = type, .model = owner, .first = first, .second = second};
    addToInterface(first, id);
    addToInterface(second, id);
    models[owner].interfaces.insert(id);
    interfacesByName[name] = id;
    return id;
}

void SetUp::destroyInterface(Id id)
{
    const Interface interface = interfaces.at(id);
    if (interface.model != 0) {
        endSettings(settingsOfInterface(interface.model, id));
        models[interface.model].interfaces.erase(id);
    }
    interfacesByName.erase(interface.name);
    removeFromInterface(interface.first, id);
    removeFromInterface(interface.second, id);
    for (auto& [number, object] : settings)
        object.interface = object.interface == id ? 0 : object.interface;
    endOrphans(TopologyType::Interface);
    sweep(interfacesByName, id);
    interfaces.erase(id);
    endedInterfaces.insert(id);
}

void SetUp::setInterfaceModel(Id id, Id to)
{
    const Id from = std::exchange(interfaces.at(id).model, to);
    if (from == to)
        return;
    models[to].interfaces.insert(id);
    if (from == 0)
        return;
    models[from].interfaces.erase(id);
    moveSettings(from, to, &Model::interfaceSettings, id);
}

void SetUp::relocateInterface(Id id, Id first, Id second)
{
    Interface& interface = interfaces.at(id);
    const std::set<Id> before = {interface.first, interface.second};
    const std::set<Id> after = {first, second};
    for (const auto& [leaving, joining] : {std::pair(interface.first, first), std::pair(interface.second, second)}) {
        if (after.count(leaving) == 0)
            removeFromInterface(leaving, id);
        if (before.count(joining) == 0 && boundaries.at(joining).patches.count(id) == 0)
            addToInterface(joining, id);
    }
    interface.first = first;
    interface.second = second;
    interface.isMeshValid = false;
}

// ---- Settings

Id SetUp::makeSettings(Id model, SettingsType type, TopologyType kind)
{
    const Id id = ++last.settings;
    settings[id].model = model;
    settings[id].type = type;
    settings[id].topology = kind;
    return id;
}

Id SetUp::settingsOfVolume(Id model, Id volume)
{
    if (models.at(model).volumes.count(volume) == 0)
        return 0;
    Id& entry = models.at(model).volumeSettings[volume];
    if (entry == 0) {
        entry = makeSettings(model, SettingsType::VolumeSettings, TopologyType::Volume);
        settings[entry].volume = volume;
    }
    return entry;
}

Id SetUp::internalSettings(Id model, Id volume)
{
    if (models.at(model).volumes.count(volume) == 0)
        return 0;
    Id& entry = models.at(model).internalSettings[volume];
    if (entry == 0) {
        entry = makeSettings(model, SettingsType::VolumeSettings, TopologyType::Internal);
        settings[entry].volume = volume;
    }
    return entry;
}

Id SetUp::settingsOfInterface(Id model, Id interface)
{
    if (models.at(model).interfaces.count(interface) == 0)
        return 0;
    Id& entry = models.at(model).interfaceSettings[interface];
    if (entry == 0) {
        entry = makeSettings(model, SettingsType::InterfaceSettings, TopologyType::Interface);
        settings[entry].interface = interface;
    }
    return entry;
}

Id SetUp::settingsOfPatch(Id model, Id patch, SettingsType kind)
{
    if (kind == SettingsType::InterfaceSettings)
        return 0;
    if (kind == SettingsType::ShellSettings && boundaries.at(patches.at(patch).boundary).shellModel == 0)
        return 0;
    Id held = 0;
    const bool isHeld = kind == SettingsType::VolumeSettings || kind == SettingsType::ShellSettings;
    Model& holder = models.at(model);
    auto& map = kind == SettingsType::ShellSettings ? holder.patchShellSettings : holder.patchVolumeSettings;
    Id& entry = isHeld ? map[patch] : held;
    if (entry == 0) {
        entry = makeSettings(model, kind, TopologyType::Boundary);
        settings[entry].patch = patch;
    }
    return entry;
}

void SetUp::moveSettings(Id from, Id to, std::map<Id, Id> Model::*map, Id key)
{
    const Id moved = valueOr0(models[from].*map, key);
    if (moved == 0)
        return;
    endSettings(valueOr0(models[to].*map, key));
    (models[to].*map)[key] = moved;
    (models[from].*map).erase(key);
    settings.at(moved).model = to;
}

void SetUp::endSettings(Id id)
{
    if (id == 0)
        return;
    for (int time = 0; time < 2; ++time) // when they leave the registry, and when their bundles end
        for (const auto& [index, bundle] : settings.at(id).bundles)
            removeBundle(bundle);
    std::vector<Id> all = valuesOf(settings.at(id).bundles);
    all.insert(all.end(), settings.at(id).replaced.begin(), settings.at(id).replaced.end());
    for (const Id bundle : all) {
        sweep(bundlesByThread, bundle);
        sweep(bundlesByZone, bundle);
        bundles.erase(bundle);
    }
    for (auto& [number, model] : models)
        for (auto map : {&Model::volumeSettings, &Model::internalSettings, &Model::interfaceSettings,
                         &Model::patchVolumeSettings, &Model::patchShellSettings})
            sweep(model.*map, id);
    settings.erase(id);
}

/// Ends the settings whose model was destroyed before and whose object has just ended.
void SetUp::endOrphans(TopologyType kind)
{
    std::vector<Id> orphans;
    for (const auto& [id, object] : settings)
        if (object.topology == kind && object.model == 0 && object.volume == 0 && object.interface == 0)
            orphans.push_back(id);
    for (const Id orphan : orphans)
        endSettings(orphan);
}

// ---- Thread bundles

Id SetUp::createThreadBundle(Id id, int index, physics::ThreadType type, int threadId, const std::set<int>& domains)
{
    Settings& object = settings.at(id);
    for (const auto& [present, bundle] : object.bundles) {
        if (bundles.at(bundle).threadId != threadId)
            continue;
        if (present != index)
            return 0;
        bundles.at(bundle).type = type;
        bundles.at(bundle).domains = domains;
        return bundle;
    }
    const Id made = ++lastBundle;
    bundles[made] = {id, index, type, threadId, domains, {}, {}};
    bundlesByThread[threadId] = made;
    for (const int zone : zonesOf(bundles.at(made)))
        bundlesByZone[zone] = made;
    const Id replaced = std::exchange(object.bundles[index], made);
    if (replaced != 0)
        object.replaced.insert(replaced);
    return made;
}

bool SetUp::deleteThreadBundle(Id id, int index)
{
    const Id bundle = valueOr0(settings.at(id).bundles, index);
    if (bundle == 0)
        return false;
    removeBundle(bundle);
    sweep(bundlesByThread, bundle);
    sweep(bundlesByZone, bundle);
    settings.at(id).bundles.erase(index);
    bundles.erase(bundle);
    return true;
}

void SetUp::removeBundle(Id bundle)
{
    for (const int zone : zonesOf(bundles.at(bundle)))
        bundlesByZone.erase(zone);
    bundlesByThread.erase(bundles.at(bundle).threadId);
}

bool SetUp::setZoneIds(Id bundle, const std::vector<int>& zones)
{
    for (const int zone : zones)
        if (bundlesByZone.count(zone) > 0 && bundlesByZone.at(zone) != bundle)
            return false;
    for (const int zone : zonesOf(bundles.at(bundle)))
        bundlesByZone.erase(zone);
    bundles.at(bundle).zones = {zones.begin(), zones.end()};
    for (const int zone : zones)
        bundlesByZone[zone] = bundle;
    return true;
}

// ---- Over the whole set-up

int SetUp::deactivate(const std::vector<Id>& ids)
{
    for (const Id id : ids)
        if (volumes.at(id).group != -1)
            return -1;
    int number = 1;
    while (groups.count(number) > 0)
        ++number;
    groups[number] = ids;
    for (const Id id : ids)
        volumes.at(id).group = number;
    return number;
}

bool SetUp::activateGroup(int number)
{
    if (groups.count(number) == 0)
        return false;
    for (const Id id : groups.at(number))
        volumes.at(id).group = -1;
    groups.erase(number);
    return true;
}

bool SetUp::activate(const std::vector<Id>& ids)
{
    for (const Id id : ids)
        if (volumes.at(id).group == -1)
            return false;
    for (const Id id : ids)
        if (volumes.at(id).group != -1)
            activateGroup(volumes.at(id).group);
    return true;
}

bool SetUp::removeRegions(const std::set<int>& bodies, const std::set<int>& faces)
{
    const auto take = [](std::vector<int>& from, const std::set<int>& regions) {
        return std::erase_if(from, [&](int region) { return regions.count(region) > 0; }) > 0;
    };
    bool anyChanged = false;
    for (const auto& [name, id] : volumesByName)
        anyChanged = take(interiors.at(volumes.at(id).interior).bodies, bodies) || anyChanged;
    for (const Id id : listedBoundaries())
        anyChanged = take(surfaces.at(boundaries.at(id).surface).faces, faces) || anyChanged;
    return anyChanged;
}

void SetUp::clear()
{
    groups.clear();
    for (const Id id : listedFirst(interfacesByName, interfaces))
        destroyInterface(id);
    for (const Id id : listedFirst(volumesByName, volumes))
        destroyVolume(id);
    while (!models.empty())
        destroyModel(models.begin()->first);
    while (!settings.empty())
        endSettings(settings.begin()->first);
    for (std::size_t body = 0; body < topology.bodies.size(); ++body)
        if (!topology.bodies[body].part.empty())
            masked.erase(static_cast<int>(body));
}

// ---- What follows

std::string SetUp::nameOfPatch(Id id) const
{
    const Patch& patch = patches.at(id);
    const Boundary& boundary = boundaries.at(patch.boundary);
    if (boundary.patches.empty())
        return nameOf(boundary);
    return nameOf(boundary) + " - " + (patch.interface == 0 ? "NON-OVERLAPPING" : interfaces.at(patch.interface).name);
}

Id SetUp::modelOfPatch(Id id, SettingsType kind) const
{
    const Patch& patch = patches.at(id);
    const Boundary& boundary = boundaries.at(patch.boundary);
    switch (kind) {
    case SettingsType::VolumeSettings:
        return volumes.at(boundary.volume).model;
    case SettingsType::ShellSettings:
        return boundary.shellModel;
    case SettingsType::InterfaceSettings:
        return patch.interface == 0 ? 0 : interfaces.at(patch.interface).model;
    }
    return 0;
}

std::vector<Id> SetUp::patchesOf(Id boundary) const
{
    std::vector<Id> ids = {boundaries.at(boundary).ownPatch};
    for (const auto& [interface, patch] : boundaries.at(boundary).patches)
        ids.push_back(patch);
    return ids;
}

std::vector<Id> SetUp::listedBoundaries() const
{
    std::vector<Id> ids;
    for (const auto& [name, volume] : volumesByName)
        for (const Id boundary : valuesOf(volumes.at(volume).boundariesByName))
            ids.push_back(boundary);
    return ids;
}

std::vector<Id> SetUp::settingsOfModel(Id model) const
{
    std::set<Id> ids;
    for (auto map : {&Model::volumeSettings, &Model::internalSettings, &Model::interfaceSettings,
                     &Model::patchVolumeSettings, &Model::patchShellSettings})
        for (const Id id : valuesOf(models.at(model).*map))
            ids.insert(id);
    return {ids.begin(), ids.end()};
}

bool SetUp::isActive(const Settings& object) const
{
    if (object.volume != 0)
        return object.topology == TopologyType::Internal ? hasUnusedInternalFaces(volumes.at(object.volume).interior)
                                                         : volumes.at(object.volume).group == -1;
    const auto isBoundaryActive = [this](Id id) { return volumes.at(boundaries.at(id).volume).group == -1; };
    if (object.patch != 0)
        return isBoundaryActive(patches.at(object.patch).boundary);
    if (object.interface != 0) {
        const Interface& interface = interfaces.at(object.interface);
        return isBoundaryActive(interface.first) && isBoundaryActive(interface.second);
    }
    return false;
}

// ---- Where things lie

std::vector<int> SetUp::zonesOfUse(std::size_t faceUse) const
{
    const contract::FaceDescription& face = topology.faces[faceUse / 2];
    std::vector<int> zones;
    for (const gtm::ExternalFaceSide& side : faceUse % 2 == 0 ? face.firstZones : face.secondZones)
        zones.push_back(std::abs(side.zoneId));
    return zones;
}

std::set<int> SetUp::bodiesOf(Id interior) const
{
    std::set<int> found;
    if (interior != 0) {
        const std::vector<int>& bodies = interiors.at(interior).bodies;
        found = {bodies.begin(), bodies.end()};
    } else {
        for (std::size_t i = 0; i < topology.bodies.size(); ++i)
            found.insert(static_cast<int>(i));
        for (const auto& [id, other] : interiors)
            for (const int body : other.bodies)
                found.erase(body);
    }
    for (const int body : masked)
        found.erase(body);
    return found;
}

std::set<std::size_t> SetUp::faceUsesOf(Id id) const
{
    const Surface& surface = surfaces.at(id);
    const std::set<int> bodies = bodiesOf(surface.interior);
    const std::set<int> inside = facesInOrdinarySurfaces(surface.interior);
    std::set<std::size_t> uses;
    for (std::size_t use = 0; use < 2 * topology.faces.size(); ++use) {
        if (bodies.count(m_bodyOfUse[use]) == 0)
            continue;
        const int face = static_cast<int>(use / 2);
        const bool isOutward = bodies.count(m_bodyOfUse[use ^ 1U]) == 0;
        const auto& faces = surface.faces;
        if (surface.isDefault ? isOutward && inside.count(face) == 0
                              : std::find(faces.begin(), faces.end(), face) != faces.end())
            uses.insert(use);
    }
    return uses;
}

std::set<int> SetUp::facesInOrdinarySurfaces(Id interior) const
{
    std::set<int> faces;
    for (const auto& [id, surface] : surfaces)
        if (surface.interior == interior && !surface.isDefault)
            faces.insert(surface.faces.begin(), surface.faces.end());
    return faces;
}

std::vector<int> SetUp::unusedInternalFaces(Id interior) const
{
    const std::set<int> bodies = bodiesOf(interior);
    const std::set<int> used = facesInOrdinarySurfaces(interior);
    std::vector<int> faces;
    for (std::size_t face = 0; face < topology.faces.size(); ++face)
        if (bodies.count(m_bodyOfUse[2 * face]) > 0 && bodies.count(m_bodyOfUse[2 * face + 1]) > 0 &&
            used.count(static_cast<int>(face)) == 0)
            faces.push_back(static_cast<int>(face));
    return faces;
}

std::set<int> SetUp::zonesOfBoundary(Id boundary) const
{
    std::set<int> zones;
    for (const std::size_t use : faceUsesOf(boundaries.at(boundary).surface))
        for (const int zone : zonesOfUse(use))
            zones.insert(zone);
    return zones;
}

std::vector<int> SetUp::zonesOf(const Bundle& bundle) const
{
    if (!bundle.zones.empty())
        return {bundle.zones.begin(), bundle.zones.end()};
    const Settings& object = settings.at(bundle.settings);
    std::vector<int> zones;
    if (object.topology == TopologyType::Volume && object.volume != 0) {
        for (const int body : bodiesOf(volumes.at(object.volume).interior))
            for (const int zone : topology.bodies[static_cast<std::size_t>(body)].zoneIds)
                zones.push_back(zone);
    } else if (object.topology == TopologyType::Internal && object.volume != 0) {
        std::set<int> first;
        for (const int face : unusedInternalFaces(volumes.at(object.volume).interior))
            for (const int zone : zonesOfUse(2 * static_cast<std::size_t>(face)))
                first.insert(zone);
        zones = {first.begin(), first.end()};
    } else if (object.topology == TopologyType::Boundary && object.patch != 0) {
        const Id boundary = patches.at(object.patch).boundary;
        if (boundaries.at(boundary).patches.empty()) {
            const std::set<int> all = zonesOfBoundary(boundary);
            zones = {all.begin(), all.end()};
        }
    }
    return zones;
}

} // namespace reference
