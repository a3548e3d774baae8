"""The geometry on which a set-up lies: parts, bodies, faces and face uses, read from a file or built step by step."""

import os
from typing import NamedTuple, Optional, Union

from physics._native import locationmodel as _native
from physics._native.locationmodel import (
    Body,
    CadError,
    CgnsError,
    Face,
    FaceUse,
    Location,
    LocationModel,
    Part,
    Region,
    TopologyError,
    read_topology,
    read_topology_text,
    write_topology,
)
from physics.values import BodyFacts, FaceFacts

__all__ = [
    "Body", "BodyFacts", "CadError", "CadResult", "CadTriangles", "CgnsCondition", "CgnsError", "CgnsPeriodic",
    "CgnsResult", "CgnsZone", "Face", "FaceFacts", "FaceSide", "FaceUse", "Location", "LocationModel", "Part", "Region",
    "TopologyBuilder", "TopologyError", "ZoneSide", "read_cad", "read_cgns", "read_topology", "read_topology_text",
    "write_topology",
]


class ZoneSide(NamedTuple):
    """The solver zone of a face use. The side word is not zero when the mesh faces of the zone look the other way."""

    zone_id: int
    side_word: int = 0


class FaceSide(NamedTuple):
    """One side of a face: the body that it bounds, the id of the face use ("FACE@BODY" when empty), and its zones."""

    body: str
    id: str = ""
    zones: "list[ZoneSide]" = []


class TopologyBuilder(_native.TopologyBuilder):
    __doc__ = _native.TopologyBuilder.__doc__

    def add_face(self, id: str, first: Union[str, FaceSide], second: Union[str, FaceSide, None] = None) -> None:
        """The bodies must have been added before; a side can be given as the id of its body alone. Without a second
        side the face bounds one body only."""
        self._add_face(id, _side(first), None if second is None else _side(second))


def _side(side: Union[str, FaceSide]) -> FaceSide:
    return FaceSide(side) if isinstance(side, str) else side


class CadTriangles(NamedTuple):
    """A face in triangles, for pictures. Triangles name places in `points`; seen against the normal, which points out
    of the first side, they run counter-clockwise."""

    face: str
    points: "list[tuple[float, float, float]]"
    triangles: "list[list[int]]"


class CadResult(NamedTuple):
    """What was read. `notes` say what the file has and the model has not, and every name that could not be kept; one
    sentence each. `triangles` has each face, in their order, when they were asked for. `renamed` has the name in the
    file of each part, body and face that is called otherwise here, by its id."""

    model: LocationModel
    notes: "list[str]"
    triangles: "list[CadTriangles]"
    renamed: "dict[str, str]"


class CgnsZone(NamedTuple):
    """What the file says about a zone: the id of the body that it is, or is a piece of, its name, and its family, which
    is empty when the file names none."""

    body: str
    name: str
    family: str


class CgnsCondition(NamedTuple):
    """What the file says about the face of a boundary condition: the id of the face, a type such as "BCWallViscous",
    the family, which is empty when the file names none, and the name of the condition, without the zone."""

    face: str
    type: str
    family: str
    name: str


class CgnsPeriodic(NamedTuple):
    """Two faces that the file declares periodic. The first maps onto the second by a rotation about `rotation_centre`,
    whose angles about the axes are in radians, and then by a translation; lengths are in the unit of the file."""

    name: str
    first_face: str
    second_face: str
    is_rotation: bool
    rotation_centre: "tuple[float, float, float]"
    rotation_angle: "tuple[float, float, float]"
    translation: "tuple[float, float, float]"


class CgnsResult(NamedTuple):
    """What was read. `notes` say what the file has and the model has not, and everything that was changed or doubtful;
    one sentence each. `renamed` has the name in the file of each body and face that is called otherwise here, by its
    id."""

    model: LocationModel
    conditions: "list[CgnsCondition]"
    periodics: "list[CgnsPeriodic]"
    notes: "list[str]"
    zones: "list[CgnsZone]"
    renamed: "dict[str, str]"


def read_cad(file: "Union[str, os.PathLike[str]]", imprint: Optional[bool] = None,
             triangle_tolerance: Optional[float] = None) -> CadResult:
    """Reads a STEP or BREP file, told apart by content, not by name. `imprint` says whether faces are divided and made
    common where bodies touch; None does so for STEP, in which every body has faces of its own, and not for BREP, which
    keeps shared faces. With `triangle_tolerance`, a length above zero, faces are also told in triangles that are not
    further from them. Raises `CadError`."""
    model, notes, triangles, renamed = _native._read_cad(file, imprint, triangle_tolerance)
    return CadResult(model, notes, [CadTriangles(*each) for each in triangles], dict(renamed))


def read_cgns(file: "Union[str, os.PathLike[str]]", bodies_are_families: bool = False) -> CgnsResult:
    """Reads a CGNS file of any version with one three-dimensional base. Each zone becomes a body, or, with
    `bodies_are_families`, all zones of one family. Raises `CgnsError`."""
    model, conditions, periodics, notes, zones, renamed = _native._read_cgns(file, bodies_are_families)
    return CgnsResult(model, [CgnsCondition(*each) for each in conditions], [CgnsPeriodic(*each) for each in periodics],
                      notes, [CgnsZone(*each) for each in zones], dict(renamed))
