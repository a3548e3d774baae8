"""Geometry is built, read and written, and its errors are those of the readers."""

import os
import pathlib

import pytest

from conftest import exchanger
from physics import State, VolumeType
from physics.locationmodel import (Body, BodyFacts, CadError, CgnsError, Face, FaceFacts, FaceUse, Part, TopologyBuilder, TopologyError, read_cad,
                                   read_cgns, read_topology, read_topology_text, write_topology)

EXAMPLES = pathlib.Path(__file__).resolve().parent.parent.parent / "examples"


def test_a_built_model_lists_its_regions_in_their_order(model):
    assert [part.id() for part in model.parts()] == ["exchanger"]
    assert [body.id() for body in model] == ["hot", "cold"]
    assert [face.id() for face in model.faces()] == ["wall", "hot end", "cold end"]
    assert [use.id() for use in model.face_uses()] == ["hot wall", "cold wall", "hot end@hot", "cold end@cold"]


def test_regions_know_each_other(model):
    hot, cold = model.bodies()
    wall, hot_end, _ = model.faces()

    assert model.part(hot) is model.parts()[0]
    assert list(model.parts()[0]) == [hot, cold]
    assert [use.id() for use in model.face_uses(cold)] == ["cold wall", "cold end@cold"]
    assert (wall.first_face_use().body(), wall.second_face_use().body()) == (hot, cold)
    assert wall.first_face_use().partner() is wall.second_face_use()
    assert wall.first_face_use().face() is wall
    assert hot_end.second_face_use() is None


def test_regions_are_found_by_id_as_what_they_are(model):
    found = [model.find_region_by_id(id) for id in ("exchanger", "hot", "wall", "hot wall", "nowhere")]

    assert [type(each) for each in found[:4]] == [Part, Body, Face, FaceUse]
    assert found[4] is None
    assert model.find_body_by_id("hot") is found[1]
    assert model.find_body_by_id("wall") is None


def test_solver_zones_are_those_that_were_given(model):
    hot_wall, cold_wall, _, cold_end = model.face_uses()

    assert model.zone_ids(model.bodies()[1]) == [2]
    assert model.face_sides(hot_wall) == [(11, 0)]
    assert model.face_sides(cold_wall) == [(11, 1)]
    assert model.face_sides(cold_end) == []


def test_without_a_mesh_there_are_no_zones():
    builder = TopologyBuilder()
    builder.add_body("water")
    builder.add_face("rim", "water")
    model = builder.build()

    assert model.zone_ids(model.bodies()[0]) is None
    assert model.face_sides(model.face_uses()[0]) is None


def test_a_wrong_step_of_building_is_an_error_and_changes_nothing():
    builder = TopologyBuilder()
    builder.add_body("water")

    with pytest.raises(TopologyError, match="water"):
        builder.add_body("water")
    with pytest.raises(ValueError, match="air"):
        builder.add_face("rim", "air")

    assert [body.id() for body in builder.build()] == ["water"]


def test_a_written_topology_is_read_as_the_same(model, tmp_path):
    text = write_topology(model)
    file = tmp_path / "exchanger.json"
    file.write_text(text)

    assert write_topology(read_topology(file)) == text
    assert write_topology(read_topology_text(text, "a name")) == text


def test_a_wrong_topology_file_is_an_error_with_its_place(tmp_path):
    with pytest.raises(TopologyError, match="^some name:1:1: "):
        read_topology_text("?", "some name")
    with pytest.raises(TopologyError, match="missing.json"):
        read_topology(tmp_path / "missing.json")


def test_a_geometry_file_is_read_with_its_notes():
    result = read_cad(EXAMPLES / "heat_exchanger.step")

    assert [body.id() for body in result.model] == ["hot", "cold", "tube"]
    assert (result.notes, result.triangles, result.renamed) == ([], [], {})


def test_what_is_called_otherwise_than_in_the_file_keeps_its_name_there(tmp_path):
    file = tmp_path / "comma.step"
    text = (EXAMPLES / "heat_exchanger.step").read_text()
    assert "PRODUCT('hot','hot'" in text
    file.write_text(text.replace("PRODUCT('hot','hot'", "PRODUCT('hot','hot, inner'"))

    result = read_cad(file)

    assert [body.id() for body in result.model] == ["hot_ inner", "cold", "tube"]
    assert result.renamed == {"hot_ inner": "hot, inner"}
    assert result.notes[-1].startswith('Body "hot, inner" is called "hot_ inner" here, ')


