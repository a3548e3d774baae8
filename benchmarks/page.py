"""The tables of docs/performance.md. What stands between the markers of a table is written anew; the prose around
them is not touched."""

import re

BLOCK = re.compile(r"(<!-- measured: ([a-z -]+) -->\n).*?(<!-- end -->)", re.DOTALL)


def figure(value):
    """Three digits that count, and a blank before thousands."""
    if value >= 1000:
        return f"{value:,.0f}".replace(",", " ")
    return f"{value:.0f}" if value >= 100 else f"{value:.1f}" if value >= 10 else f"{value:.2f}" if value >= 1 \
        else f"{value:.3f}"


def per_object(values, size):
    """Microseconds for one object."""
    for counter in ("perObject", "perBoundary"):
        if counter in values:
            return values[counter] * 1e6
    return values["time"] / 1e3 / int(size)


def markdown(head, rows):
    return "\n".join(["| " + " | ".join(row) + " |" for row in [head, ["---"] * len(head), *rows]])


def sizes_of(result):
    return sorted({size for sizes in result["rows"].values() for size in sizes}, key=int)


def heads(sizes):
    return [figure(int(size)) for size in sizes]


def readable(name):
    return name.replace("/cold", "").replace("/", ": ")


def growth(sizes):
    """How much more one object costs in the largest case than in the smallest."""
    costs = [per_object(values, size) for size, values in sorted(sizes.items(), key=lambda item: int(item[0]))]
    return costs[-1] / costs[0]


def costs(sizes_of_row, sizes, unit):
    return [figure(per_object(sizes_of_row[size], size) * unit) if size in sizes_of_row else "" for size in sizes]


def growth_table(result, unit=1):
    """Time for one object, `unit` times microseconds."""
    sizes = sizes_of(result)
    return markdown(["", *heads(sizes), "growth"],
                    [[readable(name), *costs(row, sizes, unit), figure(growth(row))]
                     for name, row in result["rows"].items()])


def report_table(result):
    """The same, with how many bytes come out in a second and how much longer that takes than writing them alone."""
    sizes = sizes_of(result)
    counters = (("bytes_per_second", 1e-6, "megabytes a second"), ("toWriting", 1, "times writing the same bytes"))
    return "\n".join([growth_table(result)] + [
        "| " + " | ".join([f"{readable(name)}: {title}", *(figure(row[size][counter] * unit) for size in sizes), ""]) + " |"
        for name, row in result["rows"].items() for counter, unit, title in counters])


def beside_table(result, unit=1):
    """The same, beside others: how many times the time of "this library" the others take."""
    rows, sizes = result["rows"], sizes_of(result)

    def factor(name, row):
        ours = rows.get(name.split("/")[0] + "/this library")
        size = max(row, key=int)
        return figure(row[size]["time"] / ours[size]["time"]) if ours and size in ours else ""

    return markdown(["", *heads(sizes), "times this library"],
                    [[readable(name), *costs(row, sizes, unit), factor(name, row)] for name, row in rows.items()])


def counter_rows(row, sizes):
    counters = [counter for counter in next(iter(row.values())) if counter != "time"]
    return [[counter, *(figure(row[size][counter]) for size in sizes if size in row)] for counter in counters]


def counter_table(result):
    """Every counter of every benchmark."""
    sizes = sizes_of(result)
    return markdown(["", *heads(sizes)], [[f"{readable(name)}: {counter}", *figures]
                                          for name, row in result["rows"].items()
                                          for counter, *figures in counter_rows(row, sizes)])


def total_of_chain(values):
    return sum(value for counter, value in values.items() if counter != "time")


def chain_table(result):
    """Milliseconds of each step, and all of them."""
    row, sizes = result["rows"]["chain"], sizes_of(result)
    return markdown(["", *heads(sizes)],
                    [*counter_rows(row, sizes), ["all", *(figure(total_of_chain(row[size])) for size in sizes)]])


