"""Answers that are plain tuples with names."""

from typing import TYPE_CHECKING, NamedTuple, Optional

if TYPE_CHECKING:
    from physics._native import Region

__all__ = ["Complaint"]


class Complaint(NamedTuple):
    """What the rules say against one object, or against the set-up as a whole when `region` is None."""

    region: "Optional[Region]"
    lines: "list[str]"
