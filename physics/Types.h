#pragma once

#include <cstdint>

/// The physics set-up of a case: `Physics` makes and owns all of it.
namespace physics {

// The numbers of all enumerations are written into saved texts: they never change. A value outside its
// enumeration is legal everywhere and answers with an empty name, an empty list, false or `Unset`.

/// What fills a volume.
enum class VolumeType : std::int32_t {
    Unset = -1, ///< not chosen yet
    Solid = 0,  ///< material in which nothing flows
    Fluid = 1,  ///< material that flows
    Porous = 2, ///< material through whose pores a fluid flows
};

/// The physical condition on a boundary: what the flow does there.
enum class BoundaryType : std::int32_t {
    Unset = -1,           ///< not chosen yet; in a creation, the default type of the volume
    VelocityInlet = 0,    ///< enters with a given velocity
    MassFlowInlet = 1,    ///< enters with a given mass flow
    MassFlowOutlet = 2,   ///< leaves with a given mass flow
    PressureInlet = 3,    ///< enters at a given total pressure
    PressureOutlet = 4,   ///< leaves at a given static pressure
    PressureFarField = 5, ///< free stream, undisturbed at infinity
    Outflow = 6,          ///< leaves fully developed, with nothing given
    Wall = 7,             ///< nothing passes
    Axis = 8,             ///< centre line of a geometry with rotational symmetry
    ExhaustFan = 9,       ///< leaves through a fan
    Fan = 10,             ///< is driven across a thin surface inside
    InletVent = 11,       ///< enters from the surroundings with a loss
    OutletVent = 12,      ///< leaves to the surroundings with a loss
    IntakeFan = 13,       ///< enters through a fan
    Interior = 14,        ///< passes freely
    PorousJump = 15,      ///< passes a thin porous layer with a loss
    Radiator = 16,        ///< passes a thin heat exchanger
    Symmetry = 17,        ///< mirror plane
};

/// What happens between the two sides of an interface: what the boundary type of the same name says.
enum class InterfaceType : std::int32_t {
    Unset = -1, ///< not chosen yet
    Fan = 0,
    Interior = 1,
    PorousJump = 2,
    Radiator = 3,
    Wall = 4,
};

/// The thin-wall model on a boundary.
enum class ShellType : std::int32_t {
    Unset = -1,         ///< not chosen yet
    HeatConduction = 0, ///< heat is conducted within the thin wall
};

/// The kind of a domain of a physics model.
enum class DomainType : std::int32_t {
    Unset = -1,      ///< not chosen yet
    Geometry = 0,    ///< the one that a model has at first
    Phase = 1,       ///< one of several materials that share the space
    Interaction = 2, ///< what two phases do to each other
};

/// A mark on a boundary; it has no `Unset`.
enum class BoundaryTag : std::int32_t {
    Interface = 0, ///< meant to lie in an interface
};

/// The kind of a solver thread (a cell or face zone); most are called as the volume or boundary type that they
/// realise. Unlike in the other enumerations `Unset` is 0.
enum class ThreadType : std::int32_t {
    Unset = 0,
    Solid = 1,
    Fluid = 2,
    VelocityInlet = 3,
    MassFlowInlet = 4,
    MassFlowOutlet = 5,
    PressureInlet = 6,
    PressureOutlet = 7,
    PressureFarField = 8,
    Outflow = 9,
    Wall = 10,
    Axis = 11,
    ExhaustFan = 12,
    Fan = 13,
    InletVent = 14,
    OutletVent = 15,
    IntakeFan = 16,
    Interface = 17,
    Interior = 18,
    Network = 19,
    NetworkEnd = 20,
    Overset = 21,
    Periodic = 22,
    PorousJump = 23,
    Radiator = 24,
    RansLesInterface = 25,
    Symmetry = 26,
    Degassing = 27,
    RecirculationOutlet = 28,
    RecirculationInlet = 29,
    Shadow = 30,
};

/// How far the face uses of an interface's two sides match; it has no `Unset`.
enum class Connectivity : std::int32_t {
    None = 0,    ///< no face use has its partner on the other side
    Partial = 1, ///< some have
    Total = 2,   ///< all have, or both sides are empty
};

/// How the meshes of an interface's two sides are to be joined; it has no `Unset`.
enum class MeshConnectivity : std::int32_t {
    Automatic = 0,    ///< as the mesher or solver sees fit
    NonConformal = 1, ///< without common nodes
};

/// Whether and how an interface repeats the flow; it has no `Unset`.
enum class Periodicity : std::int32_t {
    NonPeriodic = 0,             ///< not at all: the two sides touch
    TranslationallyPeriodic = 1, ///< the second side is the first one moved by an offset
    RotationallyPeriodic = 2,    ///< the second side is the first one turned about an axis
};

/// The kind of a settings object; it has no `Unset`.
enum class SettingsType : std::int32_t {
    VolumeSettings = 0,    ///< of a volume, its internal faces, or the volume side of a boundary patch
    ShellSettings = 1,     ///< of the shell on a boundary patch
    InterfaceSettings = 2, ///< of an interface, or the interface side of a boundary patch
};

/// The kind of object that a region is, or that a settings object belongs to; it has no `Unset`.
enum class TopologyType : std::int32_t {
    Volume = 0,    ///< a volume
    Boundary = 1,  ///< a boundary, or a patch of it
    Interface = 2, ///< an interface
    Internal = 3,  ///< the internal faces of a volume; no region is of this kind, only settings are
};

/// One of the two sides of an interface. Any value but 0 counts as the second side.
enum class Side : std::int32_t {
    First = 0,
    Second = 1,
};

/// The validity of a region as its location model sees it. The numbering is that of the location
/// model's own states; it has gaps.
enum class State : std::int32_t {
    Valid = 0,                  ///< nothing is wrong
    Empty = 1,                  ///< it lies on nothing
    Unresolvable = 2,           ///< its location names what is not there; also an interface that has ended
    Incomplete = 10,            ///< part of the outside of a volume is in none of its boundaries
    Inconsistent = 11,          ///< its location names what cannot belong to it
    Overlapping = 12,           ///< another one has part of what it lies on
    InterfaceSameBoundary = 20, ///< a boundary is on both sides of the interface
    InterfaceBoundaries = 21,   ///< a boundary is not valid itself, or the two share a face use
    InterfaceVolumes = 22,      ///< the boundaries of one side are of different volumes
    InterfaceSharedFaces = 23,  ///< both sides of a face are on the same side of the interface
};

} // namespace physics
