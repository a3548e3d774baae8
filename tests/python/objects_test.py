"""What the objects answer is what the library answers, in the forms of Python."""

import physics
from physics import (BoundaryTag, BoundaryType, Connectivity, DomainType, InterfaceType, MeshConnectivity, NameManager,
                     Periodicity, SettingsType, ShellType, Side, State, ThreadType, TopologyType, TypeManager, VolumeType)


def test_objects_are_shown_with_id_name_and_type(case):
    settings = case.hot.settings()
    bundle = settings.create_thread_bundle(0, ThreadType.FLUID, 7, [1])
    shown = {repr(each).replace(f"id={each.id()}", "id=N") for each in (
        case.hot, case.hot_wall, case.contact, case.hot_wall.patch(), settings, bundle, case.hot.model())}

    assert shown == {
        "<physics.Volume id=N name='hot' type=Fluid>",
        "<physics.Boundary id=N name='wall' type=Wall>",
        "<physics.Interface id=N name='contact' type=Wall>",
        "<physics.BoundaryPatch id=N name='wall - NON-OVERLAPPING' type=Wall>",
        "<physics.Settings id=N name='hot' type=VolumeSettings>",
        "<physics.ThreadBundle id=N type=Fluid>",
        "<physics.Model id=N>",
    }
    assert repr(case.setup) == "<physics.Physics volumes=2 boundaries=2 interfaces=1>"


def test_iterating_follows_the_lists_of_the_library(case):
    rest = case.hot.create_default_boundary("a rest", BoundaryType.WALL)
    bundle = case.hot.settings().create_thread_bundle(0, ThreadType.FLUID, 7, [1])

    assert list(case.setup) == case.setup.volumes() == [case.cold, case.hot]
    assert list(case.hot) == case.hot.boundaries() == [rest, case.hot_wall]
    assert list(case.hot_wall) == [case.hot_wall.patch(), case.hot_wall.patch(case.contact)]
    assert list(case.hot.settings()) == [bundle]
    assert list(case.hot.model()) == [case.hot, case.cold]


def test_a_volume_knows_where_it_lies_and_what_it_may_carry(case):
    assert (case.hot.name(), case.hot.full_name(), case.hot.type()) == ("hot", "hot", VolumeType.FLUID)
    assert (case.hot.topology_type(), case.hot.state()) == (TopologyType.VOLUME, State.INCOMPLETE)
    assert [body.id() for body in case.hot.bodies()] == ["hot"]
    assert [use.id() for use in case.hot.unused_face_uses()] == ["hot end@hot"]
    assert case.hot.zone_ids() == [1]
    assert case.cold.allowed_boundary_types() == [BoundaryType.WALL, BoundaryType.INTERIOR, BoundaryType.SYMMETRY]
    assert case.hot.default_boundary_type() == BoundaryType.WALL
    assert "hot end@hot" in case.hot.explain()


def test_an_overlapping_neighbour_without_volume_is_none_in_the_list(setup):
    hot = setup.create_volume("hot", "hot", VolumeType.FLUID)
    twin = setup.create_volume("twin", "hot", VolumeType.FLUID)
    assert hot.overlapping_volumes() == [twin]

    twin.rename("other")
    assert hot.overlapping_volumes() == [None]


def test_what_an_equal_name_hides_is_listed_apart(setup):
    hidden = setup.create_volume("same", "hot", VolumeType.FLUID)
    hidden_end = hidden.create_boundary("end", "hot end")
    listed = setup.create_volume("same", "cold", VolumeType.FLUID)

    assert setup.volumes() == [listed]
    assert setup.unlisted_regions() == [hidden, hidden_end]


