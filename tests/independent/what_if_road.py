#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""What If worked a second time, apart from the program, for random designs and random land.

    python3 tests/independent/what_if_road.py build/release/bin/varnholt-script [DESIGNS [PLOTS]]

Each design is typed into the program by script, and its figures are read by name.  Needed lengths,
bars, levers, costs, the tower at every percent and the list of the cheapest fields have to agree to
rounding.  What the program finds from scrambled points of a sequence is drawn here from plain random
numbers, so it has to agree within five standard errors.  It shares no line with the program: cases
are computed one by one from the zones, and fields are found by trying every window of every lattice.
Takes some seconds a design.
"""
import copy
import math
import os
import random
import re
import subprocess
import sys
import tempfile

from whole_road import g_factor, line_source

PI = 3.14159265359
ONE_IN_TEN = 1.2815515655
QUANTITIES = 10
COOLING, HEATING = 0, 1
MODES = (COOLING, HEATING)
CASES, PAIRS = 20000, 1500
PLACE_GIVE = 1e-7  # ft, by which a place may miss a clearance

PRICES = {"costFixed": "WCFixedText", "costBore": "WCBoreText", "costFoot": "WCFootText",
          "costBand": "WCBandText", "costDeep": "WCDeepText", "costTrench": "WCTrenchText",
          "costRun": "WCRunText", "costTower": "WCTowerText", "costCare": "WCCareText",
          "towerPower": "WCTowerPowerText", "costEnergy": "WCEnergyText",
          "escalation": "WCEscalationText", "discount": "WCDiscountText", "costYears": "WCYearsText"}
MIDDLE = {"conductivity": 1, "diffusivity": 1, "ground": 0, "resistance": 1, "loads": (1, 1),
          "hours": (1, 1), "power": 1, "method": 1}


# One design, and one case of it.

class Design:
    """Inputs, and what follows from the zones."""

    def sum_zones(self):
        blocks = [[sum(zone["gains"][m][t] for zone in self.zones) for t in range(4)] for m in MODES]
        self.peak = [max(0, *blocks[m]) for m in MODES]
        self.peak_block = [blocks[m].index(self.peak[m]) if self.peak[m] else 0 for m in MODES]
        weighted = [[sum(zone["gains"][m][t] * zone["days"] / 7 for zone in self.zones)
                     for t in range(4)] for m in MODES]
        self.daily = [4 * sum(day[:3]) + 12 * day[3] for day in weighted]
        self.ton_hours = [sum(max(0, *zone["gains"][m]) / 12 * zone["hours"][m]
                              for zone in self.zones) for m in MODES]
        self.capacity = [sum(zone["capacity"][m] for zone in self.zones) for m in MODES]
        self.watts = [sum(zone["watts"][m] for zone in self.zones) for m in MODES]

    def cop(self, mode, power=1):
        watts = self.watts[mode] * power
        return self.capacity[mode] / 3.412 / watts if watts else 0

    def rejection(self, power=1):
        cop = self.cop(COOLING, power)
        return (cop + 1) / cop if cop else 1

    def extraction(self, power=1):
        cop = self.cop(HEATING, power)
        return (cop - 1) / cop if cop else 1

    @property
    def bores(self):
        return self.rows[0] * self.rows[1]


def grid_weight(rows, columns):
    """Bores by their neighbours, which weigh 0, 0.1, 0.25, 0.5 and 1."""
    weights = (0, 0.1, 0.25, 0.5, 1)
    return sum(weights[(i > 0) + (i < rows - 1) + (j > 0) + (j < columns - 1)]
               for i in range(rows) for j in range(columns))


def penalty_of_one_foot(field, conductivity, diffusivity, years, ground_load):
    """The heat in three rings out to 25 ft, for bores of one foot in all."""
    separation, weight, bores = field
    inner = separation / 2
    if inner > 25:
        return 0
    width, stored = (25 - inner) / 3, 0
    for ring in range(3):
        a, b = inner + ring * width, inner + (ring + 1) * width
        x = (a + b) / 2 / (2 * math.sqrt(diffusivity * years * 365))
        stored += (b * b - a * a) * 1000 * ground_load * line_source(x) / (2 * conductivity)
    return weight / bores * stored / separation ** 2


def short_circuit(bores_per_circuit, flow):
    low, high = {1: (1.06, 1.04), 2: (1.03, 1.02), 3: (1.02, 1.01)}.get(bores_per_circuit, (1, 1))
    return low if flow <= 2.4 else high


def figures(design, case=None, drawn=0, field=None):
    """Lengths of both modes, entering water at a drawn length, and the need; infinite for none."""
    case = case or MIDDLE
    conductivity = design.conductivity * case["conductivity"]
    diffusivity = design.diffusivity * case["diffusivity"]
    ground = design.ground + case["ground"]
    pulse = 12 if 3 in design.peak_block else 4
    times = (design.years * 365 + 30 + pulse / 24, 30 + pulse / 24, pulse / 24)
    g = [g_factor(4 * diffusivity * t / (design.bore_diameter / 12) ** 2) for t in times]
    yearly, monthly, short = ((a - b) / conductivity for a, b in zip(g, g[1:] + [0]))
    left = 1 - design.percent / 100
    full = [design.peak[m] * case["loads"][m] for m in MODES]
    peak = [full[COOLING] * left, full[HEATING]]
    ton_hours = [design.ton_hours[m] * case["loads"][m] * case["hours"][m] for m in MODES]
    ground_load = 12 / 8760 * (design.extraction(case["power"]) * ton_hours[HEATING]
                               - design.rejection(case["power"]) * ton_hours[COOLING] * left)
    field = field or (design.separation, grid_weight(*design.rows), design.bores)
    stored = penalty_of_one_foot(field, conductivity, diffusivity, design.years, ground_load)
    lengths, entering = [], []
    for m, sign in ((COOLING, -1), (HEATING, 1)):
        if peak[m] == 0:
            lengths.append(0)
            entering.append(0)
            continue
        demand = sum(min(1, zone["gains"][m][design.peak_block[m]] * case["loads"][m] / zone["capacity"][m])
                     * zone["watts"][m] * case["power"] for zone in design.zones if zone["capacity"][m])
        flow = full[m] / 12 * design.flow
        change = 1000 * (sign * full[m] - 3.412 * demand) / (60 * 62.4 * 0.1337 * flow) if flow else 0
        load_factor = design.daily[m] * case["loads"][m] / (24 * full[m])
        resistance = (design.resistance * case["resistance"] + load_factor * monthly
                      + short * short_circuit(design.bores_per_circuit, design.flow))
        heat = 1000 * (ground_load * yearly + (sign * peak[m] - 3.412 * demand) * resistance) + stored
        difference = ground - design.inlet[m] + change / 2
        lengths.append(max(0, heat / difference) * case["method"] if sign * difference > 0 else math.inf)
        entering.append(ground - heat * case["method"] / drawn + change / 2 if drawn else 0)
    return lengths, entering, max(lengths)


def case_at(design, drivers):
    z = list(drivers)
    for tie, leader, follower in ((0, 0, 1), (1, 0, 3), (2, 4, 5)):
        t = design.ties[tie]
        z[follower] = t * drivers[leader] + math.sqrt(1 - t * t) * drivers[follower]

    def factor(j):
        if z[j] < 0:
            return (1 - design.low[j] / 100) ** (-z[j] / ONE_IN_TEN)
        return (1 + design.high[j] / 100) ** (z[j] / ONE_IN_TEN)
    return {"conductivity": factor(0), "diffusivity": factor(0) / factor(1),
            "ground": z[2] * (design.low[2] if z[2] < 0 else design.high[2]) / ONE_IN_TEN,
            "resistance": factor(3), "loads": (factor(4), factor(5)),
            "hours": (factor(6), factor(7)), "power": factor(8), "method": factor(9)}


def need_at(design, drivers):
    return figures(design, case_at(design, drivers))[2]


def changed(design, lever, end):
    other = copy.deepcopy(design)
    if lever < 2:
        other.inlet[lever] += 5 * end
    elif lever == 2:
        other.separation += 5 * end
    elif lever == 3:
        other.years *= 0.5 if end < 0 else 2
    else:
        other.flow += 0.5 * end
    return other


# What it costs.

def cost(design, prices, depth, bores, separation):
    """Parts, first cost, energy of a year, cost of a year, cost over life."""
    share = design.percent / 100
    tons = design.rejection() * design.peak[COOLING] * share / 12
    parts = [bores * (prices["costFoot"] * min(depth, prices["costBand"])
                      + prices["costDeep"] * max(0, depth - prices["costBand"])),
             bores * prices["costBore"], prices["costFixed"],
             prices["costTrench"] * ((bores - 1) * separation + prices["costRun"]),
             tons * prices["costTower"]]
    energy = 0
    for m in MODES:
        if design.cop(m):
            energy += 12 * design.ton_hours[m] / (3.412 * design.cop(m))
        if design.peak[m]:
            energy += (design.extra[0] + design.extra[2]) * 12 * design.ton_hours[m] / design.peak[m]
    if tons:
        hours = design.rejection() * 12 * design.ton_hours[COOLING] * share / (12 * tons)
        power = design.extra[3] + design.extra[5]
        energy += hours * (power or tons * prices["towerPower"])
    yearly = energy * prices["costEnergy"] + tons * prices["costCare"]
    growth = (1 + prices["escalation"] / 100) / (1 + prices["discount"] / 100)
    life = sum(parts) + yearly * sum(growth ** y for y in range(1, int(prices["costYears"]) + 1))
    return parts, sum(parts), energy, yearly, life


# Land and its fields.

def distance(polygon, place):
    """To the nearest side, negative outside."""
    (x, y), nearest, inside = place, math.inf, False
    for (x1, y1), (x2, y2) in zip(polygon, polygon[1:] + polygon[:1]):
        dx, dy = x2 - x1, y2 - y1
        along = max(0, min(1, ((x - x1) * dx + (y - y1) * dy) / (dx * dx + dy * dy)))
        nearest = min(nearest, math.hypot(x - x1 - along * dx, y - y1 - along * dy))
        if (y1 > y) != (y2 > y) and x < x1 + (y - y1) * dx / dy:
            inside = not inside
    return nearest if inside else -nearest


def allows(land, place):
    return (distance(land["outline"], place) >= land["boundary"] - PLACE_GIVE
            and all(-distance(area, place) >= land["noGo"] - PLACE_GIVE for area in land["areas"]))


def places_from(start, end, step):
    return [start + i * step for i in range(math.floor((end - start + PLACE_GIVE) / step) + 1)]


def window_of(allowed, rows, columns):
    """The window of so many places with most of them allowed: the lowest, then the leftmost."""
    most, best = 0, None
    for j in range(len(allowed) - columns + 1):
        for i in range(len(allowed[0]) - rows + 1):
            window = [line[i:i + rows] for line in allowed[j:j + columns]]
            bores = sum(map(sum, window))
            if bores > most:
                most, best = bores, window
    return most, best


def weight_of(window):
    def at(j, i):
        return 0 <= j < len(window) and 0 <= i < len(window[0]) and window[j][i]
    weights = (0, 0.1, 0.25, 0.5, 1)
    return sum(weights[at(j, i - 1) + at(j, i + 1) + at(j - 1, i) + at(j + 1, i)]
               for j, line in enumerate(window) for i, bore in enumerate(line) if bore)


def fields_at(land, wanted, separation):
    xs, ys = zip(*land["outline"])
    best = {}
    for across in range(4):
        for down in range(4):
            moved_x, moved_y = (land["boundary"] + quarters * separation / 4 for quarters in (across, down))
            x = places_from(min(xs) + moved_x, max(xs) - land["boundary"], separation)
            y = places_from(min(ys) + moved_y, max(ys) - land["boundary"], separation)
            allowed = [[allows(land, (a, b)) for a in x] for b in y]
            for rows in range(1, len(x) + 1):
                for columns in range(1, len(y) + 1):
                    bores, window = window_of(allowed, rows, columns)
                    if not bores or bores > wanted["most"] or (wanted["kind"] == 0 and bores < rows * columns):
                        continue
                    edges = (window[0], window[-1], [w[0] for w in window], [w[-1] for w in window])
                    if all(map(any, edges)) and bores > best.get((rows, columns), (0,))[0]:
                        best[rows, columns] = bores, weight_of(window)

    def is_whole(rows, columns):
        return best.get((rows, columns), (0,))[0] == rows * columns
    return [(rows, columns, *found) for (rows, columns), found in best.items()
            if not (rows < columns and is_whole(rows, columns) and is_whole(columns, rows))]


def cheapest_fields(design, prices, land, wanted):
    found = []
    for separation in places_from(wanted["from"], wanted["to"], wanted["step"]):
        for rows, columns, bores, weight in fields_at(land, wanted, separation):
            need = figures(design, field=(separation, weight, bores))[2]
            depth = max(wanted["least"], need * (1 + wanted["margin"] / 100) / bores)
            if depth <= wanted["deepest"] + PLACE_GIVE:
                first = cost(design, prices, depth, bores, separation)[1]
                found.append((first, bores, separation, rows, columns, depth))
    return sorted(found)[:20]


# The program.

class Program:
    def __init__(self, path, folder):
        self.path, self.folder = os.path.abspath(path), folder
        os.mkdir(os.path.join(self.folder, "zones"))
        os.mkdir(os.path.join(self.folder, "pumps"))

    def run(self, script):
        done = subprocess.run([self.path, "--program-folder", self.folder, "-"],
                              input="\n".join(script) + "\n", capture_output=True, text=True, check=False)
        values = dict(re.findall(r"^value \w+#\d+\.(\S+) = (.*)$", done.stdout, re.M))
        values.update(re.findall(r"^\w+#\d+\.(\S+) = (.*)$", done.stdout, re.M))
        if done.returncode not in (0, 3):
            raise SystemExit(done.stdout + done.stderr)
        return values

    def write_zones(self, zones):
        lines = ["Zone Data File Version 3.0", len(zones)]
        for zone in zones:
            lines += zone["gains"][COOLING] + zone["gains"][HEATING] + zone["hours"]
            for m in MODES:
                lines += [4, zone["watts"][m], zone["capacity"][m], 10, 0.8, 67]
            lines += [zone["days"], "zone", "", "", "Custom", 0, 1, 1]
        lines += [0, 0, 0] * len(zones) + [3, 85, 50, "", 67, 55, 70, 100]
        path = os.path.join(self.folder, "zones", "random.zon")
        with open(path, "w", encoding="utf-8", newline="") as file:
            file.write("".join(f"{line}\r\n" for line in lines))


def typing(form, **fields):
    return [line for field, value in fields.items()
            for line in (f"type {form}.{field} {value}", f"leave {form}.{field}")]


def entering_design(design, prices):
    design_fields = {"FLInletTempText(0)": design.inlet[0], "FLInletTempText(1)": design.inlet[1],
                     "FLFlowRateText": design.flow, "SOGroundTempText": design.ground,
                     "SOThermalConductivityText": design.conductivity,
                     "SOThermalDiffusivityText": design.diffusivity,
                     "PIBoreholeDiameterText": design.bore_diameter,
                     "PIThermalResistanceText": design.resistance,
                     "PAPatternRowsText(0)": design.rows[0], "PAPatternRowsText(1)": design.rows[1],
                     "PASeparationText": design.separation,
                     "PABoresPerParallelLoopText": design.bores_per_circuit,
                     "PATimeText": design.years, "EKWPumpPowerText(1)": design.shaft,
                     "EKWPumpPowerText(2)": design.additional}
    what_fields = {"WIDepthText": design.drawn, "WIConfidenceText": design.confidence}
    for j in range(QUANTITIES):
        what_fields[f"WILowText({j})"] = design.low[j]
        what_fields[f"WIHighText({j})"] = design.high[j]
    for n in range(3):
        what_fields[f"WITieText({n})"] = design.ties[n]
    what_fields.update({PRICES[name]: value for name, value in prices.items()})
    return (["click Varnmain.NewBorehole", "click Varnmain.mnuZoneManage", "pick zones/random.zon",
             "click frmZoneManage.LOOpenCommand", "activate frmBHDesign", "click Varnmain.mnuLink"]
            + typing("frmBHDesign", **design_fields)
            + ["answer ok", "click frmBHDesign.CACalculateCommand"]
            + ([f"slide frmBHDesign.CAHybridSlider {design.percent}"] if design.percent else [])
            + ["click frmBHDesign.CAWhatIfCommand", "click frmWhatIf.WIMeasureOption(0)"]
            + typing("frmWhatIf", **what_fields))


def reading(form, names):
    return [f"value {form}.{name}" for name in names]


# Random designs.

def random_design(seed, size=1.0):
    dice = random.Random(seed)
    design = Design()
    design.zones = []
    for _ in range(dice.choice((1, 1, 2, 3, 6))):
        peaks = [dice.uniform(20, 300) * size, dice.uniform(10, 250) * size]
        if seed % 8 in (5, 6):
            peaks[seed % 8 == 5] = 0
        gains = [[round(peaks[m] * dice.uniform(0.1, 1), 2) for _ in range(4)] for m in MODES]
        capacity = [round(max(gains[m]) * dice.uniform(0.7, 1.3) + 0.5, 2) for m in MODES]
        watts = [round(c / 3.412 / dice.uniform(2.8, 5.5), 3) for c in capacity]
        design.zones.append({"gains": gains, "capacity": capacity, "watts": watts,
                             "hours": [dice.randint(200, 2000), dice.randint(200, 2000)],
                             "days": dice.choice((4.5, 5, 6, 7))})
    design.rows = [dice.randint(1, 10), dice.randint(1, 12)]
    design.separation = dice.choice((10, 15, 20, 25, 30, 60))
    design.years = dice.choice((1, 5, 10, 20, 30))
    design.conductivity, design.diffusivity = dice.choice((0.8, 1.3, 1.9, 2.4)), dice.choice((0.5, 0.75, 1.1))
    design.ground, design.resistance = dice.choice((48, 55, 62, 66)), dice.choice((0.12, 0.196, 0.25))
    design.bore_diameter, design.bores_per_circuit = dice.choice((4, 5, 6)), dice.choice((1, 2, 3))
    design.flow = dice.choice((2, 2.4, 2.5, 3))
    design.inlet = [dice.choice((80, 85, 90, 95)), dice.choice((32, 40, 45))]
    design.low = [dice.choice((5, 10, 20, 30, 40)) for _ in range(QUANTITIES)]
    design.high = [dice.choice((5, 10, 20, 30, 60)) for _ in range(QUANTITIES)]
    design.low[2], design.high[2] = dice.choice((1, 2, 4)), dice.choice((1, 2, 3))
    design.ties = [dice.choice((0, 0.5, -0.4, 0.95)) for _ in range(3)]
    design.drawn, design.confidence = dice.choice((0, 200, 300, 350)), dice.choice((50, 80, 90, 99))
    design.shaft, design.additional = dice.choice((0, 2, 5)), dice.choice((0, 1.5))
    design.extra, design.percent = [0] * 7, 0
    design.sum_zones()
    lengths = figures(design)[0]
    if math.inf > lengths[COOLING] > 2 * lengths[HEATING] > 0:  # its slider moves
        design.percent = dice.choice((0, 20, 45))
    prices = {"costFixed": dice.choice((0, 5000, 12000)), "costBore": dice.choice((200, 350)), "costFoot": 14,
              "costBand": dice.choice((150, 250, 400)), "costDeep": dice.choice((18, 25)), "costTrench": 10,
              "costRun": dice.choice((0, 50, 120)), "costTower": dice.choice((300, 500)),
              "costCare": dice.choice((0, 20, 35)), "towerPower": 0.1, "costEnergy": dice.choice((0.12, 0.3)),
              "escalation": dice.choice((0, 2, 4)), "discount": dice.choice((0, 4)),
              "costYears": dice.choice((1, 20, 35))}
    return design, prices


def random_plot(seed):
    dice = random.Random(seed)
    across, down = round(dice.uniform(40, 130), 1), round(dice.uniform(40, 110), 1)
    outline = dice.choice((((0, 0), (1, 0), (1, 1), (0, 1)),
                           ((0, 0), (1, 0), (1, 0.6), (0.5, 1), (0, 0.9)),
                           ((0.05, -0.1), (1, 0), (0.55, 0.4), (1, 1), (0, 0.8))))
    area = ((0.3, 0.3), (0.45, 0.3), (0.4, 0.45))
    land = {"boundary": dice.choice((0, 5, 10)), "noGo": dice.choice((0, 5, 10)),
            "outline": [(round(x * across, 2), round(y * down, 2)) for x, y in outline],
            "areas": [[(round(x * across, 2), round(y * down, 2)) for x, y in area]] * dice.choice((0, 1))}
    wanted = {"from": dice.choice((10, 12, 15.5)), "to": dice.choice((16, 20, 24)), "step": dice.choice((1, 2, 2.5)),
              "most": dice.choice((12, 20, 400)), "kind": dice.choice((0, 1)), "least": dice.choice((50, 100, 150)),
              "deepest": dice.choice((400, 600, 1500)), "margin": dice.choice((0, 10))}
    return land, wanted


# The comparison.

class Comparison:
    def __init__(self):
        self.exact = self.sampled = 0
        self.worst = self.furthest = 0.0

    def same(self, values, name, want):
        want = want if want < math.inf else 0
        difference = abs(float(values[name]) - want) / max(1, abs(want))
        if difference > 1e-9:
            raise SystemExit(f"{name} is {values[name]}, worked here as {want!r}")
        self.exact += 1
        self.worst = max(self.worst, difference)

    def near(self, values, name, want, error):
        errors = abs(float(values[name]) - want) / error
        if errors > 5:
            raise SystemExit(f"{name} is {values[name]}, drawn here as {want!r} +- {error!r}")
        self.sampled += 1
        self.furthest = max(self.furthest, errors)

    def quantile(self, values, name, numbers, share, scale=1.0):
        ordered, count = sorted(numbers), len(numbers)
        spread = 2 * math.sqrt(share * (1 - share) * count)
        low, high = ordered[max(0, int(share * count - spread))], ordered[min(count - 1, int(share * count + spread))]
        if high < math.inf:
            middle = ordered[max(0, math.ceil(share * count - 1e-9) - 1)]
            self.near(values, name, middle * scale, ((high - low) / 4 + 1e-6) * scale)


def compare_lengths(told, values, design):
    lengths, _, need = figures(design)
    for m in MODES:
        told.same(values, f"needLength({m})", lengths[m])
    told.same(values, "needGoverning", need)
    ends = [[need_at(design, [end * ONE_IN_TEN * (i == j) for i in range(QUANTITIES)]) for end in (-1, 1)]
            for j in range(QUANTITIES)]
    swings = [abs(high - low) if max(low, high) < math.inf else math.inf for low, high in ends]
    for rank, j in enumerate(sorted(range(QUANTITIES), key=lambda j: (-swings[j], j))):
        told.same(values, f"tornadoLow({j})", ends[j][0])
        told.same(values, f"tornadoHigh({j})", ends[j][1])
        told.same(values, f"tornadoRank({rank})", j)
    for lever in range(5):
        told.same(values, f"leverLow({lever})", figures(changed(design, lever, -1))[2])
        told.same(values, f"leverHigh({lever})", figures(changed(design, lever, 1))[2])
    return need


def compare_costs(told, values, design, prices, need):
    depth = design.drawn or need / design.bores
    if 0 < depth < math.inf:
        parts, *sums = cost(design, prices, depth, design.bores, design.separation)
        for part, worked in enumerate(parts):
            told.same(values, f"costPart({part})", worked)
        for name, worked in zip(("firstCost", "yearlyEnergy", "yearlyCost", "lifeCost"), sums):
            told.same(values, name, worked)
    firsts, lives = {}, {}
    for percent in range(100):
        towered = copy.copy(design)
        towered.percent = percent
        length = figures(towered)[2]
        there = 0 < length < math.inf
        costs = cost(towered, prices, length / design.bores, design.bores, design.separation) if there else None
        told.same(values, f"towerLength({percent})", length if there else 0)
        told.same(values, f"towerFirst({percent})", costs[1] if there else 0)
        told.same(values, f"towerLife({percent})", costs[4] if there else 0)
        if there:
            firsts[percent], lives[percent] = costs[1], costs[4]
    if lives:
        told.same(values, "towerBest", min(lives, key=lives.get))
        told.same(values, "towerBestFirst", min(firsts, key=firsts.get))


def compare_certainty(told, values, design, need, seed):
    if not 0 < need < math.inf:
        return
    dice = random.Random(seed)
    drawn = (design.drawn or need / design.bores) * design.bores
    cases = [figures(design, case_at(design, [dice.gauss(0, 1) for _ in range(QUANTITIES)]), drawn)
             for _ in range(CASES)]
    needs = [case[2] for case in cases]
    for share, name in ((0.1, "P10"), (0.5, "P50"), (0.9, "P90")):
        told.quantile(values, f"need{name}", needs, share)
        for m in MODES:
            told.quantile(values, f"length{name}({m})", [case[0][m] for case in cases], share)
            told.quantile(values, f"entering{name}({m})", [case[1][m] for case in cases], share)
    told.quantile(values, "confidentDepth", needs, design.confidence / 100, 1 / design.bores)
    for name, numbers in (("holds", needs), ("holdsMode(0)", [case[0][0] for case in cases]),
                          ("holdsMode(1)", [case[0][1] for case in cases])):
        held = sum(number <= drawn for number in numbers) / CASES
        told.near(values, name, held, math.sqrt(max(held * (1 - held), 1e-4) / CASES))
    failed = sum(number == math.inf for number in needs) / CASES
    told.near(values, "failedSamples", failed * 16384, 16384 * math.sqrt(max(failed, 1e-3) / CASES))
    if failed == 0 and float(values["failedSamples"]) == 0:
        compare_shares(told, values, design, dice)


def compare_shares(told, values, design, dice):
    """Each quantity drawn anew beside the others, and the others drawn anew beside it."""
    first, second = ([[dice.gauss(0, 1) for _ in range(QUANTITIES)] for _ in range(PAIRS)] for _ in range(2))
    of_first, of_second = [need_at(design, z) for z in first], [need_at(design, z) for z in second]
    both = of_first + of_second
    mean = sum(both) / len(both)
    variance = sum((x - mean) ** 2 for x in both) / len(both)
    for j in range(QUANTITIES):
        mixed = [need_at(design, a[:j] + [b[j]] + a[j + 1:]) for a, b in zip(first, second)]
        for name, ends in (("share", of_first), ("shareAlone", of_second)):
            parts = [(x - y) ** 2 / 2 / variance for x, y in zip(mixed, ends)]
            part = sum(parts) / PAIRS
            error = math.sqrt(sum((x - part) ** 2 for x in parts)) / PAIRS + 0.012
            told.near(values, f"{name}({j})", part if name == "share" else max(0, 1 - part), error)


FIGURES = ([f"{name}({j})" for j in range(QUANTITIES)
            for name in ("tornadoLow", "tornadoHigh", "tornadoRank", "share", "shareAlone")]
           + [f"{name}({n})" for n in range(5) for name in ("leverLow", "leverHigh", "costPart")]
           + [f"{name}({m})" for m in MODES for name in
              ("needLength", "lengthP10", "lengthP50", "lengthP90", "holdsMode", "enteringP10", "enteringP50",
               "enteringP90")]
           + ["needGoverning", "needP10", "needP50", "needP90", "holds", "confidentDepth", "failedSamples",
              "firstCost", "yearlyEnergy", "yearlyCost", "lifeCost", "towerBest", "towerBestFirst"]
           + [f"{name}({p})" for p in range(100) for name in ("towerLength", "towerFirst", "towerLife")])
EXTRA_POWERS = [f"extraPower({n})" for n in (0, 2, 3, 5)]


def compare_design(told, program, seed):
    design, prices = random_design(seed)
    program.write_zones(design.zones)
    values = program.run(entering_design(design, prices) + reading("frmWhatIf", FIGURES)
                         + reading("frmBHDesign", EXTRA_POWERS))
    for n in (0, 2, 3, 5):
        design.extra[n] = float(values[f"extraPower({n})"])
    need = compare_lengths(told, values, design)
    compare_costs(told, values, design, prices, need)
    compare_certainty(told, values, design, need, seed)


def compare_plot(told, program, seed):
    design, prices = random_design(seed, 1 / 12)
    land, wanted = random_plot(seed)
    design.percent = 0
    program.write_zones(design.zones)
    corners = "\\n\\n".join("\\n".join(f"{x}\\t{y}" for x, y in polygon)
                            for polygon in [land["outline"]] + land["areas"])
    search = {"WLBoundaryText": land["boundary"], "WLClearText": land["noGo"], "WLFromText": wanted["from"],
              "WLToText": wanted["to"], "WLStepText": wanted["step"], "WLMostText": wanted["most"],
              "WLLeastDepthText": wanted["least"], "WLMostDepthText": wanted["deepest"],
              "WLMarginText": wanted["margin"]}
    names = ("Cost", "Bores", "Spacing", "Rows", "Columns", "Depth")
    values = program.run(entering_design(design, prices) + typing("frmWhatIf", **search)
                         + ["choose frmWhatIf.WITabs #2", f"clipboard {corners}", "click frmWhatIf.WLPasteCommand",
                            f"click frmWhatIf.WLKindOption({wanted['kind']})", "click frmWhatIf.WLSearchCommand"]
                         + reading("frmWhatIf", ["layoutCount"] + [f"layout{name}({n})" for n in range(20)
                                                                   for name in names]))
    fields = cheapest_fields(design, prices, land, wanted)
    told.same(values, "layoutCount", len(fields))
    for n, field in enumerate(fields):
        for name, worked in zip(names, field):
            told.same(values, f"layout{name}({n})", worked)


def main():
    designs, plots = (int(sys.argv[i]) if len(sys.argv) > i else 24 for i in (2, 3))
    told = Comparison()
    with tempfile.TemporaryDirectory() as folder:
        program = Program(sys.argv[1], folder)
        for seed in range(designs):
            compare_design(told, program, seed)
        for seed in range(1000, 1000 + plots):
            compare_plot(told, program, seed)
    print(f"{told.exact} figures agree within {told.worst:.1e}, {told.sampled} drawn ones within "
          f"{told.furthest:.1f} standard errors")


if __name__ == "__main__":
    main()
