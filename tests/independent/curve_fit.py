#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Curves of one heat pump fitted by hand, and what they give at one place.

    python3 tests/independent/curve_fit.py

Shares no line with the program.  The fits follow the published normal equations and Gauss-Jordan
elimination in the same order of operations, so that every digit can be compared; a second solution
in exact fractions tells how many of the digits are true.
"""
from fractions import Fraction

COOLING = {"x": [75.0, 85.0, 95.0], "capacity": [30.1, 28.4, 26.2], "watts": [1.71, 1.93, 2.2],
           "capacity2": [31.0, 29.3, 27.1], "watts2": [1.62, 1.83, 2.09]}
HEATING = {"x": [35.0, 50.0, 70.0], "capacity": [19.8, 24.9, 31.7], "watts": [1.66, 1.8, 2.01],
           "capacity2": [20.6, 25.8, 32.7], "watts2": [1.68, 1.83, 2.05]}
TEMPERATURE = {  # x, capacity factor, power factor
    "cooling": [(61.0, 0.903, 0.992), (64.0, 0.952, 0.996), (67.0, 1.0, 1.0), (70.0, 1.048, 1.004),
                (73.0, 1.1, 1.01)],
    "heating": [(60.0, 1.028, 0.916), (65.0, 1.014, 0.958), (70.0, 1.0, 1.0), (75.0, 0.986, 1.042),
                (80.0, 0.97, 1.09)]}
FLOW = [(80.0, 0.95, 0.98), (90.0, 0.977, 0.991), (100.0, 1.0, 1.0), (110.0, 1.018, 1.012),
        (120.0, 1.03, 1.02)]
NOMINAL, FLOWS = 900.0, (5.0, 8.0)
TEST = {"source": (88.5, 41.0), "flow": (6.5, 7.0), "load": (66.0, 71.5), "air": (850.0, 950.0)}


def solve(matrix, right):
    size = len(right)
    for k in range(size):
        largest, row = 0, -1
        for r in range(k, size):
            if abs(matrix[r][k]) > largest:
                largest, row = abs(matrix[r][k]), r
        if row != k:
            matrix[row][k:], matrix[k][k:] = matrix[k][k:], matrix[row][k:]
            right[row], right[k] = right[k], right[row]
        pivot = matrix[k][k]
        matrix[k][k:] = [entry / pivot for entry in matrix[k][k:]]
        right[k] = right[k] / pivot
        for r in range(size):
            if r == k:
                continue
            factor = matrix[r][k]
            for c in range(k, size):
                matrix[r][c] -= factor * matrix[k][c]
            right[r] -= factor * right[k]
    return right


def fit(x, y, degree):
    powers = []
    for value in x:
        row = [type(value)(1)]
        for _ in range(degree):
            row.append(row[-1] * value)
        powers.append(row)
    terms = range(degree + 1)
    matrix = [[0] * len(terms) for _ in terms]
    for i in terms:
        for j in range(i + 1):
            total = type(x[0])(0)
            for row in powers:
                total += row[j] * row[i]
            matrix[i][j] = matrix[j][i] = total
    right = []
    for j in terms:
        total = type(x[0])(0)
        for row, value in zip(powers, y):
            total += row[j] * value
        right.append(total)
    return solve(matrix, right)


def exact(x, y, degree):
    return [float(term) for term in fit([Fraction(v) for v in x], [Fraction(v) for v in y], degree)]


def at(terms, x):
    return sum(term * x**k for k, term in enumerate(terms))


def show(name, x, y, degree, tell=print):
    terms = fit(list(x), list(y), degree)
    true = exact(x, y, degree)
    worst = max(abs(at(terms, v) / at(true, v) - 1) for v in x)
    tell(f"{name}: {', '.join(repr(t) for t in terms)}   (true to {worst:.0e})")
    return terms


def ratio(first, second):
    return (second[0] / first[0] + second[1] / first[1] + second[2] / first[2]) / 3.0


def fit_all(tell=print):
    """The curves of the pump and its flow factors."""
    curves = {}
    for mode, data in (("cooling", COOLING), ("heating", HEATING)):
        for quantity in ("capacity", "watts"):
            curves[mode, quantity] = show(f"{mode} {quantity}", data["x"], data[quantity], 2, tell)
            factor = ratio(data[quantity], data[quantity + "2"])
            curves[mode, quantity, "factor"] = factor
            tell(f"{mode} {quantity} flow factor: {factor!r}")
    for mode, rows in TEMPERATURE.items():
        for column, quantity in ((1, "capacity"), (2, "watts")):
            curves[mode, quantity, "temperature"] = show(
                f"{mode} {quantity} by temperature", [r[0] for r in rows], [r[column] for r in rows], 3,
                tell)
    for column, quantity in ((1, "capacity"), (2, "watts")):
        curves[quantity, "flow"] = show(f"{quantity} by flow", [r[0] for r in FLOW],
                                        [r[column] for r in FLOW], 3, tell)
    return curves


def main():
    curves = fit_all()
    four = TEMPERATURE["cooling"][:4]
    show("four rows", [r[0] for r in four], [r[1] for r in four], 3)
    # The water to water series: 10 + 0.4 x - 0.001 x^2, 1 + 0.01 x; 12 + 0.3 x, 2.
    for mode, x, y in (("cooling capacity", (75, 85, 95), (34.375, 36.775, 38.975)),
                       ("cooling power", (75, 85, 95), (1.75, 1.85, 1.95)),
                       ("heating capacity", (40, 50, 60), (24, 27, 30)),
                       ("heating power", (40, 50, 60), (2, 2, 2))):
        show(f"water to water, {mode}", x, y, 2)

    for m, mode in enumerate(("cooling", "heating")):
        results = {}
        for quantity in ("capacity", "watts"):
            a, b, c = curves[mode, quantity]
            T, E = TEST["source"][m], TEST["load"][m]
            p = TEST["air"][m] * 100 / NOMINAL
            value = c * T * T + b * T + a
            for terms, x in ((curves[mode, quantity, "temperature"], E), (curves[quantity, "flow"], p)):
                value = value * (terms[0] + terms[1] * x + terms[2] * x * x + terms[3] * x * x * x)
            slope = (value * curves[mode, quantity, "factor"] - value) / (FLOWS[1] - FLOWS[0])
            results[quantity] = value + (TEST["flow"][m] - FLOWS[0]) * slope
        cop = 0.2931 * results["capacity"] / results["watts"]
        print(f"{mode} tested: {results['capacity']!r} MBtu/hr, {results['watts']!r} kW, COP {cop!r}, "
              f"EER {cop * 3.412!r}")

    a, b, c = curves["cooling", "capacity"]
    print("metric, cooling capacity:", repr(0.2931 * a + 9.382 * b + 300.075 * c),
          repr(0.528 * b + 33.75 * c), repr(0.949 * c))
    a, b, c, d = curves["cooling", "watts", "temperature"]
    print("metric, cooling power by temperature, b:", repr(1.8 * b + 115.2 * c + 5529.6 * d))


if __name__ == "__main__":
    main()
