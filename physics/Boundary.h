#pragma once

#include "physics/BoundaryPatch.h"
#include "physics/Region.h"

#include <iosfwd>
#include <string>
#include <vector>

namespace gtm {
class Boundary;
class FaceUse;
class Location;
class Region;
} // namespace gtm

namespace physics {

class Interface;
class Model;
class Physics;
class PhysicsSerialiser;
class Settings;
class Volume;
struct BoundaryRecord;

/// A named part of a volume's surface with one physical type, and the shell that may sit on it.
///
/// Made by `Volume::createBoundary` and `createDefaultBoundary`; ended by `destroy` or with its volume.
/// It owns its patches: one of its own, and one for each interface that it takes part in.
class PHYSICS_EXPORT Boundary final : public Region, public Place<Boundary, OfVolume>, public Place<Boundary, OfModel> {
public:
    std::string name() const override;

    /// "VOLUME::BOUNDARY", with the volume's present name.
    std::string fullName() const override;
    int id() const override { return m_id; }
    State state() const override;
    TopologyType topologyType() const override { return TopologyType::Boundary; }

    /// What the volume answers.
    bool isActive() const override;

    /// True when the boundary has no face use.
    bool isEmpty() const override;
    std::vector<std::string> validate(bool ignoreWarnings) const override;
    void dump(std::ostream& stream, bool closes) const override;
    std::string rename(const std::string& name) override;

    /// The condition on the boundary; `setBoundaryType` changes it.
    BoundaryType type() const { return m_type; }

    /// The type of the shell; `Unset` until one is set. It outlives the shell model.
    ShellType shellType() const { return m_shellType; }

    /// The model that holds the shell, or null when the boundary carries none.
    Model* shellModel() const;

    /// The volume that owns the boundary; never null.
    Volume* volume() const { return m_volume; }

    /// The model of the volume, or null when it has none.
    Model* volumeModel() const;

    /// The type of the volume.
    VolumeType volumeType() const;

    /// The location-model entity on which the boundary lies; never null. Change it only through this object.
    gtm::Boundary* boundary() const { return m_boundary; }

    /// Whether the boundary takes what no other boundary of its volume uses.
    bool isDefaultBoundary() const { return m_isDefault; }

    /// What the location-model boundary answers, unchanged and in its order.
    /// @{
    const gtm::Location* location() const;
    std::vector<gtm::FaceUse*> faceUses() const;
    std::vector<std::string> unresolvableNames() const;
    /// @}

    /// The face uses shared with another boundary; empty for null and for one of another set-up.
    std::vector<gtm::FaceUse*> overlap(const Boundary* other) const;

    /// The boundaries that share face uses with this one, in the location model's order; null stands for
    /// one that belongs to no boundary of the set-up.
    std::vector<Boundary*> overlappingBoundaries() const;

    /// Whether the type is one that lies between two volumes: a statement about the physics.
    bool isInternal() const;

    /// Whether all of the boundary lies inside its volume: a statement about the geometry.
    bool couldBeInternal() const;

    /// The boundary on the other side of the same faces, or null.
    Boundary* pair() const;

    /// Changes the type; false, with no change, when the volume or one of the interfaces forbids it. The
    /// shell is not looked at.
    bool setBoundaryType(BoundaryType type);

    /// Changes the shell type; false, with no change, when there is no shell model or the boundary's type
    /// does not allow such a shell.
    bool setShellType(ShellType type);

    /// Puts a shell on the boundary, moves it to another model, or takes it off (null), which ends the
    /// shell settings of all patches. The shell type stays. A model of another set-up is ignored.
    void setShellModel(Model* model);

    /// The interfaces in which a boundary of this type and of such a volume may lie, in ascending order.
    std::vector<InterfaceType> allowedInterfaceTypes() const;

    /// Whether `allowedInterfaceTypes` has the type.
    bool isAllowedInterfaceType(InterfaceType type) const;

    /// The shells that a boundary of this type may carry, in ascending order.
    std::vector<ShellType> allowedShellTypes() const;

    /// Whether `allowedShellTypes` has the type.
    bool isAllowedShellType(ShellType type) const;

    /// Puts a mark on the boundary; one that is there stays.
    void addTag(BoundaryTag tag);

    /// Takes a mark off the boundary, if it is there.
    void removeTag(BoundaryTag tag);

    /// Whether the boundary has the mark.
    bool hasTag(BoundaryTag tag) const;

