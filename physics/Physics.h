#pragma once

#include "physics/Export.h"
#include "physics/NonCopyable.h"
#include "physics/TypeManager.h"
#include "physics/Types.h"

#include "gtm/VirtualTopology.h"

#include <array>
#include <cstddef>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

namespace gtm {
class Body;
class Face;
class FaceUse;
class Model;
class Part;
class Region;
} // namespace gtm

namespace physics {

class Boundary;
class BoundaryPatch;
class Interface;
class Model;
class Region;
class Registry;
class Settings;
class ThreadBundle;
class Volume;

/// The physics set-up of one case, over one location model.
///
/// It makes and owns every object of the set-up, finds and lists them, and holds the vocabulary tables,
/// the mask and the activation groups. Lists are new vectors of pointers to objects that stay owned here.
/// Nothing throws on its own account: refusals are null, false, -1 or empty, as each member says; null
/// arguments and objects of another `Physics` are refused before anything changes. Not safe for use from
/// two threads at once, nor are two set-ups: ids come from counters that all set-ups of a process share.
class PHYSICS_EXPORT Physics : private NonCopyable {
public:
    /// Builds an empty set-up. The location model is not owned and must outlive it. With
    /// `enforceRestrictions` the location model is asked to refuse whatever would not be valid.
    Physics(const gtm::Model* locationModel, bool enforceRestrictions);

    /// Ends every object, and the interiors, boundaries and interfaces under them.
    ~Physics();

    /// The location model that the set-up was built over, as it was given.
    const gtm::Model* locationModel() const { return m_locationModel; }

    /// The working copy of the topology in which the set-up lies. Change it only through the set-up.
    const gtm::VirtualTopology& virtualTopology() const { return m_virtualTopology; }

    /// Whether later creations are to be refused unless they are valid; it does not change the type tables.
    /// @{
    bool enforceRestrictions() const { return m_enforceRestrictions; }
    void setEnforceRestrictions(bool value) { m_enforceRestrictions = value; }
    /// @}

    /// Ends every object but ended interfaces, which stay readable, drops the activation groups and unmasks
    /// the bodies of every part. Flags, type tables and the id counters stay: ids go on. All pointers to
    /// objects are dead afterwards, but those to interfaces. Should the location model throw, call it again:
    /// until then what is left is found by nothing and listed by `unlistedRegions` alone.
    void clear();

    // ---- Creation. A null model stands for the primary model. Null when the location model refuses, and
    // ---- then nothing has changed; where the set-up reports failures, a message goes to standard output.

    /// Makes a model with its "Default" domain.
    Model* createModel();

    /// The model with the smallest id; made if there is none.
    Model* primaryModel();

    /// Makes a volume at a location. A braced empty list is ambiguous: spell its type.
    /// @{
    Volume* createVolume(const std::string& name, const std::string& location, VolumeType type, Model* model = nullptr);
    Volume* createVolume(const std::string& name, const std::vector<gtm::Region*>& regions, VolumeType type,
                         Model* model = nullptr);
    /// @}

    /// Makes a volume of every body that no other volume uses. Each call makes another volume on the one
    /// default interior; `defaultVolume` is the last of them. Null only if the location model has none.
    Volume* createDefaultVolume(const std::string& name, VolumeType type, Model* model = nullptr);

    /// Joins two boundaries of this set-up.
    Interface* createInterface(const std::string& name, Boundary* first, Boundary* second, InterfaceType type,
                               Model* model = nullptr);

    /// Joins two boundaries of this set-up that repeat the flow: as `createInterface`, and then
    /// `Interface::setTranslationalPeriodicity` or `Interface::setRotationalPeriodicity`.
    /// @{
    Interface* createTranslationallyPeriodicInterface(const std::string& name, Boundary* first, Boundary* second,
                                                      const std::array<double, 3>& offset, InterfaceType type,
                                                      Model* model = nullptr);
    Interface* createRotationallyPeriodicInterface(const std::string& name, Boundary* first, Boundary* second,
                                                   double angle, const std::array<double, 3>& origin,
                                                   const std::array<double, 3>& direction, InterfaceType type,
                                                   Model* model = nullptr);
    /// @}

    // ---- Look-ups; null when there is no such object.

    /// The last default volume that was made, or null.
    Volume* defaultVolume() const;

    /// Whether there is a default volume.
    bool hasDefaultVolume() const { return defaultVolume() != nullptr; }

