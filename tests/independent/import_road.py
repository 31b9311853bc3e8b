#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""From imported loads to bore lengths, worked apart from the program.

    python3 tests/independent/import_road.py [--check tests/scripts/imports.expected]

The loads of the example files become one zone by the working of import_check.py, and the zone's
pumps and the bore lengths follow by the working of whole_road.py, as linked to a new borehole
design.  --check compares the lengths that a transcript shows.
"""
import csv
import math
import os
import sys

import import_check as loads
import whole_road as road


def pair(cooling, heating):
    """One zone from the two modes' day and hours; hours are whole in a zone."""
    return ("imported", cooling[0], heating[0], (round(cooling[1]), round(heating[1])), 7)


def school_by_importer():
    first, second, first_peaks, second_peaks = loads.groups("school-south.gth")
    modes = []
    for energies, peaks, block in ((first, first_peaks, 1), (second, second_peaks, 0)):
        modes.append(loads.zone(energies[:12], peaks[:12], sum(energies[:12]), max(peaks[:12]), block))
    return pair(*modes)


def school_into_zone():
    first, second, first_peaks, second_peaks = loads.groups("school-south.gt1")
    heating = loads.zone(first[:12], first_peaks[:12], first[12], first_peaks[12], 1)
    cooling = loads.zone(second[:12], second_peaks[:12], second[12], second_peaks[12], 1)
    return pair(cooling, heating)


def office_from_hours():
    with open(os.path.join(loads.EXAMPLES, "small-office.csv"), newline="", encoding="utf-8") as file:
        rows = list(csv.reader(file))[1:]
    modes = []
    for column in (1, 2):
        hours = [float(row[column]) / loads.KW_PER_MBTU for row in rows]
        start = hours.index(max(hours)) // 24 * 24
        day = hours[start:start + 24]
        means = [sum(day[8:12]) / 4, sum(day[12:16]) / 4, sum(day[16:20]) / 4,
                 (sum(day[20:]) + sum(day[:8])) / 12]
        modes.append((means, sum(hours) / max(means)))
    return pair(*modes)


def lengths(title, zone):
    models = road.read_series("nf_meadow")
    index, units = road.select(models, zone)
    pump = road.evaluate(models[index], units, zone)
    found = road.calculate([zone], [pump])["boreLength"]
    print("%-30s %3d x %-8s lengths %.6f %.6f ft" % (title, units, pump["name"], *found))
    return found


def shown(transcript):
    """The lengths in a transcript, two and two."""
    values = [float(line.split(" = ")[1]) for line in open(transcript, encoding="utf-8")
              if ".boreLength(" in line]
    return list(zip(values[::2], values[1::2]))


def main():
    worked = [lengths("school by the importer", school_by_importer()),
              lengths("school into a zone", school_into_zone()),
              lengths("small office from hours", office_from_hours())]
    if "--check" not in sys.argv:
        return
    found = shown(sys.argv[-1])
    if len(found) != len(worked):
        raise SystemExit("%d designs are shown, %d are worked here" % (len(found), len(worked)))
    for have, want in zip(found, worked):
        if not all(math.isclose(h, w, rel_tol=1e-9) for h, w in zip(have, want)):
            raise SystemExit("%s is shown, %s worked here" % (have, want))
    print("%d lengths agree" % (2 * len(worked)))


if __name__ == "__main__":
    main()
