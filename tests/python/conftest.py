"""A small geometry that most tests use, and what runs random histories."""

import os

import hypothesis
import pytest

import physics
from physics import BoundaryType, InterfaceType, VolumeType
from physics.locationmodel import FaceSide, LocationModel, TopologyBuilder, ZoneSide

# The same histories in every run; another number of them by an environment variable.
hypothesis.settings.register_profile("house", derandomize=True, database=None, deadline=None,
                                     max_examples=int(os.environ.get("PHYSICS_PYTHON_HISTORIES", "60")),
                                     stateful_step_count=40)
hypothesis.settings.load_profile("house")


def exchanger() -> LocationModel:
    """Two bodies of one part beside each other, with solver zones; each has an end of its own."""
    builder = TopologyBuilder()
    builder.add_part("exchanger")
    builder.add_body("hot", "exchanger", [1])
    builder.add_body("cold", "exchanger", [2])
    builder.add_face("wall", FaceSide("hot", "hot wall", [ZoneSide(11)]), FaceSide("cold", "cold wall", [ZoneSide(11, 1)]))
    builder.add_face("hot end", FaceSide("hot", "", [ZoneSide(12)]))
    builder.add_face("cold end", "cold")
    return builder.build()


@pytest.fixture
def model():
    return exchanger()


@pytest.fixture
def setup(model):
    return physics.Physics(model, enforce_restrictions=False)


class Exchanger:
    """A set-up on it: a volume on each body, with a boundary on the wall between them, which an interface joins."""

    def __init__(self, setup):
        self.setup = setup
        self.hot = setup.create_volume("hot", "hot", VolumeType.FLUID)
        self.cold = setup.create_volume("cold", "cold", VolumeType.SOLID)
        self.hot_wall = self.hot.create_boundary("wall", "hot wall", BoundaryType.WALL)
        self.cold_wall = self.cold.create_boundary("wall", "cold wall", BoundaryType.WALL)
        self.contact = setup.create_interface("contact", self.hot_wall, self.cold_wall, InterfaceType.WALL)


@pytest.fixture
def case(setup):
    return Exchanger(setup)
