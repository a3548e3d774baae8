#pragma once

#include "physics/ActivationGroups.h"
#include "physics/Lifetime.h"

#include <string>
#include <vector>

namespace gtm {
class Boundary;
}

namespace physics {

class Boundary;
class Interface;
class Model;
class Settings;
class ThreadBundle;
class Volume;

/// The objects of one set-up: who owns them, and the indexes by which they are found and listed.
///
/// Owning and finding are kept apart. An index can lose a live object, when another is registered under
/// its key or erased under its present name, and the text says so of renamed, equally named and
/// renumbered objects; the object stays owned all the same and ends with the set-up. Removing an object
/// first erases its present keys, whichever object they name by then, as hosts have come to rely on;
/// every entry that still names the object vanishes when it ends.
class Registry : private NonCopyable {
public:
    Registry() = default;
    ~Registry();

    // Registering is an insert or overwrite under each key; doing it twice finds and lists the same.
    void add(Model* model);
    void add(Volume* volume);
    void add(Boundary* boundary);
    void add(Interface* interface);
    void add(Settings* object);
    void add(ThreadBundle* bundle);
    void addZones(ThreadBundle* bundle, const std::vector<int>& zoneIds);

    // Taking out of the indexes; nothing is ended.
    void remove(Model* model);
    void remove(Volume* volume);
    void remove(Boundary* boundary);
    void remove(Interface* interface);
    void remove(Settings* object);
    void remove(ThreadBundle* bundle);
    void removeZones(ThreadBundle* bundle);

    // Taking out of the tables, of what is about to end; the other indexes find out about ends by themselves.
    void forget(const Volume* volume);
    void forget(const Boundary* boundary);
    void forget(const Interface* interface);

    /// In the order of the lists: volume by volume.
    std::vector<Boundary*> listedBoundaries() const;

    /// Whether the lists of boundaries have lost none.
    bool listsAllBoundaries() const;

    // All live objects: the listed ones in the order of the lists, then those that an index has lost.
    std::vector<Volume*> allVolumes() const;
    std::vector<Boundary*> allBoundaries() const;
    std::vector<Interface*> allInterfaces() const;

    /// True when no object is left but ended interfaces.
    bool isEmpty() const
    {
        return m_models.isEmpty() && m_volumes.isEmpty() && m_interfaces.isEmpty() && m_settings.isEmpty();
    }

    /// Takes over an interface that has ended, to free it with the set-up.
    void keepEnded(Interface* interface) { m_endedInterfaces.push_back(interface); }

    /// Ends every object, listed or not, and empties the indexes. Ended interfaces stay allocated.
    void clear();

    /// For the indexes of the objects; first, so that it ends last.
    NodePool nodes;

    Index<std::string, Volume> volumesByName{nodes};
    Index<std::string, Interface> interfacesByName{nodes};
    Index<int, Model> models{nodes};
    KeyTable<int, Volume> volumes{nodes};
    KeyTable<int, Boundary> boundaries{nodes};
    KeyTable<int, Interface> interfaces{nodes};
    KeyTable<int, Settings> settings{nodes};
    HashedIndex<int, ThreadBundle> bundlesByThreadId{nodes};
    HashedIndex<int, ThreadBundle> bundlesByZoneId{nodes};
    KeyTable<const Volume*, Volume> volumesByAddress{nodes};
    KeyTable<const Interface*, Interface> interfacesByAddress{nodes};
    KeyTable<const gtm::Boundary*, Boundary> boundariesByLocation{nodes};
    Link<Volume> defaultVolume;
    ActivationGroups activationGroups;

private:
    /// Empties the indexes and groups; the objects are still owned.
    void forgetAll();

    // All live objects that are owned here; volumes own their boundaries, settings their bundles.
    Brood<Model, OfSetUp> m_models;
    Brood<Volume, OfSetUp> m_volumes;
    Brood<Interface, OfSetUp> m_interfaces;
    Brood<Settings, OfSetUp> m_settings;
    std::vector<Interface*> m_endedInterfaces;
};

} // namespace physics
