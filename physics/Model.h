#pragma once

#include "physics/Export.h"
#include "physics/Lifetime.h"
#include "physics/Types.h"

#include <iosfwd>
#include <map>
#include <string>
#include <vector>

namespace physics {

class Boundary;
class BoundaryPatch;
class Interface;
class Physics;
class PhysicsSerialiser;
class Settings;
class Volume;
struct ModelRecord;

/// One physics model of a set-up: its domains, the volumes, shells and interfaces that belong to it, and
/// the place where their settings are found.
///
/// Made by `Physics::createModel`; ended by `destroy` or with its `Physics`. It owns its domains only:
/// members that outlive it have no model, and their settings stay findable by id, thread and zone.
class PHYSICS_EXPORT Model final : public Referable, public Place<Model, OfSetUp> {
public:
    /// Drawn from a counter of the class; it never changes.
    int id() const { return m_id; }

    /// The set-up to which the model belongs; never null.
    Physics* physics() const { return m_physics; }

    /// Adds a domain or replaces the one with the same id. Nothing is checked. A new model has the domain
    /// 1, `DomainType::Geometry`, "Default".
    void addDomain(int id, DomainType type, const std::string& name);

    /// False when there is no such domain. Thread bundles go on listing the id.
    bool removeDomain(int id);

    /// The ids of all domains, or of those of one type, ascending.
    /// @{
    std::vector<int> domainIds() const;
    std::vector<int> domainIdsOfType(DomainType type) const;
    /// @}

    /// Empty for an unknown id.
    std::string domainName(int id) const;

    /// The name as a symbol of the solver's Scheme language; empty for an unknown id.
    std::string domainSymbol(int id) const;

    /// `Unset` for an unknown id.
    DomainType domainType(int id) const;

    /// The settings of a member, made at the first request; null for what is not a member of this model,
    /// which may have ended.
    /// @{
    Settings* settings(const Volume* volume);
    Settings* internalSettings(const Volume* volume);
    Settings* settings(const Interface* interface);
    /// @}

    /// The settings of one kind that this model keeps for a patch, made at the first request, whether or
    /// not the patch belongs here. Null for interface settings, which are never made on request; for shell
    /// settings when the boundary has no shell model; and for a null patch or one of another set-up. A
    /// value outside the enumeration makes a new object at each call, found by its id only.
    Settings* settings(const BoundaryPatch* patch, SettingsType kind);

    /// The members of a kind, by id. As with all lists here, no settings are made.
    /// @{
    std::vector<Volume*> volumes() const;
    std::vector<Interface*> interfaces() const;
    /// @}

    /// The boundaries of the volumes, those whose shell is here, and both sides of the interfaces: each
    /// once, by id.
    std::vector<Boundary*> boundaries() const;

    /// The patches of `boundaries()`, by id.
    std::vector<BoundaryPatch*> boundaryPatches() const;

    /// The settings made so far, by the id of the object that they belong to.
    /// @{
    std::vector<Settings*> volumeSettings() const;
    std::vector<Settings*> internalSettings() const;
    std::vector<Settings*> interfaceSettings() const;
    /// @}

    /// Volume side, then shell side, then interface side; each by the id of the patch.
    std::vector<Settings*> boundaryPatchSettings() const;

    /// Those of one boundary, in the order of its patches; empty for null.
    /// @{
    std::vector<Settings*> volumeSettings(const Boundary* boundary) const;
    std::vector<Settings*> shellSettings(const Boundary* boundary) const;
    /// @}

    /// All settings held here, by their ids.
    std::vector<Settings*> settings() const;

    /// Writes a framed block about the model for people: its domains, and the ids of its members and settings.
    void dump(std::ostream& stream) const;

    /// Writes a table of the domains, by id, with the prefix in front of each line.
    void dumpDomains(std::ostream& stream, const std::string& prefix) const;

    /// Ends the model. Its volumes, shells and interfaces live on without a model. The pointer is dead
    /// afterwards.
    void destroy();

private:
    friend class Boundary;
    friend class BoundaryPatch;
    friend class Interface;
    friend class Peek;
    friend class Physics;
    friend class PhysicsSerialiser;
    friend class Registry;
    friend class Settings;
    friend class Volume;

