#!/usr/bin/env python3
"""Tries every block and every command of a Markdown page, so that no page shows what does not work.

usage: page.py PAGE...      with PHYSICS_CASE and, where it is built, PHYSICS_GMSH, the programs, and PHYSICS_BUILD, a
                            configured build folder, in the environment

What is done with a block depends on its language:

    cpp         a program, which tests of their own compile and run; tests/docs/CMakeLists.txt
    python      run by tests/python/page_test.py
    json        a case or topology file, or a case file without its head: must have the shape of the schema
    indented    commands, or a transcript: lines that begin with "$ " are commands, and between them stands what these
                say; a line "..." stands for any lines
    text        what the program above it prints
    ebnf        a grammar; nothing runs it

A comment on the line above a block can say more about it:

    <!-- excerpt of FILE -->        these lines stand in FILE, which a build of ours compiles or uses
    <!-- checked by FILE -->        a test of its own in FILE, which names the page
    <!-- saved as FILE -->          the commands below find the block in their folder, as this file
    <!-- with FILE... -->           the commands find copies of these files in their folder

The commands of a page are run one after the other, in a folder with a copy of examples/. Commands in the running text,
in backticks, are not run, as they have names like FILE in them; their verbs and options must exist.
"""

import functools
import json
import os
import re
import shlex
import shutil
import subprocess
import sys
import textwrap

import jsonschema

from documented import ROOT, PageError, blocks, read, scratch

SCHEMAS = {"physics-case": "docs/case.schema.json", "physics-topology": "docs/topology.schema.json"}

# What is not run, since it installs, builds or tests all this again: it must be there.
SET_UP = {"./scripts/": lambda words: is_script(words[0]),
          "cmake --preset": lambda words: is_preset(words[2]),
          "cmake --build --preset": lambda words: is_preset(words[3]) and all(map(is_target, after(words, "--target"))),
          "cmake --install build/": lambda words: is_preset(words[2].partition("/")[2]),
          "ctest --preset": lambda words: is_preset(words[2])}


def try_blocks(path):
    """The number of blocks, when each holds."""
    page, name = read(path), os.path.relpath(path, ROOT)
    tried = blocks(page)
    with scratch() as folder:
        for block in tried:
            try:
                try_block(block, previous_of(block, tried), name, folder)
            except PageError as error:
                raise PageError(f"{name}:{block.line}: {error}") from error
    for command in re.findall(r"`((?:physics-case|physics-gmsh|cmake|ctest|\./scripts/)[^`]*)`", outside(page, tried)):
        try:
            try_mention(" ".join(command.split()))
        except PageError as error:
            raise PageError(f"{name}: {error}") from error
    return len(tried)


def previous_of(block, tried):
    place = tried.index(block)
    return tried[place - 1] if place else None


def outside(page, tried):
    """The page without its blocks."""
    lines = page.split("\n")
    for block in tried:
        for number in range(block.line - 1, block.line - 1 + block.text.count("\n")):
            lines[number] = ""
    return "\n".join(lines)


def try_block(block, previous, page, folder):
    if block.mark.startswith("excerpt of "):
        must_be_in(block.text, block.mark.partition(" of ")[2])
    elif block.mark.startswith("checked by "):
        must_name(block.mark.partition(" by ")[2], page)
    elif block.language == "json":
        must_have_the_shape(block.text)
        if block.mark.startswith("saved as "):
            with open(os.path.join(folder, block.mark.partition(" as ")[2]), "w", encoding="utf-8") as file:
                file.write(block.text)
    elif block.language == "indented":
        for file in block.mark.split()[1:]:
            shutil.copy(os.path.join(ROOT, file), folder)
        run_commands(block.text, folder)
    elif block.language == "text":
        if previous is None or previous.language not in ("cpp", "python"):
            raise PageError("no program stands above this output")
    elif block.language not in ("cpp", "python", "ebnf"):
        raise PageError(f"nobody knows what to do with a block in \"{block.language}\"")


def must_be_in(excerpt, file):
    """The file may indent the lines further."""
    lines = [re.escape(line) for line in excerpt.splitlines()]
    wanted = re.compile("^([ \t]*)" + "\n".join(([lines[0]] + [rf"(?:\1{line})" if line else "" for line in lines[1:]])) + "$",
                        re.MULTILINE)
    if not wanted.search(read(os.path.join(ROOT, file))):
        raise PageError(f"these lines do not stand in {file}")


def must_name(file, page):
    if page not in read(os.path.join(ROOT, file)):
        raise PageError(f"{file} does not name {page}")


@functools.lru_cache(maxsize=None)
def validator(schema):
    return jsonschema.Draft202012Validator(json.loads(read(os.path.join(ROOT, schema))))


