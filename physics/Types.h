#pragma once

#include <cstdint>

namespace physics {

// The numbers are written into saved texts: they never change. A value outside its enumeration is
// legal everywhere and answers with an empty name, an empty list, false or `Unset`.

/// What fills a volume.
enum class VolumeType : std::int32_t {
    Unset = -1,
    Solid = 0,
    Fluid = 1,
    Porous = 2,
};

/// The physical condition on a boundary.
enum class BoundaryType : std::int32_t {
    Unset = -1,
    VelocityInlet = 0,
    MassFlowInlet = 1,
    MassFlowOutlet = 2,
    PressureInlet = 3,
    PressureOutlet = 4,
    PressureFarField = 5,
    Outflow = 6,
    Wall = 7,
    Axis = 8,
    ExhaustFan = 9,
    Fan = 10,
    InletVent = 11,
    OutletVent = 12,
    IntakeFan = 13,
    Interior = 14,
    PorousJump = 15,
    Radiator = 16,
    Symmetry = 17,
};

/// What happens between the two sides of an interface.
enum class InterfaceType : std::int32_t {
    Unset = -1,
    Fan = 0,
    Interior = 1,
    PorousJump = 2,
    Radiator = 3,
    Wall = 4,
};

/// The thin-wall model on a boundary.
enum class ShellType : std::int32_t {
    Unset = -1,
    HeatConduction = 0,
};

/// The kind of a domain of a physics model.
enum class DomainType : std::int32_t {
    Unset = -1,
    Geometry = 0,
    Phase = 1,
    Interaction = 2,
};

/// A mark on a boundary; it has no `Unset`.
enum class BoundaryTag : std::int32_t {
    Interface = 0,
};

/// The kind of a solver thread (a cell or face zone). Unlike in the other enumerations `Unset` is 0.
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
    None = 0,
    Partial = 1,
    Total = 2,
};

/// How the meshes of an interface's two sides are to be joined; it has no `Unset`.
enum class MeshConnectivity : std::int32_t {
    Automatic = 0,
    NonConformal = 1,
};

/// Whether and how an interface repeats the flow; it has no `Unset`.
enum class Periodicity : std::int32_t {
    NonPeriodic = 0,
    TranslationallyPeriodic = 1,
    RotationallyPeriodic = 2,
};

/// The kind of a settings object; it has no `Unset`.
enum class SettingsType : std::int32_t {
    VolumeSettings = 0,
    ShellSettings = 1,
    InterfaceSettings = 2,
};

/// The kind of object that a region is, or that a settings object belongs to; it has no `Unset`.
enum class TopologyType : std::int32_t {
    Volume = 0,
    Boundary = 1,
    Interface = 2,
    Internal = 3,
};

/// One of the two sides of an interface. Any value but 0 counts as the second side.
enum class Side : std::int32_t {
    First = 0,
    Second = 1,
};

/// The validity of a region as its location model sees it. The numbering is that of the location
/// model's own states; it has gaps.
enum class State : std::int32_t {
    Valid = 0,
    Empty = 1,
    Unresolvable = 2,
    Incomplete = 10,
    Inconsistent = 11,
    Overlapping = 12,
    InterfaceSameBoundary = 20,
    InterfaceBoundaries = 21,
    InterfaceVolumes = 22,
    InterfaceSharedFaces = 23,
};

} // namespace physics
