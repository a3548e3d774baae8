"""Answers that are plain tuples with names."""

from typing import TYPE_CHECKING, NamedTuple, Optional

if TYPE_CHECKING:
    from physics._native import Region

__all__ = ["BodyFacts", "Complaint", "FaceFacts"]


class Complaint(NamedTuple):
    """What the rules say against one object, or against the set-up as a whole when `region` is None."""

    region: "Optional[Region]"
    lines: "list[str]"


class BodyFacts(NamedTuple):
    """What a geometry file may tell of a body besides its place, for people and pictures; in the unit of the geometry.
    The colour is "#rrggbb" in small letters, or empty."""

    volume: Optional[float] = None
    color: str = ""


class FaceFacts(NamedTuple):
    """The same of a face."""

    area: Optional[float] = None
    centroid: "Optional[tuple[float, float, float]]" = None
    color: str = ""