    /// In ascending order of the enumerator.
    std::vector<BoundaryTag> tags() const;

    /// How many interfaces the boundary is in; one for an interface that has it on both sides.
    int noOfInterfaces() const;

    /// By id.
    std::vector<Interface*> interfaces() const;

    /// The patch for an interface, null when the boundary is not in it; the own patch for null.
    BoundaryPatch* patch(const Interface* interface) const;

    /// The own patch, then the others by the id of their interface.
    std::vector<BoundaryPatch*> patches() const;

    /// The settings of one kind of the patch for an interface (the own patch for null), made at the first
    /// request; null when there is no such patch or no model for that kind. Interface settings of patches
    /// are never made on request.
    /// @{
    Settings* settings(SettingsType kind, const Interface* interface) const;
    Settings* boundarySettings(const Interface* interface) const;
    Settings* shellSettings(const Interface* interface) const;
    Settings* interfaceSettings(const Interface* interface) const;
    /// @}

    /// The settings of the part that lies in no interface: those of the own patch.
    /// @{
    Settings* nonOverlappingBoundarySettings() const;
    Settings* nonOverlappingShellSettings() const;
    /// @}

    /// The settings of all patches, made where they are missing, each once and by id. A patch without
    /// settings contributes one null at the front, but not among the interface settings. Empty when the
    /// boundary has no model for that kind.
    /// @{
    std::vector<Settings*> allBoundarySettings() const;
    std::vector<Settings*> allShellSettings() const;
    std::vector<Settings*> allInterfaceSettings() const;
    std::vector<Settings*> allSettings() const;
    /// @}

    /// The solver zones of the face uses: absolute, ascending, each once.
    std::vector<int> zoneIds() const;

    /// Whether some of the boundary lies outside all of its interfaces: 0 when nothing does (or it is
    /// empty), 1 when it is in no interface at all, 2 when part of it does.
    int hasExternalRegion() const;

    /// Moves the boundary; true exactly when the location model calls the result valid. With
    /// `enforceRestrictions`, a refused relocation changes nothing.
    /// @{
    bool relocate(const std::string& location, bool enforceRestrictions);
    bool relocate(const std::vector<gtm::Region*>& regions, bool enforceRestrictions);
    /// @}

    /// Takes regions out of the location; what the location model answers is passed on.
    bool remove(const std::vector<gtm::Region*>& regions);

    /// Ends the boundary with every interface that it is in, and its location-model boundary; a default
    /// one is switched off instead. Always true; the pointer is dead afterwards.
    bool destroy();

private:
    friend class BoundaryPatch;
    friend class Interface;
    friend class Model;
    friend class PhysicsSerialiser;
    friend class Registry;
    friend class Volume;

    static int s_lastUsedId;

    Boundary(Volume* volume, BoundaryType type, gtm::Boundary* boundary, bool isDefault);
    Boundary(int id, int ownPatchId, Volume* volume, BoundaryType type, gtm::Boundary* boundary, bool isDefault);
    ~Boundary();

    BoundaryRecord serialise(const PhysicsSerialiser& serialiser) const;
    static Boundary* restore(const PhysicsSerialiser& serialiser, const BoundaryRecord& record);

    void addToInterface(Interface* interface);
    void addPatch(BoundaryPatch* patch);
    void removePatch(BoundaryPatch* patch);
    void endPatches();
    Physics* physics() const;

    /// Like `patch`, for an interface that is known to live.
    BoundaryPatch* patchFor(const Interface* live) const;
    void appendPatches(std::vector<BoundaryPatch*>& result) const; // in no particular order
    void appendSettings(std::vector<Settings*>& result, SettingsType kind) const;
    void appendInterfaceSettings(std::vector<Settings*>& result) const;

    const int m_id;
    BoundaryType m_type;
    ShellType m_shellType = ShellType::Unset;
    std::vector<BoundaryTag> m_tags; // ascending
    Model* m_shellModel = nullptr;   // that has the boundary among its shells
    gtm::Boundary* m_boundary;
    Volume* m_volume;
    const bool m_isDefault;
    int m_noOfInterfaces = 0;
    mutable BoundaryPatch m_ownPatch;                    // as behind a pointer: a constant boundary hands it out
    Brood<BoundaryPatch, OfBoundary> m_interfacePatches; // those for interfaces; all that the boundary owns
};

} // namespace physics