    /// The object of one kind with this id, or null; each kind counts for itself.
    /// @{
    Volume* findVolumeById(int id) const;
    Boundary* findBoundaryById(int id) const;
    Interface* findInterfaceById(int id) const;
    Model* findModelById(int id) const;
    Settings* findSettingsById(int id) const;
    /// @}

    /// By the thread id with which the bundle was made; of several, the last. Null for a negative id.
    /// @{
    ThreadBundle* findThreadBundleByThreadId(int id) const;
    Settings* findSettingsByThreadId(int id) const;
    /// @}

    /// By a zone that the bundle took, or inherited when it was made; of several, the last. The sign counts.
    /// @{
    ThreadBundle* findThreadBundleByZoneId(int id) const;
    Settings* findSettingsByZoneId(int id) const;
    /// @}

    // ---- Lists.

    /// Volumes and interfaces in ascending byte order of their names at creation. Of two with equal names
    /// the newer is listed; the other lives on and is found by its id and in `unlistedRegions`.
    /// @{
    std::vector<Volume*> volumes() const;
    std::vector<Interface*> interfaces() const;
    /// @}

    /// By id.
    std::vector<Model*> models() const;

    /// Volume by volume, each in the volume's own order.
    std::vector<Boundary*> boundaries() const;

    /// The volumes, then boundaries, then interfaces, each by id, that are in none of these lists, because
    /// another of an equal name took their place; with the boundaries of such volumes.
    std::vector<Region*> unlistedRegions() const;

    /// Model by model, each by id; and their bundles, by index.
    /// @{
    std::vector<Settings*> settings() const;
    std::vector<ThreadBundle*> threadBundles() const;
    /// @}

    /// The thread ids of those bundles, ascending, each once.
    std::vector<int> threadIds() const;

    /// The zones that those bundles report, without their signs, ascending, each once.
    std::vector<int> zoneIds() const;

    // ---- Changes over the whole set-up.

    /// Takes regions out of every volume, then out of every boundary; true when any of them changed.
    bool removeRegions(const std::vector<gtm::Region*>& regions);

    /// Deactivates volumes together as a new group and returns its number, the smallest that is free; -1,
    /// changing nothing, when one is inactive already. No volumes make an empty group.
    int deactivateVolumes(const std::vector<Volume*>& volumes);

    /// Re-activates every volume of a group and drops the group; false when there is none.
    bool activateGroup(int group);

    /// Re-activates the groups of the given volumes; false, changing nothing, when one is active already.
    bool activateVolumes(const std::vector<Volume*>& volumes);

    /// Ascending.
    std::vector<int> activationGroups() const;

    /// In the order in which they were given, without those that ended; empty when there is no such group.
    std::vector<Volume*> activationGroupVolumes(int group) const;

    // ---- The mask: bodies that the location model treats as absent.

    /// Adds to the mask, takes out of it, or replaces the whole mask. A part stands for its bodies.
    /// @{
    void maskBodies(const std::vector<gtm::Body*>& bodies);
    void unmaskBodies(const std::vector<gtm::Body*>& bodies);
    void setMaskedBodies(const std::vector<gtm::Body*>& bodies);
    void maskParts(const std::vector<gtm::Part*>& parts);
    void unmaskParts(const std::vector<gtm::Part*>& parts);
    void setMaskedParts(const std::vector<gtm::Part*>& parts);
    /// @}

    /// Whether the location model treats it as absent. A part counts as masked when it has bodies and all are
    /// masked. False for null.
    /// @{
    bool isMasked(gtm::Body* body) const;
    bool isMasked(gtm::Face* face) const;
    bool isMasked(gtm::FaceUse* faceUse) const;
    bool isMasked(gtm::Part* part) const;
    /// @}

    /// All of the geometry that are masked or are not, in the order of the location model.
    /// @{
    std::vector<gtm::Body*> maskedBodies() const;
    std::vector<gtm::Body*> unmaskedBodies() const;
    std::vector<gtm::Face*> maskedFaces() const;
    std::vector<gtm::Face*> unmaskedFaces() const;
    std::vector<gtm::FaceUse*> maskedFaceUses() const;
    std::vector<gtm::FaceUse*> unmaskedFaceUses() const;
    std::vector<gtm::Part*> maskedParts() const;
    std::vector<gtm::Part*> unmaskedParts() const;
    /// @}

    /// The unmasked bodies that no volume uses.
    std::vector<gtm::Body*> unusedBodies() const;

