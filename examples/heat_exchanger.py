#!/usr/bin/env python3
"""Sets up a double-pipe heat exchanger in counter flow, cut in half by its symmetry plane, as a script would.

Hot fluid runs through the tube, cold fluid through the shell around it; the tube conducts the heat from one to the
other. It is the case of heat_exchanger.json, and its saved text is the same.

usage: heat_exchanger.py [SAVED-TEXT]
"""

import sys
from pathlib import Path
from typing import Optional

import physics
from physics import BoundaryType, InterfaceType, VolumeType
from physics.locationmodel import read_cad

# Volume -> its type, and its boundaries: name, location (None for what is left over) and type.
VOLUMES: "dict[str, tuple[VolumeType, list[tuple[str, Optional[str], BoundaryType]]]]" = {
    "hot": (VolumeType.FLUID, [
        ("inlet", "hot/inlet", BoundaryType.MASS_FLOW_INLET),
        ("outlet", "hot/outlet", BoundaryType.PRESSURE_OUTLET),
        ("symmetry", "hot/symmetry", BoundaryType.SYMMETRY),
        ("tube side", "hot/tube-wall", BoundaryType.WALL),
    ]),
    "cold": (VolumeType.FLUID, [
        ("inlet", "cold/inlet", BoundaryType.VELOCITY_INLET),
        ("outlet", "cold/outlet", BoundaryType.PRESSURE_OUTLET),
        ("symmetry", "cold/symmetry-*", BoundaryType.SYMMETRY),
        ("tube side", "cold/tube-wall", BoundaryType.WALL),
        ("shell", None, BoundaryType.WALL),
    ]),
    "tube": (VolumeType.SOLID, [
        ("hot side", "hot/tube-wall", BoundaryType.WALL),
        ("cold side", "cold/tube-wall", BoundaryType.WALL),
        ("symmetry", "tube/symmetry-*", BoundaryType.SYMMETRY),
        ("outside", None, BoundaryType.WALL),
    ]),
}

INTERFACES = {
    "hot to tube": ("hot::tube side", "tube::hot side"),
    "cold to tube": ("cold::tube side", "tube::cold side"),
}


def build(setup: physics.Physics) -> None:
    for name, (type, boundaries) in VOLUMES.items():
        volume = setup.create_volume(name, name, type)
        assert volume is not None
        for boundary, location, boundary_type in boundaries:
            if location is None:
                volume.create_default_boundary(boundary, boundary_type)
            else:
                volume.create_boundary(boundary, location, boundary_type)

    boundary_called = {boundary.full_name(): boundary for boundary in setup.boundaries()}
    for name, (first, second) in INTERFACES.items():
        setup.create_interface(name, boundary_called[first], boundary_called[second], InterfaceType.WALL)


def main() -> None:
    read = read_cad(Path(__file__).with_name("heat_exchanger.step"))
    for note in read.notes:
        print("note:", note)

    setup = physics.Physics(read.model, enforce_restrictions=True)
    with setup.building():  # so that a refusal ends the script with its reasons
        build(setup)

    for volume in setup:
        print(volume.name(), volume.type().display_name)
        for boundary in volume:
            print("   ", boundary.name(), boundary.type().display_name, len(boundary.face_uses()))
    for region, lines in setup.complaints():
        print(region, *lines, sep="\n")
    print("valid:", setup.is_valid())

    if len(sys.argv) > 1:
        Path(sys.argv[1]).write_text(setup.serialise())


if __name__ == "__main__":
    main()
