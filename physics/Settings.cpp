#include "physics/Settings.h"

#include "physics/Boundary.h"
#include "physics/BoundaryPatch.h"
#include "physics/Interface.h"
#include "physics/Model.h"
#include "physics/Physics.h"
#include "physics/Registry.h"
#include "physics/ThreadBundle.h"
#include "physics/TypeManager.h"
#include "physics/Volume.h"

#include <limits>

namespace physics {

int Settings::s_lastUsedId = 0;

Settings::Settings(int id, Model* model, SettingsType type, TopologyType topologyType, Volume* volume,
                   BoundaryPatch* patch, Interface* interface)
    : m_id(id),
      m_physics(model->physics()),
      m_model(model),
      m_type(type),
      m_volume(this, volume),
      m_boundaryPatch(patch),
      m_interface(this, interface),
      m_topologyType(topologyType)
{
    if (patch != nullptr)
        patch->m_settings.enter(m_placeInPatch);
}

Settings::Settings(Model* model, SettingsType type, TopologyType topologyType, Volume* volume, BoundaryPatch* patch,
                   Interface* interface)
    : Settings(nextId(s_lastUsedId), model, type, topologyType, volume, patch, interface)
{
    m_physics->registry().add(this);
}

Settings::Settings(Model* model, Volume* volume, bool internal)
    : Settings(model, SettingsType::VolumeSettings, internal ? TopologyType::Internal : TopologyType::Volume, volume,
               nullptr, nullptr)
{}

Settings::Settings(Model* model, BoundaryPatch* patch, SettingsType type)
    : Settings(model, type, TopologyType::Boundary, nullptr, patch, nullptr)
{}

Settings::Settings(Model* model, Interface* interface)
    : Settings(model, SettingsType::InterfaceSettings, TopologyType::Interface, nullptr, nullptr, interface)
{}

Settings::~Settings()
{
    m_physics->registry().remove(this);
    for (const auto& entry : m_bundles)
        delete entry.second;
    m_bundles.clear();
    for (const ThreadBundle* bundle : m_replacedBundles)
        delete bundle;
}

void Settings::subjectEnded()
{
    if (!m_model && m_topologyType != TopologyType::Internal)
        delete this;
}

Model* Settings::model() const { return m_model.get(); }
void Settings::setModel(Model* model) { m_model = model; }
BoundaryPatch* Settings::boundaryPatch() const { return m_boundaryPatch.get(); }
Boundary* Settings::boundary() const { return m_boundaryPatch ? m_boundaryPatch->boundary() : nullptr; }

Volume* Settings::volume() const
{
    if (m_boundaryPatch)
        return m_boundaryPatch->volume();
    return m_volume.get();
}

Interface* Settings::interface() const
{
    if (m_boundaryPatch)
        return m_boundaryPatch->interface();
    return m_interface.get();
}

bool Settings::isDetached() const { return !m_volume && !m_boundaryPatch && !m_interface; }

std::string Settings::name() const
{
    if (m_topologyType == TopologyType::Internal)
        return "Internal settings";
    if (m_volume)
        return m_volume->name();
    if (m_boundaryPatch)
        return m_boundaryPatch->name();
    return m_interface ? m_interface->name() : std::string();
}

bool Settings::isActive() const
{
    if (isDetached())
        return false;
    if (m_topologyType == TopologyType::Internal)
        return !m_volume->unusedInternalFaces().empty();
    if (m_volume)
        return m_volume->isActive();
    return m_boundaryPatch ? boundary()->isActive() : m_interface->isActive();
}

ThreadBundle* Settings::createThreadBundle(int index, ThreadType type, int threadId, const std::vector<int>& domainIds)
{
    if (ThreadBundle* present = threadBundleWithThreadId(threadId)) {
        if (present->index() != index)
            return nullptr;
        present->setThreadType(type);
        present->setDomainIds(domainIds);
        return present;
    }
    auto* bundle = new (m_physics->registry().nodes) ThreadBundle(this, index, type, threadId, domainIds);
    ThreadBundle*& entry = m_bundles[index];
    if (entry != nullptr) {
        m_indexByThreadId.erase({entry->threadId(), index});
        m_replacedBundles.push_back(entry);
    }
    entry = bundle;
    m_indexByThreadId.emplace(threadId, index);
    return bundle;
}

bool Settings::deleteThreadBundle(int index)
{
    const auto entry = m_bundles.find(index);
    if (entry == m_bundles.end())
        return false;
    m_indexByThreadId.erase({entry->second->threadId(), index});
    delete entry->second;
    m_bundles.erase(entry);
    return true;
}

ThreadBundle* Settings::threadBundle(int index) const
{
    const auto entry = m_bundles.find(index);
    return entry == m_bundles.end() ? nullptr : entry->second;
}

ThreadBundle* Settings::threadBundleWithThreadId(int threadId) const
{
    const auto entry = m_indexByThreadId.lower_bound({threadId, std::numeric_limits<int>::min()});
    if (entry == m_indexByThreadId.end() || entry->first != threadId)
        return nullptr;
    return threadBundle(entry->second);
}

bool Settings::isListed(const ThreadBundle* bundle) const { return threadBundle(bundle->index()) == bundle; }

void Settings::threadIdChanges(const ThreadBundle* bundle, int threadId)
{
    if (!isListed(bundle))
        return;
    m_indexByThreadId.erase({bundle->threadId(), bundle->index()});
    m_indexByThreadId.emplace(threadId, bundle->index());
}

std::vector<ThreadBundle*> Settings::threadBundles() const
{
    std::vector<ThreadBundle*> bundles;
    bundles.reserve(m_bundles.size());
    for (const auto& entry : m_bundles)
        bundles.push_back(entry.second);
    return bundles;
}

std::vector<int> Settings::threadIds() const
{
    std::vector<int> ids;
    ids.reserve(m_bundles.size());
    for (const auto& entry : m_bundles)
        ids.push_back(entry.second->threadId());
    return ids;
}

int Settings::threadId(int index) const
{
    const ThreadBundle* bundle = threadBundle(index);
    return bundle == nullptr ? -1 : bundle->threadId();
}

ThreadType Settings::threadType(int index) const
{
    const ThreadBundle* bundle = threadBundle(index);
    return bundle == nullptr ? ThreadType::Unset : bundle->threadType();
}

int Settings::solverThreadType(int index) const { return physics::solverThreadType(threadType(index)); }

std::vector<int> Settings::domainIds(int index) const
{
    const ThreadBundle* bundle = threadBundle(index);
    return bundle == nullptr ? std::vector<int>() : bundle->domainIds();
}

void* Settings::thread(int index, int slot) const
{
    const ThreadBundle* bundle = threadBundle(index);
    return bundle == nullptr ? nullptr : bundle->thread(slot);
}

std::vector<void*> Settings::threads() const
{
    std::vector<void*> handles;
    for (const auto& entry : m_bundles)
        for (void* handle : entry.second->threads())
            handles.push_back(handle);
    return handles;
}

} // namespace physics
