"""python3 scatter.py <data> <number of pictures> <picture>: the chart of procedure penguins with matplotlib."""

import csv
import sys

import matplotlib

matplotlib.use("svg")
import matplotlib.pyplot as plt
import numpy as np


def columns(file):
    with open(file, newline="") as lines:
        rows = list(csv.DictReader(lines))
    numbers = np.array([[row["flipper_length_mm"], row["body_mass_g"]] for row in rows], dtype=float)
    return np.array([row["species"] for row in rows]), numbers[:, 0], numbers[:, 1]


def draw(file, picture):
    species, x, y = columns(file)
    figure, axes = plt.subplots(figsize=(10, 7))
    for name, marker in zip(np.unique(species), "o^s"):
        of_species = species == name
        points = axes.plot(x[of_species], y[of_species], marker, label=name)
        line(axes, x[of_species], y[of_species], color=points[0].get_color())
    line(axes, x, y, color="black", linestyle="--", label="All penguins")
    axes.set(title="Body mass and flipper length of penguins", xlabel="Flipper length (mm)", ylabel="Body mass (g)")
    axes.legend(title="Species")
    figure.savefig(picture)
    plt.close(figure)


def line(axes, x, y, **style):
    slope, intercept = np.polyfit(x, y, 1)
    ends = np.array([x.min(), x.max()])
    axes.plot(ends, intercept + slope * ends, **style)


for number in range(int(sys.argv[2])):
    draw(sys.argv[1], f"{sys.argv[3]}{number + 1}.svg")