def must_have_the_shape(text):
    try:
        value = json.loads(text)
    except json.JSONDecodeError as error:
        raise PageError(f"not JSON: {error}") from error
    if "format" not in value:
        value = {"format": "physics-case", "version": 1, "geometry": "of the page", **value}
    if value["format"] not in SCHEMAS:
        raise PageError(f"there is no format \"{value['format']}\"")
    for error in validator(SCHEMAS[value["format"]]).iter_errors(value):
        raise PageError(f"{error.json_path}: {error.message}")


def run_commands(text, folder):
    """Commands one a line, or a transcript with what they say."""
    if not text.startswith("$ "):
        for line in text.splitlines():
            for command in line.split(" && "):
                run_command(command, folder, must_end_well=True)
        return
    for transcript in text[2:].split("\n$ "):
        command, _, expected = transcript.partition("\n")
        said = run_command(command, folder, must_end_well=False)
        if not is_told(expected.splitlines(), said.splitlines()):
            raise PageError(f"`{command}` says something else:\n{textwrap.indent(said, '    ')}")


def is_told(expected, said):
    """Whether the lines are those expected, of which "..." stands for any number."""
    pattern = "".join("(?:.*\n)*?" if line == "..." else re.escape(line.rstrip()) + "\n" for line in expected)
    return re.fullmatch(pattern, "".join(f"{line.rstrip()}\n" for line in said)) is not None


def run_command(command, folder, must_end_well):
    """What it says on standard output and error; nothing for one that is not run. 0 to 2 are ends that pages speak of."""
    words = shlex.split(command, comments=True)
    for beginning, is_there in SET_UP.items():
        if command.startswith(beginning):
            if not is_there(words):
                raise PageError(f"`{command}`: there is no such script, preset or target")
            return ""
    if words[:1] not in (["physics-case"], ["cat"], ["head"], ["sed"]):
        raise PageError(f"nobody knows whether to run `{command}`")
    environment = {**os.environ, "PATH": os.path.dirname(os.environ["PHYSICS_CASE"]) + ":" + os.environ["PATH"]}
    run = subprocess.run(command, shell=True, cwd=folder, env=environment, text=True, stdout=subprocess.PIPE,
                         stderr=subprocess.STDOUT)
    if run.returncode not in ((0,) if must_end_well else (0, 1, 2)):
        raise PageError(f"`{command}` ends with {run.returncode} and says:\n{textwrap.indent(run.stdout, '    ')}")
    return run.stdout


def is_script(path):
    path = os.path.join(ROOT, path)
    return os.access(path, os.X_OK) and subprocess.run(["bash", "-n", path]).returncode == 0


def is_preset(name):
    presets = json.loads(read(os.path.join(ROOT, "CMakePresets.json")))
    return name in [preset["name"] for preset in presets["configurePresets"] if not preset.get("hidden")]


def is_target(name):
    listed = subprocess.run(["cmake", "--build", os.environ["PHYSICS_BUILD"], "--target", "help"], check=True, text=True,
                            stdout=subprocess.PIPE).stdout
    return re.search(rf"^{re.escape(name)}: ", listed, re.MULTILINE) is not None


def after(words, option):
    return [words[place + 1] for place, word in enumerate(words) if word == option]


@functools.lru_cache(maxsize=None)
def help_of(*command):
    """What a program tells about itself or one of its verbs; nothing when it has no such verb."""
    program = {"physics-case": "PHYSICS_CASE", "physics-gmsh": "PHYSICS_GMSH"}[command[0]]
    run = subprocess.run([os.environ[program], *command[1:], "--help"], text=True, stdout=subprocess.PIPE,
                         stderr=subprocess.STDOUT)
    return run.stdout if run.returncode == 0 else ""


def try_mention(command):
    words = command.split()
    if words[0].startswith("physics-"):
        verb = [word for word in words[1:2] if re.fullmatch("[a-z]+", word)]
        is_built = words[0] != "physics-gmsh" or "PHYSICS_GMSH" in os.environ
        if is_built and not help_of(words[0], *verb):
            raise PageError(f"`{command}`: there is no such verb")
        for option in (word.partition("=")[0] for word in words[1:] if word.startswith("-") and is_built):
            if not re.search(rf"^  (?:\S*,)?{option}\b", help_of(words[0], *verb), re.MULTILINE):
                raise PageError(f"`{command}`: there is no option {option}")
    elif words[0].startswith("./scripts/") and not is_script(words[0]):
        raise PageError(f"`{command}`: there is no such script")
    elif words[0] in ("cmake", "ctest") and not all(map(is_preset, after(words, "--preset"))):
        raise PageError(f"`{command}`: there is no such preset")


if __name__ == "__main__":
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    try:
        for PAGE in sys.argv[1:]:
            print(f"{PAGE}: {try_blocks(PAGE)} blocks hold")
    except PageError as error:
        sys.exit(str(error))
