"""The vocabulary of a set-up. Numbers are those of saved texts and never change.

A number outside an enumeration is legal everywhere, as a newer text may hold it: `VolumeType(99)` is a value without
a display name, for which questions answer with an empty list, False or `UNSET`.
"""

import enum
from typing import Optional, TypeVar

_E = TypeVar("_E", bound="_Enumeration")

__all__ = ["BoundaryTag", "BoundaryType", "Connectivity", "DomainType", "InterfaceType", "MeshConnectivity",
           "Periodicity", "SettingsType", "ShellType", "Side", "State", "ThreadType", "TopologyType", "VolumeType"]


class _Enumeration(enum.IntEnum):
    @classmethod
    def _missing_(cls: "type[_E]", value: object) -> "Optional[_E]":
        if not isinstance(value, int) or not -2**31 <= value < 2**31:
            return None
        outside = int.__new__(cls, value)
        outside._name_ = str(value)
        outside._value_ = value
        return outside


class _Displayed(_Enumeration):
    @property
    def display_name(self) -> str:
        """The name that reports print; empty for a value outside the enumeration."""
        from physics import _native  # which needs this module to be loaded

        return str(_native._display_name(self))  # type: ignore[call-overload]


class _Named(_Displayed):
    @property
    def scheme_name(self) -> str:
        """The name in the solver's Scheme command language; the prefix alone for a value outside the enumeration."""
        from physics import _native

        return str(_native._scheme_name(self))  # type: ignore[call-overload]


class VolumeType(_Named):
    """What fills a volume."""

    UNSET = -1
    SOLID = 0
    FLUID = 1
    POROUS = 2


class BoundaryType(_Named):
    """The physical condition on a boundary: what the flow does there."""

    UNSET = -1
    VELOCITY_INLET = 0
    MASS_FLOW_INLET = 1
    MASS_FLOW_OUTLET = 2
    PRESSURE_INLET = 3
    PRESSURE_OUTLET = 4
    PRESSURE_FAR_FIELD = 5
    OUTFLOW = 6
    WALL = 7
    AXIS = 8
    EXHAUST_FAN = 9
    FAN = 10
    INLET_VENT = 11
    OUTLET_VENT = 12
    INTAKE_FAN = 13
    INTERIOR = 14
    POROUS_JUMP = 15
    RADIATOR = 16
    SYMMETRY = 17


class InterfaceType(_Named):
    """What happens between the two sides of an interface: what the boundary type of the same name says."""

    UNSET = -1
    FAN = 0
    INTERIOR = 1
    POROUS_JUMP = 2
    RADIATOR = 3
    WALL = 4


class ShellType(_Named):
    """The thin-wall model on a boundary."""

    UNSET = -1
    HEAT_CONDUCTION = 0


class DomainType(_Named):
    """The kind of a domain of a physics model."""

    UNSET = -1
    GEOMETRY = 0
    PHASE = 1
    INTERACTION = 2


class BoundaryTag(_Named):
    """A mark on a boundary; it has no `UNSET`."""

    INTERFACE = 0


class ThreadType(_Named):
    """The kind of a solver thread (a cell or face zone); most are called as the volume or boundary type that they
    realise. Unlike in the other enumerations `UNSET` is 0."""

    UNSET = 0
    SOLID = 1
    FLUID = 2
    VELOCITY_INLET = 3
    MASS_FLOW_INLET = 4
    MASS_FLOW_OUTLET = 5
    PRESSURE_INLET = 6
    PRESSURE_OUTLET = 7
    PRESSURE_FAR_FIELD = 8
    OUTFLOW = 9
    WALL = 10
    AXIS = 11
    EXHAUST_FAN = 12
    FAN = 13
    INLET_VENT = 14
    OUTLET_VENT = 15
    INTAKE_FAN = 16
    INTERFACE = 17
    INTERIOR = 18
    NETWORK = 19
    NETWORK_END = 20
    OVERSET = 21
    PERIODIC = 22
    POROUS_JUMP = 23
    RADIATOR = 24
    RANS_LES_INTERFACE = 25
    SYMMETRY = 26
    DEGASSING = 27
    RECIRCULATION_OUTLET = 28
    RECIRCULATION_INLET = 29
    SHADOW = 30


class Connectivity(_Named):
    """How far the face uses of an interface's two sides match; it has no `UNSET`."""

    NONE = 0
    PARTIAL = 1
    TOTAL = 2


class MeshConnectivity(_Named):
    """How the meshes of an interface's two sides are to be joined; it has no `UNSET`."""

    AUTOMATIC = 0
    NON_CONFORMAL = 1


class Periodicity(_Displayed):
    """Whether and how an interface repeats the flow; it has no `UNSET`."""

    NON_PERIODIC = 0
    TRANSLATIONALLY_PERIODIC = 1
    ROTATIONALLY_PERIODIC = 2


class SettingsType(_Displayed):
    """The kind of a settings object; it has no `UNSET`."""

    VOLUME_SETTINGS = 0
    SHELL_SETTINGS = 1
    INTERFACE_SETTINGS = 2


class TopologyType(_Displayed):
    """The kind of object that a region is, or that a settings object belongs to; it has no `UNSET`."""

    VOLUME = 0
    BOUNDARY = 1
    INTERFACE = 2
    INTERNAL = 3


class Side(_Enumeration):
    """One of the two sides of an interface. Any value but 0 counts as the second side."""

    FIRST = 0
    SECOND = 1


class State(_Displayed):
    """The validity of a region as its location model sees it. The numbering is that of the location
    model's own states; it has gaps."""

    VALID = 0
    EMPTY = 1
    UNRESOLVABLE = 2
    INCOMPLETE = 10
    INCONSISTENT = 11
    OVERLAPPING = 12
    INTERFACE_SAME_BOUNDARY = 20
    INTERFACE_BOUNDARIES = 21
    INTERFACE_VOLUMES = 22
    INTERFACE_SHARED_FACES = 23
