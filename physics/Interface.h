#pragma once

#include "physics/Region.h"

#include <array>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

namespace gtm {
class Interface;
}

namespace physics {

class Boundary;
class BoundaryPatch;
class Model;
class Physics;
class PhysicsSerialiser;
class Settings;
class Volume;
struct InterfaceRecord;

/// Two boundaries that face each other, plainly or periodically, on an interface of the location model.
///
/// Made by `Physics::createInterface` and its periodic forms; ended by `destroy`, which also happens when
/// one of its boundaries ends. An ended interface stays allocated until its `Physics` ends, so a pointer
/// to it may be kept: its plain values stay readable, everything that it pointed at is null, its name is
/// empty, it is inactive and empty, its state is `Unresolvable`, and what would change a relation is refused.
class PHYSICS_EXPORT Interface final : public Region,
                                       public Place<Interface, OfSetUp>,
                                       public Place<Interface, OfModel> {
public:
    std::string name() const override;

    /// The same as `name`.
    std::string fullName() const override;
    int id() const override { return m_id; }
    State state() const override;
    TopologyType topologyType() const override { return TopologyType::Interface; }

    /// True when both boundaries are active.
    bool isActive() const override;

    /// True when both boundaries are empty.
    bool isEmpty() const override;
    std::vector<std::string> validate(bool ignoreWarnings) const override;
    void dump(std::ostream& stream, bool closes) const override;
    std::string rename(const std::string& name) override;

    /// What happens between the two sides.
    InterfaceType type() const { return m_type; }

    /// Stored without a check; validation reports boundaries that the type does not allow.
    void setType(InterfaceType type) { m_type = type; }

    /// The model that the interface belongs to, or null after that model was destroyed.
    Model* model() const;

    /// The set-up to which the interface belongs, also once ended; never null.
    Physics* physics() const { return m_physics; }

    /// The location-model entity on which the interface lies; null once ended. Change it only through
    /// this object.
    gtm::Interface* interface() const { return m_interface; }

    /// The boundary on a side; null once the interface has ended.
    Boundary* boundary(Side side) const;

    /// The volume of that boundary; null once the interface has ended.
    Volume* volume(Side side) const;

    /// The second boundary for the first, the first for the second, else null.
    Boundary* otherBoundary(const Boundary* boundary) const;

    /// The settings of the interface, made at the first request; null without a model.
    Settings* settings() const;

    /// The settings of a side, made at the first request: those of the boundary's patch for this interface,
    /// and those of the volume. Null without a model for them, and once the interface has ended.
    /// @{
    Settings* boundarySettings(Side side) const;
    Settings* boundaryShellSettings(Side side) const;
    Settings* boundaryInterfaceSettings(Side side) const;
    Settings* volumeSettings(Side side) const;
    /// @}

    /// Always false.
    bool requiresBoundaryInterfaceSettings() const { return false; }

    /// The types that a boundary on either side may have when its volume is of such a type, in ascending order.
    std::vector<BoundaryType> allowedBoundaryTypes(VolumeType volumeType) const;

    /// Whether `allowedBoundaryTypes` has the type.
    bool isAllowedBoundaryType(VolumeType volumeType, BoundaryType boundaryType) const;

    /// How the meshes of the two sides are to be joined: the caller's choice, stored as given; `Automatic` at
    /// first.
    /// @{
    MeshConnectivity meshConnectivity() const { return m_meshConnectivity; }
    void setMeshConnectivity(MeshConnectivity value) { m_meshConnectivity = value; }
    /// @}

    /// Three marks for the host, false at first. `relocate` takes the last one back.
    /// @{
    bool isMapped() const { return m_isMapped; }
    bool isStatic() const { return m_isStatic; }
    bool isMeshValid() const { return m_isMeshValid; }
    void setIsMapped(bool value) { m_isMapped = value; }
    void setIsStatic(bool value) { m_isStatic = value; }
    void setIsMeshValid(bool value) { m_isMeshValid = value; }
    /// @}

    /// Whether and how the interface repeats the flow; `NonPeriodic` at first.
    Periodicity periodicity() const { return m_periodicity; }

    /// True for anything but `NonPeriodic`.
    bool isPeriodic() const { return m_periodicity != Periodicity::NonPeriodic; }

    /// Makes the interface periodic in one way; the values of the other way are kept. Values are stored as
    /// given: lengths and angle in the host's units, no range check, the direction not normalised.
    /// @{
    void setTranslationalPeriodicity(const std::array<double, 3>& offset);
    void setRotationalPeriodicity(double angle, const std::array<double, 3>& origin,
                                  const std::array<double, 3>& direction);
    /// @}

    /// Makes the interface plain; all values are kept.
    void setNonPeriodic() { m_periodicity = Periodicity::NonPeriodic; }

    /// The offset that was given last, in the host's length unit; (1, 0, 0) at first.
    std::array<double, 3> getPeriodicOffset() const { return periodic().offset; }

    /// The angle that was given last, in the host's unit; 0 at first.
    double getPeriodicAngle() const { return periodic().angle; }

    /// A point of the axis of rotation, as given last, in the host's length unit; (0, 0, 0) at first.
    std::array<double, 3> getPeriodicOrigin() const { return periodic().origin; }

    /// The direction of the axis of rotation, as given last; (1, 0, 0) at first.
    std::array<double, 3> getPeriodicDirection() const { return periodic().direction; }

    /// How far the two sides share faces. `Total` when every face use of the second side has its partner
    /// on the first and none of the first is left over, so also for two empty sides.
    Connectivity connectivity() const;

    /// True when the sides share no face.
    bool isSliding() const { return connectivity() == Connectivity::None; }

    /// Moves the interface and its settings to another model; false for null or a model of another set-up.
    bool setModel(Model* model);

    /// Replaces both boundaries; true exactly when the location model calls the result valid. With
    /// `enforceRestrictions`, a refused relocation changes nothing; without, the sides change in any case.
    /// A boundary that leaves loses its patch with the settings on it; one that joins starts without.
    /// False for null, or a boundary of another set-up, changing nothing.
    bool relocate(Boundary* first, Boundary* second, bool enforceRestrictions);

    /// Ends the interface and its location-model interface; ending it again does nothing.
    void destroy();

private:
    friend class Boundary;
    friend class Model;
    friend class Physics;
    friend class PhysicsSerialiser;
    friend class Registry;
    friend class Settings;

    struct PeriodicValues {
        std::array<double, 3> offset = {1, 0, 0};
        double angle = 0;
        std::array<double, 3> origin = {0, 0, 0};
        std::array<double, 3> direction = {1, 0, 0};
    };

    static int s_lastUsedId;

    Interface(Physics* physics, InterfaceType type, Model* model, gtm::Interface* interface, Boundary* first,
              Boundary* second);
    Interface(Physics* physics, int id, InterfaceType type, Model* model, gtm::Interface* interface, Boundary* first,
              Boundary* second);
    ~Interface() = default;

    InterfaceRecord serialise(const PhysicsSerialiser& serialiser) const;
    static Interface* restore(const PhysicsSerialiser& serialiser, const InterfaceRecord& record);

    const PeriodicValues& periodic() const;
    PeriodicValues& periodicToChange();

    /// The patch of a boundary for this interface, or null.
    BoundaryPatch* patchOf(const Boundary* boundary) const;

    /// Takes a new patch of a boundary on a side, and answers the one that it had.
    BoundaryPatch* exchangePatch(BoundaryPatch* patch);
    void rebind(const std::array<Boundary*, 2>& sides);
    void leaveBoundaries();
    bool hasEnded() const { return m_interface == nullptr; }

    const int m_id;
    InterfaceType m_type;
    Periodicity m_periodicity = Periodicity::NonPeriodic;
    MeshConnectivity m_meshConnectivity = MeshConnectivity::Automatic;
    Model* m_model; // that has the interface among its members, or null
    gtm::Interface* m_interface;
    Physics* const m_physics;
    std::array<Boundary*, 2> m_boundaries;                        // a boundary ends its interfaces before it ends
    std::array<BoundaryPatch*, 2> m_patches = {nullptr, nullptr}; // theirs; one twice when they are one boundary
    bool m_isMapped = false;
    bool m_isStatic = false;
    bool m_isMeshValid = false;
    std::unique_ptr<PeriodicValues> m_periodic; // null until some are given: few interfaces are periodic
    Brood<Settings, OfSubject> m_settings;      // all that were made for the interface and live
};

} // namespace physics
