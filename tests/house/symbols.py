#!/usr/bin/env python3
"""Fails when a shared library shows a symbol outside its namespace, or wants one that its users cannot have.

usage: symbols.py LIBRARY NAMESPACE [FOREIGN_NAMESPACE...]

NAMESPACE is the only one that the library may define symbols of, but for the type information of a foreign class that
has no source of its own: every library that uses it brings it, and the loader takes one. What it leaves undefined must
come from the C or C++ runtime, or from one of the foreign namespaces; without any, undefined symbols are not looked at.
"""

import re
import subprocess
import sys

import tree

# The libraries of the C and C++ runtime, with the sanitizers, whose calls a checked build makes.
RUNTIME = re.compile(r"^\s*\S*\b(?:libc|libm|libstdc\+\+|libgcc_s|libasan|libubsan)\.so\S* => (\S+)", re.MULTILINE)


def belongs_to(symbol, namespace):
    """Whether a mangled name is that of a function, variable, vtable, type or thunk of a namespace."""
    wrapped = r"(GV|GR|Z|TV|TI|TS|TT|Thn?\d+_|Tvn?\d+_n?\d+_)*"
    return re.match(rf"_Z{wrapped}N?[rVKRO]*{len(namespace)}{namespace}", symbol) is not None


def foreign_definitions(symbols, namespace, foreign=()):
    return [symbol for symbol in symbols if not belongs_to(symbol, namespace)
            and not (symbol.startswith(("_ZTI", "_ZTS")) and any(belongs_to(symbol, other) for other in foreign))]


def foreign_wishes(symbols, namespaces, runtime):
    return [symbol for symbol in symbols
            if symbol not in runtime and not any(belongs_to(symbol, namespace) for namespace in namespaces)]


def dynamic_symbols(library, which, leave_out="wv"):
    """The names without version, but for those of the kinds `leave_out`, in the letters of nm: as a rule what is undefined
    but weak, since nobody has to provide it."""
    listed = subprocess.run(["nm", "--dynamic", "--format=posix", which, library],
                            check=True, text=True, stdout=subprocess.PIPE).stdout
    fields = (line.split() for line in listed.splitlines())
    return [field[0].partition("@")[0] for field in fields if field[1] not in leave_out]


def runtime_symbols(library):
    loaded = subprocess.run(["ldd", library], check=True, text=True, stdout=subprocess.PIPE).stdout
    return {symbol for path in RUNTIME.findall(loaded) for symbol in dynamic_symbols(path, "--defined-only")}


def readable(symbol):
    return subprocess.run(["c++filt", symbol], check=True, text=True, stdout=subprocess.PIPE).stdout.strip()


def main(library, namespace, *foreign):
    defined = dynamic_symbols(library, "--defined-only")
    findings = [f"{library}: shows {readable(symbol)}, which is not in namespace {namespace}"
                for symbol in foreign_definitions(defined, namespace, foreign)]
    if foreign:
        findings += [f"{library}: wants {readable(symbol)}, which is neither in {' or '.join(foreign)} nor in the runtime"
                     for symbol in foreign_wishes(dynamic_symbols(library, "--undefined-only"), foreign,
                                                  runtime_symbols(library))]
    tree.finish(f"symbols of {library}", findings, len(defined))


if __name__ == "__main__":
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    main(*sys.argv[1:])
