"""Runs the benchmark programs and keeps what they measured, one size at a time and each size in a process of its own,
so that the memory of a large case leaves no holes for a small one."""

import dataclasses
import datetime
import json
import os
import re
import statistics
import subprocess

SIZES = (1000, 10000, 100000, 1000000)
QUICK_SIZES = SIZES[:2]
NANOSECONDS = {"ns": 1, "us": 1e3, "ms": 1e6, "s": 1e9}


@dataclasses.dataclass(frozen=True)
class Program:
    """What is run of one benchmark program: names that match `names`, up to sizes."""
    names: str = ""
    largest: int = 1000000
    largest_when_quick: int = 10000


PROGRAMS = {
    "objects-benchmark": Program(names="/cold"),
    "look-ups-benchmark": Program(),
    "validation-benchmark": Program(),
    "saving-benchmark": Program(),
    "report-benchmark": Program(),
    "chain-benchmark": Program(),
    "memory-benchmark": Program(largest=100000),
    "named-conditions-benchmark": Program(largest=10000, largest_when_quick=1000),
    "location-model-benchmark": Program(largest=100000),
    "cgns-benchmark": Program(largest=100000, largest_when_quick=1000),
}


def sizes_of(program, quick, most=SIZES[-1]):
    largest = min(most, program.largest_when_quick if quick else program.largest)
    return [size for size in (QUICK_SIZES if quick else SIZES) if size <= largest]


def options(quick, size):
    """Large cases are measured less often: they take long, and are steadier. The time is that of what is measured alone;
    what prepares it, and fills the caches with something else each time, takes many times as long."""
    repetitions = 3 if quick else {1000: 5, 10000: 5, 100000: 3, 1000000: 1}[size]
    warm_up = ["--benchmark_min_warmup_time=0.001"] if repetitions == 1 else []
    return [f"--benchmark_repetitions={repetitions}", "--benchmark_min_time=0.001", *warm_up]


def medians(runs):
    """{name: {counter: median}} of the repetitions in a report of Google Benchmark; "time" is the processor time of
    the whole in nanoseconds. Names are without the size."""
    repetitions = {}
    for run in runs:
        if run.get("error_occurred"):
            raise RuntimeError(f"{run['name']}: {run['error_message']}")
        if run["run_type"] == "iteration":
            name = re.match(r"(.*?)/\d+(/.*)?$", run["run_name"])[1]
            repetitions.setdefault(name, []).append(run)
    known = {"name", "run_name", "run_type", "family_index", "per_family_instance_index", "repetitions",
             "repetition_index", "threads", "iterations", "real_time", "cpu_time", "time_unit"}
    result = {}
    for name, group in repetitions.items():
        result[name] = {key: statistics.median(run[key] for run in group) for key in group[0] if key not in known}
        result[name]["time"] = statistics.median(run["cpu_time"] * NANOSECONDS[run["time_unit"]] for run in group)
    return result


def machine():
    with open("/proc/cpuinfo", encoding="utf-8") as file:
        model = re.search(r"model name\s*: (.*)", file.read())
    with open("/etc/os-release", encoding="utf-8") as file:
        system = re.search(r'PRETTY_NAME="(.*)"', file.read())
    version = subprocess.run(["g++", "-dumpfullversion"], check=True, stdout=subprocess.PIPE, text=True).stdout.strip()
    return f"{os.cpu_count()} cores of {model[1] if model else 'an unknown processor'}, {system[1]}, GCC {version}"


def run(folder, name, quick, most=SIZES[-1]):
    """What one program measures up to a size: its command, machine, date, and {name: {size: {counter: median}}}."""
    program = PROGRAMS[name]
    load = round(os.getloadavg()[0], 1)
    rows = {}
    for size in sizes_of(program, quick, most):
        print(f"bench: {name}, {size}", flush=True)
        command = [os.path.join(folder, name), f"--benchmark_filter={program.names}/{size}(/|$)", *options(quick, size)]
        output = subprocess.run([*command, "--benchmark_format=json"], check=True, stdout=subprocess.PIPE,
                                stderr=subprocess.DEVNULL, text=True).stdout
        for row, values in medians(json.loads(output)["benchmarks"]).items():
            rows.setdefault(row, {})[str(size)] = values
    shown = " ".join(f"'{part}'" if "|" in part else part
                     for part in [command[0], f"--benchmark_filter={program.names}/SIZE(/|$)", *options(quick, 1000)])
    return {"command": shown, "machine": machine(), "date": datetime.date.today().isoformat(),
            "load": load, "rows": rows}
