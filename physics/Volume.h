#pragma once

#include "physics/Region.h"

#include "gtm/Interior.h"

#include <cstddef>
#include <iosfwd>
#include <string>
#include <vector>

namespace gtm {
class Body;
class Face;
class FaceUse;
class Interior;
class Location;
class Region;
} // namespace gtm

namespace physics {

class Boundary;
class Model;
class Physics;
class PhysicsSerialiser;
class Settings;
struct VolumeRecord;

/// A piece of the domain with one physical type, on an interior of the location model.
///
/// Made by `Physics::createVolume` and `createDefaultVolume`; ended by `destroy`, or by the end or
/// `clear` of its `Physics`. It owns its boundaries, which end with it, and points at its model.
class PHYSICS_EXPORT Volume final : public Region, public Place<Volume, OfSetUp>, public Place<Volume, OfModel> {
public:
    std::string name() const override;

    /// The same as `name`.
    std::string fullName() const override;
    int id() const override { return m_id; }
    State state() const override;
    TopologyType topologyType() const override { return TopologyType::Volume; }

    /// False while the volume is in an activation group.
    bool isActive() const override { return m_activationGroup == -1; }

    /// True when the interior has no body.
    bool isEmpty() const override;
    std::vector<std::string> validate(bool ignoreWarnings) const override;
    void dump(std::ostream& stream, bool closes) const override;
    std::string rename(const std::string& name) override;

    /// What fills the volume; `setType` changes it.
    VolumeType type() const { return m_type; }

    /// The model that the volume belongs to, or null after that model was destroyed.
    Model* model() const;

    /// The set-up to which the volume belongs; never null.
    Physics* physics() const { return m_physics; }

    /// The number of the group that deactivated the volume, or -1 while it is active.
    int activationGroup() const { return m_activationGroup; }

    /// Whether the volume lies on the default interior. `Physics::defaultVolume` names the last of them.
    bool isDefaultVolume() const { return m_isDefault; }

    /// The default boundary, or null.
    Boundary* defaultBoundary() const;

    /// Whether there is a default boundary.
    bool hasDefaultBoundary() const { return defaultBoundary() != nullptr; }

    /// The location-model entity on which the volume lies; never null. Change it only through the volume.
    gtm::Interior* interior() const { return m_interior; }

    /// What the interior answers, unchanged and in its order.
    /// @{
    const gtm::Location* location() const;
    std::vector<gtm::Body*> bodies() const;
    std::vector<gtm::Face*> internalFaces() const;
    std::vector<gtm::FaceUse*> unusedFaceUses() const;
    std::vector<gtm::Face*> unusedInternalFaces() const;
    std::vector<std::string> unresolvableNames() const;
    /// @}

    /// The bodies shared with another volume; empty for null and for a volume of another set-up.
    std::vector<gtm::Body*> overlap(const Volume* other) const;

    /// The volumes registered under the names of the overlapping interiors, in the location model's order;
    /// null stands for an interior under whose name no volume is registered.
    std::vector<Volume*> overlappingVolumes() const;

    /// The settings of the volume and of its internal faces, made at the first request; null when the
    /// volume has no model.
    /// @{
    Settings* settings() const;
    Settings* internalSettings() const;
    /// @}

    /// The type of a new boundary unless another is asked for; `Unset` when the type of the volume has none.
    BoundaryType defaultBoundaryType() const;

    /// The boundary types that the volume may carry, in ascending order.
    std::vector<BoundaryType> allowedBoundaryTypes() const;

    /// Whether `allowedBoundaryTypes` has the type.
    bool isAllowedBoundaryType(BoundaryType type) const;

    /// Creates a boundary on part of the surface. `BoundaryType::Unset` (-1) stands for the default type;
    /// whether the volume allows the type is left to validation. Null when the location model refuses.
    /// A braced empty list is ambiguous: spell its type.
    /// @{
    Boundary* createBoundary(const std::string& name, const std::string& location,
                             BoundaryType type = BoundaryType::Unset);
    Boundary* createBoundary(const std::string& name, const std::vector<gtm::Region*>& regions,
                             BoundaryType type = BoundaryType::Unset);
    /// @}