    // ---- Validity, judged anew at each call. `lenient` accepts empty regions and leaves warnings out.

    /// Whether the location model calls its working copy valid.
    bool isTopologyValid(bool lenient) const;

    /// Whether no rule speaks against the set-up or one of its listed objects.
    bool isPhysicsValid(bool lenient) const;

    /// Both; the rules are not asked when the topology is invalid.
    bool isValid(bool lenient) const;

    /// What the rules say against the set-up, as whole lines for people; with `detailed`, also against each
    /// listed volume, boundary and interface, one empty line between objects. A faulty boundary is reported
    /// with its own lines and by one line of its volume and of each of its interfaces.
    std::vector<std::string> validate(bool detailed, bool ignoreWarnings) const;

    /// What the rules say against one object.
    struct Complaint {
        const Region* region;           ///< the object, or null for the set-up as a whole
        std::vector<std::string> lines; ///< as `validate` says them; never empty
    };

    /// What a detailed `validate` says, object by object in the same order, without the empty lines between.
    /// Objects that nothing is said against are left out. Cheaper than asking the objects one by one.
    std::vector<Complaint> complaints(bool ignoreWarnings) const;

    // ---- Reports

    /// Lists the whole set-up for people: counts, validity, models, every object with its settings and
    /// threads, what lies beside what. Nothing is made or printed elsewhere; settings that were not made yet
    /// are left out. The flags, width, fill, precision and locale of the stream neither matter nor change.
    /// The time is proportional to the length of the report, the judging of validity set apart. When the location
    /// model throws, the report ends with the section before.
    void dump(std::ostream& stream) const;

    // ---- The whole set-up as one text, with its interiors, boundaries, interfaces and mask. Not kept are
    // ---- ended and detached objects, the values of periodicity, and the hosts' thread handles.

    /// The text of the set-up: the same for the same set-up, whatever the process or its locale.
    std::string serialise() const;

    /// Replaces the set-up by that of a text. False when `checkSerialised` has something to say or the
    /// location model refuses to make an entity, and then the set-up stays as it was; only if the location
    /// model refuses what it granted at first, an empty set-up is left. All pointers to objects are dead
    /// after a success, but those to interfaces. Ids and their counters become those of the text; objects
    /// come back under the names that they have now.
    bool restore(const std::string& text);

    /// Why a text would be refused on this location model: one reason a line, each behind the number of a
    /// line of the text; at most a hundred. Empty when it would be accepted.
    std::vector<std::string> checkSerialised(const std::string& text) const;

    // ---- Names of types. Only the enumerations with a specialisation below have one.

    /// The name that reports print; empty for a value outside the enumeration.
    template <class E>
    std::string typeToName(E value) const = delete;

    /// The name in the solver's Scheme command language; the prefix alone for a value outside.
    template <class E>
    std::string typeToSchemeName(E value) const = delete;

    /// The solver's number for a thread type; -1 for `Unset` and unknown types.
    int threadTypeToSolverThreadType(ThreadType type) const;

    // ---- Which types may be used where.

    /// What the member of the same name of `TypeManager` answers.
    /// @{
    std::vector<VolumeType> allowedVolumeTypes();
    std::vector<InterfaceType> allowedInterfaceTypes();
    std::vector<ShellType> allowedShellTypes();
    std::vector<ThreadType> allowedThreadTypes();
    std::vector<DomainType> allowedDomainTypes();
    std::vector<BoundaryTag> allowedBoundaryTags();
    std::vector<Periodicity> allowedPeriodicities();
    std::vector<Connectivity> allowedConnectivities();
    std::vector<MeshConnectivity> allowedMeshConnectivities();
    std::vector<BoundaryType> allowedBoundaryTypes();
    std::vector<BoundaryType> allowedBoundaryTypes(VolumeType volumeType);
    std::vector<BoundaryType> allowedBoundaryTypes(InterfaceType interfaceType, VolumeType volumeType);
    std::vector<BoundaryType> allowedBoundaryTypes(ShellType shellType);
    std::vector<InterfaceType> allowedInterfaceTypes(BoundaryType boundaryType, VolumeType volumeType);
    std::vector<ShellType> allowedShellTypes(BoundaryType boundaryType);
    std::vector<BoundaryType> allowedInternalBoundaryTypes();
    std::vector<BoundaryType> allowedExternalBoundaryTypes();
    BoundaryType defaultBoundaryType(VolumeType volumeType);
    bool isAllowedBoundaryType(VolumeType volumeType, BoundaryType boundaryType) const;
    bool isAllowedBoundaryType(InterfaceType interfaceType, VolumeType volumeType, BoundaryType boundaryType) const;
    bool isAllowedInterfaceType(BoundaryType boundaryType, VolumeType volumeType, InterfaceType interfaceType) const;
    bool isAllowedShellType(BoundaryType boundaryType, ShellType shellType) const;
    bool isInternalBoundaryType(BoundaryType boundaryType) const;
    bool isSharedInterfaceType(InterfaceType interfaceType) const;
    /// @}

private:
    friend class Boundary;
    friend class Interface;
    friend class Model;
    friend class Peek;
    friend class PhysicsSerialiser;
    friend class Settings;
    friend class ThreadBundle;
    friend class Volume;

