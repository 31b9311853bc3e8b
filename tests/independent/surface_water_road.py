#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Designs of pipe in surface water from the zones' loads to the head losses, worked a second time.

    python3 tests/independent/surface_water_road.py [--show] [--table]
    python3 tests/independent/surface_water_road.py --check TRANSCRIPT

A pond with coils, headers in water and soil and branches on them, and a pond with slinkies far
from the water's temperature.  Shares no line with the program; the tests of the surface water
design hold the program to the results.  --show prints every intermediate number, --table the feet
of pipe per ton of every pipe, --check compares a transcript's values, one run after the other.
"""
import math
import sys

SHOW = "--show" in sys.argv
COOL, HEAT = 0, 1
NAMES = ("cooling", "heating")

# title, cooling by block, heating by block, capacity, power (cooling, heating)
BUILDING = [
    ("Offices", (40, 60, 48, 12), (36, 24, 30, 54), (62, 50), (4.6, 4.0)),
    ("Shop", (20, 36, 30, 6), (18, 12, 16, 30), (34, 40), (2.5, 2.8)),
]

COIL_POND = {
    "title": "Coils, two main headers with three branches each",
    "inlet": (85, 38), "flow": 3.4, "rho": 63.6, "cp": 0.95, "extra": 1.0 + 0.5,
    "minimum": (2.8, 4.2), "loops": (12, 4),
    "mean": 58, "swing": 24, "days": (205, 20), "depth": 5, "alpha": 0.96,
    "style": "coil", "size": 1, "fittings": 15, "loop loss": (3.2, 3.9),
    "headers": 2, "branches": 3,
    "main": {"water": 0.015, "soil": 0.002, "in water": 120, "in soil": 200,
             "temp": (74, 44), "loss": (1.8, 2.1)},
    "branch": {"water": 0.011, "soil": 0.0017, "in water": 60, "in soil": 40,
               "temp": (76, 43), "loss": (2.5, 2.9)},
    "water": (77, 43),
}
SLINKY_POND = {
    "title": "Slinkies, one buried header, far from the water's temperature",
    "inlet": (92, 30), "flow": 2.5, "rho": 62.4, "cp": 1.0, "extra": 0.0,
    "minimum": (0, 0), "loops": (10, 8),
    "mean": 54, "swing": 20, "days": (212, 30), "depth": 4, "alpha": 0.26,
    "style": "slinky", "size": 0, "fittings": 0, "loop loss": (4.5, 5.1),
    "headers": 1, "branches": 0,
    "main": {"water": 0.013, "soil": 0.0018, "in water": 0, "in soil": 250,
             "temp": (70, 45), "loss": (2.2, 2.6)},
    "branch": {"water": 0.011, "soil": 0.0017, "in water": 0, "in soil": 0,
               "temp": (70, 45), "loss": (0, 0)},
    "water": (70, 46),
}

# Feet of pipe per ton: (size, mode, style): cubic from the constant up, line's constant and slope
CURVES = {
    (0, COOL, "coil"): ((1442.824, -270.23656, 22.95499, -0.70557), (312, -4)),
    (0, COOL, "slinky"): ((846.433035, -96.73363, 4.352679, -0.052083), (252, -3.23085)),
    (0, HEAT, "coil"): ((970.35714, 205.05952, 21.25, 0.8333333), (273.75, 3.75)),
    (0, HEAT, "slinky"): ((787.02381, 166.56746, 17.380952, 0.69444), (216.735, 2.9706)),
    (1, COOL, "coil"): ((1224.5566, -215.01288, 17.54685, -0.5215), (300, -3.84617)),
    (1, COOL, "slinky"): ((829.8392857, -116.57738, 7.946429, -0.20833), (240, -3.07702)),
    (1, HEAT, "coil"): ((966.6667, 222.9365, 25.5952, 1.11111), (256.64, 3.516)),
    (1, HEAT, "slinky"): ((773.095238, 176.30952, 19.7619, 0.833333), (205.3235, 2.8137)),
    (2, COOL, "coil"): ((992.0057, -157.0728, 12.3361, -0.3643), (288, -3.6923)),
    (2, COOL, "slinky"): ((715.441964, -95.55804, 6.27232, -0.16525), (227.9987, -2.9229)),
    (2, HEAT, "coil"): ((939.642857, 222.04365, 25.65476, 1.11111), (239.54, 3.2824)),
    (2, HEAT, "slinky"): ((744.16666, 172.5595, 19.58333, 0.833333), (193.91177, 2.65686)),
    (3, COOL, "coil"): ((750.2788, -95.4344, 6.155266, -0.14576), (276, -3.5385)),
    (3, COOL, "slinky"): ((589.00893, -71.324404, 4.41964, -0.1041667), (216, -2.76936)),
    (3, HEAT, "coil"): ((894.40476, 213.82937, 25.17857, 1.11111), (228.124, 3.1249)),
    (3, HEAT, "slinky"): ((774.16666, 200.6151, 24.7024, 1.11111), (182.323, 2.4804)),
}


def say(*words):
    if SHOW:
        print("   ", *words)


def feet_per_ton(size, m, style, a):
    cubic, (constant, slope) = CURVES[size, m, style]
    near = a <= 13 if m == COOL else a >= -9
    if not near:
        return slope * a + constant
    feet = 0.0
    for c in reversed(cubic):
        feet = feet * a + c
    return feet


def ground(d):
    """Mean ground less the damped and delayed wave, which is the real part of a rotating arrow."""
    wave = math.sqrt(3.141592653 / (365 * d["alpha"])) * d["depth"]  # damping and lag alike
    warm, cold = d["days"]
    return [d["mean"] - d["swing"] * math.exp(-wave) * math.cos(6.283185306 / 365 * (day - cold) - wave)
            for day in (warm, cold)]


def pickup(d, soil, m, fluid, q):
    """Along the pipe: branch in water, header in water, branch in soil, header in soil."""
    if q == 0:
        return 0.0, 0.0
    per_header = q / d["headers"]
    legs = [("temp", "water", "in water", d["branches"] and q / d["branches"]),
            (None, "soil", "in soil", d["branches"] and per_header / d["branches"])]
    totals = []
    start = fluid
    for temperature, factor, length, per_branch in legs:
        now = start
        for part, flow in (("branch", per_branch), ("main", per_header)):
            if not flow:
                continue
            around = d[part][temperature][m] if temperature else soil
            now += d[part][factor] * d[part][length] / flow * (around - now)
        totals.append(now - start)
        start = now
    return tuple(totals)


def approach(d, soil, m, q):
    before, new = ((60.0, 100.0), (-50.0, -60.0))[m]
    fluid = d["inlet"][m]
    difference = d["inlet"][m] - d["water"][m]
    passes = 0
    while abs(1 - new / before) > 0.05 and passes < 5:
        before = new
        wet, dry = pickup(d, soil, m, fluid, q)
        new = difference - wet - dry
        fluid = d["inlet"][m] - wet - dry
        passes += 1
        say(NAMES[m], "pass", passes, "pickup", wet, dry, "approach", new)
    if passes == 5:
        new = difference - sum(pickup(d, soil, m, d["inlet"][m], q))
    return new, passes


def run(d, building):
    say(d["title"])
    result = {name: [0.0, 0.0] for name in (
        "peakLoad", "peakDemand", "heatPumpCOP", "systemCOP", "systemFlow", "outletTemp",
        "maxParallelLoops", "parallelLoops", "circuitFlow", "primaryHeaderFlow",
        "branchHeaderFlow", "groundTempAtDepth", "approachTemp", "passes", "loopLength",
        "loopLoss", "headerLoss")}
    soil = ground(d)
    for m in (COOL, HEAT):
        blocks = [sum(z[1 + m][t] for z in building) for t in range(4)]
        peak = max([0.0] + blocks)
        at = blocks.index(peak) if peak else 0
        demand = sum(min(1.0, z[1 + m][at] / z[3][m]) * z[4][m] for z in building if z[3][m])
        capacity = sum(z[3][m] for z in building)
        watts = sum(z[4][m] for z in building)
        tons = peak / 12
        q = tons * d["flow"]
        # The heat that leaves the building with the fluid: load and compressors in cooling, the
        # load less the compressors in heating, MBtu/hr.
        rejected = peak + 3.412 * demand if m == COOL else 3.412 * demand - peak
        per_gpm = 60 * 0.1337 * d["rho"] * d["cp"]
        rise = 1000 * rejected / per_gpm / q if q else 0.0
        reference = 1000 * rejected / per_gpm / (3 * tons) if tons > 0 else 0.0

        most = d["loops"][m]
        if d["minimum"][m] > 0:
            most = int(q // d["minimum"][m]) if q > d["minimum"][m] else 1
        loops = min(d["loops"][m], most)
        a, passes = approach(d, soil[m], m, q)
        table = feet_per_ton(d["size"], m, d["style"], a)
        feet = max(0.0, table * (a + reference / 2) / (a + rise / 2))
        say(NAMES[m], "rise", rise, "at 3 gpm per ton", reference, "feet per ton", table, feet)
        length = tons * feet
        headers = d["main"]["in water"] + d["main"]["in soil"]
        branches = d["branch"]["in water"] + d["branch"]["in soil"] if d["branches"] else 0
        for name, value in {
                "peakLoad": peak, "peakDemand": demand,
                "heatPumpCOP": capacity / 3.412 / watts if watts else 0.0,
                "systemCOP": peak / 3.412 / (demand + d["extra"]) if demand + d["extra"] else 0.0,
                "systemFlow": q, "outletTemp": d["inlet"][m] + rise,
                "maxParallelLoops": most, "parallelLoops": loops, "circuitFlow": q / loops,
                "primaryHeaderFlow": q / d["headers"],
                "branchHeaderFlow": q / d["headers"] / d["branches"] if d["branches"] else 0.0,
                "groundTempAtDepth": soil[m], "approachTemp": a, "passes": passes,
                "loopLength": length,
                "loopLoss": (length / loops + d["fittings"]) / 100 * d["loop loss"][m],
                "headerLoss": (headers * d["main"]["loss"][m] + branches * d["branch"]["loss"][m]) / 50,
        }.items():
            result[name][m] = value
    return result


def designs():
    """Each with its building: both ponds, the slinkies with the coils' temperatures, and the coils
    for a building that only cools."""
    cooled = [(title, cool, (0, 0, 0, 0), cap, kw) for title, cool, _, cap, kw in BUILDING]
    near = dict(SLINKY_POND, title="Slinkies near the water's temperature",
                inlet=COIL_POND["inlet"], water=COIL_POND["water"], size=3)
    return [(COIL_POND, BUILDING), (SLINKY_POND, BUILDING), (near, BUILDING),
            (dict(COIL_POND, title="Coils for a building that only cools"), cooled)]


def check(transcript, runs):
    """Every figure of the transcript against this working; says how many agree. A run begins with
    its first peak load."""
    run_number = -1
    agreed = 0
    for line in open(transcript, encoding="utf-8"):
        if not line.startswith("value ") or " = \"" in line:
            continue
        name, value = line[len("value "):].strip().split(" = ")
        name = name.split(".", 1)[1]
        run_number += name == "peakLoad(0)"
        if name[:-3] not in runs[0]:
            continue  # an input
        want = runs[run_number][name[:-3]][int(name[-2])]
        if not math.isclose(float(value), want, rel_tol=1e-9, abs_tol=1e-12):
            raise SystemExit("run %d: %s is %s, worked here as %r" % (run_number, name, value, want))
        agreed += 1
    if not agreed:
        raise SystemExit("no figure in " + transcript)
    print("%d figures agree" % agreed)


def main():
    if "--table" in sys.argv:
        for (size, m, style) in sorted(CURVES, key=lambda row: (row[0], row[1], row[2])):
            points = (5, 13, 20) if m == COOL else (-5, -9, -14)
            print(size, NAMES[m], style, *("%g: %.6f" % (a, feet_per_ton(size, m, style, a)) for a in points))
        return
    runs = []
    for design, building in designs():
        runs.append(run(design, building))
        print(design["title"])
        for name, values in runs[-1].items():
            for m in (COOL, HEAT):
                print("  %s(%d) = %.9f" % (name, m, values[m]))
    if "--check" in sys.argv:
        check(sys.argv[-1], runs)


if __name__ == "__main__":
    main()
