"""Random histories of a set-up through the module, against a plain model of what must have ended.

Objects that have ended are kept and used on purpose: each use must raise `EndedError`, and never more than that."""

import gc

import pytest
from hypothesis import strategies
from hypothesis.stateful import RuleBasedStateMachine, invariant, precondition, rule

import physics
from conftest import exchanger
from physics import BoundaryType, EndedError, InterfaceType, ThreadType, VolumeType

PLACES = ["hot", "cold", "hot, cold", "exchanger", "nowhere"]
SURFACES = ["hot wall", "cold wall", "hot end", "*", "nothing"]
CHOICE = strategies.integers(min_value=0, max_value=1000)


class Entry:
    """An object that Python was given, what it depends on, and whether it must have ended."""

    def __init__(self, held, *owners):
        self.held = held
        self.owners = owners
        self.was_destroyed = False

    def has_ended(self):
        return self.was_destroyed or any(owner.has_ended() for owner in self.owners)


class Histories(RuleBasedStateMachine):
    def __init__(self):
        super().__init__()
        self.setup = physics.Physics(exchanger(), enforce_restrictions=False)
        self.entries = []
        self.number = 0

    # ---- Choosing among what Python holds, ended or not

    def of(self, kind):
        return [entry for entry in self.entries if isinstance(entry.held, kind)]

    def has(self, kind):
        return bool(self.of(kind))

    def pick(self, kind, choice):
        found = self.of(kind)
        return found[choice % len(found)]

    def keep(self, held, *owners):
        self.entries.append(Entry(held, *owners))
        return held

    def name(self):
        self.number += 1
        return f"n{self.number:04}"

    def attempt(self, call, *used):
        """What the call answers; None, and nothing has happened, when an object that it uses has ended."""
        if not any(entry.has_ended() and not isinstance(entry.held, physics.Interface) for entry in used):
            return call()
        with pytest.raises(EndedError):
            call()
        return None

    # ---- Making

    @rule()
    def create_model(self):
        self.keep(self.setup.create_model())

    @rule(place=strategies.sampled_from(PLACES), type=strategies.sampled_from(list(VolumeType)))
    def create_volume(self, place, type):
        self.keep(self.setup.create_volume(self.name(), place, type))

    @precondition(lambda self: self.has(physics.Volume))
    @rule(choice=CHOICE, place=strategies.sampled_from(SURFACES), type=strategies.sampled_from(list(BoundaryType)))
    def create_boundary(self, choice, place, type):
        volume = self.pick(physics.Volume, choice)
        boundary = self.attempt(lambda: volume.held.create_boundary(self.name(), place, type), volume)
        if boundary is not None:
            entry = Entry(boundary, volume)
            self.entries += [entry, Entry(boundary.patch(), entry)]

    @precondition(lambda self: self.has(physics.Boundary))
    @rule(one=CHOICE, other=CHOICE, type=strategies.sampled_from(list(InterfaceType)))
    def create_interface(self, one, other, type):
        first, second = self.pick(physics.Boundary, one), self.pick(physics.Boundary, other)
        name = self.name()
        interface = self.attempt(lambda: self.setup.create_interface(name, first.held, second.held, type), first, second)
        if interface is not None:
            entry = Entry(interface, first, second)
            self.entries += [entry, Entry(first.held.patch(interface), entry)]

    @precondition(lambda self: self.has(physics.Boundary))
    @rule(choice=CHOICE)
    def ask_for_settings(self, choice):
        boundary = self.pick(physics.Boundary, choice)
        settings = self.attempt(lambda: boundary.held.boundary_settings(), boundary)
        if settings is not None:
            self.keep(settings, boundary)

    @precondition(lambda self: self.has(physics.Settings))
    @rule(choice=CHOICE, index=strategies.integers(0, 2), thread=strategies.integers(0, 9))
    def create_thread(self, choice, index, thread):
        settings = self.pick(physics.Settings, choice)
        bundle = self.attempt(lambda: settings.held.create_thread_bundle(index, ThreadType.WALL, thread, [1]), settings)
        if bundle is not None:
            assert bundle.settings() is settings.held
            self.keep(bundle, settings)

    # ---- Changing

    @precondition(lambda self: self.has(physics.Region))
    @rule(choice=CHOICE)
    def rename(self, choice):
        entry = self.pick(physics.Region, choice)
        name = self.name()
        answer = self.attempt(lambda: entry.held.rename(name), entry)
        if not entry.has_ended():
            assert answer == name == entry.held.name()

    @precondition(lambda self: self.has((physics.Volume, physics.Boundary)))
    @rule(choice=CHOICE, place=strategies.sampled_from(PLACES + SURFACES), enforce=strategies.booleans())
    def relocate(self, choice, place, enforce):
        entry = self.pick((physics.Volume, physics.Boundary), choice)
        self.attempt(lambda: entry.held.relocate(place, enforce), entry)

    @precondition(lambda self: self.has(physics.Volume) and self.has(physics.Model))
    @rule(choice=CHOICE, which=CHOICE)
    def move(self, choice, which):
        volume, model = self.pick(physics.Volume, choice), self.pick(physics.Model, which)
        if self.attempt(lambda: volume.held.set_model(model.held), volume, model):
            assert volume.held.model() is model.held

    @precondition(lambda self: self.has(physics.Volume))
    @rule(choice=CHOICE)
    def deactivate(self, choice):
        volume = self.pick(physics.Volume, choice)
        self.attempt(lambda: self.setup.deactivate_volumes([volume.held]), volume)

    # ---- Ending

    @precondition(lambda self: self.has((physics.Region, physics.Model)))
    @rule(choice=CHOICE)
    def destroy(self, choice):
        entry = self.pick((physics.Region, physics.Model), choice)
        self.attempt(lambda: entry.held.destroy(), entry)
        entry.was_destroyed = True

    @rule()
    def clear(self):
        self.setup.clear()
        self.end_all()

    @rule()
    def serialise_and_restore(self):
        assert self.setup.restore(self.setup.serialise())
        text = self.setup.serialise()  # what was renamed has found its new place by now
        assert self.setup.restore(text)
        assert self.setup.serialise() == text
        self.end_all()
        self.hold_what_there_is()

    @rule()
    def restore_in_another_set_up(self):
        other = physics.Physics(exchanger())
        assert other.restore(self.setup.serialise())
        assert [volume.name() for volume in other] == sorted(volume.name() for volume in self.setup)

    @rule(choice=CHOICE)
    def let_go(self, choice):
        """Whoever holds an object decides nothing: it stays in the set-up, and comes back as another Python object."""
        if self.entries:
            gone = self.entries.pop(choice % len(self.entries))
            if not any(gone in entry.owners for entry in self.entries):
                del gone
                gc.collect(0)

    def end_all(self):
        for entry in self.entries:
            entry.was_destroyed = True

    def hold_what_there_is(self):
        volumes = {volume: Entry(volume) for volume in self.setup.volumes()}
        boundaries = {each: Entry(each, volumes[each.volume()]) for each in self.setup.boundaries()}
        self.entries += [*volumes.values(), *boundaries.values()]
        for each in self.setup.interfaces():
            self.keep(each, boundaries[each.boundary(physics.Side.FIRST)], boundaries[each.boundary(physics.Side.SECOND)])
        for each in self.setup.models():
            self.keep(each)

    # ---- What must hold at any time

    @invariant()
    def ends_are_known(self):
        for entry in self.entries:
            if not isinstance(entry.held, (physics.Settings, physics.ThreadBundle)):
                assert entry.held.has_ended() == entry.has_ended(), entry.held
            elif entry.has_ended():  # both may end earlier, when a bundle or a model is replaced
                assert entry.held.has_ended()

    @invariant()
    def whatever_is_held_can_be_used(self):
        for entry in self.entries:
            assert repr(entry.held).startswith("<physics.")
            if entry.held.has_ended() and not isinstance(entry.held, physics.Interface):
                with pytest.raises(EndedError):
                    entry.held.id()
            else:
                assert isinstance(entry.held.id(), int)

    @invariant()
    def lists_hold_no_ended_object(self):
        listed = [*self.setup.volumes(), *self.setup.boundaries(), *self.setup.interfaces(), *self.setup.models(),
                  *self.setup.settings(), *self.setup.thread_bundles()]

        assert not any(each.has_ended() for each in listed)

    def teardown(self):
        assert self.setup.report().startswith("\nPhysics:\n")
        self.setup.validate()


TestHistories = Histories.TestCase