    template <class Where>
    Volume* createVolumeAt(const std::string& name, const Where& where, VolumeType type, Model* model);
    Volume* constructVolume(VolumeType type, Model* model, gtm::Interior* interior, const std::string* defaultName);

    /// The model to use for one that was asked for: the primary model for null.
    Model* modelOrPrimary(Model* model) { return model != nullptr ? model : primaryModel(); }
    bool isForeign(const Model* model) const;
    bool isForeign(const Boundary* boundary) const;

    /// The volume registered under the name of an interior, or null.
    Volume* find(const gtm::Interior* interior) const;
    Boundary* find(const gtm::Boundary* boundary) const;

    /// Whether all are volumes of this set-up and all active, or all inactive.
    bool areOurs(const std::vector<Volume*>& volumes, bool active) const;

    std::vector<gtm::Part*> partsThatAre(bool masked) const;
    std::vector<int> zoneIds(bool mayReport) const;
    std::vector<BoundaryPatch*> boundaryPatches() const;
    Registry& registry() { return *m_registry; }
    bool reportsFailures() const { return m_reportCreationFailures; }

    // The objects in the registry end first, and the working copy of the topology last.
    const gtm::Model* const m_locationModel;
    gtm::VirtualTopology m_virtualTopology;
    bool m_enforceRestrictions;
    bool m_reportCreationFailures = false; // written and read with the set-up; no setter
    TypeManager m_typeManager;
    std::unique_ptr<Registry> m_registry;
};

/// The names of one enumeration.
/// @{
template <>
PHYSICS_EXPORT std::string Physics::typeToName(BoundaryTag value) const;
template <>
PHYSICS_EXPORT std::string Physics::typeToName(BoundaryType value) const;
template <>
PHYSICS_EXPORT std::string Physics::typeToName(Connectivity value) const;
template <>
PHYSICS_EXPORT std::string Physics::typeToName(DomainType value) const;
template <>
PHYSICS_EXPORT std::string Physics::typeToName(InterfaceType value) const;
template <>
PHYSICS_EXPORT std::string Physics::typeToName(MeshConnectivity value) const;
template <>
PHYSICS_EXPORT std::string Physics::typeToName(Periodicity value) const;
template <>
PHYSICS_EXPORT std::string Physics::typeToName(SettingsType value) const;
template <>
PHYSICS_EXPORT std::string Physics::typeToName(ShellType value) const;
template <>
PHYSICS_EXPORT std::string Physics::typeToName(ThreadType value) const;
template <>
PHYSICS_EXPORT std::string Physics::typeToName(TopologyType value) const;
template <>
PHYSICS_EXPORT std::string Physics::typeToName(VolumeType value) const;

template <>
PHYSICS_EXPORT std::string Physics::typeToSchemeName(BoundaryTag value) const;
template <>
PHYSICS_EXPORT std::string Physics::typeToSchemeName(BoundaryType value) const;
template <>
PHYSICS_EXPORT std::string Physics::typeToSchemeName(Connectivity value) const;
template <>
PHYSICS_EXPORT std::string Physics::typeToSchemeName(DomainType value) const;
template <>
PHYSICS_EXPORT std::string Physics::typeToSchemeName(InterfaceType value) const;
template <>
PHYSICS_EXPORT std::string Physics::typeToSchemeName(MeshConnectivity value) const;
template <>
PHYSICS_EXPORT std::string Physics::typeToSchemeName(ShellType value) const;
template <>
PHYSICS_EXPORT std::string Physics::typeToSchemeName(ThreadType value) const;
template <>
PHYSICS_EXPORT std::string Physics::typeToSchemeName(VolumeType value) const;
/// @}

} // namespace physics
