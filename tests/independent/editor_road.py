#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""A pump from its data sheet to the length of a bore field, apart from the program.

    python3 tests/independent/editor_road.py

Fits the pump of curve_fit.py, evaluates one unit of it for one zone and calculates a new design
with it, as the system test `pump_editor` does by script.
"""
from curve_fit import COOLING, FLOWS, HEATING, NOMINAL, fit_all
from whole_road import calculate, evaluate

ZONE = ("", (0.0, 25.0, 0.0, 0.0), (0.0, 0.0, 0.0, 18.0), (1000, 800), 7)


def pump():
    fitted = fit_all(lambda *words: None)

    def terms(*keys):
        found = [list(fitted[key]) + [0.0] for key in keys]
        return [[found[0][k], found[1][k]] for k in range(4)]

    def both(quantity, *rest):
        return terms(("cooling", quantity) + rest, ("heating", quantity) + rest)

    def factors(quantity):
        return [fitted[mode, quantity, "factor"] for mode in ("cooling", "heating")]

    rows = [(x, [(FLOWS[0], None), (FLOWS[1], None)]) for x in HEATING["x"] + COOLING["x"]]
    return {"name": "BB030", "ewt": rows, "nominal": NOMINAL,
            "flowCf": [factors("capacity"), factors("watts")],
            "c": {"cap": both("capacity"), "watts": both("watts"),
                  "capT": both("capacity", "temperature"), "wattsT": both("watts", "temperature"),
                  "capF": terms(("capacity", "flow"), ("capacity", "flow")),
                  "wattsF": terms(("watts", "flow"), ("watts", "flow"))}}


def main():
    placed = evaluate(pump(), 1, ZONE)
    for name in ("capacity", "watts", "cop", "flow", "plf"):
        print(name, *(f"{value:.13g}" for value in placed[name]))
    result = calculate([ZONE], [placed])
    for name in ("boreLength", "temperaturePenalty", "heatPumpCOP"):
        print(name, *(f"{value:.13g}" for value in result[name]))


if __name__ == "__main__":
    main()
