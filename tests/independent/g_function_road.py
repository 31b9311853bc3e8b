#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A g-function and the size of a field by it, worked a second time, apart from the program.

    python3 tests/independent/g_function_road.py

The field of 6 by 4 bores of docs/second-opinion.md.  It shares no line with the program, and where
it can it goes another way: metric units; each kind of bore by itself in place of groups; the
responses of segments by Simpson's rule over the depth instead of terms of the error function's
integral; the heat of every step superposed as it is, with its own age, instead of being gathered
anew; elimination with pivots; the months summed one by one; a straight line between two depths.
tests/design/secondOpinion/second_opinion_test.cpp holds the program to the figures printed here.
Takes some seconds.
"""
from bisect import bisect_left
from math import erf, exp, expm1, log, pi, sqrt

ACROSS, DOWN, SPACING = 6, 4, 6.0
BURIED, RADIUS = 2.0, 0.075
CONDUCTIVITY, CAPACITY = 2.0, 2.0e6
ALPHA = CONDUCTIVITY / CAPACITY * 3600  # m^2/hr
GROUND, BORE_RESISTANCE = 12.0, 0.12
LIMIT = (28.0, 2.0)
YEARS, PULSE = 20, 6.0
HEATING = (15.5, 14.8, 12.5, 9.9, 6.4, 0, 0, 0, 6.1, 8.7, 11.7, 14.4)
COOLING = (2.5, 5, 5, 5, 7.5, 10, 20, 20, 10, 7.5, 5, 2.5)
ENERGY, PEAK = (2500.0, 3750.0), (2.5, 2.5)  # cooling, heating; kWh and kW of a bore
SHOWN = (1, 6, 24, 168, 720, 8760, 43800, 87600, 175200, 438000)

FIRST, LAST = 1.0, 8760 * 50 + 744.0
STEPS = 64
TABLE_POINTS = 81


def segment_lengths(depth):
    """2 percent at the ends, growing to the middle by one factor; the factor by bisection."""
    low, high = 1.0, 5.0
    for _ in range(100):
        middle = (low + high) / 2
        if 1 + middle + middle ** 2 + middle ** 3 < 25:
            low = middle
        else:
            high = middle
    half = [0.02 * depth * low ** i for i in range(4)]
    return half + half[::-1]


def kinds_of_bores():
    """One quarter of the rectangle: its bores and where each one's like stand."""
    kinds = []
    for row in range((DOWN + 1) // 2):
        for column in range((ACROSS + 1) // 2):
            like = {(c, r) for c in (column, ACROSS - 1 - column) for r in (row, DOWN - 1 - row)}
            kinds.append(sorted(like))
    return kinds


def squares_between(kinds):
    """For each pair of kinds the squared distances from the first bore of one to all of the other."""
    table = []
    for a in kinds:
        c0, r0 = a[0]
        table.append([[RADIUS ** 2 if (c, r) == (c0, r0)
                       else SPACING ** 2 * ((c - c0) ** 2 + (r - r0) ** 2) for c, r in b]
                      for b in kinds])
    return table


def depth_factor(s, top_u, len_u, top_v, len_v):
    """s^2/pi times the double integral of exp(-s^2 (z - z')^2), less that of the image, over both
    segments; the inner one is a difference of error functions, the outer one by Simpson's rule in
    pieces no longer than the source's reach."""
    def inner(z):
        return (erf(s * (z - top_v)) - erf(s * (z - top_v - len_v))
                - erf(s * (z + top_v + len_v)) + erf(s * (z + top_v)))
    pieces = 2 * max(4, min(60, int(s * len_u) + 1))
    if s * len_u > 60:  # a segment far longer than the reach: only its borders are not 0 or 1
        return exact_long(s, top_u, len_u, top_v, len_v)
    h = len_u / pieces
    total = inner(top_u) + inner(top_u + len_u)
    for i in range(1, pieces):
        total += (4 if i % 2 else 2) * inner(top_u + i * h)
    return s * total * h / 3


def exact_long(s, top_u, len_u, top_v, len_v):
    def f(x):
        return x * erf(x) + expm1(-x * x) / sqrt(pi)
    a, b, c, d = top_u, top_u + len_u, top_v, top_v + len_v
    return (f(s * (b - c)) - f(s * (a - c)) - f(s * (b - d)) + f(s * (a - d))
            - f(s * (b + d)) + f(s * (a + d)) + f(s * (b + c)) - f(s * (a + c)))


def response_tables(depth):
    """ln t, and for each time the matrix of responses h of kinds and segments: temperature at the
    row's segment for one unit of heat per length from the column's, over 1/(2 pi k)."""
    kinds, lengths = kinds_of_bores(), segment_lengths(depth)
    tops = [BURIED + sum(lengths[:i]) for i in range(8)]
    squares = squares_between(kinds)
    count = len(kinds)
    logs = [log(FIRST / 100) + (log(LAST) - log(FIRST / 100)) * i / (TABLE_POINTS - 1)
            for i in range(TABLE_POINTS)]
    total = [[0.0] * (8 * count) for _ in range(8 * count)]
    upper = log(7 / RADIUS)
    tables = []
    for logarithm in logs:
        lower = -0.5 * log(4 * ALPHA) - 0.5 * logarithm
        pieces = max(2, 2 * int((upper - lower) / 0.12 + 1))
        h = (upper - lower) / pieces if upper > lower else 0.0
        for i in range(pieces + 1 if h > 0 else 0):
            s = exp(lower + i * h)
            weight = h / 3 * (1 if i in (0, pieces) else 4 if i % 2 else 2)
            add_node(total, s, 0.5 * weight / s, squares, tops, lengths)
        upper = min(upper, lower)
        tables.append([row[:] for row in total])
    return kinds, lengths, logs, tables


def add_node(total, s, weight, squares, tops, lengths):
    count = len(squares)
    along = [[depth_factor(s, tops[u], lengths[u], tops[v], lengths[v]) / lengths[u]
              for v in range(8)] for u in range(8)]
    for a in range(count):
        for b in range(count):
            around = weight * sum(exp(-x * s * s) for x in squares[a][b])
            if around == 0:
                continue
            for u in range(8):
                row, factors = total[8 * a + u], along[u]
                for v in range(8):
                    row[8 * b + v] += around * factors[v]


def at_time(logs, tables, t):
    """The responses after t: the cubic through four points of the table."""
    place = min(max(bisect_left(logs, log(t)) - 2, 0), len(logs) - 4)
    x = (log(t) - logs[place]) / (logs[1] - logs[0])
    w = (-(x - 1) * (x - 2) * (x - 3) / 6, x * (x - 2) * (x - 3) / 2,
         -x * (x - 1) * (x - 3) / 2, x * (x - 1) * (x - 2) / 6)
    t0, t1, t2, t3 = tables[place:place + 4]
    return [[w[0] * a + w[1] * b + w[2] * c + w[3] * d for a, b, c, d in zip(*rows)]
            for rows in zip(t0, t1, t2, t3)]


def solve(matrix, side):
    """Gauss's elimination with the greatest pivot of the column."""
    n = len(side)
    rows = [row[:] + [value] for row, value in zip(matrix, side)]
    for j in range(n):
        pivot = max(range(j, n), key=lambda i: abs(rows[i][j]))
        rows[j], rows[pivot] = rows[pivot], rows[j]
        top = rows[j]
        for i in range(j + 1, n):
            factor = rows[i][j] / top[j]
            if factor:
                row = rows[i]
                for k in range(j, n + 1):
                    row[k] -= factor * top[k]
    x = [0.0] * n
    for j in reversed(range(n)):
        x[j] = (rows[j][n] - sum(rows[j][k] * x[k] for k in range(j + 1, n))) / rows[j][j]
    return x


def march(kinds, lengths, logs, tables, steps):
    """Wall temperature at the ends of steps of constant heat, each superposed with its own age."""
    times = [0.0] + [FIRST * (LAST / FIRST) ** (i / steps) for i in range(steps + 1)]
    weights = [len(kind) * length for kind in kinds for length in lengths]
    n = len(weights)
    heats, walls = [], []
    for p in range(1, len(times)):
        known = [0.0] * n
        since_end = at_time(logs, tables, times[p] - times[p - 1])
        own = since_end
        for k in range(p - 1, 0, -1):
            since_begin = at_time(logs, tables, times[p] - times[k - 1])
            heat = heats[k - 1]
            for i in range(n):
                begin, end = since_begin[i], since_end[i]
                known[i] += sum((b - e) * q for b, e, q in zip(begin, end, heat))
            since_end = since_begin
        # own heat - wall = -known in every segment, and the heats sum to one unit per length.
        system = [own[i] + [-1.0] for i in range(n)] + [weights + [0.0]]
        solution = solve(system, [-x for x in known] + [sum(weights)])
        heats.append(solution[:n])
        walls.append(solution[n])
    return times[1:], walls


class GFunction:
    """In steps and in half as many: the error is of first order in the step."""

    def __init__(self, depth):
        kinds, lengths, logs, tables = response_tables(depth)
        self.times, fine = march(kinds, lengths, logs, tables, STEPS)
        _, coarse = march(kinds, lengths, logs, tables, STEPS // 2)
        self.logs = [log(t) for t in self.times[::2]]
        self.values = [2 * f - c for f, c in zip(fine[::2], coarse)]

    def at(self, t):
        place = min(max(bisect_left(self.logs, log(t)) - 2, 0), len(self.logs) - 4)
        result = 0.0
        for i in range(4):
            term = self.values[place + i]
            for j in range(4):
                if j != i:
                    term *= ((log(t) - self.logs[place + j])
                             / (self.logs[place + i] - self.logs[place + j]))
            result += term
        return result


def needed_depth(g):
    """The greatest need over the months of all years, by plain sums: depth, month, mode."""
    mean = [(HEATING[m] * ENERGY[1] - COOLING[m] * ENERGY[0]) / 100 / 730 for m in range(12)]
    monthly = [g.at(730.0 * n) for n in range(1, 12 * YEARS + 1)]
    pulse = g.at(PULSE)
    worst = {}
    for mode, sign, shares in ((0, -1, COOLING), (1, 1, HEATING)):
        for n in range(1, 12 * YEARS + 1):
            m = (n - 1) % 12
            ratio = shares[m] / max(shares)
            if ratio == 0:
                continue
            peak = max(PEAK[mode] * ratio, sign * mean[m])
            drift = sum((mean[(j - 1) % 12] - (mean[(j - 2) % 12] if j > 1 else 0)) * monthly[n - j]
                        for j in range(1, n + 1))
            heat = drift + sign * ((peak - sign * mean[m]) * pulse
                                   + 2 * pi * CONDUCTIVITY * BORE_RESISTANCE * peak)
            depth = 1000 * heat / (2 * pi * CONDUCTIVITY * (GROUND - LIMIT[mode]))
            if mode not in worst or depth > worst[mode][0]:
                worst[mode] = (depth, n)
    return worst


def main():
    at = {}
    for depth in (80.0, 87.0):
        at[depth] = GFunction(depth)
        print("g of 6 by 4 bores of %g m:" % depth,
              " ".join("%.4f" % at[depth].at(t) for t in SHOWN))
    needs = {depth: needed_depth(g) for depth, g in at.items()}
    # Between the two depths the need is all but straight.
    low, high = (needs[d][1][0] - d for d in (80.0, 87.0))
    depth = 80.0 + 7.0 * low / (low - high)
    month = needs[80.0][1][1]
    print("heating: %.2f m, month %d (month %d of year %d)"
          % (depth, month, (month - 1) % 12 + 1, (month - 1) // 12 + 1))


main()
