#!/usr/bin/env python3
"""Writes mast.truss, a square lattice mast of 408 bars, to standard output.

With "--check FILE" nothing is written: the exit status says whether FILE is what would be.
"""

import sys

BAYS = 24
BAY_HEIGHT = 2500  # mm
BASE_WIDTH, TOP_WIDTH = 6000, 1500  # mm
LEG_AREAS = (9000, 6000, 3000)  # mm^2, lower, middle and upper third
BRACE_AREA = 800  # mm^2
CORNERS = ((-1, -1), (1, -1), (1, 1), (-1, 1))

HEADER = """\
# Written by make_mast.py: do not edit.
title Lattice mast, 60 m
units mm N kg
material steel 210000 7.85e-6
"""


def name(level, corner):
    return f"{level}{'abcd'[corner % 4]}"


def nodes():
    for level in range(BAYS + 1):
        half = (BASE_WIDTH + (TOP_WIDTH - BASE_WIDTH) * level / BAYS) / 2
        for corner, (x, y) in enumerate(CORNERS):
            yield f"node {name(level, corner)} {x * half:g} {y * half:g} {level * BAY_HEIGHT}"


def members():
    """End nodes and area of each bar: per bay the legs, crossed diagonals, struts and a plan brace."""
    for level in range(BAYS):
        leg_area = LEG_AREAS[level * len(LEG_AREAS) // BAYS]
        for corner in range(4):
            yield name(level, corner), name(level + 1, corner), leg_area
            yield name(level, corner), name(level + 1, corner + 1), BRACE_AREA
            yield name(level, corner + 1), name(level + 1, corner), BRACE_AREA
            yield name(level + 1, corner), name(level + 1, corner + 1), BRACE_AREA
        yield name(level + 1, level), name(level + 1, level + 2), BRACE_AREA


def model():
    yield HEADER
    yield from nodes()
    yield ""
    for number, (start, end, area) in enumerate(members(), 1):
        yield f"bar {number} {start} {end} steel {area}"
    yield ""
    for corner in range(4):
        yield f"support {name(0, corner)} xyz"
    yield "\n# Wind in x, growing with the height, on the two windward legs."
    yield "case wind"
    for level in range(1, BAYS + 1):
        for corner in (0, 3):
            yield f"load {name(level, corner)} {600 + 25 * level} 0 0"
    yield "\n# Ice on every node, and the pull of an antenna at the top."
    yield "case ice"
    for level in range(1, BAYS + 1):
        for corner in range(4):
            yield f"load {name(level, corner)} 0 0 -900"
    yield f"load {name(BAYS, 1)} 3000 -3000 -5000"


def main(arguments):
    text = "\n".join(model()) + "\n"
    if not arguments:
        sys.stdout.write(text)
        return 0
    if len(arguments) != 2 or arguments[0] != "--check":
        sys.exit(__doc__)
    with open(arguments[1], encoding="ascii") as file:
        if file.read() == text:
            return 0
    sys.exit(f"{arguments[1]} is not what make_mast.py writes")


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
