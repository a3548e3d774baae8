#include "physics/Model.h"

#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/NameManager.h"
#include "physics/Physics.h"
#include "physics/Registry.h"
#include "physics/Settings.h"
#include "physics/Volume.h"

namespace physics {
namespace {

void append(std::vector<Settings*>& result, const std::vector<Settings*>& more)
{
    result.insert(result.end(), more.begin(), more.end());
}

} // namespace

int Model::s_lastUsedId = 0;

Model::Model(Physics* physics, int id)
    : m_id(id),
      m_physics(physics),
      m_volumes(physics->registry().nodes),
      m_boundaries(physics->registry().nodes),
      m_interfaces(physics->registry().nodes),
      m_volumeSettings(physics->registry().nodes),
      m_internalSettings(physics->registry().nodes),
      m_interfaceSettings(physics->registry().nodes)
{}

Model::Model(Physics* physics) : Model(physics, nextId(s_lastUsedId)) { addDomain(1, DomainType::Geometry, "Default"); }

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
    Volume* member = m_volumes.find(volume);
    if (member == nullptr)
        return nullptr;
    if (Settings* present = m_volumeSettings.find(volume))
        return present;
    return keep(m_volumeSettings, volume, new (m_physics->registry().nodes) Settings(this, member, false));
}

Settings* Model::internalSettings(const Volume* volume)
{
    Volume* member = m_volumes.find(volume);
    if (member == nullptr)
        return nullptr;
    if (Settings* present = m_internalSettings.find(volume))
        return present;
    return keep(m_internalSettings, volume, new (m_physics->registry().nodes) Settings(this, member, true));
}

Settings* Model::settings(const Interface* interface)
{
    Interface* member = m_interfaces.find(interface);
    if (member == nullptr)
        return nullptr;
    if (Settings* present = m_interfaceSettings.find(interface))
        return present;
    return keep(m_interfaceSettings, interface, new (m_physics->registry().nodes) Settings(this, member));
}

Settings* Model::settings(const BoundaryPatch* patch, SettingsType kind)
{
    if (patch == nullptr || patch->volume()->physics() != m_physics || kind == SettingsType::InterfaceSettings)
        return nullptr;
    if (kind == SettingsType::ShellSettings && patch->boundary()->shellModel() == nullptr)
        return nullptr;
    BoundaryPatch* keyed = patch->boundary()->patch(patch->interface());
    if (!isPatchKind(kind))
        return new (m_physics->registry().nodes) Settings(this, keyed, kind);
    if (Settings* present = patchSettings(patch, kind))
        return present;
    auto* settings = new (m_physics->registry().nodes) Settings(this, keyed, kind);
    adopt(settings);
    return settings;
}

/// A patch has few settings: one of each kind, unless other models were asked too. It is null for a boundary whose
/// end was broken off.
Settings* Model::patchSettings(const BoundaryPatch* patch, SettingsType kind) const
{
    if (patch == nullptr)
        return nullptr;
    return patch->m_settings.firstWith(
        [this, kind](const Settings* settings) { return settings->type() == kind && settings->model() == this; });
}

template <class K>
Settings* Model::keep(PointerIndex<K, Settings>& map, const K* key, Settings* settings)
{
    map.put(key, settings);
    return settings;
}

std::vector<Volume*> Model::volumes() const { return m_volumes.byId(); }
std::vector<Interface*> Model::interfaces() const { return m_interfaces.byId(); }

std::vector<Boundary*> Model::boundaries() const
{
    std::vector<Boundary*> boundaries = m_boundaries.byId();
    for (const Volume* volume : volumes())
        for (Boundary* boundary : volume->boundaries())
            boundaries.push_back(boundary);
    for (const Interface* interface : interfaces())
        for (const Side side : {Side::First, Side::Second})
            if (Boundary* boundary = interface->boundary(side))
                boundaries.push_back(boundary);
    sortOnceById(boundaries);
    return boundaries;
}

std::vector<BoundaryPatch*> Model::boundaryPatches() const
{
    std::vector<BoundaryPatch*> patches;
    for (const Boundary* boundary : boundaries())
        for (BoundaryPatch* patch : boundary->patches())
            patches.push_back(patch);
    sortById(patches);
    return patches;
}

std::vector<Settings*> Model::volumeSettings() const { return m_volumeSettings.objectsById(); }
std::vector<Settings*> Model::internalSettings() const { return m_internalSettings.objectsById(); }
std::vector<Settings*> Model::interfaceSettings() const { return m_interfaceSettings.objectsById(); }

std::vector<Settings*> Model::byPatch(const PatchSettings& kept)
{
    std::vector<Settings*> result = kept.objects();
    sortByIdOf(result, [](const Settings* settings) { return settings->boundaryPatch(); });
    return result;
}

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
        if (Settings* settings = patchSettings(patch, kind))
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

void Model::adopt(Settings* settings)
{
    switch (settings->topologyType()) {
    case TopologyType::Volume:
        m_volumeSettings.put(settings->volume(), settings);
        break;
    case TopologyType::Internal:
        m_internalSettings.put(settings->volume(), settings);
        break;
    case TopologyType::Boundary:
        (this->*patchSettingsOf(settings->type())).enter(settings->m_placeInModel);
        break;
    case TopologyType::Interface:
        m_interfaceSettings.put(settings->interface(), settings);
        break;
    }
}

