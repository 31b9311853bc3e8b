#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Works the imports of the example files apart from the program.

    python3 tests/independent/import_check.py

Nothing here is taken from the program: the files are read by their layout, and the sums are those of
the help's pages on importing.
"""
import csv
import os

EXAMPLES = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "examples")
DAYS = (31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31)
KW_PER_MBTU = 0.2931


def groups(name):
    with open(os.path.join(EXAMPLES, name), newline="", encoding="utf-8") as file:
        rows = [row for row in csv.reader(file) if len(row) == 13]
    return [[float(value) for value in row] for row in rows]


def day(peak, factor, block):
    factor = min(1.0, max(factor, 1 / 6))
    rest = (24 * peak * factor - 4 * peak) / 20
    return [peak if i == block else rest for i in range(4)]


def zone(energies, peaks, year_energy, year_peak, block):
    candidates = [m for m in range(12) if peaks[m] == year_peak]
    best = max(candidates, key=lambda m: (energies[m], -m))
    factor = energies[best] / (DAYS[best] * 24 * year_peak / 1000)
    return day(year_peak / 1000, factor, block), year_energy * 1000 / year_peak, factor


def show(title, result):
    loads, hours, factor = result
    print("%-34s %s  hours %.4f  factor %.9f" % (title, " ".join("%.9f" % x for x in loads), hours, factor))


def simulation(name, first_heats):
    first, second, first_peaks, second_peaks = groups(name)
    order = (("heating", "cooling") if first_heats else ("cooling", "heating"))
    for mode, energies, peaks in zip(order, (first, second), (first_peaks, second_peaks)):
        block = 1 if first_heats or mode == "cooling" else 0
        year = (energies[12], peaks[12]) if first_heats else (sum(energies[:12]), max(peaks[:12]))
        show(name + " " + mode, zone(energies[:12], peaks[:12], *year, block))


def hours(name):
    with open(os.path.join(EXAMPLES, name), newline="", encoding="utf-8") as file:
        rows = list(csv.reader(file))[1:]
    for mode, column in (("cooling", 1), ("heating", 2)):
        loads = [float(row[column]) / KW_PER_MBTU for row in rows]
        energies, peaks, at = [], [], 0
        for days in DAYS:
            month = loads[at:at + days * 24]
            energies.append(sum(month))
            peaks.append(max(month) * 1000)
            at += days * 24
        print("%s %s: year %.6f peak %.6f" % (name, mode, sum(energies), max(peaks)))
        print("  months", " ".join("%.4f" % x for x in energies))
        block = 1 if mode == "cooling" else 0
        show(name + " " + mode + " even", zone(energies, peaks, sum(energies), max(peaks), block))
        start = loads.index(max(loads)) // 24 * 24
        of_day = loads[start:start + 24]
        means = [sum(of_day[8:12]) / 4, sum(of_day[12:16]) / 4, sum(of_day[16:20]) / 4,
                 (sum(of_day[20:]) + sum(of_day[:8])) / 12]
        print("  from hours", " ".join("%.9f" % x for x in means),
              "hours %.4f" % (sum(energies) / max(means)))


def main():
    simulation("school-south.gt1", True)
    simulation("school-south.gth", False)
    hours("small-office.csv")


if __name__ == "__main__":
    main()