    struct Domain {
        DomainType type;
        std::string name;
        std::string symbol;
    };
    using HeldSettings = Brood<Settings, OfModel>;

    static int s_lastUsedId;

    explicit Model(Physics* physics);
    Model(Physics* physics, int id);
    ~Model();

    ModelRecord serialise(const PhysicsSerialiser& serialiser) const;
    static Model* restore(const PhysicsSerialiser& serialiser, const ModelRecord& record);

    /// Whether a live object is among the members, or the shells.
    /// @{
    bool has(const Volume* volume) const;
    bool has(const Boundary* boundary) const;
    bool has(const Interface* interface) const;
    /// @}

    /// The settings of a live member, made at the first request; null for null and for what is no member.
    /// @{
    Settings* settingsOf(Volume* volume, TopologyType topologyType);
    Settings* settingsOf(Interface* interface);
    /// @}

    /// Makes settings of a new id for an object and holds them.
    template <class Subject>
    Settings* make(Subject* subject, SettingsType type, TopologyType topologyType);

    /// Holds settings among those of their kind; those that another model held move.
    void hold(Settings* settings);

    void add(Volume* volume);
    void add(Boundary* boundary);
    void add(Interface* interface);
    void addVolumeBoundary(Boundary* boundary);
    void remove(Volume* volume);
    void remove(Boundary* boundary);
    void remove(Interface* interface);
    void removeVolumeBoundary(Boundary* boundary);
    void move(Volume* volume, Model* target);
    void move(Boundary* boundary, Model* target);
    void move(Interface* interface, Model* target);

    /// The settings that this model holds for an object, or null; also null for null.
    /// @{
    Settings* held(const Volume* volume, TopologyType topologyType) const;
    Settings* held(const BoundaryPatch* patch, SettingsType type) const;
    Settings* held(const Interface* interface) const;
    Settings* heldOf(const Brood<Settings, OfSubject>& ofSubject, SettingsType type, TopologyType topologyType) const;
    /// @}

    /// Ends the settings of one kind that this model holds for a patch, if there are any.
    void deleteBoundaryPatchSettings(const BoundaryPatch* patch, SettingsType kind);

    /// Ends the settings of a member that leaves; null when they were never asked for.
    void endSettings(const Settings* settings);

    /// Hands settings over to another model and ends those that it was asked to keep for the same object before
    /// that was its own. Either may be null.
    static void handOver(Settings* settings, Settings* replaced, Model* target);
    void moveSettings(const BoundaryPatch* patch, SettingsType kind, Model* target);

    /// Where settings of a kind are held; those of a value outside the enumerations belong to no list.
    HeldSettings& listOf(SettingsType type, TopologyType topologyType);
    static bool isPatchKind(SettingsType kind);

    /// By the ids of what they were made for.
    template <class Subject>
    static std::vector<Settings*> sorted(const HeldSettings& held, Subject* (Settings::*subject)() const);
    static std::vector<Settings*> byVolume(const HeldSettings& held);
    static std::vector<Settings*> byPatch(const HeldSettings& held);
    static std::vector<Settings*> byInterface(const HeldSettings& held);

    std::vector<Settings*> patchSettings(const Boundary* boundary, SettingsType kind) const;

    const int m_id;
    Physics* const m_physics;
    Brood<Volume, OfModel> m_volumes;
    Brood<Boundary, OfModel> m_boundaries; // those whose shell model this is
    Brood<Interface, OfModel> m_interfaces;
    HeldSettings m_volumeSettings;
    HeldSettings m_internalSettings;
    HeldSettings m_patchVolumeSettings;
    HeldSettings m_patchShellSettings;
    HeldSettings m_patchInterfaceSettings;
    HeldSettings m_interfaceSettings;
    HeldSettings m_unlistedSettings; // know the model but are not among its settings
    std::map<int, Domain> m_domains;
};

} // namespace physics
