"""The example script builds what the command line builds of the case file beside it."""

import os
import subprocess
import sys

import pytest

EXAMPLES = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "examples")

PRINTED = """\
cold Fluid
    inlet VelocityInlet 1
    outlet PressureOutlet 1
    shell Wall 5
    symmetry Symmetry 2
    tube side Wall 1
hot Fluid
    inlet MassFlowInlet 1
    outlet PressureOutlet 1
    symmetry Symmetry 1
    tube side Wall 1
tube Solid
    cold side Wall 1
    hot side Wall 1
    outside Wall 4
    symmetry Symmetry 2
valid: True
"""


def run(*command):
    return subprocess.run(command, check=True, text=True, stdout=subprocess.PIPE).stdout


def test_the_example_prints_what_it_built():
    assert run(sys.executable, os.path.join(EXAMPLES, "heat_exchanger.py")) == PRINTED


@pytest.mark.skipif(not os.environ.get("PHYSICS_CASE"), reason="the command line was not built")
def test_the_example_saves_what_the_command_line_saves(tmp_path):
    run(sys.executable, os.path.join(EXAMPLES, "heat_exchanger.py"), str(tmp_path / "script"))
    run(os.environ["PHYSICS_CASE"], "save", os.path.join(EXAMPLES, "heat_exchanger.json"), "-o", str(tmp_path / "case"))

    assert (tmp_path / "script").read_bytes() == (tmp_path / "case").read_bytes()
