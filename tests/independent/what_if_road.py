#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""What If worked a second time, apart from the program, for random designs and random land.

    python3 tests/independent/what_if_road.py build/release/bin/varnholt-script [DESIGNS [PLOTS]]

Each design is typed into the program by script, and its figures are read by name.  Needed lengths,
bars, levers, costs, the tower at every percent and the list of the cheapest fields have to agree to
rounding.  What the program finds from scrambled points of a sequence is drawn here from plain random
numbers, so it has to agree within five standard errors.  Takes some seconds a design.
"""
import copy
import math
import os
import random
import re
import subprocess
import sys
import tempfile

from what_if_arithmetic import (
    COOLING, Design, HEATING, MODES, ONE_IN_TEN, case_at, changed, cheapest_fields, cost, figures,
    need_at)

QUANTITIES = 10
CASES, PAIRS = 20000, 1500
PRICES = {"costFixed": "WCFixedText", "costBore": "WCBoreText", "costFoot": "WCFootText",
          "costBand": "WCBandText", "costDeep": "WCDeepText", "costTrench": "WCTrenchText",
          "costRun": "WCRunText", "costTower": "WCTowerText", "costCare": "WCCareText",
          "towerPower": "WCTowerPowerText", "costEnergy": "WCEnergyText",
          "escalation": "WCEscalationText", "discount": "WCDiscountText", "costYears": "WCYearsText"}


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
