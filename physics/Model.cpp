#include "physics/Model.h"

#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/NameManager.h"
#include "physics/Physics.h"
#include "physics/Registry.h"
#include "physics/Settings.h"
#include "physics/Volume.h"

#include <unordered_set>

namespace physics {
namespace {

void append(std::vector<Settings*>& result, const std::vector<Settings*>& more)
{
    result.insert(result.end(), more.begin(), more.end());
}

template <class T>
std::vector<T*> sortedMembers(const Brood<T, OfModel>& members)
{
    std::vector<T*> result = members.objects();
    sortById(result);
    return result;
}

} // namespace

int Model::s_lastUsedId = 0;

Model::Model(Physics* physics, int id) : m_id(id), m_physics(physics) {}

Model::Model(Physics* physics) : Model(physics, nextId(s_lastUsedId)) { addDomain(1, DomainType::Geometry, "Default"); }

/// Whoever is left has no model from now on.
Model::~Model()
{
    for (Volume* volume = m_volumes.first(); volume != nullptr; volume = m_volumes.after(*volume))
        volume->m_model = nullptr;
    for (Boundary* shell = m_boundaries.first(); shell != nullptr; shell = m_boundaries.after(*shell))
        shell->m_shellModel = nullptr;
    for (Interface* each = m_interfaces.first(); each != nullptr; each = m_interfaces.after(*each))
        each->m_model = nullptr;
    for (const HeldSettings* held :
         {&m_volumeSettings, &m_internalSettings, &m_patchVolumeSettings, &m_patchShellSettings,
          &m_patchInterfaceSettings, &m_interfaceSettings, &m_unlistedSettings})
        for (Settings* settings = held->first(); settings != nullptr; settings = held->after(*settings))
            settings->m_model = nullptr;
}

void Model::addDomain(int id, DomainType type, const std::string& name)
{
    m_domains.insert_or_assign(id, Domain{type, name, NameManager::normaliseThreadName(name)});
}

bool Model::removeDomain(int id) { return m_domains.erase(id) > 0; }

std::vector<int> Model::domainIds() const
{
    std::vector<int> ids;
    for (const auto& domain : m_domains)
        ids.push_back(domain.first);
    return ids;
}

std::vector<int> Model::domainIdsOfType(DomainType type) const
{
    std::vector<int> ids;
    for (const auto& domain : m_domains)
        if (domain.second.type == type)
            ids.push_back(domain.first);
    return ids;
}

std::string Model::domainName(int id) const
{
    const auto domain = m_domains.find(id);
    return domain == m_domains.end() ? std::string() : domain->second.name;
}

std::string Model::domainSymbol(int id) const
{
    const auto domain = m_domains.find(id);
    return domain == m_domains.end() ? std::string() : domain->second.symbol;
}

DomainType Model::domainType(int id) const
{
    const auto domain = m_domains.find(id);
    return domain == m_domains.end() ? DomainType::Unset : domain->second.type;
}

Settings* Model::settings(const Volume* volume)
{
    return settingsOf(m_physics->registry().volumesByAddress.find(volume), TopologyType::Volume);
}

Settings* Model::internalSettings(const Volume* volume)
{
    return settingsOf(m_physics->registry().volumesByAddress.find(volume), TopologyType::Internal);
}

Settings* Model::settings(const Interface* interface)
{
    return settingsOf(m_physics->registry().interfacesByAddress.find(interface));
}

Settings* Model::settingsOf(Volume* volume, TopologyType topologyType)
{
    if (volume == nullptr || !has(volume))
        return nullptr;
    Settings* present = held(volume, topologyType);
    return present != nullptr ? present : make(volume, SettingsType::VolumeSettings, topologyType);
}

Settings* Model::settingsOf(Interface* interface)
{
    if (interface == nullptr || !has(interface))
        return nullptr;
    Settings* present = held(interface);
    return present != nullptr ? present : make(interface, SettingsType::InterfaceSettings, TopologyType::Interface);
}

bool Model::has(const Volume* volume) const { return volume->m_model == this && Brood<Volume, OfModel>::isIn(*volume); }

bool Model::has(const Boundary* boundary) const
{
    return boundary->m_shellModel == this && Brood<Boundary, OfModel>::isIn(*boundary);
}

bool Model::has(const Interface* interface) const
{
    return interface->m_model == this && Brood<Interface, OfModel>::isIn(*interface);
}

Settings* Model::settings(const BoundaryPatch* patch, SettingsType kind)
{
    if (patch == nullptr || patch->volume()->physics() != m_physics || kind == SettingsType::InterfaceSettings)
        return nullptr;
    if (kind == SettingsType::ShellSettings && patch->boundary()->shellModel() == nullptr)
        return nullptr;
    Settings* present = isPatchKind(kind) ? held(patch, kind) : nullptr;
    return present != nullptr ? present : make(const_cast<BoundaryPatch*>(patch), kind, TopologyType::Boundary);
}

template <class Subject>
Settings* Model::make(Subject* subject, SettingsType type, TopologyType topologyType)
{
    auto* settings = new (m_physics->registry().nodes) Settings(this, type, topologyType);
    settings->belongTo(subject);
    hold(settings);
    m_physics->registry().add(settings);
    return settings;
}

Settings* Model::held(const Volume* volume, TopologyType topologyType) const
{
    return volume == nullptr ? nullptr : heldOf(volume->m_settings, SettingsType::VolumeSettings, topologyType);
}

Settings* Model::held(const BoundaryPatch* patch, SettingsType type) const
{
    return patch == nullptr ? nullptr : heldOf(patch->m_settings, type, TopologyType::Boundary);
}

Settings* Model::held(const Interface* interface) const
{
    return interface == nullptr
               ? nullptr
               : heldOf(interface->m_settings, SettingsType::InterfaceSettings, TopologyType::Interface);
}

/// An object has few settings: one of each kind, unless other models were asked too.
Settings* Model::heldOf(const Brood<Settings, OfSubject>& ofSubject, SettingsType type, TopologyType topologyType) const
{
    for (Settings* each = ofSubject.first(); each != nullptr; each = ofSubject.after(*each))
        if (each->type() == type && each->topologyType() == topologyType && each->model() == this)
            return each;
    return nullptr;
}

void Model::hold(Settings* settings)
{
    settings->m_model = this;
    listOf(settings->type(), settings->topologyType()).enter(*settings);
}

Model::HeldSettings& Model::listOf(SettingsType type, TopologyType topologyType)
{
    switch (topologyType) {
    case TopologyType::Volume:
        return m_volumeSettings;
    case TopologyType::Internal:
        return m_internalSettings;
    case TopologyType::Interface:
        return m_interfaceSettings;
    case TopologyType::Boundary:
        break;
    }
    switch (type) {
    case SettingsType::VolumeSettings:
        return m_patchVolumeSettings;
    case SettingsType::ShellSettings:
        return m_patchShellSettings;
    case SettingsType::InterfaceSettings:
        return m_patchInterfaceSettings;
    }
    return m_unlistedSettings;
}

bool Model::isPatchKind(SettingsType kind)
{
    return kind == SettingsType::VolumeSettings || kind == SettingsType::ShellSettings ||
           kind == SettingsType::InterfaceSettings;
}

std::vector<Volume*> Model::volumes() const { return sortedMembers(m_volumes); }
std::vector<Interface*> Model::interfaces() const { return sortedMembers(m_interfaces); }

std::vector<Boundary*> Model::boundaries() const
{
    std::vector<Boundary*> boundaries = m_boundaries.objects();
    for (const Volume* volume = m_volumes.first(); volume != nullptr; volume = m_volumes.after(*volume))
        for (Boundary* boundary : volume->boundaries())
            boundaries.push_back(boundary);
    std::unordered_set<Boundary*> ofInterfaces; // one can be in very many
    for (const Interface* each = m_interfaces.first(); each != nullptr; each = m_interfaces.after(*each))
        ofInterfaces.insert(each->m_boundaries.begin(), each->m_boundaries.end());
    boundaries.insert(boundaries.end(), ofInterfaces.begin(), ofInterfaces.end());
    sortOnceById(boundaries);
    return boundaries;
}

std::vector<BoundaryPatch*> Model::boundaryPatches() const
{
    std::vector<BoundaryPatch*> patches;
    for (const Boundary* boundary : boundaries())
        boundary->appendPatches(patches);
    sortById(patches);
    return patches;
}

template <class Subject>
std::vector<Settings*> Model::sorted(const HeldSettings& held, Subject* (Settings::*subject)() const)
{
    std::vector<Settings*> result = held.objects();
    sortByIdOf(result, [subject](const Settings* settings) { return (settings->*subject)(); });
    return result;
}

std::vector<Settings*> Model::byVolume(const HeldSettings& held) { return sorted(held, &Settings::volume); }
std::vector<Settings*> Model::byPatch(const HeldSettings& held) { return sorted(held, &Settings::boundaryPatch); }
std::vector<Settings*> Model::byInterface(const HeldSettings& held) { return sorted(held, &Settings::interface); }

std::vector<Settings*> Model::volumeSettings() const { return byVolume(m_volumeSettings); }
std::vector<Settings*> Model::internalSettings() const { return byVolume(m_internalSettings); }
std::vector<Settings*> Model::interfaceSettings() const { return byInterface(m_interfaceSettings); }

std::vector<Settings*> Model::boundaryPatchSettings() const
{
    std::vector<Settings*> result = byPatch(m_patchVolumeSettings);
    append(result, byPatch(m_patchShellSettings));
    append(result, byPatch(m_patchInterfaceSettings));
    return result;
}

std::vector<Settings*> Model::volumeSettings(const Boundary* boundary) const
{
    return patchSettings(boundary, SettingsType::VolumeSettings);
}

std::vector<Settings*> Model::shellSettings(const Boundary* boundary) const
{
    return patchSettings(boundary, SettingsType::ShellSettings);
}

std::vector<Settings*> Model::patchSettings(const Boundary* boundary, SettingsType kind) const
{
    std::vector<Settings*> result;
    if (boundary == nullptr)
        return result;
    for (const BoundaryPatch* patch : boundary->patches())
        if (Settings* settings = held(patch, kind))
            result.push_back(settings);
    return result;
}

std::vector<Settings*> Model::settings() const
{
    std::vector<Settings*> result = m_volumeSettings.objects();
    append(result, m_internalSettings.objects());
    append(result, m_patchVolumeSettings.objects());
    append(result, m_patchShellSettings.objects());
    append(result, m_patchInterfaceSettings.objects());
    append(result, m_interfaceSettings.objects());
    sortById(result);
    return result;
}

/// Internal settings may be there from before, when the end of the volume was broken off.
void Model::add(Volume* volume)
{
    if (Settings* internal = held(volume, TopologyType::Internal))
        hold(internal);
    m_volumes.enter(*volume);
    for (Boundary* boundary : volume->ownedBoundaries())
        addVolumeBoundary(boundary);
}

void Model::add(Boundary* boundary) { m_boundaries.enter(*boundary); }
void Model::add(Interface* interface) { m_interfaces.enter(*interface); }

void Model::addVolumeBoundary(Boundary* boundary)
{
    for (const BoundaryPatch* patch : boundary->patches())
        settings(patch, SettingsType::VolumeSettings);
}

/// Its internal settings only leave the model.
void Model::remove(Volume* volume)
{
    if (!has(volume))
        return;
    for (Boundary* boundary : volume->ownedBoundaries())
        removeVolumeBoundary(boundary);
    endSettings(held(volume, TopologyType::Volume));
    if (Settings* internal = held(volume, TopologyType::Internal))
        m_unlistedSettings.enter(*internal);
    Brood<Volume, OfModel>::leave(*volume);
    volume->m_model = nullptr;
}

/// Settings that never were are made and ended. That draws an id, which the ids of later settings show, and forgets
/// an older object of the same id.
void Model::endSettings(const Settings* settings)
{
    if (settings != nullptr)
        delete settings;
    else
        m_physics->registry().settings.erase(nextId(Settings::s_lastUsedId));
}

void Model::removeVolumeBoundary(Boundary* boundary)
{
    for (const BoundaryPatch* patch : boundary->patches())
        deleteBoundaryPatchSettings(patch, SettingsType::VolumeSettings);
}

void Model::remove(Boundary* boundary)
{
    if (!has(boundary))
        return;
    for (const BoundaryPatch* patch : boundary->patches())
        deleteBoundaryPatchSettings(patch, SettingsType::ShellSettings);
    Brood<Boundary, OfModel>::leave(*boundary);
    boundary->m_shellModel = nullptr;
}

void Model::remove(Interface* interface)
{
    if (!has(interface))
        return;
    for (const BoundaryPatch* patch : interface->m_patches)
        deleteBoundaryPatchSettings(patch, SettingsType::InterfaceSettings);
    endSettings(held(interface));
    Brood<Interface, OfModel>::leave(*interface);
    interface->m_model = nullptr;
}

void Model::deleteBoundaryPatchSettings(const BoundaryPatch* patch, SettingsType kind)
{
    if (isPatchKind(kind))
        delete held(patch, kind);
}

void Model::move(Volume* volume, Model* target)
{
    if (target == nullptr || target == this)
        return;
    if (has(volume)) {
        for (const Boundary* boundary : volume->m_boundaries.objects())
            for (const BoundaryPatch* patch : boundary->patches())
                moveSettings(patch, SettingsType::VolumeSettings, target);
        for (const TopologyType kind : {TopologyType::Volume, TopologyType::Internal})
            handOver(held(volume, kind), target->held(volume, kind), target);
    }
    target->m_volumes.enter(*volume);
}

void Model::move(Boundary* boundary, Model* target)
{
    if (target == nullptr || target == this)
        return;
    if (has(boundary)) {
        for (const BoundaryPatch* patch : boundary->patches())
            moveSettings(patch, SettingsType::ShellSettings, target);
    }
    target->m_boundaries.enter(*boundary);
}

void Model::move(Interface* interface, Model* target)
{
    if (target == nullptr || target == this)
        return;
    if (has(interface)) {
        for (const BoundaryPatch* patch : interface->m_patches)
            moveSettings(patch, SettingsType::InterfaceSettings, target);
        handOver(held(interface), target->held(interface), target);
    }
    target->m_interfaces.enter(*interface);
}

void Model::handOver(Settings* settings, Settings* replaced, Model* target)
{
    if (settings == nullptr)
        return;
    delete replaced;
    target->hold(settings);
}

void Model::moveSettings(const BoundaryPatch* patch, SettingsType kind, Model* target)
{
    handOver(held(patch, kind), target->held(patch, kind), target);
}

void Model::destroy()
{
    m_physics->registry().remove(this);
    delete this;
}

} // namespace physics
