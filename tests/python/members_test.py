"""Every public member of every public class is there in Python, by its name in Python's spelling, or excused here."""

import collections
import os
import re

import pytest

import headers
import physics
from docstrings import snake_case
from physics import _native

# The headers that are installed: those that the build of the library names.
CMAKE = os.path.join(headers.ROOT, "physics", "CMakeLists.txt")

# Members with another name in Python.
RENAMED = {"dump": "report", "dump_domains": "report_domains"}

# Members that Python has not, and why.
ENTITY = "the entity beneath is changed through this object only; the members beside it tell what it says"
EXCUSED = {
    "Physics::virtualTopology": ENTITY,
    "Volume::interior": ENTITY,
    "Boundary::boundary": ENTITY,
    "Interface::interface": ENTITY,
    "displayName": "the attribute display_name of an enumerator",
    "schemeName": "the attribute scheme_name of an enumerator",
    "enumerators": "an enumeration is iterated",
}

# What lies in public headers for the sake of the library, and shows nothing to its users.
MECHANISM = {"Export", "Lifetime", "NodePool", "NonCopyable", "SortByKey"}


def public_headers():
    with open(CMAKE, encoding="utf-8") as file:
        names = re.search(r"HEADERS\n(.*?)\n  PUBLIC", file.read(), re.DOTALL)[1].split()
    return sorted(name[:-2] for name in names if name[:-2] not in MECHANISM)


def public_members():
    """(name in C++, class in Python or None, name in Python)"""
    for name in public_headers():
        header = headers.read(f"physics/{name}.h")
        for cls in header.classes:
            bound = getattr(physics, cls.name.rpartition("::")[2])
            for member in cls.members:
                if member.name.lstrip("~") != cls.name:  # constructors and destructors
                    yield f"{cls.name}::{member.name}", bound, snake_case(member.name)
        for function in header.functions:
            yield function.name, physics, snake_case(function.name)


MEMBERS = sorted(set(public_members()), key=lambda member: member[0])


def test_there_are_members_to_look_at():
    assert len(MEMBERS) > 280
    assert {"Physics::createVolume", "ThreadBundle::setZoneIds", "Region::isValid"} <= {name for name, _, _ in MEMBERS}


@pytest.mark.parametrize("name, owner, spelling", MEMBERS, ids=lambda each: each if isinstance(each, str) else "")
def test_member_is_bound(name, owner, spelling):
    is_bound = hasattr(owner, RENAMED.get(spelling, spelling))

    assert is_bound != (name in EXCUSED)


def test_every_overload_is_bound():
    overloads = collections.Counter(name for name, _, _ in public_members())

    for name, owner, spelling in MEMBERS:
        if overloads[name] > 1 and name not in EXCUSED:
            assert getattr(owner, spelling).__doc__.count(" -> ") >= overloads[name], name
    assert overloads["Physics::isMasked"] == 4


def test_excuses_are_for_members_that_there_are():
    assert set(EXCUSED) <= {name for name, _, _ in MEMBERS}


def test_every_bound_class_and_function_is_shown():
    for module, shown in ((_native, physics), (_native.locationmodel, physics.locationmodel)):
        names = {name for name in vars(module) if not name.startswith("_")} - {"locationmodel"}
        assert names - set(shown.__all__) == set()


def test_docstrings_speak_python():
    text = physics.Physics.create_default_volume.__doc__

    assert "`default_volume` is the last of them. None only if the location model has none." in " ".join(text.split())


def test_every_method_with_an_argument_or_an_oddity_has_more_than_its_signature():
    assert "counter" in physics.Region.id.__doc__
    assert "Ends the boundary with every interface that it is in" in physics.Boundary.destroy.__doc__
