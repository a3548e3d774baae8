#include "physics/Physics.h"

#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/CreationFailure.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Registry.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Volume.h"
#include "physics/Zones.h"

#include "gtm/LocationModel.h"

#include <algorithm>
#include <cstddef>
#include <set>

namespace physics {

Physics::Physics(const gtm::Model* locationModel, bool enforceRestrictions)
    : m_locationModel(locationModel),
      m_virtualTopology(locationModel->topology(), std::string(), 0),
      m_enforceRestrictions(enforceRestrictions),
      m_registry(std::make_unique<Registry>())
{}

Physics::~Physics() { clear(); }

void Physics::clear()
{
    m_registry->clear();
    unmaskParts(m_virtualTopology.topology()->parts());
}

bool Physics::isForeign(const Model* model) const { return model != nullptr && model->physics() != this; }
bool Physics::isForeign(const Boundary* boundary) const { return boundary->volume()->physics() != this; }

// ---- Creation

Model* Physics::createModel()
{
    auto* model = new (m_registry->nodes) Model(this);
    m_registry->add(model);
    return model;
}

Model* Physics::primaryModel()
{
    Model* first = m_registry->models.first();
    return first != nullptr ? first : createModel();
}

Volume* Physics::createVolume(const std::string& name, const std::string& location, VolumeType type, Model* model)
{
    return createVolumeAt(name, location, type, model);
}

Volume* Physics::createVolume(const std::string& name, const std::vector<gtm::Region*>& regions, VolumeType type,
                              Model* model)
{
    return createVolumeAt(name, regions, type, model);
}

template <class Where>
Volume* Physics::createVolumeAt(const std::string& name, const Where& where, VolumeType type, Model* model)
{
    if (isForeign(model))
        return nullptr;
    const auto [interior, state] = m_virtualTopology.createInterior(name, where, false, m_enforceRestrictions);
    if (interior != nullptr)
        return constructVolume(type, model, interior, nullptr);
    if (m_reportCreationFailures)
        reportCreationFailure("volume", name, where, gtm::Interior::stateAsString(state));
    return nullptr;
}

Volume* Physics::createDefaultVolume(const std::string& name, VolumeType type, Model* model)
{
    if (isForeign(model))
        return nullptr;
    Model* const owner = modelOrPrimary(model);
    m_virtualTopology.activateDefaultInterior(true);
    gtm::Interior* interior = m_virtualTopology.defaultInterior();
    if (interior == nullptr)
        return nullptr;
    return constructVolume(type, owner, interior, &name);
}

/// Makes the volume on an interior, which must not stay behind if that fails. `defaultName` is the name for
/// the default interior, null for any other.
Volume* Physics::constructVolume(VolumeType type, Model* model, gtm::Interior* interior, const std::string* defaultName)
{
    try {
        if (defaultName != nullptr)
            interior->rename(*defaultName);
        return new (m_registry->nodes) Volume(this, type, modelOrPrimary(model), interior, defaultName != nullptr);
    } catch (...) {
        if (defaultName == nullptr)
            interior->destroy();
        else if (!hasDefaultVolume())
            m_virtualTopology.activateDefaultInterior(false);
        throw;
    }
}

Interface* Physics::createInterface(const std::string& name, Boundary* first, Boundary* second, InterfaceType type,
                                    Model* model)
{
    if (first == nullptr || second == nullptr || isForeign(first) || isForeign(second) || isForeign(model))
        return nullptr;
    const auto [interface, state] =
        m_virtualTopology.createInterface(name, {first->boundary()}, {second->boundary()}, m_enforceRestrictions);
    if (interface == nullptr) {
        if (m_reportCreationFailures)
            reportInterfaceFailure(name, first->name(), second->name(), gtm::Interface::stateAsString(state));
        return nullptr;
    }
    try {
        return new (m_registry->nodes) Interface(this, type, modelOrPrimary(model), interface, first, second);
    } catch (...) {
        interface->destroy();
        throw;
    }
}

Interface* Physics::createTranslationallyPeriodicInterface(const std::string& name, Boundary* first, Boundary* second,
                                                           const std::array<double, 3>& offset, InterfaceType type,
                                                           Model* model)
{
    Interface* interface = createInterface(name, first, second, type, model);
    if (interface != nullptr)
        interface->setTranslationalPeriodicity(offset);
    return interface;
}

Interface* Physics::createRotationallyPeriodicInterface(const std::string& name, Boundary* first, Boundary* second,
                                                        double angle, const std::array<double, 3>& origin,
                                                        const std::array<double, 3>& direction, InterfaceType type,
                                                        Model* model)
{
    Interface* interface = createInterface(name, first, second, type, model);
    if (interface != nullptr)
        interface->setRotationalPeriodicity(angle, origin, direction);
    return interface;
}

// ---- Look-ups

Volume* Physics::defaultVolume() const { return m_registry->defaultVolume.get(); }
Volume* Physics::findVolumeById(int id) const { return m_registry->volumes.find(id); }
Boundary* Physics::findBoundaryById(int id) const { return m_registry->boundaries.find(id); }
Interface* Physics::findInterfaceById(int id) const { return m_registry->interfaces.find(id); }
Model* Physics::findModelById(int id) const { return m_registry->models.find(id); }
Settings* Physics::findSettingsById(int id) const { return m_registry->settings.find(id); }

ThreadBundle* Physics::findThreadBundleByThreadId(int id) const
{
    return id < 0 ? nullptr : m_registry->bundlesByThreadId.find(id);
}

Settings* Physics::findSettingsByThreadId(int id) const
{
    const ThreadBundle* bundle = findThreadBundleByThreadId(id);
    return bundle == nullptr ? nullptr : bundle->settings();
}

ThreadBundle* Physics::findThreadBundleByZoneId(int id) const { return m_registry->bundlesByZoneId.find(id); }

Settings* Physics::findSettingsByZoneId(int id) const
{
    const ThreadBundle* bundle = findThreadBundleByZoneId(id);
    return bundle == nullptr ? nullptr : bundle->settings();
}

Volume* Physics::find(const gtm::Interior* interior) const
{
    return interior == nullptr ? nullptr : m_registry->volumesByName.find(interior->name());
}

Boundary* Physics::find(const gtm::Boundary* boundary) const { return m_registry->boundariesByLocation.find(boundary); }

// ---- Lists

std::vector<Volume*> Physics::volumes() const { return m_registry->volumesByName.objects(); }
std::vector<Interface*> Physics::interfaces() const { return m_registry->interfacesByName.objects(); }
std::vector<Model*> Physics::models() const { return m_registry->models.objects(); }

std::vector<Boundary*> Physics::boundaries() const { return m_registry->listedBoundaries(); }

std::vector<Region*> Physics::unlistedRegions() const
{
    std::vector<Region*> unlisted;
    const auto add = [&unlisted](const auto& all, const auto& listed) {
        unlisted.insert(unlisted.end(), all.begin() + static_cast<std::ptrdiff_t>(listed.size()), all.end());
    };
    add(m_registry->allVolumes(), volumes());
    if (!m_registry->listsAllBoundaries())
        add(m_registry->allBoundaries(), boundaries());
    add(m_registry->allInterfaces(), interfaces());
    return unlisted;
}

std::vector<BoundaryPatch*> Physics::boundaryPatches() const
{
    std::vector<BoundaryPatch*> patches;
    for (const Boundary* boundary : boundaries())
        for (BoundaryPatch* patch : boundary->patches())
            patches.push_back(patch);
    return patches;
}

std::vector<Settings*> Physics::settings() const
{
    std::vector<Settings*> settings;
    for (const Model* model : models())
        for (Settings* ofModel : model->settings())
            settings.push_back(ofModel);
    return settings;
}

std::vector<ThreadBundle*> Physics::threadBundles() const
{
    std::vector<ThreadBundle*> bundles;
    for (const Settings* ofModel : settings())
        for (ThreadBundle* bundle : ofModel->threadBundles())
            bundles.push_back(bundle);
    return bundles;
}

std::vector<int> Physics::threadIds() const
{
    std::set<int> ids;
    for (const ThreadBundle* bundle : threadBundles())
        ids.insert(bundle->threadId());
    return {ids.begin(), ids.end()};
}

std::vector<int> Physics::zoneIds() const { return zoneIds(m_reportCreationFailures); }

std::vector<int> Physics::zoneIds(bool mayReport) const
{
    std::set<int> ids;
    for (const ThreadBundle* bundle : threadBundles())
        for (const int zoneId : bundle->zoneIds(mayReport))
            ids.insert(absoluteZoneId(zoneId));
    return {ids.begin(), ids.end()};
}

// ---- Changes over the whole set-up

bool Physics::removeRegions(const std::vector<gtm::Region*>& regions)
{
    const std::vector<Volume*> volumes = this->volumes();
    const std::vector<Boundary*> boundaries = this->boundaries();
    bool anyChanged = false;
    for (Volume* volume : volumes)
        anyChanged = volume->remove(regions) || anyChanged;
    for (Boundary* boundary : boundaries)
        anyChanged = boundary->remove(regions) || anyChanged;
    return anyChanged;
}

bool Physics::areOurs(const std::vector<Volume*>& volumes, bool active) const
{
    return std::all_of(volumes.begin(), volumes.end(), [this, active](const Volume* volume) {
        return volume != nullptr && volume->physics() == this && volume->isActive() == active;
    });
}

int Physics::deactivateVolumes(const std::vector<Volume*>& volumes)
{
    if (!areOurs(volumes, true))
        return -1;
    ActivationGroups& groups = m_registry->activationGroups;
    const int number = groups.smallestFreeNumber();
    groups.add(number, volumes);
    return number;
}

bool Physics::activateGroup(int group) { return m_registry->activationGroups.dissolve(group); }

bool Physics::activateVolumes(const std::vector<Volume*>& volumes)
{
    if (!areOurs(volumes, false))
        return false;
    for (const Volume* volume : volumes)
        if (!volume->isActive()) // else the group of an earlier one took it along
            activateGroup(volume->activationGroup());
    return true;
}

std::vector<int> Physics::activationGroups() const { return m_registry->activationGroups.numbers(); }

std::vector<Volume*> Physics::activationGroupVolumes(int group) const
{
    return m_registry->activationGroups.volumes(group);
}

// ---- The mask

void Physics::maskBodies(const std::vector<gtm::Body*>& bodies) { m_virtualTopology.mask(bodies); }
void Physics::unmaskBodies(const std::vector<gtm::Body*>& bodies) { m_virtualTopology.unmask(bodies); }
void Physics::setMaskedBodies(const std::vector<gtm::Body*>& bodies) { m_virtualTopology.setMaskedBodies(bodies); }

void Physics::maskParts(const std::vector<gtm::Part*>& parts)
{
    for (const gtm::Part* part : parts)
        if (part != nullptr)
            maskBodies(part->bodies());
}

void Physics::unmaskParts(const std::vector<gtm::Part*>& parts)
{
    for (const gtm::Part* part : parts)
        if (part != nullptr)
            unmaskBodies(part->bodies());
}

void Physics::setMaskedParts(const std::vector<gtm::Part*>& parts)
{
    std::vector<gtm::Body*> bodies;
    for (const gtm::Part* part : parts)
        if (part != nullptr)
            for (gtm::Body* body : part->bodies())
                bodies.push_back(body);
    setMaskedBodies(bodies);
}

bool Physics::isMasked(gtm::Body* body) const { return m_virtualTopology.isMasked(body); }
bool Physics::isMasked(gtm::Face* face) const { return m_virtualTopology.isMasked(face); }
bool Physics::isMasked(gtm::FaceUse* faceUse) const { return m_virtualTopology.isMasked(faceUse); }

bool Physics::isMasked(gtm::Part* part) const
{
    if (part == nullptr)
        return false;
    std::vector<gtm::Body*> bodies = part->bodies();
    bodies.erase(std::remove(bodies.begin(), bodies.end(), nullptr), bodies.end());
    return !bodies.empty() &&
           std::all_of(bodies.begin(), bodies.end(), [this](gtm::Body* body) { return isMasked(body); });
}

std::vector<gtm::Body*> Physics::maskedBodies() const { return m_virtualTopology.maskedBodies(); }
std::vector<gtm::Body*> Physics::unmaskedBodies() const { return m_virtualTopology.unmaskedBodies(); }
std::vector<gtm::Face*> Physics::maskedFaces() const { return m_virtualTopology.maskedFaces(); }
std::vector<gtm::Face*> Physics::unmaskedFaces() const { return m_virtualTopology.unmaskedFaces(); }
std::vector<gtm::FaceUse*> Physics::maskedFaceUses() const { return m_virtualTopology.maskedFaceUses(); }
std::vector<gtm::FaceUse*> Physics::unmaskedFaceUses() const { return m_virtualTopology.unmaskedFaceUses(); }
std::vector<gtm::Body*> Physics::unusedBodies() const { return m_virtualTopology.unusedBodies(); }

std::vector<gtm::Part*> Physics::maskedParts() const { return partsThatAre(true); }
std::vector<gtm::Part*> Physics::unmaskedParts() const { return partsThatAre(false); }

std::vector<gtm::Part*> Physics::partsThatAre(bool masked) const
{
    std::vector<gtm::Part*> parts;
    for (gtm::Part* part : m_virtualTopology.topology()->parts())
        if (part != nullptr && isMasked(part) == masked)
            parts.push_back(part);
    return parts;
}

} // namespace physics
