"""Whatever ends in whatever order, Python meets an error and never freed memory."""

import gc
import weakref

import pytest

import physics
from physics import EndedError, InterfaceType, Side, State, ThreadType, VolumeType
from physics.locationmodel import TopologyBuilder


def test_an_ended_object_raises_a_reference_error(case):
    number = case.hot.id()
    case.hot.destroy()

    with pytest.raises(EndedError) as raised:
        case.hot.name()

    assert isinstance(raised.value, ReferenceError)
    assert str(raised.value) == f"the volume with id {number} has ended; ask its Physics for the objects that there are"


def test_every_member_of_an_ended_object_raises_it(case):
    bundle = case.hot.settings().create_thread_bundle(0, ThreadType.FLUID, 7, [1])
    shell_model = case.setup.create_model()
    ended = [case.hot, case.hot_wall, case.hot_wall.patch(), case.hot.settings(), bundle, shell_model]
    case.hot.destroy()
    shell_model.destroy()

    for each in ended:
        for name in (name for name in dir(each) if not name.startswith("__") and name != "has_ended"):
            if parameterless(getattr(type(each), name)):
                with pytest.raises(EndedError):
                    getattr(each, name)()
    assert all(each.has_ended() for each in ended)


def parameterless(member):
    return "(self: physics." in member.__doc__ and "," not in member.__doc__.split(") ->")[0]


def test_an_ended_object_is_shown_as_such(case):
    number = case.hot.id()
    case.hot.destroy()

    assert repr(case.hot) == f"<physics.Volume id={number} ended>"


def test_an_ended_object_is_refused_as_an_argument(case):
    case.cold_wall.destroy()

    with pytest.raises(EndedError):
        case.setup.create_interface("again", case.hot_wall, case.cold_wall, InterfaceType.WALL)
    with pytest.raises(EndedError):
        case.hot_wall.overlap(case.cold_wall)


def test_an_ended_object_in_a_list_is_refused_before_anything_changes(case):
    case.cold.destroy()

    with pytest.raises(EndedError):
        case.setup.deactivate_volumes([case.hot, case.cold])

    assert case.hot.is_active()


def test_what_belongs_to_an_ended_object_ends_with_it(case):
    patch = case.hot_wall.patch(case.contact)
    settings = case.hot_wall.boundary_settings(case.contact)
    bundle = settings.create_thread_bundle(0, ThreadType.WALL, 1, [])

    case.hot.destroy()

    assert [each.has_ended() for each in (case.hot_wall, patch, settings, bundle, case.contact)] == [True] * 5
    assert not case.cold_wall.has_ended()


def test_an_ended_interface_stays_readable(case):
    number = case.contact.id()
    case.contact.set_translational_periodicity((1, 2, 3))
    case.contact.destroy()
    case.contact.destroy()

    assert case.contact.has_ended()
    assert (case.contact.id(), case.contact.type()) == (number, InterfaceType.WALL)
    assert case.contact.get_periodic_offset() == (1, 2, 3)
    assert case.contact.name() == ""
    assert case.contact.state() == State.UNRESOLVABLE
    assert case.contact.model() is None
    assert case.contact.boundary(Side.FIRST) is None
    assert case.contact.settings() is None
    assert case.contact.explain() == "The interface has ended."
    assert repr(case.contact) == f"<physics.Interface id={number} ended>"


def test_an_ended_interface_may_be_an_argument(case):
    case.contact.destroy()

    assert case.hot_wall.patch(case.contact) is None
    assert case.setup.primary_model().settings(case.contact) is None


def test_interfaces_survive_a_clear_and_nothing_else_does(case):
    case.setup.clear()

    assert case.hot.has_ended() and case.hot_wall.has_ended()
    assert case.contact.type() == InterfaceType.WALL
    assert case.setup.volumes() == []


def test_restoring_ends_the_objects_of_before(case):
    assert case.setup.restore(case.setup.serialise())

    assert case.hot.has_ended()
    assert [volume.name() for volume in case.setup] == ["cold", "hot"]


def test_a_location_ends_with_its_object(case):
    location = case.hot.location()
    case.hot.destroy()

    with pytest.raises(EndedError):
        location.location_string()


def test_an_object_keeps_its_set_up_and_a_set_up_its_location_model():
    builder = TopologyBuilder()
    builder.add_body("water")
    volume = physics.Physics(builder.build()).create_volume("water", "water", VolumeType.FLUID)
    del builder
    gc.collect()

    assert volume.physics().volumes() == [volume]
    assert [body.id() for body in volume.physics().location_model()] == ["water"]


def test_a_region_keeps_its_location_model(model):
    face_use = model.face_uses()[0]
    del model
    gc.collect()

    assert (face_use.id(), face_use.body().id(), face_use.partner().id()) == ("hot wall", "hot", "cold wall")


def test_an_unused_set_up_is_freed(model):
    setup = physics.Physics(model)
    volume = setup.create_volume("hot", "hot", VolumeType.FLUID)
    ended = weakref.ref(setup)
    del setup
    assert ended() is None  # the set-up itself lives on in its volume

    setup = volume.physics()
    ended = weakref.ref(volume)
    del volume
    gc.collect()
    assert ended() is None
    assert [each.name() for each in setup] == ["hot"]


def test_one_object_is_one_object(case):
    assert case.setup.find_volume_by_id(case.hot.id()) is case.hot
    assert case.hot_wall.volume() is case.hot
    assert {case.hot: "value"}[case.setup.volumes()[1]] == "value"
    assert case.hot.bodies()[0] is case.setup.location_model().bodies()[0]


def test_a_new_object_is_another_one_than_an_ended_one_in_its_place(setup):
    for _ in range(50):
        old = setup.create_volume("v", "hot", VolumeType.FLUID)
        old.destroy()
        new = setup.create_volume("v", "hot", VolumeType.FLUID)
        assert new is not old and old.has_ended() and new.name() == "v"
        new.destroy()


def test_a_class_without_constructor_makes_nothing():
    for name in ("Volume", "Boundary", "Interface", "BoundaryPatch", "Model", "Settings", "ThreadBundle", "Region"):
        with pytest.raises(TypeError, match="No constructor defined"):
            getattr(physics, name)()


def test_an_object_made_behind_the_back_of_its_constructor_is_refused():
    for owner in (physics, physics.locationmodel):
        for cls in (cls for cls in vars(owner).values() if is_bound(cls)):
            hollow = cls.__new__(cls)
            for name in (name for name in dir(cls) if not name.startswith("__")):
                with pytest.raises((TypeError, RuntimeError)):
                    getattr(hollow, name)()


def is_bound(cls):
    return type(cls).__name__ == "pybind11_type" and cls is not physics.NameManager
