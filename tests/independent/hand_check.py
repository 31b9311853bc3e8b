#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""One borehole design from the zones' loads to the lengths, every number on paper.

    python3 tests/independent/hand_check.py > docs/hand-check.md

Shares no line with the program.  The tests of the design window hold the program to the results.
"""
from math import exp, log, pi, sqrt

ZONES = {  # cooling by block, heating by block, hours, days, capacity, power
    "East": ([30, 42, 36, 8], [20, 12, 14, 26], [1200, 900], 5, [48, 40], [3.4, 2.9]),
    "West": ([24, 30, 40, 10], [18, 10, 12, 22], [1000, 700], 7, [45, 38], [3.2, 2.7]),
}
INLET, FLOW, RHO, CP = [85, 50], 3.0, 62.4, 1.0
TG, K, ALPHA = 62, 1.3, 0.75
BORE, RB = 5, 0.196
ROWS, COLUMNS, SEPARATION, PER_CIRCUIT, YEARS = 3, 2, 20, 2, 10
PUMP_SHAFT_HP, PUMP_EFFICIENCY, ADDITIONAL = 2, 85, 0.5
TOWER_PERCENT, TOWER_RANGE = 25, 10
HOURS = [4, 4, 4, 12]
C, H = 0, 1
NAMES = ["cooling", "heating"]


def n(x):
    return f"{x:.7g}"


def line(text=""):
    print(text)


def pairs(name, values, unit=""):
    line(f"- {name}: cooling {n(values[C])}, heating {n(values[H])} {unit}".rstrip())


def g_factor(fo):
    lg = log(fo) / log(10)
    return (lg + 0.89947) / 7.09472 if fo < 10 else (lg + 0.45247) / 5.60998


def line_source(x):
    u = x * x
    if x <= 0.5:
        return (0.5 * (0.99999193 * u - log(u) - 0.57721566) - 0.24991055 * u**2
                + 0.05519968 * u**3 - 0.00976004 * u**4 + 0.00107857 * u**5)
    top = u**4 + 8.5733287 * u**3 + 18.059017 * u**2 + 8.637609 * u + 0.2677737
    bottom = u**4 + 9.5733223 * u**3 + 25.6329561 * u**2 + 21.0996531 * u + 3.9684969
    return top / (2 * u * exp(u)) / bottom


line("# A borehole design worked by hand")
line()
line("Two zones in a field of 3 by 2 bores, 20 ft apart, two bores in a circuit; everything else is what a new")
line("design starts with. The circulation pump has 2 hp on its shaft, and 0.5 kW are drawn besides. The numbers")
line("come from `tests/independent/hand_check.py`, which shares no line with the program; the program's own are")
line("held to them by `tests/design/borehole_window_run_test.cpp`.")
line()
line("## Zones")
line()
line("| zone | cooling by block | heating by block | hours | days | capacity | power |")
line("|---|---|---|---|---|---|---|")
for name, (cool, heat, hours, days, cap, kw) in ZONES.items():
    line(f"| {name} | {cool} | {heat} | {hours} | {days} | {cap} | {kw} |")
zones = list(ZONES.values())
block = [[sum(z[m][b] for z in zones) for b in range(4)] for m in (C, H)]
peak = [max(b) for b in block]
at = [block[m].index(peak[m]) for m in (C, H)]
demand_zone = [[min(1, z[m][at[m]] / z[4][m]) * z[5][m] for z in zones] for m in (C, H)]
demand = [sum(d) for d in demand_zone]
capacity = [sum(z[4][m] for z in zones) for m in (C, H)]
weighted = [[sum(z[m][b] * z[3] / 7 for z in zones) for b in range(4)] for m in (C, H)]
daily = [sum(h * w for h, w in zip(HOURS, weighted[m])) for m in (C, H)]
plf = [daily[m] / (24 * peak[m]) for m in (C, H)]
watts = [sum(z[5][m] for z in zones) for m in (C, H)]
cop = [capacity[m] / 3.412 / watts[m] for m in (C, H)]
pump_kw = PUMP_SHAFT_HP * 0.74571
input_kw = pump_kw / (PUMP_EFFICIENCY / 100)
system_cop = [peak[m] / 3.412 / (demand[m] + input_kw + ADDITIONAL) for m in (C, H)]
tons = [[max(z[m]) / 12 for z in zones] for m in (C, H)]
ton_hours = [sum(t * z[2][m] for t, z in zip(tons[m], zones)) for m in (C, H)]
fc = (cop[C] + 1) / cop[C]
fh = (cop[H] - 1) / cop[H]
flow = [p / 12 * FLOW for p in peak]
sign = [-1, 1]
heat_peak = [sign[m] * peak[m] - 3.412 * demand[m] for m in (C, H)]
outlet = [INLET[m] - 1000 * heat_peak[m] / (60 * RHO * 0.1337 * CP * flow[m]) for m in (C, H)]

line()
line("## Loads")
line()
line(f"- block loads: cooling {block[C]}, heating {block[H]} MBtu/hr")
line(f"- peaks: cooling {peak[C]} in block {at[C]}, heating {peak[H]} in block {at[H]}")
line(f"- demand by zone: cooling {', '.join(n(d) for d in demand_zone[C])}; heating "
     f"{', '.join(n(d) for d in demand_zone[H])} kW (load over capacity times power)")
pairs("peak demand", demand, "kW")
pairs("total capacity", capacity, "MBtu/hr")
for m in (C, H):
    line(f"- weighted block loads, {NAMES[m]}: {', '.join(n(w) for w in weighted[m])}; daily load {n(daily[m])}")
pairs("part load factor, daily load / (24 peak)", plf)
pairs("heat pump COP", cop)
line(f"- EER shown for cooling: {n(cop[C] * 3.412)}")
line(f"- circulation pump: {n(pump_kw)} kW on the shaft, {n(input_kw)} kW drawn")
pairs("system COP", system_cop)
line(f"- system EER shown for cooling: {n(system_cop[C] * 3.412)}")
pairs("demand shown, with extra power", [d + input_kw + ADDITIONAL for d in demand], "kW")
pairs("ton-hours", ton_hours)
line(f"- rejection factor {n(fc)}, extraction factor {n(fh)}")
pairs("system flow", flow, "gpm")
pairs("heat at peak, load and pump power", heat_peak, "MBtu/hr from the ground")
pairs("outlet temperature", outlet, "degF")

h = 12 if 3 in at else 4
t0 = YEARS * 365 + 30 + h / 24
t = [t0, t0 - YEARS * 365, t0 - YEARS * 365 - 30]
d = BORE / 12
fo = [4 * ALPHA * x / d**2 for x in t]
g = [g_factor(x) for x in fo]
r = [(g[0] - g[1]) / K, (g[1] - g[2]) / K, g[2] / K]
fsc = {1: (1.06, 1.04), 2: (1.03, 1.02), 3: (1.02, 1.01)}[PER_CIRCUIT][0 if FLOW <= 2.4 else 1]
count = {1: 0, 2: 4, 3: (max(ROWS, COLUMNS) - 2) * 2, 4: 0}  # a grid of two columns
weight = count[4] + 0.5 * count[3] + 0.25 * count[2] + 0.1 * count[1]

line()
line("## Ground")
line()
line(f"- short pulse {h} hours, since heating peaks in the evening block; times {', '.join(n(x) for x in t)} days")
line(f"- Fourier numbers {', '.join(n(x) for x in fo)}; G {', '.join(n(x) for x in g)}")
line(f"- resistances: annual {n(r[0])}, monthly {n(r[1])}, short-term {n(r[2])} hr ft degF/Btu")
line(f"- short-circuit factor {fsc}; bores with 2 neighbours {count[2]}, with 3 {count[3]}; weight {n(weight)}")


def rings():
    r0 = SEPARATION / 2
    w = (25 - r0) / 3
    total = 0
    for j in range(3):
        a = r0 + j * w
        b = a + w
        x = (a + b) / 2 / (2 * sqrt(ALPHA * YEARS * 365))
        i = line_source(x)
        total += (b * b - a * a) * i
        line(f"- ring {n(a)} to {n(b)} ft: X {n(x)}, I(X) {n(i)}")
    return total


ring_sum = rings()
# penalty * length: heat of the rings, 1000 q I/(2 pi k L) C1 L pi (b^2-a^2), over C1 d^2 L
unit_penalty = 1000 * ring_sum / (2 * K) / SEPARATION**2 * weight / (ROWS * COLUMNS)
line(f"- sum of (b2 - a2) I: {n(ring_sum)}; penalty = {n(unit_penalty)} q / L")


def run(peak_ground, q):
    terms = []
    for m in (C, H):
        power = sign[m] * peak_ground[m] - 3.412 * demand[m]
        terms.append(1000 * (q * r[0] + power * (RB + plf[m] * r[1] + r[2] * fsc)))
    # The heat pumps still serve the whole load: their outlet does not change with a tower.
    difference = [TG - (INLET[m] + outlet[m]) / 2 for m in (C, H)]
    pairs("numerator", terms, "Btu/hr times hr ft degF/Btu")
    pairs("temperature difference without penalty", difference, "degF")

    def lengths(tp):
        return [terms[m] / (difference[m] - tp[m]) for m in (C, H)]

    length = lengths([-3, 3])
    pairs("first length, with a penalty of -3 and +3", length, "ft")
    tp = [unit_penalty * q / x for x in length]
    pairs("its penalty", tp, "degF")
    length = lengths(tp)
    pairs("second length", length, "ft")
    passes = 0
    while True:
        passes += 1
        before = length
        tp = [unit_penalty * q / x for x in before]
        length = lengths(tp)
        line(f"- pass {passes}: penalty {n(tp[C])}, {n(tp[H])}; length {n(length[C])}, {n(length[H])}")
        if all(abs(a / b - 1) <= 0.001 for a, b in zip(length, before)):
            break
    line(f"- each of the {ROWS * COLUMNS} bores: cooling {length[C] / 6:.1f}, heating {length[H] / 6:.1f} ft")
    return length, tp


line()
line("## Lengths")
line()
q = 12 * (fh * ton_hours[H] - fc * ton_hours[C]) / 8760
line(f"- annual ground load q = 12 ({n(fh)} * {n(ton_hours[H])} - {n(fc)} * {n(ton_hours[C])}) / 8760 = {n(q)} MBtu/hr")
run(peak, q)
line()
line(f"## {TOWER_PERCENT} percent to a cooling tower with a range of {TOWER_RANGE} degF")
line()
left = 1 - TOWER_PERCENT / 100
ground = [peak[C] * left, peak[H]]
line(f"- peak cooling load left for the ground: {n(ground[C])} MBtu/hr; demand, flow and part load factor stay")
q = 12 * (fh * ton_hours[H] - fc * ton_hours[C] * left) / 8760
line(f"- annual ground load: {n(q)} MBtu/hr")
cap = fc * (peak[C] - ground[C])
line(f"- condenser capacity {n(fc)} * {n(peak[C] - ground[C])} = {n(cap)} MBtu/hr, its maximum too")
line(f"- hours {n(fc)} * 12 * ({n(ton_hours[C])} - {n(ton_hours[C] * left)}) / {n(cap)} = "
     f"{n(fc * 12 * ton_hours[C] * (1 - left) / cap)}")
carried = 60 * RHO * 0.1337 * CP
line(f"- tower flow {n(cap)} * 1000 / ({n(carried)} * {TOWER_RANGE}) = {n(cap * 1000 / (carried * TOWER_RANGE))} gpm")
run(ground, q)