def test_a_boundary_knows_its_volume_its_pair_and_its_interfaces(case):
    assert case.hot_wall.full_name() == "hot::wall"
    assert case.hot_wall.volume() is case.hot
    assert case.hot_wall.interfaces() == [case.contact]
    assert case.hot_wall.no_of_interfaces() == 1
    assert case.hot_wall.patch(case.contact).paired_patch() is case.cold_wall.patch(case.contact)
    assert case.hot_wall.set_boundary_type(BoundaryType.VELOCITY_INLET) is False
    case.hot_wall.add_tag(BoundaryTag.INTERFACE)
    assert case.hot_wall.tags() == [BoundaryTag.INTERFACE]


def test_a_shell_is_put_on_and_taken_off(case):
    model = case.setup.create_model()
    assert not case.hot_wall.set_shell_type(ShellType.HEAT_CONDUCTION)

    case.hot_wall.set_shell_model(model)

    assert case.hot_wall.set_shell_type(ShellType.HEAT_CONDUCTION)
    assert case.hot_wall.shell_model() is model
    assert case.hot_wall.settings(SettingsType.SHELL_SETTINGS).type() == SettingsType.SHELL_SETTINGS


def test_an_interface_knows_its_sides_and_how_they_match(case):
    assert case.contact.boundary(Side.FIRST) is case.hot_wall
    assert case.contact.volume(Side.SECOND) is case.cold
    assert case.contact.other_boundary(case.hot_wall) is case.cold_wall
    assert case.contact.connectivity() == Connectivity.TOTAL
    case.contact.set_mesh_connectivity(MeshConnectivity.NON_CONFORMAL)
    assert case.contact.mesh_connectivity() == MeshConnectivity.NON_CONFORMAL


def test_periodic_values_are_triples_of_numbers(case):
    case.contact.set_rotational_periodicity(90, (0, 0, 1), [0, 1, 0])

    assert case.contact.periodicity() == Periodicity.ROTATIONALLY_PERIODIC
    assert case.contact.get_periodic_angle() == 90.0
    assert case.contact.get_periodic_origin() == (0.0, 0.0, 1.0)
    assert case.contact.get_periodic_direction() == (0.0, 1.0, 0.0)
    assert case.contact.get_periodic_offset() == (1.0, 0.0, 0.0)


def test_periodic_interfaces_are_made_in_one_step(case):
    turned = case.setup.create_rotationally_periodic_interface(
        "turned", case.hot_wall, case.cold_wall, 30, (0, 0, 0), (0, 0, 1), InterfaceType.INTERIOR)
    moved = case.setup.create_translationally_periodic_interface(
        "moved", case.hot_wall, case.cold_wall, (0, 2, 0), InterfaceType.INTERIOR)

    assert (turned.get_periodic_angle(), moved.get_periodic_offset()) == (30.0, (0.0, 2.0, 0.0))


def test_a_thread_bundle_knows_its_zones_domains_and_neighbours(case):
    bundle = case.hot.settings().create_thread_bundle(0, ThreadType.FLUID, 7, [2, 1])
    wall = case.hot_wall.boundary_settings(case.contact).create_thread_bundle(0, ThreadType.WALL, 8, [])

    assert (bundle.thread_id(), bundle.domain_ids(), bundle.zone_ids()) == (7, [1, 2], [1])
    assert bundle.set_zone_ids([40, 41]) and bundle.has_own_zones()
    assert case.setup.find_thread_bundle_by_zone_id(41) is bundle
    assert wall.adjacent_thread_bundles() == (bundle, None, None, True)
    assert bundle.solver_thread_type() == physics.solver_thread_type(ThreadType.FLUID)


def test_handles_of_the_host_are_numbers(case):
    bundle = case.hot.settings().create_thread_bundle(0, ThreadType.FLUID, 7, [1])
    bundle.register_thread(0, 0x1000)
    bundle.register_thread(3, 2**64 - 1)

    assert (bundle.thread(0), bundle.thread(1), bundle.thread(3)) == (0x1000, None, 2**64 - 1)
    assert case.hot.settings().threads() == [0x1000, 2**64 - 1]

    bundle.register_thread(0, None)
    assert bundle.threads() == [2**64 - 1]


