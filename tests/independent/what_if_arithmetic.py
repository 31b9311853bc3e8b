# SPDX-License-Identifier: GPL-3.0-or-later
"""The arithmetic of What If a second time: one design, one case of it, its cost, fields on its land.

It shares no line with the program: cases are computed one by one from the zones, and fields are found
by trying every window of every lattice.
"""
import copy
import math

from whole_road import g_factor, line_source

ONE_IN_TEN = 1.2815515655
COOLING, HEATING = 0, 1
MODES = (COOLING, HEATING)
PLACE_GIVE = 1e-7  # ft, by which a place may miss a clearance
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