def test_imprinting_can_be_chosen():
    shared = len(read_cad(str(EXAMPLES / "heat_exchanger.step")).model.faces())
    apart = len(read_cad(str(EXAMPLES / "heat_exchanger.step"), imprint=False).model.faces())

    assert apart == shared + 2  # the two walls of the tube, each seen from either side


def test_a_geometry_file_tells_measures_and_triangles():
    result = read_cad(EXAMPLES / "fan_passage.step", triangle_tolerance=1)
    model, triangles = result.model, result.triangles

    assert all(model.facts(body).volume > 0 for body in model)
    assert all(model.facts(face).area > 0 and len(model.facts(face).centroid) == 3 for face in model.faces())
    assert [each.face for each in triangles] == [face.id() for face in model.faces()]
    assert all(place < len(each.points) for each in triangles for corners in each.triangles for place in corners)
    assert any(each.triangles for each in triangles)


def test_facts_are_those_that_were_told():
    builder = TopologyBuilder()
    builder.add_body("water")
    builder.add_face("rim", "water")
    builder.describe_body("water", BodyFacts(volume=2.5))
    builder.describe_face("rim", FaceFacts(4, (1, 2, 3), "#00ff00"))
    with pytest.raises(TopologyError):
        builder.describe_body("water", BodyFacts(volume=-1))
    model = builder.build()

    assert model.facts(model.bodies()[0]) == BodyFacts(2.5, "")
    assert model.facts(model.faces()[0]) == FaceFacts(4.0, (1.0, 2.0, 3.0), "#00ff00")
    assert model.facts(model.faces()[0]).color == "#00ff00"


def test_what_is_no_geometry_file_is_an_error(tmp_path):
    file = tmp_path / "text.step"
    file.write_text("hello")

    with pytest.raises(CadError, match="text.step"):
        read_cad(file)
    with pytest.raises(CgnsError, match="text.step"):
        read_cgns(file)
    assert issubclass(CadError, TopologyError) and issubclass(CgnsError, TopologyError)


def test_a_location_answers_what_it_stands_for_at_the_moment(case):
    location = case.hot_wall.location()

    assert location.is_implicit()
    assert location.location_string() == "hot wall"
    assert [region.id() for region in location.resolve()] == ["hot wall"]

    case.setup.mask_bodies(case.hot.bodies())
    assert location.resolve() == []


def test_a_location_of_regions_lists_them(setup, model):
    volume = setup.create_volume("both", model.bodies(), VolumeType.FLUID)

    assert not volume.location().is_implicit()
    assert volume.location().components() == model.bodies()
    assert volume.location().location_string(resolved=True) == "hot, cold"


def test_the_reason_of_the_last_refusal_can_be_asked_for(setup, model):
    setup.set_enforce_restrictions(True)
    assert setup.create_volume("x", "nowhere", VolumeType.FLUID) is None

    assert model.last_refused_state() == State.UNRESOLVABLE
    assert model.last_refusal() == 'The term "nowhere" names nothing; known are "exchanger", "hot", "cold".'


def test_a_model_is_shown_with_its_counts(model):
    assert repr(model) == "<physics.locationmodel.LocationModel parts=1 bodies=2 faces=3>"
    assert repr(model.faces()[1]) == "<physics.locationmodel.Face 'hot end'>"


def test_models_of_the_same_geometry_are_not_the_same():
    assert exchanger().bodies()[0] is not exchanger().bodies()[0]


@pytest.mark.skipif(not os.environ.get("PHYSICS_TEST_DATA"), reason="there is no folder of real files")
def test_a_mesh_file_is_read():
    files = sorted(pathlib.Path(os.environ["PHYSICS_TEST_DATA"]).rglob("*.cgns"))
    if not files:
        pytest.skip("the folder of real files has none of this kind")

    result = read_cgns(files[0])

    assert result.model.bodies() and all(condition.face for condition in result.conditions)
    known = {face.id() for face in result.model.faces()}
    assert {condition.face for condition in result.conditions} <= known
    assert [zone.body for zone in result.zones] == [body.id() for body in result.model]
    assert all(zone.name == zone.body for zone in result.zones) and result.renamed == {}
    assert all(condition.name for condition in result.conditions)
