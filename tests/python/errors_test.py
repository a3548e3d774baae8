"""A mistake in arguments is an error that says what is wrong; what the location model refuses is None."""

import pytest

import physics
from physics import BoundaryType, InterfaceType, RefusedError, Side, ThreadType, VolumeType


def test_what_the_location_model_refuses_is_none(setup):
    setup.set_enforce_restrictions(True)

    assert setup.create_volume("luke", "lukewarm", VolumeType.FLUID) is None
    assert setup.volumes() == []


def test_within_building_it_is_an_error_with_the_reasons(setup):
    setup.set_enforce_restrictions(True)

    with pytest.raises(RefusedError) as raised, setup.building():
        setup.create_volume("luke", "hit", VolumeType.FLUID)

    assert str(raised.value) == ('the volume "luke" is refused (Unresolvable): The term "hit" names nothing; did you '
                                 'mean "hot"?')


def test_building_reports_refused_boundaries_and_interfaces_too(case):
    case.setup.set_enforce_restrictions(True)

    with case.setup.building() as setup:
        assert setup is case.setup
        with pytest.raises(RefusedError, match='^the boundary "again" is refused \\(Overlapping\\): '):
            case.hot.create_boundary("again", "hot wall")
        with pytest.raises(RefusedError, match='^the interface "self" is refused '):
            setup.create_interface("self", case.hot_wall, case.hot_wall, InterfaceType.WALL)


def test_building_ends_with_its_block_also_when_nested(setup):
    setup.set_enforce_restrictions(True)

    with setup.building():
        with setup.building():
            pass
        with pytest.raises(RefusedError):
            setup.create_volume("luke", "lukewarm", VolumeType.FLUID)
    assert setup.create_volume("luke", "lukewarm", VolumeType.FLUID) is None


def test_an_object_of_another_set_up_is_an_error(case, model):
    other = physics.Physics(model)
    theirs = other.create_model()
    foreign = other.create_volume("theirs", "hot", VolumeType.FLUID)

    for call in (lambda: case.hot.set_model(theirs), lambda: case.hot.overlap(foreign),
                 lambda: case.setup.deactivate_volumes([case.cold, foreign]),
                 lambda: case.hot_wall.set_shell_model(theirs),
                 lambda: case.setup.create_volume("x", "hot", VolumeType.FLUID, theirs)):
        with pytest.raises(ValueError, match=" belongs to another Physics$"):
            call()
    assert case.cold.is_active() and case.hot_wall.shell_model() is None


def test_the_error_shows_the_foreign_object(case, model):
    foreign = physics.Physics(model).create_volume("theirs", "hot", VolumeType.FLUID)

    with pytest.raises(ValueError) as raised:
        case.hot.overlap(foreign)

    assert str(raised.value) == f"<physics.Volume id={foreign.id()} name='theirs' type=Fluid> belongs to another Physics"


def test_a_region_of_another_location_model_is_an_error(setup):
    builder = physics.locationmodel.TopologyBuilder()
    builder.add_body("elsewhere")
    elsewhere = builder.build().bodies()

    for call in (lambda: setup.create_volume("x", elsewhere, VolumeType.FLUID), lambda: setup.mask_bodies(elsewhere)):
        with pytest.raises(ValueError) as raised:
            call()
        assert str(raised.value) == "<physics.locationmodel.Body 'elsewhere'> belongs to another LocationModel"


def test_none_is_an_error_where_an_object_is_needed(case):
    for call in (lambda: case.hot.set_model(None), lambda: case.contact.set_model(None), lambda: case.hot.overlap(None),
                 lambda: case.setup.create_interface("x", case.hot_wall, None, InterfaceType.WALL),
                 lambda: case.contact.relocate(None, case.cold_wall, False),
                 lambda: case.setup.primary_model().settings(None), lambda: case.setup.mask_bodies([None]),
                 lambda: physics.Physics(None)):
        with pytest.raises(TypeError):
            call()


def test_none_stands_for_what_there_need_not_be(case):
    case.hot_wall.set_shell_model(case.setup.primary_model())
    case.hot_wall.set_shell_model(None)

    assert case.hot_wall.shell_model() is None
    assert case.hot_wall.patch(None) is case.hot_wall.patch()
    assert case.setup.create_volume("rest", [], VolumeType.FLUID, None).model() is case.setup.primary_model()


def test_a_value_of_another_enumeration_is_an_error(case):
    for call in (lambda: case.hot.set_type(BoundaryType.WALL), lambda: case.contact.volume(0),
                 lambda: case.hot.settings().create_thread_bundle(0, VolumeType.FLUID, 1, []),
                 lambda: case.setup.create_volume("x", "hot", 1)):
        with pytest.raises(TypeError):
            call()


def test_numbers_out_of_range_are_an_error(case):
    with pytest.raises(TypeError):
        case.setup.find_volume_by_id(2**40)


def test_a_taken_thread_id_is_refused(case):
    settings = case.hot.settings()
    settings.create_thread_bundle(0, ThreadType.FLUID, 5, [1])

    assert settings.create_thread_bundle(1, ThreadType.FLUID, 5, [1]) is None


def test_bytes_that_are_not_utf8_pass_unchanged(case):
    odd = b"w\xe4rme".decode("utf-8", "surrogateescape")

    case.hot.rename(odd)

    assert case.hot.name().encode("utf-8", "surrogateescape") == b"w\xe4rme"
    assert case.hot.name() == odd
    assert case.contact.volume(Side.FIRST) is case.hot


def test_a_text_that_cannot_be_bytes_is_an_error(case):
    with pytest.raises(UnicodeEncodeError):
        case.hot.rename("\ud800")
