#include "physics/ThreadBundle.h"

#include "physics/Boundary.h"
#include "physics/Interface.h"
#include "physics/Physics.h"
#include "physics/Registry.h"
#include "physics/Settings.h"
#include "physics/TypeManager.h"
#include "physics/Volume.h"

namespace physics {
namespace {

ThreadBundle* bundleOf(const Settings* settings, int index)
{
    return settings == nullptr ? nullptr : settings->threadBundle(index);
}

ThreadBundle* bundleOf(const Volume* volume, int index)
{
    return volume == nullptr ? nullptr : bundleOf(volume->settings(), index);
}

} // namespace

ThreadBundle::ThreadBundle(Settings* settings, int index, ThreadType type, int threadId,
                           const std::vector<int>& domainIds, const std::vector<int>& zoneIds)
    : m_settings(settings),
      m_index(index),
      m_threadType(type),
      m_threadId(threadId),
      m_domainIds(domainIds.begin(), domainIds.end(), NodeAllocator<int>(physics()->registry().nodes)),
      m_zoneIds(zoneIds.begin(), zoneIds.end(), m_domainIds.get_allocator()),
      m_threads(m_domainIds.get_allocator())
{}

ThreadBundle::ThreadBundle(Settings* settings, int index, ThreadType type, int threadId,
                           const std::vector<int>& domainIds)
    : ThreadBundle(settings, index, type, threadId, domainIds, {})
{
    physics()->registry().add(this);
}

/// A bundle that was replaced at its index takes along only the entries that name it.
ThreadBundle::~ThreadBundle()
{
    if (m_settings->isListed(this))
        physics()->registry().remove(this);
}

Physics* ThreadBundle::physics() const { return m_settings->physics(); }

void ThreadBundle::setThreadId(int threadId)
{
    m_settings->threadIdChanges(this, threadId);
    m_threadId = threadId;
}

int ThreadBundle::solverThreadType() const { return physics::solverThreadType(m_threadType); }

bool ThreadBundle::addDomainId(int id) { return m_domainIds.insert(id).second; }
bool ThreadBundle::removeDomainId(int id) { return m_domainIds.erase(id) > 0; }
void ThreadBundle::setDomainIds(const std::vector<int>& ids)
{
    m_domainIds.clear();
    m_domainIds.insert(ids.begin(), ids.end());
}

std::vector<int> ThreadBundle::domainIds() const { return {m_domainIds.begin(), m_domainIds.end()}; }

bool ThreadBundle::setZoneIds(const std::vector<int>& ids)
{
    Registry& registry = physics()->registry();
    for (const int id : ids) {
        const ThreadBundle* holder = registry.bundlesByZoneId.find(id);
        if (holder != nullptr && holder != this)
            return false;
    }
    registry.removeZones(this);
    m_zoneIds.clear();
    m_zoneIds.insert(ids.begin(), ids.end());
    registry.addZones(this, ids);
    return true;
}

std::vector<int> ThreadBundle::zoneIds() const { return zoneIds(physics()->reportsFailures()); }

std::vector<int> ThreadBundle::zoneIds(bool mayReport) const
{
    if (hasOwnZones())
        return {m_zoneIds.begin(), m_zoneIds.end()};
    const Volume* volume = m_settings->volume();
    const Boundary* boundary = m_settings->boundary();
    switch (m_settings->topologyType()) {
    case TopologyType::Volume:
        return volume == nullptr ? std::vector<int>() : volume->zoneIds();
    case TopologyType::Internal:
        return volume == nullptr ? std::vector<int>() : volume->internalZoneIds(mayReport);
    case TopologyType::Boundary:
        return boundary == nullptr || boundary->noOfInterfaces() > 0 ? std::vector<int>() : boundary->zoneIds();
    case TopologyType::Interface:
        break;
    }
    return {};
}

void ThreadBundle::registerThread(int slot, void* handle)
{
    if (handle == nullptr)
        m_threads.erase(slot);
    else
        m_threads[slot] = handle;
}

void* ThreadBundle::thread(int slot) const
{
    const auto entry = m_threads.find(slot);
    return entry == m_threads.end() ? nullptr : entry->second;
}

void ThreadBundle::clearThreads() { m_threads.clear(); }

std::vector<void*> ThreadBundle::threads() const
{
    std::vector<void*> handles;
    for (const auto& entry : m_threads)
        handles.push_back(entry.second);
    return handles;
}

std::tuple<ThreadBundle*, ThreadBundle*, ThreadBundle*, bool> ThreadBundle::adjacentThreadBundles() const
{
    const Interface* interface = m_settings->interface();
    ThreadBundle* ofVolume = nullptr;
    switch (m_settings->topologyType()) {
    case TopologyType::Boundary: {
        ofVolume = bundleOf(m_settings->volume(), m_index);
        if (interface == nullptr)
            return {ofVolume, nullptr, nullptr, false};
        // Shell settings are on neither side, so that for them the other side is always the first.
        const bool isFirstSide = interface->boundarySettings(Side::First) == m_settings;
        const Side otherSide = isFirstSide ? Side::Second : Side::First;
        return {ofVolume, bundleOf(interface->volume(otherSide), m_index),
                bundleOf(interface->boundarySettings(otherSide), m_index), isFirstSide};
    }
    case TopologyType::Interface:
        if (interface == nullptr)
            break;
        return {bundleOf(interface->volume(Side::First), m_index), bundleOf(interface->volume(Side::Second), m_index),
                nullptr, false};
    case TopologyType::Internal:
        ofVolume = bundleOf(m_settings->volume(), m_index);
        return {ofVolume, ofVolume, nullptr, false};
    case TopologyType::Volume:
        break;
    }
    return {nullptr, nullptr, nullptr, false};
}

} // namespace physics
