"""The enumerations are those of the header, number by number."""

import enum
import pickle

import pytest

import docstrings
import headers
import physics
from physics import BoundaryTag, BoundaryType, Connectivity, Periodicity, Side, State, ThreadType, VolumeType

TYPES = headers.read("physics/Types.h").enumerations


def test_every_enumeration_is_there():
    assert [each.name for each in TYPES if not issubclass(getattr(physics, each.name), enum.IntEnum)] == []


@pytest.mark.parametrize("header", TYPES, ids=lambda each: each.name)
def test_names_numbers_and_comments_are_those_of_the_header(header):
    bound = getattr(physics, header.name)

    assert {name: value.value for name, value in bound.__members__.items()} == {
        docstrings.snake_case(name).upper(): value for name, value in header.values.items()}
    assert " ".join(bound.__doc__.split()) == docstrings.in_python(header.comment, {"Unset"}).replace("\n", " ")


def test_display_and_scheme_names_are_those_of_the_library():
    assert VolumeType.FLUID.display_name == "Fluid"
    assert VolumeType.FLUID.scheme_name == "v-fluid"
    assert BoundaryType.PRESSURE_FAR_FIELD.scheme_name == "b-pressure-far-field"
    assert BoundaryTag.INTERFACE.scheme_name == "bt-interface"
    assert ThreadType.RANS_LES_INTERFACE.display_name == "RansLesInterface"
    assert State.INTERFACE_VOLUMES.display_name == "Interface error - More than one volume per side"
    assert Connectivity.PARTIAL.display_name == "Partial"


def test_an_enumeration_has_the_names_that_the_library_has():
    assert not hasattr(Periodicity.NON_PERIODIC, "scheme_name")
    assert not hasattr(Side.FIRST, "display_name")


def test_a_value_outside_is_legal_and_has_no_name(setup):
    outside = VolumeType(99)

    assert (outside.value, outside.display_name, outside.scheme_name) == (99, "", "v-")
    assert setup.allowed_boundary_types(outside) == []
    assert setup.create_volume("hot", "hot", outside).type() == 99


def test_what_is_no_number_of_the_library_is_an_error():
    for value in (2**31, "Fluid", None):
        with pytest.raises(ValueError):
            VolumeType(value)


def test_enumerators_can_be_kept():
    assert pickle.loads(pickle.dumps(BoundaryType.WALL)) is BoundaryType.WALL
