#pragma once

#include "physics/Export.h"
#include "physics/Lifetime.h"
#include "physics/Types.h"

#include <iosfwd>
#include <string>
#include <utility>
#include <vector>

namespace physics {

class Boundary;
class BoundaryPatch;
class Interface;
class Model;
class Physics;
class PhysicsSerialiser;
class ThreadBundle;
class Volume;
struct SettingsRecord;

/// The solver-facing set-up of a volume, of the internal faces of a volume, of one kind of a boundary
/// patch, or of an interface: the solver threads that realise it.
///
/// Made by the models at the first request; ended with the object that it belongs to, also when its
/// model was destroyed before. Only the internal settings of a volume, and those of a patch that are of
/// no known kind, stay behind: then what they were made for is null, they are inactive, and they are
/// found by id and thread until `Physics::clear`. It owns its thread bundles.
class PHYSICS_EXPORT Settings final : public Referable,
                                      public Place<Settings, OfSetUp>,
                                      public Place<Settings, OfModel>,
                                      public Place<Settings, OfSubject> {
public:
    /// Drawn from a counter of the class; it never changes.
    int id() const { return m_id; }

    /// The kind of settings.
    SettingsType type() const { return m_type; }

    /// The kind of object that they belong to; those of a patch belong to a boundary.
    TopologyType topologyType() const { return m_topologyType; }

    /// The model that holds the settings, or null after it was destroyed.
    Model* model() const;

    /// The volume, or that of the patch; null for interface settings.
    Volume* volume() const;

    /// The interface, or that of the patch; null when there is none.
    Interface* interface() const;

    /// The boundary of the patch, or null.
    Boundary* boundary() const;

    /// The patch, or null for settings of a volume or an interface.
    BoundaryPatch* boundaryPatch() const;

    /// The name of the object; "Internal settings" for those of the internal faces.
    std::string name() const;

    /// Whether the object takes part in the set-up. Internal settings are active exactly when the volume
    /// has unused internal faces, active or not; those of a patch do not look at its interface.
    bool isActive() const;

    /// Makes the solver thread at an index, or changes type and domains of the one that has this thread id
    /// at that index. Null, changing nothing, when another index has the thread id. A bundle that is
    /// replaced at its index is no longer listed here but lives on, findable, until the settings end.
    ThreadBundle* createThreadBundle(int index, ThreadType type, int threadId, const std::vector<int>& domainIds);

    /// Ends the bundle at an index; pointers to it are dead afterwards. False when there is none.
    bool deleteThreadBundle(int index);

    /// The bundle at an index, or null.
    ThreadBundle* threadBundle(int index) const;

    /// The bundle at index 0, or null.
    ThreadBundle* primaryThreadBundle() const { return threadBundle(0); }

    /// The bundle at the lowest index that has this thread id now, or null.
    ThreadBundle* threadBundleWithThreadId(int threadId) const;

    /// By index.
    std::vector<ThreadBundle*> threadBundles() const;

    /// One for each bundle, by index, repeats kept.
    std::vector<int> threadIds() const;

    /// What the bundle at an index answers; -1, `ThreadType::Unset` (0), -1, empty and null when there is none.
    /// @{
    int threadId(int index) const;
    ThreadType threadType(int index) const;
    int solverThreadType(int index) const;
    std::vector<int> domainIds(int index) const;
    void* thread(int index, int slot) const;
    /// @}

    /// The handles of all bundles, by index and slot.
    std::vector<void*> threads() const;

    /// Whether there is a bundle, with or without handles.
    bool hasThreads() const { return !m_bundles.empty(); }

    /// Writes a framed block about the settings for people, under the heading ("Settings" for an empty one).
    /// `closes` is there for the likeness with the other blocks and changes nothing.
    void dump(std::ostream& stream, bool closes, const std::string& heading) const;

private:
    friend class BoundaryPatch;
    friend class Interface;
    friend class Model;
    friend class PhysicsSerialiser;
    friend class Registry;
    friend class ThreadBundle;
    friend class Volume;

    static int s_lastUsedId;

    Settings(int id, Model* model, SettingsType type, TopologyType topologyType);
    Settings(Model* model, SettingsType type, TopologyType topologyType);
    ~Settings();

    SettingsRecord serialise(const PhysicsSerialiser& serialiser) const;
    static Settings* restore(const PhysicsSerialiser& serialiser, const SettingsRecord& record);

    Physics* physics() const { return m_physics; }

    /// True when the object that these settings were made for has ended.
    bool isDetached() const;

    bool isListed(const ThreadBundle* bundle) const;
    void threadIdChanges(const ThreadBundle* bundle, int threadId);

    /// Binds the settings to the object for which they are made.
    /// @{
    void belongTo(Volume* volume);
    void belongTo(BoundaryPatch* patch);
    void belongTo(Interface* interface);
    /// @}

    /// The object for which all these settings were made has ended. A model has ended those that it held for it.
    static void detachAll(const Brood<Settings, OfSubject>& settings);

    const int m_id;
    const SettingsType m_type;
    const TopologyType m_topologyType;
    Physics* const m_physics;
    Model* m_model;                                   // which empties its lists when it ends
    Referable* m_subject = nullptr;                   // a volume, a patch or an interface, as the topology type says
    PooledMap<int, ThreadBundle*> m_bundles;          // owned
    std::vector<ThreadBundle*> m_replacedBundles;     // owned
    PooledSet<std::pair<int, int>> m_indexByThreadId; // (thread id, index) of the listed bundles
};

} // namespace physics
