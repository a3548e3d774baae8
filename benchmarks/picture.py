"""The picture of docs/performance.md: what one object costs in cases of different size."""

import math

import matplotlib

matplotlib.use("svg")
matplotlib.rcParams["svg.hashsalt"] = "performance"  # the same bytes for the same figures

import matplotlib.pyplot as plt
import matplotlib.ticker

import page

# Program, benchmark, and what it is called in the picture.
LINES = (
    ("objects-benchmark", "ten boundaries a volume/create/cold", "create"),
    ("objects-benchmark", "ten boundaries a volume/list/cold", "list"),
    ("objects-benchmark", "ten boundaries a volume/move to another model/cold", "move"),
    ("objects-benchmark", "ten boundaries a volume/rename/cold", "rename"),
    ("objects-benchmark", "ten boundaries a volume/destroy one by one/cold", "destroy"),
    ("look-ups-benchmark", "boundaries by id/this library", "find by id"),
    ("validation-benchmark", "validate, many volumes, named in another order", "validate"),
    ("saving-benchmark", "write/this library", "serialise"),
    ("saving-benchmark", "restore/into an empty set-up", "restore"),
    ("report-benchmark", "ten boundaries a volume", "report"),
)


def spread(heights, gap):
    """Heights as near as possible to the wanted ones, at least `gap` apart."""
    placed = {}
    lowest = -float("inf")
    for name, height in sorted(heights.items(), key=lambda item: item[1]):
        lowest = max(height, lowest + gap)
        placed[name] = lowest
    return placed


def draw(results, path):
    figure, axes = plt.subplots(figsize=(8, 5.5))
    ends = {}
    for number, (program, benchmark, label) in enumerate(LINES):
        row = results[program]["rows"][benchmark]
        points = sorted((int(size), page.per_object(values, size)) for size, values in row.items())
        colour = matplotlib.colormaps["tab10"](number)
        axes.plot(*zip(*points), marker="o", markersize=4, color=colour)
        ends[label] = (points[-1], colour)
    axes.set_xscale("log")
    axes.set_yscale("log")
    axes.set_xlabel("boundaries of the case")
    axes.set_ylabel("microseconds for one object")
    axes.yaxis.set_major_formatter(matplotlib.ticker.FormatStrFormatter("%g"))
    axes.xaxis.set_major_formatter(matplotlib.ticker.FuncFormatter(lambda value, _: page.figure(value)))
    axes.grid(True, which="major", color="#dddddd", linewidth=0.6)
    axes.spines[["top", "right"]].set_visible(False)

    # Names stand at the ends of their lines, moved apart where lines end close to each other.
    low, high = axes.get_ylim()
    shares = {label: math.log(point[1] / low) / math.log(high / low) for label, (point, _) in ends.items()}
    for label, height in spread(shares, 0.045).items():
        axes.annotate(label, (1.01, height), xycoords="axes fraction", va="center", color=ends[label][1])
    figure.tight_layout()
    figure.savefig(path, metadata={"Date": None})
    plt.close(figure)