void Model::add(Volume* volume)
{
    m_volumes.insert(volume);
    for (Boundary* boundary : volume->ownedBoundaries())
        addVolumeBoundary(boundary);
}

void Model::add(Boundary* boundary) { m_boundaries.insert(boundary); }
void Model::add(Interface* interface) { m_interfaces.insert(interface); }

void Model::addVolumeBoundary(Boundary* boundary)
{
    for (const BoundaryPatch* patch : boundary->patches())
        settings(patch, SettingsType::VolumeSettings);
}

/// The volume's settings are made if they never were, and ended: that draws an id, which the ids of later
/// settings show. Its internal settings only leave the model.
void Model::remove(Volume* volume)
{
    if (!m_volumes.contains(volume))
        return;
    for (Boundary* boundary : volume->ownedBoundaries())
        removeVolumeBoundary(boundary);
    delete settings(volume);
    m_internalSettings.erase(volume);
    m_volumes.erase(volume);
}

void Model::removeVolumeBoundary(Boundary* boundary)
{
    for (const BoundaryPatch* patch : boundary->patches())
        deleteBoundaryPatchSettings(patch, SettingsType::VolumeSettings);
}

void Model::remove(Boundary* boundary)
{
    if (!m_boundaries.contains(boundary))
        return;
    for (const BoundaryPatch* patch : boundary->patches())
        deleteBoundaryPatchSettings(patch, SettingsType::ShellSettings);
    m_boundaries.erase(boundary);
}

/// As with a volume, settings that never were are made and ended.
void Model::remove(Interface* interface)
{
    if (!m_interfaces.contains(interface))
        return;
    for (const BoundaryPatch* patch : patchesOf(interface))
        deleteBoundaryPatchSettings(patch, SettingsType::InterfaceSettings);
    delete settings(interface);
    m_interfaces.erase(interface);
}

std::vector<const BoundaryPatch*> Model::patchesOf(const Interface* interface)
{
    std::vector<const BoundaryPatch*> patches;
    for (const Side side : {Side::First, Side::Second})
        if (const Boundary* boundary = interface->boundary(side))
            if (const BoundaryPatch* patch = boundary->patch(interface))
                patches.push_back(patch);
    sortOnceById(patches);
    return patches;
}

void Model::deleteBoundaryPatchSettings(const BoundaryPatch* patch, SettingsType kind)
{
    if (isPatchKind(kind))
        delete patchSettings(patch, kind);
}

void Model::move(Volume* volume, Model* target)
{
    if (target == nullptr || target == this)
        return;
    if (m_volumes.contains(volume)) {
        for (const Boundary* boundary : volume->m_boundaries.objects())
            for (const BoundaryPatch* patch : boundary->patches())
                moveSettings(patch, SettingsType::VolumeSettings, target);
        moveSettings<Volume>(&Model::m_volumeSettings, volume, target);
        moveSettings<Volume>(&Model::m_internalSettings, volume, target);
        m_volumes.erase(volume);
    }
    target->m_volumes.insert(volume);
}

void Model::move(Boundary* boundary, Model* target)
{
    if (target == nullptr || target == this)
        return;
    if (m_boundaries.contains(boundary)) {
        for (const BoundaryPatch* patch : boundary->patches())
            moveSettings(patch, SettingsType::ShellSettings, target);
        m_boundaries.erase(boundary);
    }
    target->m_boundaries.insert(boundary);
}

void Model::move(Interface* interface, Model* target)
{
    if (target == nullptr || target == this)
        return;
    if (m_interfaces.contains(interface)) {
        for (const BoundaryPatch* patch : patchesOf(interface))
            moveSettings(patch, SettingsType::InterfaceSettings, target);
        moveSettings<Interface>(&Model::m_interfaceSettings, interface, target);
        m_interfaces.erase(interface);
    }
    target->m_interfaces.insert(interface);
}

template <class K>
void Model::moveSettings(PointerIndex<K, Settings> Model::*map, const K* key, Model* target)
{
    Settings* settings = (this->*map).find(key);
    if (settings == nullptr)
        return;
    delete (target->*map).find(key); // what the target was asked to keep for an object not yet its own
    (target->*map).put(key, settings);
    (this->*map).erase(key);
    settings->setModel(target);
}

void Model::moveSettings(const BoundaryPatch* patch, SettingsType kind, Model* target)
{
    Settings* settings = patchSettings(patch, kind);
    if (settings == nullptr)
        return;
    delete target->patchSettings(patch, kind);
    settings->m_placeInModel.leave();
    settings->setModel(target);
    target->adopt(settings);
}

bool Model::isPatchKind(SettingsType kind) { return patchSettingsOf(kind) != nullptr; }

Model::PatchSettings Model::*Model::patchSettingsOf(SettingsType kind)
{
    switch (kind) {
    case SettingsType::VolumeSettings:
        return &Model::m_patchVolumeSettings;
    case SettingsType::ShellSettings:
        return &Model::m_patchShellSettings;
    case SettingsType::InterfaceSettings:
        return &Model::m_patchInterfaceSettings;
    }
    return nullptr;
}

void Model::destroy()
{
    m_physics->registry().remove(this);
    delete this;
}

} // namespace physics
