"""The physics set-up of a computational fluid dynamics case.

A `Physics` holds one set-up over a location model, which `physics.locationmodel` reads from a file or builds. Every
member is a method with the name of C++ in Python's spelling.
"""

from physics import locationmodel
from physics._native import (
    Boundary,
    BoundaryPatch,
    Building,
    EndedError,
    Interface,
    Model,
    NameManager,
    Object,
    Physics,
    RefusedError,
    Region,
    Settings,
    ThreadBundle,
    TypeManager,
    Volume,
    solver_thread_type,
)
from physics.enumerations import (
    BoundaryTag,
    BoundaryType,
    Connectivity,
    DomainType,
    InterfaceType,
    MeshConnectivity,
    Periodicity,
    SettingsType,
    ShellType,
    Side,
    State,
    ThreadType,
    TopologyType,
    VolumeType,
)
from physics.values import Complaint

__all__ = [
    "Boundary", "BoundaryPatch", "BoundaryTag", "BoundaryType", "Building", "Complaint", "Connectivity", "DomainType",
    "EndedError", "Interface", "InterfaceType", "MeshConnectivity", "Model", "NameManager", "Object", "Periodicity",
    "Physics", "RefusedError", "Region", "Settings", "SettingsType", "ShellType", "Side", "State", "ThreadBundle",
    "ThreadType", "TopologyType", "TypeManager", "Volume", "VolumeType", "locationmodel", "solver_thread_type",
]
