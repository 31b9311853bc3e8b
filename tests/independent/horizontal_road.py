#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Horizontal designs from loads to trenches, worked a second time, apart from the program.

    python3 tests/independent/horizontal_road.py [--show]
    python3 tests/independent/horizontal_road.py --check TRANSCRIPT

Two zones in fields of every arrangement: one pipe, columns with and without an offset, coils, a
tower, loads in one mode only, a mode without a solution.  The whole table of pipes and images is
filled, node by node, and summed by rows.  It shares no line with the program; the tests
tests/design/horizontal_*_test.cpp hold the program to these figures.  --show prints the steps, --check compares
the values of the transcript of tests/scripts/horizontal.vscript, one run after the other.
"""
import math
import sys
from math import cos, exp, log, sqrt

SHOW = "--show" in sys.argv
COOL, HEAT = 0, 1

# cooling by block, heating by block, hours (cooling, heating), days a week, capacity, power
OFFICES = ((40, 60, 48, 12), (36, 24, 30, 54), (900, 1100), 5, (62, 50), (4.6, 4.0))
SHOP = ((20, 36, 30, 6), (18, 12, 16, 30), (1000, 800), 7, (34, 40), (2.5, 2.8))
INLET, FLOW, DENSITY, HEAT_CAPACITY = (85.0, 50.0), 3.0, 62.4, 1.0
EXTRA = 1.0 + 0.5  # circulation pump and additional power, kW

DESIGN = {
    "arrangement": 0, "pipes": 1, "offset": False,
    "Y": 12.0, "X": 12.0, "pitch": 10.0, "coil": 36.0,
    "trenches": 1, "separation": 20.0, "depth": 6.0, "years": 10.0,
    "outside": 1.9, "inside": 1.55, "flow type": 0, "pipe resistance": 0.075,
    "mean": 62.0, "k": 1.3, "alpha": 0.75, "swing": 20.0, "days": (202, 19),
    "percent": None, "range": 10.0,
}


def say(*words):
    if SHOW:
        print("   ", *words)


# The ground -------------------------------------------------------------------------------------

def ground_temperature(depth, alpha, mean, swing, days):
    if alpha == 0:
        return [mean, mean]
    result = []
    for mode in (COOL, HEAT):
        damping = exp(-depth * sqrt(3.141592653 / (365 * alpha)))
        phase = (6.283185306 / 365.0) * ((days[mode] - days[1])
                                         - (depth / 2) * sqrt(365 / (3.141592653 * alpha)))
        result.append(mean - swing * damping * cos(phase))
    return result


def g_factor(fourier):
    if fourier <= 0:
        return 0.13
    log10 = log(fourier) * 0.434294481903
    g = (log10 + 0.89947) / 7.09472 if fourier < 10 else (log10 + 0.45247) / 5.60998
    return 0.0 if g < 0 else g


def pulse_times(years, evening):
    h = 12 if evening else 4
    a = years * 365
    b = a + 30.0
    c = h / 24.0 + b
    return c, c - a, c - b


# The trench -------------------------------------------------------------------------------------

def pipe_positions(d):
    n_pipes = d["pipes"]
    columns = (1, 2, 3, 1, 1)[d["arrangement"]]
    depth = d["depth"]
    if d["arrangement"] == 4:
        depth = (d["depth"] * 12 + d["coil"] / 2) / 12
    x = [0.0] * (2 * n_pipes)
    y = [0.0] * (2 * n_pipes)
    n = 0
    for c in range(columns):
        for k in range(2 * n_pipes // columns):
            x[n] = c * d["X"] / 12
            if k % 2 == 0:
                y[n] = (k / 2) * d["Y"] / 12
            else:
                y[n] = 2 * depth - ((k - 1) / 2) * d["Y"] / 12
            if d["offset"] and ((k + 1) % 4 == 0 or (k + 2) % 4 == 0):
                if columns == 1:
                    x[n] = d["X"] / 12
                else:
                    x[n] += 0.5 * d["X"] / 12
            n += 1
    return x, y


def ground_resistance(d, outside, times):
    x, y = pipe_positions(d)
    nodes = len(x)
    sums = [[0.0] * nodes for _ in range(3)]
    for i in range(nodes):
        for j in range(nodes):
            if i == j:
                distance = 0.5 * outside / 12
            else:
                distance = sqrt((y[j] - y[i]) * (y[j] - y[i]) + (x[j] - x[i]) * (x[j] - x[i]))
            g = []
            for t in times:
                if distance == 0:
                    fourier = 1000000000.0
                else:
                    fourier = 4 * d["alpha"] * t / ((2 * distance) * (2 * distance))
                g.append(g_factor(fourier))
            pair = ((g[0] - g[1]) / d["k"], (g[1] - g[2]) / d["k"], g[2] / d["k"])
            sign = 1 if j % 2 == 0 else -1
            for p in range(3):
                sums[p][i] += sign * pair[p]
    return [sum(sums[p][0::2]) / d["pipes"] for p in range(3)]


def mean_depth(d):
    n, step = d["pipes"], d["Y"] / 12
    if d["arrangement"] == 3:
        return d["depth"]
    if d["arrangement"] == 4:
        return (d["depth"] * 12 + d["coil"] / 2) / 12
    rows = (n, n / 2, n / 3)[d["arrangement"]]
    return d["depth"] - ((rows - 1) * step) / 2


# Pipe and coil ----------------------------------------------------------------------------------

def single_pipe_resistance(flow_type, outside, inside):
    reynolds = (10000, 3150, 1600)[flow_type]
    nusselt = 0.023 * reynolds ** 0.8 * 6.6 ** 0.3
    h = 0.35 * nusselt / (inside / 12)
    film = 1 / ((inside / 12) * 3.14159 * 1.0 * h)
    return film + log(outside / inside) / (6.28318 * 0.225)


PITCHES, LOADS = (10.0, 18.0, 36.0, 56.0), (30.0, 50.0, 70.0, 100.0)
BY_PITCH = ((60.04141, 0.02241, -0.000387, 0.0000254), (76.47498, 0.08024, 0.001039, -0.0000064),
            (107.58641, -0.06748, 0.00262, -0.0000159), (129, 0, 0, 0))
BY_LOAD = ((31.99116, 3.34444, -0.044088, 0.0002732), (27.38602, 4.30166, -0.080464, 0.0006438),
           (48.00898, 2.47271, -0.023238, 0.0000876), (87.39849, -1.0219, 0.073747, -0.0007542))


def coil_length(p, f):
    p = min(max(p, 10.0), 56.0)
    f = min(max(f, 30.0), 100.0)

    def row(c, x):
        return c[0] + c[1] * x + c[2] * x * x + c[3] * x * x * x

    def interval(grid, value):
        for low in range(3):
            if grid[low] <= value <= grid[low + 1]:
                return low
        raise ValueError(value)

    a, b = interval(PITCHES, p), interval(LOADS, f)
    y0, y1 = row(BY_PITCH[a], f), row(BY_PITCH[a + 1], f)
    y2, y3 = row(BY_LOAD[b], p), row(BY_LOAD[b + 1], p)
    by_load = (f - LOADS[b]) * (y3 - y2) / (LOADS[b + 1] - LOADS[b]) + y2
    by_pitch = (p - PITCHES[a]) * (y1 - y0) / (PITCHES[a + 1] - PITCHES[a]) + y0
    return (by_load + by_pitch) / 2.0


def coil_pipe(length, p, dc):
    if length <= 0:
        return 0.0
    n = (length - dc / 12) / (p / 12)
    return n * (dc * 3.14159265 / 12) + (n * 2 * p) / 12 + dc * 3.14159265 / 24.0 + dc / 12.0


# The length of pipe -----------------------------------------------------------------------------

def line_source(x):
    if x <= 0:
        return 0.0
    u = x * x
    if x <= 0.5:
        return (0.5 * (0.99999193 * u - log(u) - 0.57721566) - 0.24991055 * u ** 2
                + 0.05519968 * u ** 3 - 0.00976004 * u ** 4 + 0.00107857 * u ** 5)
    top = u ** 4 + 8.5733287 * u ** 3 + 18.059017 * u ** 2 + 8.637609 * u + 0.2677737
    bottom = u ** 4 + 9.5733223 * u ** 3 + 25.6329561 * u ** 2 + 21.0996531 * u + 3.9684969
    return top / (2 * u * exp(u)) / bottom


def penalty(d, q, length):
    """A row of trenches: the two at its ends have one neighbour, the others two."""
    trenches, s, k, alpha = d["trenches"], d["separation"], d["k"], d["alpha"]
    weight = 0 if trenches == 1 else 0.1 * 2 + 0.25 * (trenches - 2)
    r0 = s / 2
    if r0 > 25:
        return [0.0, 0.0]
    width = (25 - r0) / 3
    capacity = k * 24 / alpha
    result = []
    for mode in (COOL, HEAT):
        stored = 0.0
        for j in range(3):
            a = r0 + j * width
            b = a + width
            i = line_source(((a + b) / 2) / (2 * sqrt(alpha * d["years"] * 365)))
            rise = 1000 * q * i / (2 * 3.14159265359 * k * length[mode]) if length[mode] else 0
            stored += capacity * length[mode] * 3.14159265359 * (b * b - a * a) * rise
        own = stored / (capacity * s * s * length[mode]) if length[mode] else 0
        result.append(weight * own / (trenches * 1))
    return result


def roll_up(zones, percent):
    block = [[sum(z[mode][t] for z in zones) for t in range(4)] for mode in (COOL, HEAT)]
    peak = [max(0, *block[mode]) for mode in (COOL, HEAT)]
    at = [block[mode].index(peak[mode]) if peak[mode] > 0 else 0 for mode in (COOL, HEAT)]
    whole = peak[COOL]
    demand = [sum(min(1, z[m][at[m]] / z[4][m]) * z[5][m] for z in zones) for m in (COOL, HEAT)]
    hours = (4, 4, 4, 12)
    daily = [sum(z[m][t] * z[3] / 7 * hours[t] for z in zones for t in range(4)) for m in (COOL, HEAT)]
    plf = [daily[m] / (24 * peak[m]) if peak[m] else 0 for m in (COOL, HEAT)]
    cop = [sum(z[4][m] for z in zones) / 3.412 / sum(z[5][m] for z in zones) for m in (COOL, HEAT)]
    tons = [sum(max(0, *z[m]) / 12 * z[2][m] for z in zones) for m in (COOL, HEAT)]
    left = 1 - (percent or 0) / 100
    reject, extract = (cop[COOL] + 1) / cop[COOL], (cop[HEAT] - 1) / cop[HEAT]
    q = 12 * (extract * tons[HEAT] - reject * tons[COOL] * left) / 8760
    outlet = [INLET[m] - 1000 * (s * peak[m] - 3.412 * demand[m])
              / (60 * DENSITY * 0.1337 * HEAT_CAPACITY * peak[m] / 12 * FLOW) if peak[m] else INLET[m]
              for m, s in ((COOL, -1), (HEAT, 1))]
    condenser = reject * (whole - whole * left)
    tower = [condenser, reject * 12 * tons[COOL] * (1 - left) / condenser if condenser else 0]
    return {"whole": whole, "peak": [whole * left, peak[HEAT]], "evening": 3 in at, "demand": demand, "plf": plf,
            "q": q, "outlet": outlet, "tower": tower}


def calculate(title, zones=(OFFICES, SHOP), **changes):
    d = dict(DESIGN, **changes)
    loads = roll_up(zones, d["percent"])
    coil = d["arrangement"] in (3, 4)
    outside, resistance = d["outside"], d["pipe resistance"]
    if coil:
        outside *= sqrt(2.0)
        resistance = single_pipe_resistance(d["flow type"], outside, d["inside"] * sqrt(2.0))
    times = pulse_times(d["years"], loads["evening"])
    rga, rgm, rgs = ground_resistance(d, outside, times)
    depth = mean_depth(d)
    ground = ground_temperature(depth, d["alpha"], d["mean"], d["swing"], d["days"])
    fluid = [(INLET[m] + loads["outlet"][m]) / 2 for m in (COOL, HEAT)]

    def lengths(tp):
        result = [0.0, 0.0]
        for m, s in ((COOL, -1), (HEAT, 1)):
            if loads["peak"][m] == 0:
                continue
            heat = s * loads["peak"][m] - 3.412 * loads["demand"][m]
            top = 1000 * (loads["q"] * rga + heat * (resistance + loads["plf"][m] * rgm + rgs * 1.0))
            result[m] = top / (ground[m] - fluid[m] - tp[m])
        return result

    tp = [-3.0, 3.0]
    length = lengths(tp)
    tp = penalty(d, loads["q"], length)
    length = lengths(tp)
    passes, failed = 0, [False, False]
    while True:
        passes += 1
        before = list(length)
        tp = penalty(d, loads["q"], length)
        length = lengths(tp)
        say("pass", passes, "penalty", tp, "length", length)
        for m in (COOL, HEAT):
            if length[m] <= 1:
                length[m] = 0.000001
                failed[m] = True
        near = all(abs(1.0 - before[m] / length[m]) <= 0.001 for m in (COOL, HEAT))
        if passes == 100 or all(failed) or near:
            break
    told = passes == 100 or all(failed)
    difference = [ground[m] - fluid[m] - tp[m] for m in (COOL, HEAT)]
    for m in (COOL, HEAT):
        if failed[m] or passes == 100:
            length[m] = tp[m] = 0.0
    if difference[HEAT] < 0:
        length[HEAT] = tp[HEAT] = 0.0
    if difference[COOL] > 0:
        length[COOL] = tp[COOL] = 0.0
    governs = "cooling" if length[COOL] > length[HEAT] else "heating"
    pipe = list(length)
    if coil:
        for m in (COOL, HEAT):
            per250 = coil_length(d["pitch"], loads["plf"][m]) if loads["plf"][m] > 0 else 0.0
            length[m] = (length[m] / 250) * per250
            pipe[m] = coil_pipe(length[m], d["pitch"], d["coil"])
    print(title)
    print("  pipe resistance %.9f, ground resistances %.9f %.9f %.9f" % (resistance, rga, rgm, rgs))
    print("  mean depth %.6f ft, ground %.7f %.7f degF" % (depth, *ground))
    print("  penalty %.9f %.9f after %d passes%s, %s governs"
          % (*tp, passes, ", failed" if told else "", governs))
    print("  required %.6f %.6f, pipe %.6f %.6f ft" % (*length, *pipe))
    print("  trenches %.6f %.6f, each %.6f %.6f with pipe %.6f %.6f ft" % (
        *(x / d["pipes"] for x in length), *(x / d["pipes"] / d["trenches"] for x in length),
        *(x / d["trenches"] for x in pipe)))
    if d["percent"]:
        print("  annual load %.7f MBtu/hr, tower %.6f MBtu/hr for %.6f hours" % (
            loads["q"], *loads["tower"]))
    return {"peakLoad": [loads["whole"], loads["peak"][HEAT]], "peakDemand": loads["demand"],
            "partLoadFactor": loads["plf"], "outletTemp": loads["outlet"],
            "annualGroundLoad": [loads["q"]], "pipeResistance": [resistance],
            "groundResistance": [rga, rgm, rgs], "groundTempAtDepth": ground,
            "temperaturePenalty": tp, "requiredLength": length, "totalPipeLength": pipe,
            "condenserCapacity": [loads["tower"][0]], "coolingTowerHours": [loads["tower"][1]]}


def only(mode, zones=(OFFICES, SHOP)):
    """The same building with loads in one mode."""
    none = (0, 0, 0, 0)
    return [(z[0] if mode == COOL else none, z[1] if mode == HEAT else none) + z[2:] for z in zones]


def pieces():
    print("Ground temperature at 0, 3, 6, 12, 100 ft")
    for depth in (0, 3, 6, 12, 100):
        print("  %.9f %.9f" % tuple(ground_temperature(depth, 0.75, 62, 20, (202, 19))))
    print("Coil table, by pitch 8, 10, 14, 18, 30, 36, 50, 56, 60 at 0.4 and at 30, 45, 50, 60, 100")
    for p in (8, 10, 14, 18, 30, 36, 50, 56, 60):
        print("  %g:" % p, *("%.9f" % coil_length(p, f) for f in (0.4, 30, 45, 50, 60, 100)))
    print("Pipe of a coil, 100 ft of trench, pitch 18, diameter 36: %.9f" % coil_pipe(100, 18, 36))
    print("Pipe of a coil, 2 ft of trench, pitch 10, diameter 36: %.9f" % coil_pipe(2, 10, 36))
    print("Positions of six pipes in two columns with offset, Y 9, X 15, depth 6")
    d = dict(DESIGN, arrangement=1, pipes=6, offset=True, Y=9.0, X=15.0)
    print("  " + "  ".join("(%g, %g)" % point for point in zip(*pipe_positions(d))))


def script():
    """The runs of the script, in its order."""
    columns = dict(arrangement=1, pipes=4, trenches=5, separation=10.0, mean=70.0)
    return [
        calculate("One pipe"),
        calculate("Staggered column", pipes=4, Y=9.0, X=10.0, offset=True, trenches=3,
                  separation=8.0),
        calculate("Two columns with offset", arrangement=1, pipes=6, Y=9.0, X=15.0, offset=True,
                  trenches=5, separation=10.0),
        calculate("Three columns", arrangement=2, pipes=24, Y=8.0, X=16.0, depth=8.0, trenches=2,
                  separation=15.0),
        calculate("Lying coil", arrangement=3, pitch=18.0, trenches=6, separation=12.0),
        calculate("Standing coil", arrangement=4, pitch=30.0, trenches=6, separation=12.0),
        calculate("Warm ground", **columns),
        calculate("Warm ground with a tower", percent=30, **columns),
    ]


def check(transcript, runs):
    """Every figure of the transcript against this working; says how many agree. A run begins with
    its first peak load."""
    run_number = -1
    agreed = 0
    for line in open(transcript, encoding="utf-8"):
        if not line.startswith("value frmHZDesign") or '"' in line:
            continue
        name, value = line.strip().split(".", 1)[1].split(" = ")
        run_number += name == "peakLoad(0)"
        stem, _, index = name.rstrip(")").partition("(")
        if stem not in runs[0]:
            continue  # an input
        want = runs[run_number][stem][int(index or 0)]
        if not math.isclose(float(value), want, rel_tol=1e-9, abs_tol=1e-9):
            raise SystemExit("run %d: %s is %s, worked here as %r" % (run_number, name, value, want))
        agreed += 1
    if run_number + 1 != len(runs):
        raise SystemExit("%d runs in %s, %d here" % (run_number + 1, transcript, len(runs)))
    print("%d figures agree" % agreed)


def main():
    if "--check" in sys.argv:
        return check(sys.argv[-1], script())
    pieces()
    calculate("One pipe in one trench")
    calculate("One pipe in each of 12 trenches 8 ft apart", trenches=12, separation=8.0)
    calculate("Four pipes in one column", pipes=4, Y=9.0, trenches=3, separation=8.0)
    calculate("Four pipes in one column with offset", pipes=4, Y=9.0, X=10.0, offset=True,
              trenches=3, separation=8.0)
    calculate("Six pipes in two columns", arrangement=1, pipes=6, Y=9.0, X=15.0, trenches=5,
              separation=10.0)
    calculate("Six pipes in two columns with offset", arrangement=1, pipes=6, Y=9.0, X=15.0,
              offset=True, trenches=5, separation=10.0)
    calculate("24 pipes in three columns", arrangement=2, pipes=24, Y=8.0, X=16.0, depth=8.0,
              trenches=2, separation=15.0)
    calculate("24 pipes in three columns with offset", arrangement=2, pipes=24, Y=8.0, X=16.0,
              depth=8.0, offset=True, trenches=2, separation=15.0)
    calculate("Lying coil", arrangement=3, pitch=18.0, trenches=6, separation=12.0)
    calculate("Lying coil with a pitch of 8 in", arrangement=3, pitch=8.0, trenches=6, separation=12.0)
    calculate("Standing coil", arrangement=4, pitch=30.0, trenches=6, separation=12.0)
    calculate("Two columns with a tower for 30 percent", arrangement=1, pipes=4, trenches=5,
              separation=10.0, percent=30)
    calculate("Cooling only", zones=only(COOL), trenches=3, separation=10.0)
    calculate("Heating only", zones=only(HEAT), trenches=3, separation=10.0)
    calculate("Lying coil of a building never occupied", arrangement=3, pitch=18.0,
              zones=[z[:3] + (0,) + z[4:] for z in (OFFICES, SHOP)])
    calculate("Ground too cold to heat from", mean=48.0, trenches=3, separation=10.0)
    calculate("Cooled all year over ground too cold to heat from", mean=48.0, zones=[
        (OFFICES[0], (2, 1, 1, 4), (4000, 10)) + OFFICES[3:]])
    calculate("Ground too hot to cool with and too cold to heat from", swing=90.0, depth=3.0,
              trenches=3, separation=10.0)


if __name__ == "__main__":
    main()
