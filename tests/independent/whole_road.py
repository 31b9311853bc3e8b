#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""The whole road from loads to bore length, worked a second time, apart from the program.

    python3 tests/independent/whole_road.py [--show]
    python3 tests/independent/whole_road.py --check tests/scripts/whole_road.expected

Reads the shipped catalogue as text, selects the pumps of five zones, evaluates them, rolls the
loads up and iterates the bore lengths, then shifts 30 percent of the cooling peak to a tower, then
changes a load.  It shares no line with the program; the system test `whole_road` must show the
same figures.  --show prints every intermediate number, --check compares a transcript's values.
"""
import math
import os
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
PUMPS = os.path.join(HERE, "..", "..", "resources", "pumps")
SHOW = "--show" in sys.argv
COOL, HEAT = 0, 1

# title, cooling by block, heating by block, hours (cooling, heating), days
ZONES = [
    ("South offices", (22.5, 34.0, 30.5, 6.0), (18.0, 9.5, 11.0, 21.0), (1100, 620), 5),
    ("North offices", (15.0, 21.5, 19.0, 4.0), (24.0, 15.5, 17.0, 27.5), (900, 800), 5),
    ("Conference", (20.0, 28.0, 12.0, 0.0), (10.0, 4.0, 5.0, 12.0), (800, 500), 5),
    ("Shop", (40.0, 55.0, 58.5, 12.0), (30.0, 18.0, 20.0, 26.0), (1300, 600), 6),
    ("Core", (11.0, 12.5, 11.5, 9.0), (2.0, 1.0, 1.0, 3.0), (1800, 150), 7),
]
INLET = (85.0, 50.0)
LOAD_AIR = (67.0, 70.0)
FLOW = 3.0


def say(*words):
    if SHOW:
        print(*words)


def read_series(name):
    lines = open(os.path.join(PUMPS, name + ".hpd"), encoding="utf-8", newline="").read().split("\r\n")
    at = [13]

    def text():
        at[0] += 1
        return lines[at[0] - 1]

    def number():
        return float(text())

    count = int(lines[1])
    models = []
    for _ in range(count):
        pump = {"name": text(), "type": int(text())}
        rows = []
        for _e in range(6):
            temperature = number()
            flows = []
            for _f in range(3):
                flow = number()
                points = [(number(), number()) for _m in range(2)]
                flows.append((flow, points))
            rows.append((temperature, flows))
        pump["ewt"] = rows
        coefficients = {"cap": [[0, 0] for _ in range(4)], "watts": [[0, 0] for _ in range(4)],
                        "capT": [[0, 0] for _ in range(4)], "wattsT": [[0, 0] for _ in range(4)],
                        "capF": [[0, 0] for _ in range(4)], "wattsF": [[0, 0] for _ in range(4)]}
        for k in range(3):
            for m in range(2):
                for key in ("cap", "watts", "capT", "wattsT"):
                    coefficients[key][k][m] = number()
        for _ in range(30):
            number()
        pump["flowCf"] = [[number(), number()], [1, 1]]
        pump["c"] = coefficients
        models.append(pump)
    text()
    text()
    for pump in models:
        text()
        text()
        pump["flowCf"][1] = [number(), number()]
        pump["nominal"] = number()
        for _ in range(30):
            number()
        for k in range(4):
            for m in range(2):
                pump["c"]["capF"][k][m] = number()
                pump["c"]["wattsF"][k][m] = number()
                if k == 3:
                    pump["c"]["capT"][3][m] = number()
                    pump["c"]["wattsT"][3][m] = number()
    return models


def poly(c, m, x):
    return c[0][m] + c[1][m] * x + c[2][m] * x * x + c[3][m] * x ** 3


def quad(c, m, x):
    return c[0][m] + c[1][m] * x + c[2][m] * x * x


def select(models, zone):
    peak = [max(1.0, max(zone[1])), max(1.0, max(zone[2]))]
    for n in range(1, 101):
        for index, pump in enumerate(models):
            fits = True
            for m in (COOL, HEAT):
                total = n * quad(pump["c"]["cap"], m, INLET[m]) * poly(pump["c"]["capT"], m, LOAD_AIR[m])
                q0 = pump["ewt"][3][1][0][0]
                q1 = pump["ewt"][3][1][1][0]
                per = total / n
                slope = (pump["flowCf"][0][m] * per - per) / (q1 - q0) if q0 else 0
                if total > 0:
                    correction = slope * (peak[m] / n / 12 * FLOW - q0) if peak[m] / total < 1.2 else 0
                    total += n * correction
                fits = fits and total - peak[m] > 0
            if fits:
                return index, n
    raise SystemExit("no pump fits")


def evaluate(pump, n, zone):
    result = {"name": pump["name"], "number": n, "capacity": [0, 0], "watts": [0, 0], "cop": [0, 0],
              "flow": [0, 0], "plf": [0, 0]}
    per_unit = delta = correction = 0
    for m in (COOL, HEAT):
        peak = max(0.0, max(zone[1 + m]))
        percent = 100.0
        cap = quad(pump["c"]["cap"], m, INLET[m]) * poly(pump["c"]["capT"], m, LOAD_AIR[m])
        cap *= poly(pump["c"]["capF"], m, percent)
        q0, q1 = pump["ewt"][3][1][0][0], pump["ewt"][3][1][1][0]
        slope = (pump["flowCf"][0][m] * cap - cap) / (q1 - q0)
        if cap > 0:
            if peak / (cap * n) < 1.2:
                per_unit = peak / n / 12 * FLOW
                delta = per_unit - q0
                correction = slope * delta
            else:
                per_unit = cap / 12 * FLOW
                correction = 0
        result["capacity"][m] = n * (cap + correction)
        power = quad(pump["c"]["watts"], m, INLET[m]) * poly(pump["c"]["wattsT"], m, LOAD_AIR[m])
        power *= poly(pump["c"]["wattsF"], m, percent)
        slope_power = (pump["flowCf"][1][m] * power - power) / (q1 - q0)
        result["watts"][m] = n * (power + slope_power * delta)
        result["cop"][m] = result["capacity"][m] / (result["watts"][m] * 3.412)
        result["flow"][m] = n * per_unit
        result["plf"][m] = peak / result["capacity"][m]
    return result


def g_factor(fourier):
    log10 = 0.434294481903 * math.log(fourier)
    g = (log10 + 0.89947) / 7.09472 if fourier < 10 else (log10 + 0.45247) / 5.60998
    return max(g, 0.0)


def line_source(x):
    u = x * x
    if x <= 0.5:
        return (0.5 * (0.99999193 * u - math.log(u) - 0.57721566) - 0.24991055 * u ** 2
                + 0.05519968 * u ** 3 - 0.00976004 * u ** 4 + 0.00107857 * u ** 5)
    top = u ** 4 + 8.5733287 * u ** 3 + 18.059017 * u ** 2 + 8.637609 * u + 0.2677737
    bottom = u ** 4 + 9.5733223 * u ** 3 + 25.6329561 * u ** 2 + 21.0996531 * u + 3.9684969
    return top / (2 * u * math.exp(u)) / bottom


def calculate(zones, pumps, percent=0):
    """One run with the built-in inputs of a new design."""
    rows, columns, separation, years = 6, 4, 20.0, 10.0
    k, alpha, bore, rb, ground = 1.3, 0.75, 5 / 12, 0.196, 62.0
    rho, cp = 62.4, 1.0
    block = [[sum(z[1 + m][t] for z in zones) for t in range(4)] for m in (COOL, HEAT)]
    peak = [max(block[m]) for m in (COOL, HEAT)]
    at = [block[m].index(peak[m]) for m in (COOL, HEAT)]
    full_peak = peak[COOL]
    peak[COOL] *= 1 - percent / 100
    say("peak loads", peak, "in blocks", at)
    demand = [0.0, 0.0]
    for z, p in zip(zones, pumps):
        for m in (COOL, HEAT):
            demand[m] += min(1.0, z[1 + m][at[m]] / p["capacity"][m]) * p["watts"][m]
    hours = (4, 4, 4, 12)
    daily = [sum(sum(z[1 + m][t] * z[4] / 7 for z in zones) * hours[t] for t in range(4)) for m in (COOL, HEAT)]
    plf = [daily[COOL] / (24 * full_peak), daily[HEAT] / (24 * peak[HEAT])]
    cop = [sum(p["capacity"][m] for p in pumps) / 3.412 / sum(p["watts"][m] for p in pumps) for m in (COOL, HEAT)]
    system_cop = [full_peak / 3.412 / demand[COOL], peak[HEAT] / 3.412 / demand[HEAT]]
    ton_hours = [sum(max(0.0, max(z[1 + m])) / 12 * z[3][m] for z in zones) for m in (COOL, HEAT)]
    reject, extract = (cop[COOL] + 1) / cop[COOL], (cop[HEAT] - 1) / cop[HEAT]
    q = 12 * (extract * ton_hours[HEAT] - reject * ton_hours[COOL] * (1 - percent / 100)) / 8760
    h = 12 if 3 in at else 4
    t0 = years * 365 + 30 + h / 24
    times = (t0, t0 - years * 365, t0 - (years * 365 + 30))
    g = [g_factor(4 * alpha * t / bore ** 2) for t in times]
    rga, rgm, rgs = (g[0] - g[1]) / k, (g[1] - g[2]) / k, g[2] / k
    flow = [full_peak / 12 * FLOW, peak[HEAT] / 12 * FLOW]
    outlet = [INLET[m] - 1000 * (s * p - 3.412 * demand[m]) / (60 * rho * 0.1337 * cp * flow[m])
              for m, s, p in ((COOL, -1, full_peak), (HEAT, 1, peak[HEAT]))]
    fsc = 1.02  # two bores a circuit, above 2.4 gpm per ton
    weight = (rows - 2) * (columns - 2) + 0.5 * 2 * (rows - 2 + columns - 2) + 0.25 * 4
    say("demand", demand, "PLF", plf, "COP", cop, "system COP", system_cop)
    say("ton-hours", ton_hours, "annual ground load", q)
    say("pulse times", times, "G", g, "resistances", rga, rgm, rgs)
    say("flow", flow, "outlet", outlet)

    def lengths(tp):
        return [1000 * (q * rga + (s * peak[m] - 3.412 * demand[m]) * (rb + plf[m] * rgm + rgs * fsc))
                / (ground - (INLET[m] + outlet[m]) / 2 - tp[m]) for m, s in ((COOL, -1), (HEAT, 1))]

    def penalty(length):
        r0 = separation / 2
        width = (25 - r0) / 3
        heat = k * 24 / alpha
        result = []
        for m in (COOL, HEAT):
            stored = 0.0
            for j in range(3):
                a, b = r0 + j * width, r0 + (j + 1) * width
                x = (a + b) / 2 / (2 * math.sqrt(alpha * years * 365))
                rise = 1000 * q * line_source(x) / (2 * 3.14159265359 * k * length[m])
                stored += heat * length[m] * 3.14159265359 * (b * b - a * a) * rise
            result.append(weight * stored / (heat * separation ** 2 * length[m]) / (rows * columns))
        return result

    length = lengths([-3.0, 3.0])
    tp = penalty(length)
    length = lengths(tp)
    for passes in range(1, 1000):
        before = length
        tp = penalty(length)
        length = lengths(tp)
        say("pass", passes, "penalty", tp, "length", length)
        if all(abs(length[m] / before[m] - 1) <= 0.001 for m in (COOL, HEAT)):
            break
    condenser = reject * (full_peak - peak[COOL])
    tower_range = outlet[COOL] - INLET[COOL]
    tower_hours = reject * 12 * ton_hours[COOL] * percent / 100 / condenser if condenser else 0
    return {"boreLength": length, "temperaturePenalty": tp, "peakLoad": [full_peak, peak[HEAT]],
            "peakDemand": demand, "heatPumpCOP": cop, "systemCOP": system_cop, "outletTemp": outlet,
            "systemFlow": flow, "annualGroundLoad": q, "condenserCapacity": condenser,
            "coolingTowerHours": tower_hours}


def report(title, result):
    print(title)
    for name, value in result.items():
        if isinstance(value, list):
            for m in (COOL, HEAT):
                print("  %s(%d) = %.9f" % (name, m, value[m]))
        else:
            print("  %s = %.9f" % (name, value))


def check(transcript, pumps, runs):
    """Every figure of the transcript against this working; says how many agree."""
    pump_keys = {"capacity": "capacity", "watts": "watts"}
    run = -1
    agreed = 0
    for line in open(transcript, encoding="utf-8"):
        if not line.startswith("value ") or "= \"" in line:
            continue
        name, value = line[len("value "):].strip().split(" = ")
        name = name.split(".", 1)[1]
        if name == "peakLoad(0)":
            run += 1
        if name.startswith("ZoneList("):
            zone = int(name[9:name.index(")")])
            member = name.split(".pump.")[1]
            want = pumps[zone]["number"] if member == "number" else pumps[zone][
                pump_keys[member[:-3]]][int(member[-2])]
        elif name == "designLinkID":
            continue
        else:
            want = runs[run][name] if name in runs[run] else runs[run][name[:-3]][int(name[-2])]
        if not math.isclose(float(value), want, rel_tol=1e-9):
            raise SystemExit("%s is %s, worked here as %r" % (name, value, want))
        agreed += 1
    print("%d figures agree" % agreed)


def main():
    models = read_series("nf_meadow")
    zones = list(ZONES)
    pumps = []
    for zone in zones:
        index, n = select(models, zone)
        pumps.append(evaluate(models[index], n, zone))
        print("%-14s %d x %s  capacity %.6f %.6f MBtu/hr  power %.6f %.6f kW" % (
            zone[0], n, pumps[-1]["name"], *pumps[-1]["capacity"], *pumps[-1]["watts"]))
    runs = [calculate(zones, pumps), calculate(zones, pumps, 30)]
    report("Calculate", runs[0])
    report("Tower at 30 percent", runs[1])
    title, cool, heat, hours, days = zones[3]
    zones[3] = (title, (40.0, 55.0, 75.0, 12.0), heat, hours, days)
    runs.append(calculate(zones, pumps))
    report("Shop at 75 MBtu/hr from 4 to 8, the pump unchanged", runs[2])
    if "--check" in sys.argv:
        check(sys.argv[-1], pumps, runs)


if __name__ == "__main__":
    main()
