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

Settings::Settings(int id, Model* model, SettingsType type, TopologyType topologyType)
    : m_id(id),
      m_type(type),
      m_topologyType(topologyType),
      m_physics(model->physics()),
      m_model(model),
      m_bundles(NodeAllocator<char>(m_physics->registry().nodes)),
      m_indexByThreadId(m_bundles.get_allocator())
{}

Settings::Settings(Model* model, SettingsType type, TopologyType topologyType)
    : Settings(nextId(s_lastUsedId), model, type, topologyType)
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

void Settings::belongTo(Volume* volume)
{
    m_subject = volume;
    volume->m_settings.enter(*this);
}

void Settings::belongTo(BoundaryPatch* patch)
{
    m_subject = patch;
    patch->m_settings.enter(*this);
}

void Settings::belongTo(Interface* interface)
{
    m_subject = interface;
    interface->m_settings.enter(*this);
}

/// What is left by then has lost its model, but for internal settings, which stay until the set-up is cleared, and
/// for settings of patches, which end those of known kinds themselves.
void Settings::detachAll(const Brood<Settings, OfSubject>& settings)
{
    while (Settings* each = settings.first()) {
        Brood<Settings, OfSubject>::leave(*each);
        each->m_subject = nullptr;
        if (each->m_topologyType == TopologyType::Volume || each->m_topologyType == TopologyType::Interface)
            delete each;
    }
}

Model* Settings::model() const { return m_model; }
Boundary* Settings::boundary() const { return boundaryPatch() == nullptr ? nullptr : boundaryPatch()->boundary(); }

BoundaryPatch* Settings::boundaryPatch() const
{
    return m_topologyType == TopologyType::Boundary ? static_cast<BoundaryPatch*>(m_subject) : nullptr;
}

Volume* Settings::volume() const
{
    if (m_subject == nullptr || m_topologyType == TopologyType::Interface)
        return nullptr;
    return m_topologyType == TopologyType::Boundary ? boundaryPatch()->volume() : static_cast<Volume*>(m_subject);
}

Interface* Settings::interface() const
{
    if (m_topologyType == TopologyType::Interface)
        return static_cast<Interface*>(m_subject);
    return boundaryPatch() == nullptr ? nullptr : boundaryPatch()->interface();
}

bool Settings::isDetached() const { return m_subject == nullptr; }

std::string Settings::name() const
{
    if (m_topologyType == TopologyType::Internal)
        return "Internal settings";
    if (isDetached())
        return std::string();
    switch (m_topologyType) {
    case TopologyType::Boundary:
        return boundaryPatch()->name();
    case TopologyType::Interface:
        return interface()->name();
    default:
        return volume()->name();
    }
}

bool Settings::isActive() const
{
    if (isDetached())
        return false;
    switch (m_topologyType) {
    case TopologyType::Internal:
        return !volume()->unusedInternalFaces().empty();
    case TopologyType::Boundary:
        return boundary()->isActive();
    case TopologyType::Interface:
        return interface()->isActive();
    default:
        return volume()->isActive();
    }
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