    /// Creates the boundary that takes what no other boundary uses. An existing default boundary is
    /// destroyed first, with every interface that it is in. Null only if the location model has none.
    Boundary* createDefaultBoundary(const std::string& name, BoundaryType type = BoundaryType::Unset);

    /// The boundaries in ascending order of their names at creation. Of two with equal names the newer is
    /// listed; the other lives on and is found by its id.
    std::vector<Boundary*> boundaries() const;

    /// Moves the volume; true exactly when the location model calls the result valid. With
    /// `enforceRestrictions`, a refused relocation changes nothing.
    /// @{
    bool relocate(const std::string& location, bool enforceRestrictions);
    bool relocate(const std::vector<gtm::Region*>& regions, bool enforceRestrictions);
    /// @}

    /// Takes regions out of the location; what the location model answers is passed on.
    bool remove(const std::vector<gtm::Region*>& regions);

    /// Changes the type. Each boundary whose type the new one does not allow is given the new default
    /// type; where an interface forbids that, the boundary keeps its type and validation reports it.
    void setType(VolumeType type);

    /// Moves the volume and its settings to another model; false for null or a model of another set-up.
    bool setModel(Model* model);

    /// Re-activates every volume of this volume's group; false when it is active.
    bool activate();

    /// Deactivates this volume alone; false when it is inactive already.
    bool deactivate();

    /// The solver zones of the bodies, body by body, repeats kept.
    std::vector<int> zoneIds() const;

    /// The solver zones on the first sides of the unused internal faces: absolute, ascending, each once.
    /// Where failures are reported, each call writes a line if the second sides differ.
    std::vector<int> internalZoneIds() const;

    /// Ends the volume with its boundaries and their interfaces, and its interior; the default interior
    /// is switched off instead. The pointer is dead afterwards.
    void destroy();

private:
    friend class ActivationGroups;
    friend class Boundary;
    friend class Model;
    friend class Peek;
    friend class Physics;
    friend class PhysicsSerialiser;
    friend class Registry;
    friend class Settings;
    friend class ThreadBundle;

    static int s_lastUsedId;

    Volume(Physics* physics, VolumeType type, Model* model, gtm::Interior* interior, bool isDefault);
    Volume(Physics* physics, int id, VolumeType type, Model* model, gtm::Interior* interior, bool isDefault);
    ~Volume();

    VolumeRecord serialise(const PhysicsSerialiser& serialiser) const;
    static Volume* restore(const PhysicsSerialiser& serialiser, const VolumeRecord& record);

    void add(Boundary* boundary);
    void adopt(Boundary* boundary);
    void remove(Boundary* boundary);
    void setActivationGroup(int group) { m_activationGroup = group; }

    template <class Where>
    Boundary* createBoundaryAt(const std::string& name, const Where& where, BoundaryType type);
    Boundary* constructBoundary(gtm::Boundary* boundary, BoundaryType type, const std::string* defaultName);

    Settings* settingsOfKind(TopologyType kind) const;

    /// All boundaries: those of `boundaries`, then, by id, those that it has lost because another has their name.
    std::vector<Boundary*> ownedBoundaries() const;

    /// Whether `boundaries` has lost none.
    bool listsAll() const { return m_boundariesByName.size() == m_noOfBoundaries; }
    std::vector<int> internalZoneIds(bool mayReport) const;

    const int m_id;
    VolumeType m_type;
    Model* m_model; // that has the volume among its members, or null
    int m_activationGroup = -1;
    gtm::Interior* m_interior;
    const bool m_isDefault;
    Physics* const m_physics;
    Link<Boundary> m_defaultBoundary;
    Index<std::string, Boundary> m_boundariesByName;
    Brood<Boundary, OfVolume> m_boundaries; // all that the volume owns
    std::size_t m_noOfBoundaries = 0;       // of them
    Brood<Settings, OfSubject> m_settings;  // all that were made for the volume and live
};

} // namespace physics