TABLES = {
    "location model": ("location-model-benchmark", growth_table),
    "validation": ("validation-benchmark", growth_table),
    "objects": ("objects-benchmark", growth_table),
    "look-ups": ("look-ups-benchmark", lambda result: beside_table(result, 1000)),
    "saving": ("saving-benchmark", beside_table),
    "report": ("report-benchmark", report_table),
    "chain": ("chain-benchmark", chain_table),
    "memory": ("memory-benchmark", counter_table),
    "named conditions": ("named-conditions-benchmark", beside_table),
    "mesh files": ("cgns-benchmark", beside_table),
}

# What the library is to reach, each with how it is found out from the results of all programs.


def largest_growth(results):
    found = {}
    for program in ("objects-benchmark", "validation-benchmark", "report-benchmark"):
        found.update({readable(name): growth(row) for name, row in results[program]["rows"].items()
                      if not name.startswith("check")})
    for program, names in (("look-ups-benchmark", ".*/this library"), ("saving-benchmark", ".*/this library|restore/i.*")):
        found.update({readable(name): growth(row) for name, row in results[program]["rows"].items()
                      if re.fullmatch(names, name)})
    worst = max(found, key=found.get)
    kept = sum(value <= 2 for value in found.values())
    return f"{figure(found[worst])} ({worst}); at most 2 in {kept} of {len(found)}"


def time_of(results, program, name, size):
    return results[program]["rows"][name][size]["time"]


def times_faster(results, kind, others):
    size = max((size for name in others for size in results["saving-benchmark"]["rows"][f"{kind}/{name}"]), key=int)
    ours = time_of(results, "saving-benchmark", f"{kind}/this library", size)
    return min(time_of(results, "saving-benchmark", f"{kind}/{name}", size) for name in others) / ours


TEXT_PEERS = ("streams of the standard library", "Boost.Serialization, text", "nlohmann-json")
LIMIT = "limit: format the numbers and copy the bytes"


def named_conditions(results):
    rows = results["named-conditions-benchmark"]["rows"]
    size = max(rows["store and read back/this library"], key=int)
    times = {name: row[size]["time"] for name, row in rows.items()}
    ours = times.pop("store and read back/this library")
    return f"{figure(min(times.values()) / ours)} times, at {figure(int(size))}"


def chain(results):
    row = results["chain-benchmark"]["rows"]["chain"]
    size = min((size for size in row), key=lambda size: abs(int(size) - 100000))
    return f"{figure(total_of_chain(row[size]) / 1000)} s, at {figure(int(size))}"


def peak(results):
    row = results["memory-benchmark"]["rows"]["restore"]
    return f"{figure(max(values['peak to finished'] for values in row.values()))} times"


AIMS = [
    ("growth of the cost of one object from the smallest to the largest case", "at most 2", largest_growth),
    ("whole chain at 100 000 boundaries", "under 2 s", chain),
    ("storing and reading back 10 000 named conditions, against CGNS on its faster back end", "100 times as fast",
     named_conditions),
    ("`serialise`, against the fastest text peer", "5 times as fast",
     lambda results: f"{figure(times_faster(results, 'write', TEXT_PEERS))} times"),
    ("reading back, against the fastest text peer", "5 times as fast",
     lambda results: f"{figure(times_faster(results, 'read', TEXT_PEERS))} times"),
    ("`serialise`, against copying the bytes and formatting the numbers", "within a factor of 2",
     lambda results: f"{figure(1 / times_faster(results, 'write', [LIMIT]))} times the limit"),
    ("peak memory of `restore`", "3 times the finished objects", peak),
]


def aims_table(results):
    return markdown(["", "aim", "measured"], [[what, aim, measured(results)] for what, aim, measured in AIMS])


def block(name, results):
    """What belongs between the markers of a table, or None where nothing was measured for it."""
    if name == "aims":
        return aims_table(results) + "\n" if all(program in results for program, _ in TABLES.values()) else None
    program, table = TABLES[name]
    if program not in results:
        return None
    result = results[program]
    return (f"{table(result)}\n\n`{result['command']}`\n\n"
            f"Measured on {result['date']} on {result['machine']}; load average {result['load']}.\n")


def updated(page, results):
    """The page with the tables of these results; the others stay as they are."""
    def replaced(found):
        new = block(found[2], results)
        return found[0] if new is None else f"{found[1]}\n{new}\n{found[3]}"
    return BLOCK.sub(replaced, page)
