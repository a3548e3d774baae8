#pragma once

#include "physics/Types.h"
#include "tests/gtm/ContractFixture.h"

#include <array>
#include <cstddef>
#include <map>
#include <set>
#include <string>
#include <vector>

/// A set-up written down once more, as plainly as it can be: every object is a record under its id, every
/// relation an id (0 for none), every index a standard map. It is slow, owns nothing and points at
/// nothing; random histories compare the library with it.
namespace reference {

using Id = int;

/// The bodies and faces by their number in the description.
struct Interior {
    std::string name;
    std::vector<int> bodies; // those of the default interior are worked out
};

struct Surface {
    std::string name;
    Id interior = 0;
    bool isDefault = false;
    std::vector<int> faces; // those of a default surface are worked out
};

struct Domain {
    physics::DomainType type;
    std::string name;
};

struct Model {
    std::set<Id> volumes;
    std::set<Id> shells;
    std::set<Id> interfaces;
    std::map<Id, Id> volumeSettings;
    std::map<Id, Id> internalSettings;
    std::map<Id, Id> interfaceSettings;
    std::map<Id, Id> patchVolumeSettings;
    std::map<Id, Id> patchShellSettings;
    std::map<int, Domain> domains;
};

struct Volume {
    physics::VolumeType type;
    Id model = 0;
    int group = -1;
    Id interior = 0;
    bool isDefault = false;
    Id defaultBoundary = 0;
    std::map<std::string, Id> boundariesByName;
    std::set<Id> boundaries;
};

struct Boundary {
    physics::BoundaryType type;
    physics::ShellType shellType = physics::ShellType::Unset;
    Id shellModel = 0;
    Id surface = 0;
    Id volume = 0;
    Id ownPatch = 0;
    std::map<Id, Id> patches; // by interface
    std::set<physics::BoundaryTag> tags;
};

struct Patch {
    Id boundary = 0;
    Id interface = 0;
};

struct Interface {
    std::string name;
    physics::InterfaceType type;
    physics::Periodicity periodicity = physics::Periodicity::NonPeriodic;
    Id model = 0;
    Id first = 0;
    Id second = 0;
    physics::MeshConnectivity meshConnectivity = physics::MeshConnectivity::Automatic;
    bool isMapped = false;
    bool isStatic = false;
    bool isMeshValid = false;
    std::array<double, 3> offset = {1, 0, 0};
    double angle = 0;
    std::array<double, 3> origin = {0, 0, 0};
    std::array<double, 3> direction = {1, 0, 0};
};

struct Settings {
    Id model = 0;
    physics::SettingsType type;
    physics::TopologyType topology;
    Id volume = 0;
    Id patch = 0;
    Id interface = 0;
    std::map<int, Id> bundles; // by index
    std::set<Id> replaced;
};

struct Bundle {
    Id settings = 0;
    int index = 0;
    physics::ThreadType type;
    int threadId = 0;
    std::set<int> domains;
    std::set<int> zones;
    std::map<int, void*> threads;
};

/// The ids drawn last.
struct Counters {
    Id model = 0;
    Id volume = 0;
    Id boundary = 0;
    Id interface = 0;
    Id patch = 0;
    Id settings = 0;
};

/// The uses of face f have the numbers 2f and 2f + 1.
class SetUp {
public:
    SetUp(contract::TopologyDescription topology, Counters counters);

