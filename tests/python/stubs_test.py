"""The stubs are those of the module, a type checker accepts them, and it finds mistakes with them."""

import os
import subprocess
import sys

import pytest

import stubs


def mypy(tmp_path, *arguments):
    environment = dict(os.environ)
    environment.pop("LD_PRELOAD", None)
    return subprocess.run([sys.executable, "-m", "mypy", "--strict", "--cache-dir", str(tmp_path), *arguments],
                          text=True, stdout=subprocess.PIPE, env=environment)


@pytest.mark.parametrize("file", ["__init__.pyi", "locationmodel.pyi"])
def test_the_stubs_are_those_of_the_module(file):
    with open(os.path.join(stubs.FOLDER, file), encoding="utf-8") as kept:
        assert kept.read() == stubs.stubs()[file], "run python/tools/stubs.py and review what it changes"


def test_a_type_checker_accepts_the_package_and_the_example(tmp_path):
    example = os.path.join(os.path.dirname(__file__), "..", "..", "examples", "heat_exchanger.py")

    checked = mypy(tmp_path, "-p", "physics"), mypy(tmp_path, example)

    assert [(each.returncode, each.stdout) for each in checked if each.returncode] == []


def test_a_type_checker_finds_mistakes(tmp_path):
    program = tmp_path / "program.py"
    program.write_text("from physics import BoundaryType, Physics\n"
                       "def wrong(setup: Physics) -> str:\n"
                       "    setup.create_volume('a', 'b', BoundaryType.WALL)\n"
                       "    return setup.volumes()[0].id()\n")

    checked = mypy(tmp_path, str(program))

    assert 'error: No overload variant of "create_volume" of "Physics" matches argument types' in checked.stdout
    assert 'error: Incompatible return value type (got "int", expected "str")' in checked.stdout
