#include "tests/physics/Comparison.h"

#include "gtm/LocationModel.h"
#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Volume.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>
#include <set>

using namespace physics;
using reference::Id;
using Ids = std::vector<Id>;

namespace {

template <class T>
Id idOf(const T* object)
{
    return object == nullptr ? 0 : object->id();
}

template <class T>
Ids idsOf(const std::vector<T*>& objects)
{
    Ids ids;
    for (const T* object : objects)
        ids.push_back(idOf(object));
    return ids;
}

template <class Record>
Ids keysOf(const std::map<Id, Record>& records)
{
    Ids ids;
    for (const auto& [id, record] : records)
        ids.push_back(id);
    return ids;
}

template <class Key>
Ids valuesOf(const std::map<Key, Id>& index)
{
    Ids ids;
    for (const auto& [key, id] : index)
        ids.push_back(id);
    return ids;
}

template <class Element>
std::vector<Element> listOf(const std::set<Element>& elements)
{
    return {elements.begin(), elements.end()};
}

Ids together(Ids first, const Ids& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

/// Those of all that are not listed.
Ids beside(const Ids& listed, const Ids& all)
{
    const std::set<Id> known(listed.begin(), listed.end());
    Ids others;
    std::copy_if(all.begin(), all.end(), std::back_inserter(others), [&](Id id) { return known.count(id) == 0; });
    return others;
}

/// Each id ever drawn is that of a living object of the reference, or finds nothing.
template <class Record, class Find, class Check>
void checkAll(const std::string& kind, Id before, Id last, const std::map<Id, Record>& records, const Find& find,
              const Check& check)
{
    for (Id id = before + 1; id <= last + 1; ++id) {
        const auto* object = find(id);
        agree("the " + kind + " found under " + std::to_string(id), idOf(object), records.count(id) > 0 ? id : 0);
        if (object != nullptr)
            check(id, *object);
    }
}

} // namespace

void Comparison::check() const
{
    checkAll(
        "model", m_before.model, m_reference.last.model, m_reference.models,
        [this](Id id) { return m_physics.findModelById(id); },
        [this](Id id, const Model& model) { checkModel(id, model); });
    checkAll(
        "volume", m_before.volume, m_reference.last.volume, m_reference.volumes,
        [this](Id id) { return m_physics.findVolumeById(id); },
        [this](Id id, const Volume& volume) { checkVolume(id, volume); });
    checkAll(
        "boundary", m_before.boundary, m_reference.last.boundary, m_reference.boundaries,
        [this](Id id) { return m_physics.findBoundaryById(id); },
        [this](Id id, const Boundary& boundary) { checkBoundary(id, boundary); });
    checkAll(
        "interface", m_before.interface, m_reference.last.interface, m_reference.interfaces,
        [this](Id id) { return m_physics.findInterfaceById(id); },
        [this](Id id, const Interface& interface) { checkInterface(id, interface); });
    checkAll(
        "settings object", m_before.settings, m_reference.last.settings, m_reference.settings,
        [this](Id id) { return m_physics.findSettingsById(id); },
        [this](Id id, const Settings& settings) { checkSettings(id, settings); });
    for (const auto& [bundle, key] : m_bundles)
        checkBundle(*bundle, key);
    for (const Interface* interface : m_ended)
        checkEnded(*interface);
    checkLists();
    checkThreadsAndZones();
    checkActivityAndMask();
    checkLocationModel();
}

void Comparison::checkModel(Id id, const Model& model) const
{
    const reference::Model& expected = m_reference.models.at(id);
    const std::string the = "model " + std::to_string(id) + ": ";
    agree(the + "physics", model.physics(), &m_physics);
    agree(the + "volumes", idsOf(model.volumes()), listOf(expected.volumes));
    agree(the + "interfaces", idsOf(model.interfaces()), listOf(expected.interfaces));
    std::set<Id> boundaries = expected.shells;
    for (const Id volume : expected.volumes)
        for (const Id boundary : valuesOf(m_reference.volumes.at(volume).boundariesByName))
            boundaries.insert(boundary);
    for (const Id interface : expected.interfaces)
        boundaries.insert({m_reference.interfaces.at(interface).first, m_reference.interfaces.at(interface).second});
    agree(the + "boundaries", idsOf(model.boundaries()), listOf(boundaries));
    std::set<Id> patches;
    for (const Id boundary : boundaries)
        for (const Id patch : m_reference.patchesOf(boundary))
            patches.insert(patch);
    agree(the + "patches", idsOf(model.boundaryPatches()), listOf(patches));
    agree(the + "settings", idsOf(model.settings()), m_reference.settingsOfModel(id));
    agree(the + "volume settings", idsOf(model.volumeSettings()), valuesOf(expected.volumeSettings));
    agree(the + "internal settings", idsOf(model.internalSettings()), valuesOf(expected.internalSettings));
    agree(the + "interface settings", idsOf(model.interfaceSettings()), valuesOf(expected.interfaceSettings));
    agree(the + "patch settings", idsOf(model.boundaryPatchSettings()),
          together(valuesOf(expected.patchVolumeSettings), valuesOf(expected.patchShellSettings)));
    agree(the + "domains", model.domainIds(), keysOf(expected.domains));
    for (const auto& [number, domain] : expected.domains) {
        agree(the + "domain name", model.domainName(number), domain.name);
        agree(the + "domain type", model.domainType(number), domain.type);
    }
}

void Comparison::checkVolume(Id id, const Volume& volume) const
{
    const reference::Volume& expected = m_reference.volumes.at(id);
    const std::string the = "volume " + std::to_string(id) + ": ";
    agree(the + "name", volume.name(), m_reference.nameOf(expected));
    agree(the + "type", volume.type(), expected.type);
    agree(the + "model", idOf(volume.model()), expected.model);
    agree(the + "group", volume.activationGroup(), expected.group);
    agree(the + "activity", volume.isActive(), expected.group == -1);
    agree(the + "default", volume.isDefaultVolume(), expected.isDefault);
    agree(the + "default boundary", idOf(volume.defaultBoundary()), expected.defaultBoundary);
    agree(the + "boundaries", idsOf(volume.boundaries()), valuesOf(expected.boundariesByName));
    agree(the + "number of bodies", volume.bodies().size(), m_reference.bodiesOf(expected.interior).size());
}

void Comparison::checkBoundary(Id id, const Boundary& boundary) const
{
    const reference::Boundary& expected = m_reference.boundaries.at(id);
    const reference::Volume& volume = m_reference.volumes.at(expected.volume);
    const std::string the = "boundary " + std::to_string(id) + ": ";
    agree(the + "full name", boundary.fullName(), m_reference.nameOf(volume) + "::" + m_reference.nameOf(expected));
    agree(the + "type", boundary.type(), expected.type);
    agree(the + "shell type", boundary.shellType(), expected.shellType);
    agree(the + "shell model", idOf(boundary.shellModel()), expected.shellModel);
    agree(the + "volume", idOf(boundary.volume()), expected.volume);
    agree(the + "volume model", idOf(boundary.volumeModel()), volume.model);
    agree(the + "activity", boundary.isActive(), volume.group == -1);
    agree(the + "tags", boundary.tags(), listOf(expected.tags));
    agree(the + "zones", boundary.zoneIds(), listOf(m_reference.zonesOfBoundary(id)));
    agree(the + "interfaces", idsOf(boundary.interfaces()), keysOf(expected.patches));
    agree(the + "number of interfaces", boundary.noOfInterfaces(), static_cast<int>(expected.patches.size()));
    agree(the + "own patch", idOf(boundary.patch(nullptr)), expected.ownPatch);
    const std::vector<BoundaryPatch*> patches = boundary.patches();
    agree(the + "patches", idsOf(patches), m_reference.patchesOf(id));
    for (const BoundaryPatch* patch : patches)
        checkPatch(patch->id(), *patch);
}

void Comparison::checkPatch(Id id, const BoundaryPatch& patch) const
{
    const reference::Patch& expected = m_reference.patches.at(id);
    const std::string the = "patch " + std::to_string(id) + ": ";
    agree(the + "name", patch.name(), m_reference.nameOfPatch(id));
    agree(the + "boundary", idOf(patch.boundary()), expected.boundary);
    agree(the + "interface", idOf(patch.interface()), expected.interface);
    agree(the + "child", patch.isChild(), !m_reference.boundaries.at(expected.boundary).patches.empty());
    for (const int kind : {0, 1, 2, 3})
        agree(the + "model", idOf(patch.model(SettingsType(kind))), m_reference.modelOfPatch(id, SettingsType(kind)));
    Id paired = 0;
    if (expected.interface != 0) {
        const reference::Interface& interface = m_reference.interfaces.at(expected.interface);
        const Id other = interface.first == expected.boundary ? interface.second : interface.first;
        paired = m_reference.boundaries.at(other).patches.at(expected.interface);
    }
    agree(the + "paired patch", idOf(patch.pairedPatch()), paired);
}

void Comparison::checkInterface(Id id, const Interface& interface) const
{
    const reference::Interface& expected = m_reference.interfaces.at(id);
    const auto groupOf = [this](Id boundary) {
        return m_reference.volumes.at(m_reference.boundaries.at(boundary).volume).group;
    };
    const std::string the = "interface " + std::to_string(id) + ": ";
    agree(the + "name", interface.name(), expected.name);
    agree(the + "type", interface.type(), expected.type);
    agree(the + "periodicity", interface.periodicity(), expected.periodicity);
    agree(the + "offset", interface.getPeriodicOffset() == expected.offset, true);
    agree(the + "angle", interface.getPeriodicAngle(), expected.angle);
    agree(the + "origin", interface.getPeriodicOrigin() == expected.origin, true);
    agree(the + "direction", interface.getPeriodicDirection() == expected.direction, true);
    agree(the + "mesh connectivity", interface.meshConnectivity(), expected.meshConnectivity);
    agree(the + "mapped", interface.isMapped(), expected.isMapped);
    agree(the + "static", interface.isStatic(), expected.isStatic);
    agree(the + "model", idOf(interface.model()), expected.model);
    agree(the + "first boundary", idOf(interface.boundary(Side::First)), expected.first);
    agree(the + "second boundary", idOf(interface.boundary(Side::Second)), expected.second);
    agree(the + "mesh", interface.isMeshValid(), expected.isMeshValid);
    agree(the + "activity", interface.isActive(), groupOf(expected.first) == -1 && groupOf(expected.second) == -1);
    agree(the + "other boundary", idOf(interface.otherBoundary(interface.boundary(Side::First))), expected.second);
}

void Comparison::checkEnded(const Interface& interface) const
{
    const std::string the = "ended interface " + std::to_string(interface.id()) + ": ";
    agree(the + "name", interface.name(), "");
    agree(the + "model", idOf(interface.model()), 0);
    agree(the + "first boundary", idOf(interface.boundary(Side::First)), 0);
    agree(the + "second boundary", idOf(interface.boundary(Side::Second)), 0);
    agree(the + "settings", idOf(interface.settings()), 0);
    agree(the + "life", m_reference.endedInterfaces.count(interface.id()), 1u);
}

void Comparison::checkSettings(Id id, const Settings& settings) const
{
    const reference::Settings& expected = m_reference.settings.at(id);
    const std::string the = "settings " + std::to_string(id) + ": ";
    Id volume = expected.volume;
    Id interface = expected.interface;
    Id boundary = 0;
    std::string name;
    if (expected.volume != 0)
        name = m_reference.nameOf(m_reference.volumes.at(expected.volume));
    if (expected.interface != 0)
        name = m_reference.interfaces.at(expected.interface).name;
    if (expected.patch != 0) {
        boundary = m_reference.patches.at(expected.patch).boundary;
        interface = m_reference.patches.at(expected.patch).interface;
        volume = m_reference.boundaries.at(boundary).volume;
        name = m_reference.nameOfPatch(expected.patch);
    }
    agree(the + "name", settings.name(), expected.topology == TopologyType::Internal ? "Internal settings" : name);
    agree(the + "type", settings.type(), expected.type);
    agree(the + "topology type", settings.topologyType(), expected.topology);
    agree(the + "model", idOf(settings.model()), expected.model);
    agree(the + "volume", idOf(settings.volume()), volume);
    agree(the + "interface", idOf(settings.interface()), interface);
    agree(the + "boundary", idOf(settings.boundary()), boundary);
    agree(the + "patch", idOf(settings.boundaryPatch()), expected.patch);
    agree(the + "activity", settings.isActive(), m_reference.isActive(expected));
    Ids bundles;
    Ids threadIds;
    std::map<int, Id> firstWithThreadId;
    for (const ThreadBundle* bundle : settings.threadBundles())
        bundles.push_back(keyOf(bundle));
    agree(the + "bundles", bundles, valuesOf(expected.bundles));
    for (const auto& [index, bundle] : expected.bundles) {
        threadIds.push_back(m_reference.bundles.at(bundle).threadId);
        firstWithThreadId.emplace(threadIds.back(), bundle);
        agree(the + "bundle at an index", keyOf(settings.threadBundle(index)), bundle);
    }
    agree(the + "thread ids", settings.threadIds(), threadIds);
    for (const auto& [threadId, bundle] : firstWithThreadId)
        agree(the + "bundle with a thread id", keyOf(settings.threadBundleWithThreadId(threadId)), bundle);
}

void Comparison::checkBundle(const ThreadBundle& bundle, Id key) const
{
    const reference::Bundle& expected = m_reference.bundles.at(key);
    const std::string the = "bundle " + std::to_string(key) + ": ";
    agree(the + "settings", idOf(bundle.settings()), expected.settings);
    agree(the + "index", bundle.index(), expected.index);
    agree(the + "thread type", bundle.threadType(), expected.type);
    agree(the + "thread id", bundle.threadId(), expected.threadId);
    agree(the + "domains", bundle.domainIds(), listOf(expected.domains));
    agree(the + "own zones", bundle.hasOwnZones(), !expected.zones.empty());
    agree(the + "zones", bundle.zoneIds(), m_reference.zonesOf(expected));
    std::vector<void*> threads;
    for (const auto& [slot, thread] : expected.threads)
        threads.push_back(thread);
    agree(the + "handles", bundle.threads(), threads);
}

void Comparison::checkLists() const
{
    agree("the list of models", idsOf(m_physics.models()), keysOf(m_reference.models));
    agree("the list of volumes", idsOf(m_physics.volumes()), valuesOf(m_reference.volumesByName));
    agree("the list of boundaries", idsOf(m_physics.boundaries()), m_reference.listedBoundaries());
    agree("the list of interfaces", idsOf(m_physics.interfaces()), valuesOf(m_reference.interfacesByName));
    const Ids unlisted = together(together(beside(valuesOf(m_reference.volumesByName), keysOf(m_reference.volumes)),
                                           beside(m_reference.listedBoundaries(), keysOf(m_reference.boundaries))),
                                  beside(valuesOf(m_reference.interfacesByName), keysOf(m_reference.interfaces)));
    agree("the list of what is in no list", idsOf(m_physics.unlistedRegions()), unlisted);
    agree("the default volume", idOf(m_physics.defaultVolume()), m_reference.defaultVolume);
    Ids settings;
    for (const auto& [id, model] : m_reference.models)
        settings = together(settings, m_reference.settingsOfModel(id));
    agree("the list of settings", idsOf(m_physics.settings()), settings);
    Ids bundles;
    for (const Id id : settings)
        bundles = together(bundles, valuesOf(m_reference.settings.at(id).bundles));
    Ids actual;
    for (const ThreadBundle* bundle : m_physics.threadBundles())
        actual.push_back(keyOf(bundle));
    agree("the list of bundles", actual, bundles);
    std::set<int> threadIds;
    std::set<int> zoneIds;
    for (const Id bundle : bundles) {
        threadIds.insert(m_reference.bundles.at(bundle).threadId);
        for (const int zone : m_reference.zonesOf(m_reference.bundles.at(bundle)))
            zoneIds.insert(std::abs(zone));
    }
    agree("the list of thread ids", m_physics.threadIds(), listOf(threadIds));
    agree("the list of zone ids", m_physics.zoneIds(), listOf(zoneIds));
}

void Comparison::checkThreadsAndZones() const
{
    const auto found = [](const std::map<int, Id>& index, int number) {
        return index.count(number) > 0 ? index.at(number) : 0;
    };
    for (int number = -10; number <= 20; ++number) {
        const std::string the = " " + std::to_string(number);
        const Id byThread = number < 0 ? 0 : found(m_reference.bundlesByThread, number);
        const Id byZone = found(m_reference.bundlesByZone, number);
        agree("the bundle of thread" + the, keyOf(m_physics.findThreadBundleByThreadId(number)), byThread);
        agree("the bundle of zone" + the, keyOf(m_physics.findThreadBundleByZoneId(number)), byZone);
        agree("the settings of thread" + the, idOf(m_physics.findSettingsByThreadId(number)),
              byThread == 0 ? 0 : m_reference.bundles.at(byThread).settings);
        agree("the settings of zone" + the, idOf(m_physics.findSettingsByZoneId(number)),
              byZone == 0 ? 0 : m_reference.bundles.at(byZone).settings);
    }
}

void Comparison::checkActivityAndMask() const
{
    Ids groups;
    for (const auto& [number, volumes] : m_reference.groups) {
        groups.push_back(number);
        agree("group " + std::to_string(number), idsOf(m_physics.activationGroupVolumes(number)), volumes);
    }
    agree("the activation groups", m_physics.activationGroups(), groups);
    std::vector<std::string> masked;
    for (const gtm::Body* body : m_physics.maskedBodies())
        masked.push_back(body->id());
    std::vector<std::string> expected;
    for (const int body : m_reference.masked)
        expected.push_back(m_reference.topology.bodies[static_cast<std::size_t>(body)].id);
    agree("the mask", masked, expected);
    for (gtm::Part* part : m_physics.maskedParts())
        for (gtm::Body* body : part->bodies())
            agree("the mask of a body in a masked part", m_physics.isMasked(body), true);
}

void Comparison::checkLocationModel() const
{
    const gtm::VirtualTopology& working = m_physics.virtualTopology();
    const bool isActive = m_reference.isDefaultInteriorActive;
    agree("the default interior", working.isDefaultInteriorActive(), isActive);
    agree("the number of interiors", working.interiors().size(), m_reference.interiors.size() - (isActive ? 0 : 1));
    agree("the number of location-model interfaces", working.noOfInterfaces(), m_reference.interfaces.size());
}

Id Comparison::keyOf(const ThreadBundle* bundle) const
{
    if (bundle == nullptr)
        return 0;
    const auto entry = m_bundles.find(bundle);
    return entry == m_bundles.end() ? -1 : entry->second;
}