def test_a_model_holds_domains_and_members(case):
    model = case.setup.create_model()
    model.add_domain(2, DomainType.PHASE, "Water drops")

    assert model.domain_ids() == [1, 2]
    assert (model.domain_type(2), model.domain_symbol(2)) == (DomainType.PHASE, "water-drops")
    assert case.hot.set_model(model) and model.volumes() == [case.hot]
    assert model.settings(case.hot) is case.hot.settings()
    assert case.hot.settings() in model.settings()
    assert model.settings(case.cold) is None


def test_complaints_are_objects_with_their_lines(case):
    case.hot_wall.destroy()
    velocity_inlet = case.cold.create_boundary("inlet", "cold end", BoundaryType.VELOCITY_INLET)

    complaints = case.setup.complaints()

    assert [complaint.region for complaint in complaints] == [case.cold, velocity_inlet]
    assert [line for complaint in complaints for line in complaint.lines if line] == [
        line for line in case.setup.validate() if line]
    assert velocity_inlet.validate() == complaints[1].lines
    assert not velocity_inlet.is_physics_valid()


def test_a_complaint_about_no_object_has_none(setup, model):
    assert physics.Complaint(None, ["a line"]).region is None
    assert setup.complaints() == []


def test_groups_and_masks_follow_their_lists(case):
    assert case.setup.deactivate_volumes([case.hot, case.cold]) == 1
    assert case.setup.activation_group_volumes(1) == [case.hot, case.cold]
    assert case.setup.activate_group(1)

    hot = case.hot.bodies()
    case.setup.set_masked_bodies(hot)
    assert case.setup.masked_bodies() == hot
    assert case.setup.is_masked(hot[0]) and not case.setup.is_masked(case.setup.location_model().parts()[0])
    assert case.hot.is_empty()


def test_reports_are_texts(case):
    bundle = case.hot.settings().create_thread_bundle(0, ThreadType.FLUID, 7, [1])

    assert "| Name                  = hot\n" in case.hot.report()
    assert case.hot.report() in case.setup.report() or "hot" in case.setup.report()
    assert bundle.report("> ").startswith("> ")
    assert case.hot.model().report_domains("# ").startswith("# ")
    assert TypeManager().report() != ""


def test_a_saved_text_comes_back(case, model):
    text = case.setup.serialise()
    other = physics.Physics(model)

    assert other.check_serialised(text) == []
    assert other.restore(text)
    assert [boundary.full_name() for boundary in other.boundaries()] == ["cold::wall", "hot::wall"]
    assert other.serialise() == text


def test_a_wrong_text_is_refused_with_reasons_and_nothing_changes(case):
    reasons = case.setup.check_serialised("nonsense")

    assert len(reasons) == 1 and reasons[0].startswith("1: expected the format version ")
    assert not case.setup.restore("nonsense")
    assert case.hot.name() == "hot"


def test_the_tables_of_types_are_there_with_and_without_a_set_up(setup):
    tables = TypeManager()

    assert setup.allowed_boundary_types(VolumeType.SOLID) == tables.allowed_boundary_types(VolumeType.SOLID)
    assert tables.allowed_boundary_types(ShellType.HEAT_CONDUCTION) == [BoundaryType.WALL]
    assert tables.default_boundary_type(VolumeType.FLUID) == BoundaryType.WALL
    assert not tables.is_allowed_boundary_type(VolumeType.SOLID, BoundaryType.FAN)
    assert setup.type_to_name(InterfaceType.POROUS_JUMP) == "PorousJump"
    assert setup.type_to_scheme_name(InterfaceType.POROUS_JUMP) == "i-porous-jump"


def test_names_are_put_into_form():
    assert NameManager.normalise_physics_name(" 1st (try) ") == "A1st _try_"
    assert NameManager.normalise_thread_name("Water Drops") == "water-drops"
