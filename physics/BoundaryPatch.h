#pragma once

#include "physics/Export.h"
#include "physics/Lifetime.h"
#include "physics/Types.h"

#include <iosfwd>
#include <string>

namespace physics {

class Boundary;
class Interface;
class Model;
class PhysicsSerialiser;
class Settings;
class Volume;
struct PatchRecord;

/// The piece of a boundary that takes part in one interface, or (its interface is null) the piece that
/// takes part in none. Made and ended by its boundary; the settings of a patch end with it.
class PHYSICS_EXPORT BoundaryPatch final : public Referable, public Place<BoundaryPatch, OfBoundary> {
public:
    /// Drawn from a counter of the class; it never changes.
    int id() const { return m_id; }

    /// The boundary of which this is a piece; never null.
    Boundary* boundary() const { return m_boundary; }

    /// Null for the piece that lies in no interface.
    Interface* interface() const { return m_interface; }

    /// The volume of the boundary; never null.
    Volume* volume() const;

    /// The type of the volume.
    VolumeType volumeType() const;

    /// The boundary's shell type, also when it has no shell model.
    ShellType shellType() const;

    /// `Unset` without interface.
    InterfaceType interfaceType() const;

    /// The model that holds the settings of one kind: that of the volume, of the shell, or of the
    /// interface. Null when there is none, and for a value outside the enumeration.
    Model* model(SettingsType kind) const;

    /// The settings of one kind, made at the first request; null when there is no model for the kind, and
    /// for interface settings, which are never made on request.
    /// @{
    Settings* settings(SettingsType kind) const;
    Settings* boundarySettings() const;
    Settings* shellSettings() const;
    Settings* interfaceSettings() const;
    /// @}

    /// Whether the boundary takes part in any interface: the same answer for all patches of a boundary,
    /// its own patch included.
    bool isChild() const;

    /// The patch on the other side of the interface; this patch when the interface has the same boundary
    /// on both sides; null without interface.
    BoundaryPatch* pairedPatch() const;

    /// The name of an undivided boundary; else "BOUNDARY - INTERFACE" or "BOUNDARY - NON-OVERLAPPING".
    std::string name() const;

    /// Writes a framed block about the patch and its settings for people. `closes` asks for a rule at its
    /// end. Nothing is made: settings that were not asked for yet are written "<NONE>".
    void dump(std::ostream& stream, bool closes) const;

private:
    friend class Boundary;
    friend class Interface;
    friend class Model;
    friend class PhysicsSerialiser;
    friend class Settings;

    static int s_lastUsedId;

    BoundaryPatch(Boundary* boundary, Interface* interface);
    BoundaryPatch(int id, Boundary* boundary, Interface* interface);
    ~BoundaryPatch();

    /// Ends the settings of the patch and its ties to those that stay.
    void endSettings();

    PatchRecord serialise(const PhysicsSerialiser& serialiser) const;

    const int m_id;
    Boundary* m_boundary;
    Interface* m_interface;                // an interface that ends takes its patches along
    Brood<Settings, OfSubject> m_settings; // all that were made for this patch and live, in whichever model
};

} // namespace physics
