// The record of each class of objects in a saved text: made from the object, and the object from it.

#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/PhysicsSerialiser.h"
#include "physics/Registry.h"
#include "physics/Settings.h"
#include "physics/ThreadBundle.h"
#include "physics/Volume.h"
#include "physics/saved/Ids.h"
#include "physics/saved/Records.h"

namespace physics {
namespace {

/// The ids of what the settings were made for with those of the settings.
template <class Subject>
PairList pairsOf(const std::vector<Settings*>& held, Subject* (Settings::*subject)() const)
{
    PairList pairs;
    pairs.reserve(held.size());
    for (const Settings* settings : held)
        pairs.emplace_back((settings->*subject)()->id(), settings->id());
    return pairs;
}

} // namespace

ModelRecord Model::serialise(const PhysicsSerialiser& /*serialiser*/) const
{
    ModelRecord record;
    record.id = m_id;
    record.volumes = idsOf(m_volumes.objects());
    record.boundaries = idsOf(m_boundaries.objects());
    record.interfaces = idsOf(m_interfaces.objects());
    record.settings = {pairsOf(byVolume(m_volumeSettings), &Settings::volume),
                       pairsOf(byVolume(m_internalSettings), &Settings::volume),
                       pairsOf(byPatch(m_patchVolumeSettings), &Settings::boundaryPatch),
                       pairsOf(byPatch(m_patchShellSettings), &Settings::boundaryPatch),
                       pairsOf(byPatch(m_patchInterfaceSettings), &Settings::boundaryPatch),
                       pairsOf(byInterface(m_interfaceSettings), &Settings::interface)};
    for (const auto& [id, domain] : m_domains)
        record.domains.push_back({id, domain.type, domain.name});
    return record;
}

/// The members join when they are restored themselves.
Model* Model::restore(const PhysicsSerialiser& serialiser, const ModelRecord& record)
{
    auto* model = new (serialiser.nodes()) Model(serialiser.physics(), record.id);
    serialiser.physics()->registry().add(model);
    for (const DomainRecord& domain : record.domains)
        model->addDomain(domain.id, domain.type, domain.name);
    return model;
}

VolumeRecord Volume::serialise(const PhysicsSerialiser& serialiser) const
{
    VolumeRecord record;
    record.id = m_id;
    record.type = m_type;
    record.model = idOf(model());
    record.interior = serialiser.indexOf(m_interior);
    record.activationGroup = m_activationGroup;
    record.isDefault = m_isDefault;
    record.defaultBoundary = idOf(defaultBoundary());
    record.boundaries = idsOf(m_boundaries.objects());
    return record;
}

Volume* Volume::restore(const PhysicsSerialiser& serialiser, const VolumeRecord& record)
{
    Physics* physics = serialiser.physics();
    Model* model = serialiser.model(record.model);
    auto* volume = new (serialiser.nodes())
        Volume(physics, record.id, record.type, model, serialiser.interior(record.interior), record.isDefault);
    volume->m_activationGroup = record.activationGroup;
    if (model != nullptr)
        model->m_volumes.enter(*volume);
    physics->registry().add(volume);
    return volume;
}

BoundaryRecord Boundary::serialise(const PhysicsSerialiser& serialiser) const
{
    BoundaryRecord record;
    record.id = m_id;
    record.type = m_type;
    record.shellType = m_shellType;
    record.shellModel = idOf(shellModel());
    record.place = serialiser.indexOf(m_boundary);
    record.volume = m_volume->id();
    record.isDefault = m_isDefault;
    for (const BoundaryPatch* patch : patches())
        record.patches.emplace_back(idOf(patch->interface()), patch->id());
    for (const BoundaryTag tag : m_tags)
        record.tags.push_back(static_cast<int>(tag));
    return record;
}

/// With the own patch; the others come with their interfaces.
Boundary* Boundary::restore(const PhysicsSerialiser& serialiser, const BoundaryRecord& record)
{
    Volume* volume = serialiser.volume(record.volume);
    auto* boundary = new (serialiser.nodes()) Boundary(record.id, serialiser.patchId(record.id, -1), volume,
                                                       record.type, serialiser.place(record.place), record.isDefault);
    boundary->m_shellType = record.shellType;
    boundary->m_shellModel = serialiser.model(record.shellModel);
    if (boundary->m_shellModel != nullptr)
        boundary->m_shellModel->m_boundaries.enter(*boundary);
    for (const int tag : record.tags)
        boundary->addTag(BoundaryTag(tag));
    volume->adopt(boundary);
    serialiser.physics()->registry().add(boundary);
    return boundary;
}

InterfaceRecord Interface::serialise(const PhysicsSerialiser& serialiser) const
{
    InterfaceRecord record;
    record.id = m_id;
    record.type = m_type;
    record.periodicity = m_periodicity;
    record.meshConnectivity = m_meshConnectivity;
    record.model = idOf(model());
    record.join = serialiser.indexOf(m_interface);
    record.boundaries = {m_boundaries[0]->id(), m_boundaries[1]->id()};
    record.isMapped = m_isMapped;
    record.isStatic = m_isStatic;
    record.isMeshValid = m_isMeshValid;
    return record;
}

Interface* Interface::restore(const PhysicsSerialiser& serialiser, const InterfaceRecord& record)
{
    Physics* physics = serialiser.physics();
    Model* model = serialiser.model(record.model);
    auto* interface = new (serialiser.nodes())
        Interface(physics, record.id, record.type, model, serialiser.join(record.join),
                  serialiser.boundary(record.boundaries[0]), serialiser.boundary(record.boundaries[1]));
    interface->m_periodicity = record.periodicity;
    interface->m_meshConnectivity = record.meshConnectivity;
    interface->m_isMapped = record.isMapped;
    interface->m_isStatic = record.isStatic;
    interface->m_isMeshValid = record.isMeshValid;
    for (Boundary* boundary : interface->m_boundaries)
        if (interface->patchOf(boundary) == nullptr) // else it is on both sides
            boundary->addPatch(new (serialiser.nodes())
                                   BoundaryPatch(serialiser.patchId(boundary->id(), record.id), boundary, interface));
    if (model != nullptr)
        model->m_interfaces.enter(*interface);
    physics->registry().add(interface);
    return interface;
}

PatchRecord BoundaryPatch::serialise(const PhysicsSerialiser& /*serialiser*/) const
{
    PatchRecord record;
    record.id = m_id;
    record.boundary = m_boundary->id();
    record.interface = idOf(m_interface);
    return record;
}

SettingsRecord Settings::serialise(const PhysicsSerialiser& /*serialiser*/) const
{
    SettingsRecord record;
    record.id = m_id;
    record.type = m_type;
    record.topologyType = m_topologyType;
    record.model = idOf(model());
    record.volume = boundaryPatch() == nullptr ? idOf(volume()) : -1;
    record.patch = idOf(boundaryPatch());
    record.interface = boundaryPatch() == nullptr ? idOf(interface()) : -1;
    for (const auto& entry : m_bundles)
        record.bundles.push_back(entry.second->serialise());
    return record;
}

Settings* Settings::restore(const PhysicsSerialiser& serialiser, const SettingsRecord& record)
{
    Model* model = serialiser.model(record.model);
    auto* settings = new (serialiser.nodes()) Settings(record.id, model, record.type, record.topologyType);
    if (Volume* volume = serialiser.volume(record.volume))
        settings->belongTo(volume);
    else if (BoundaryPatch* patch = serialiser.patch(record.patch))
        settings->belongTo(patch);
    else
        settings->belongTo(serialiser.interface(record.interface));
    for (const BundleRecord& bundle : record.bundles) {
        settings->m_bundles.emplace(bundle.index, ThreadBundle::restore(settings, bundle));
        settings->m_indexByThreadId.emplace(bundle.threadId, bundle.index);
    }
    model->hold(settings);
    serialiser.physics()->registry().add(settings);
    return settings;
}

BundleRecord ThreadBundle::serialise() const
{
    BundleRecord record;
    record.index = m_index;
    record.threadId = m_threadId;
    record.type = m_threadType;
    record.domainIds = domainIds();
    record.zoneIds = {m_zoneIds.begin(), m_zoneIds.end()};
    return record;
}

/// Not registered before its settings are: the zones of the text count, not inherited ones.
ThreadBundle* ThreadBundle::restore(Settings* settings, const BundleRecord& record)
{
    return new (settings->physics()->registry().nodes)
        ThreadBundle(settings, record.index, record.type, record.threadId, record.domainIds, record.zoneIds);
}

} // namespace physics
