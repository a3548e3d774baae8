#pragma once

#include "physics/Export.h"
#include "physics/Lifetime.h"
#include "physics/Types.h"

#include <iosfwd>
#include <string>
#include <tuple>
#include <vector>

namespace physics {

class Physics;
class Settings;
struct BundleRecord;

/// One solver thread that a settings object asks for: its type, solver thread id, domains, mesh zones, and
/// the host's handles for it. Made by `Settings::createThreadBundle`; owned by the settings object and
/// ended with it or by `Settings::deleteThreadBundle`.
class PHYSICS_EXPORT ThreadBundle final : public Referable {
public:
    /// The solver thread id: bundles have no id of their own.
    /// @{
    int id() const { return m_threadId; }
    int threadId() const { return m_threadId; }
    /// @}

    /// Stores another thread id. `Physics::findThreadBundleByThreadId` goes on finding the bundle under
    /// the id with which it was created.
    void setThreadId(int threadId);

    /// The settings object that owns the bundle; never null.
    Settings* settings() const { return m_settings; }

    /// Where the settings object lists the bundle.
    int index() const { return m_index; }

    /// Whether the index is 0.
    bool isPrimary() const { return m_index == 0; }

    /// The kind of the solver thread: any value, stored as given.
    /// @{
    ThreadType threadType() const { return m_threadType; }
    void setThreadType(ThreadType type) { m_threadType = type; }
    /// @}

    /// The solver's number for the thread type; -1 for `Unset` and unknown types.
    int solverThreadType() const;

    /// Changes the domains of the thread, by id; whether the model has them is not checked. Adding a present id
    /// and removing an absent one answer false.
    /// @{
    bool addDomainId(int id);
    bool removeDomainId(int id);
    void setDomainIds(const std::vector<int>& ids);
    /// @}

    /// The ids of the domains: ascending, each once.
    std::vector<int> domainIds() const;

    /// Replaces the bundle's own zones; none means that it inherits them again. False, changing nothing,
    /// when another bundle is found under one of the zones. Taking zones releases those that the bundle
    /// reported until now, whichever bundle they name in the meantime.
    bool setZoneIds(const std::vector<int>& ids);

    /// The own zones, ascending; without any, those of the location model where the object is whole: of the
    /// volume, of its unused internal faces, or of an undivided boundary. Else empty.
    std::vector<int> zoneIds() const;

    /// Whether `zoneIds` lists zones that the bundle was given, not those that it inherits.
    bool hasOwnZones() const { return !m_zoneIds.empty(); }

    /// Handles of the host's solver threads by slot; stored, returned, never dereferenced or freed. A null
    /// handle empties its slot; an empty slot answers null.
    /// @{
    void registerThread(int slot, void* handle);
    void* thread(int slot) const;
    void clearThreads();
    /// @}

    /// The handles, by slot.
    std::vector<void*> threads() const;

    /// The bundles with the same index on either side of this one; null for what there is not.
    /// On a boundary: that of its volume; with an interface also that of the other side's volume, that of
    /// the other side's boundary, and true when this is the volume-side settings object of side 0.
    /// On an interface: those of the two volumes. On internal faces: that of the volume, twice.
    std::tuple<ThreadBundle*, ThreadBundle*, ThreadBundle*, bool> adjacentThreadBundles() const;

    /// Writes a line for people behind the prefix: index, thread id, type, domains, and the zones with a star
    /// when they are the bundle's own. A long list goes on in further lines.
    void dump(std::ostream& stream, const std::string& prefix) const;

private:
    friend class Peek;
    friend class Physics;
    friend class Registry;
    friend class Settings;

    ThreadBundle(Settings* settings, int index, ThreadType type, int threadId, const std::vector<int>& domainIds);
    /// Makes a bundle that is not registered yet.
    ThreadBundle(Settings* settings, int index, ThreadType type, int threadId, const std::vector<int>& domainIds,
                 const std::vector<int>& zoneIds);
    ~ThreadBundle();

    BundleRecord serialise() const;
    static ThreadBundle* restore(Settings* settings, const BundleRecord& record);

    Physics* physics() const;
    std::vector<int> zoneIds(bool mayReport) const;

    Settings* const m_settings;
    const int m_index;
    ThreadType m_threadType;
    int m_threadId;
    PooledSet<int> m_domainIds;
    PooledSet<int> m_zoneIds;
    PooledMap<int, void*> m_threads;
};

} // namespace physics