    // The mutators, on objects that live, and what they return.
    Id createModel();
    Id primaryModel();
    void destroyModel(Id model);
    Id createVolume(const std::string& name, const std::vector<int>& bodies, physics::VolumeType type, Id model);
    Id createDefaultVolume(const std::string& name, physics::VolumeType type, Id model);
    void destroyVolume(Id volume);
    void setVolumeModel(Id volume, Id model);
    Id createBoundary(Id volume, const std::string& name, const std::vector<int>& faces, physics::BoundaryType type);
    Id createDefaultBoundary(Id volume, const std::string& name, physics::BoundaryType type);
    void destroyBoundary(Id boundary);
    void setShellModel(Id boundary, Id model);
    Id createInterface(const std::string& name, Id first, Id second, physics::InterfaceType type, Id model);
    void destroyInterface(Id interface);
    void setInterfaceModel(Id interface, Id model);
    void relocateInterface(Id interface, Id first, Id second);
    Id settingsOfVolume(Id model, Id volume);
    Id internalSettings(Id model, Id volume);
    Id settingsOfInterface(Id model, Id interface);
    Id settingsOfPatch(Id model, Id patch, physics::SettingsType kind);
    Id createThreadBundle(Id settings, int index, physics::ThreadType type, int threadId, const std::set<int>& domains);
    bool deleteThreadBundle(Id settings, int index);
    bool setZoneIds(Id bundle, const std::vector<int>& zones);
    int deactivate(const std::vector<Id>& volumes);
    bool activateGroup(int group);
    bool activate(const std::vector<Id>& volumes);
    bool removeRegions(const std::set<int>& bodies, const std::set<int>& faces);
    void clear();

    // What follows from the records.
    std::string nameOf(const Volume& volume) const { return interiors.at(volume.interior).name; }
    std::string nameOf(const Boundary& boundary) const { return surfaces.at(boundary.surface).name; }
    std::string nameOfPatch(Id patch) const;
    Id modelOfPatch(Id patch, physics::SettingsType kind) const;
    std::vector<Id> patchesOf(Id boundary) const;
    std::set<int> bodiesOf(Id interior) const;
    std::set<std::size_t> faceUsesOf(Id surface) const;
    std::set<int> zonesOfBoundary(Id boundary) const;
    std::vector<int> zonesOf(const Bundle& bundle) const;
    bool isActive(const Settings& settings) const;
    bool hasUnusedInternalFaces(Id interior) const { return !unusedInternalFaces(interior).empty(); }
    std::vector<Id> listedBoundaries() const;
    std::vector<Id> settingsOfModel(Id model) const;

    contract::TopologyDescription topology;
    Counters last;
    Id lastBundle = 0;
    Id lastPlace = 0;
    std::map<Id, Interior> interiors; // 0 is the default interior
    std::map<Id, Surface> surfaces;
    std::map<Id, Id> defaultSurfaces; // by interior
    std::map<Id, Model> models;
    std::map<Id, Volume> volumes;
    std::map<Id, Boundary> boundaries;
    std::map<Id, Patch> patches;
    std::map<Id, Interface> interfaces;
    std::set<Id> endedInterfaces;
    std::map<Id, Settings> settings;
    std::map<Id, Bundle> bundles;
    std::map<std::string, Id> volumesByName;
    std::map<std::string, Id> interfacesByName;
    std::map<Id, Id> boundariesBySurface;
    std::map<int, Id> bundlesByThread;
    std::map<int, Id> bundlesByZone;
    std::map<int, std::vector<Id>> groups;
    std::set<int> masked;
    Id defaultVolume = 0;
    bool isDefaultInteriorActive = false;

private:
    Id addVolume(const std::string& name, Id interior, physics::VolumeType type, Id model);
    Id addBoundary(Id volume, const std::string& name, Id surface, physics::BoundaryType type);
    void addPatchSettings(Id model, Id boundary);
    void addToInterface(Id boundary, Id interface);
    void removeFromInterface(Id boundary, Id interface);
    void endPatch(Id patch);
    Id makeSettings(Id model, physics::SettingsType type, physics::TopologyType topology);
    void endSettings(Id settings);
    void endOrphans(physics::TopologyType topology);
    void removeBundle(Id bundle);
    void moveSettings(Id from, Id to, std::map<Id, Id> Model::*map, Id key);
    std::vector<int> unusedInternalFaces(Id interior) const;
    std::set<int> facesInOrdinarySurfaces(Id interior) const;
    std::vector<int> zonesOfUse(std::size_t faceUse) const;

    std::vector<int> m_bodyOfUse; // -1 where a face has no second side
};

} // namespace reference
