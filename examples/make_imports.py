#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes the example files of loads that can be imported.

    python3 examples/make_imports.py

school-south.gt1 and school-south.gth hold the year of the example school by months, in the layout of
the simulation programs: a title, twelve energies in thousand Btu and their sum, for both loads; a
second title, twelve peaks in Btu/hr and the greatest, for both loads.  The import into a zone takes
the first load of a file as heating and the importer takes it as cooling, so the .gt1 file, made for
the import into a zone, begins with heating, and the .gth file, made for the importer, with cooling.

The year's energy is the building's peak times its equivalent full-load hours, both from
school-south.zon; the months share it by degree days that are usual for the place.

small-office.csv holds 8,760 hours of a small office: a sine of the seasons, a sine of the day and a
slower one for the weather, sun and people in working hours.  Rows are hours ending.
"""
import math
import os

FOLDER = os.path.dirname(os.path.abspath(__file__))
DAYS = (31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31)

# Share of the year's energy and of the year's peak by month.
COOLING = ((0.01, 0.02, 0.04, 0.08, 0.12, 0.15, 0.17, 0.17, 0.12, 0.07, 0.03, 0.02),
           (0.42, 0.48, 0.60, 0.72, 0.84, 0.95, 0.99, 1.00, 0.92, 0.76, 0.58, 0.45))
HEATING = ((0.30, 0.20, 0.10, 0.03, 0.00, 0.00, 0.00, 0.00, 0.00, 0.04, 0.11, 0.22),
           (1.00, 0.92, 0.70, 0.45, 0.00, 0.00, 0.00, 0.00, 0.00, 0.48, 0.74, 0.95))


def school():
    """Peaks in MBtu/hr and hours of both modes, of the zones together."""
    lines = open(os.path.join(FOLDER, "school-south.zon"), encoding="utf-8").read().split("\n")
    count, lines = int(lines[1]), lines[2:]
    day = [[0.0] * 4, [0.0] * 4]
    hours = [0, 0]
    for zone in range(count):
        record = lines[zone * 30:zone * 30 + 30]
        for mode in range(2):
            for block in range(4):
                day[mode][block] += float(record[mode * 4 + block])
            hours[mode] = int(record[8 + mode])
    return [(max(day[mode]), hours[mode]) for mode in range(2)]


def months(peak, hours, shares):
    energy = [round(peak * hours * share) for share in shares[0]]
    peaks = [round(peak * share * 1000) for share in shares[1]]
    return energy + [sum(energy)], peaks + [max(peaks)]


def simulation(name, first, second):
    rows = ['"Riverside school, energy in thousand Btu"', first[0], second[0], '""',
            '"Riverside school, peak loads in Btu/hr"', first[1], second[1]]
    with open(os.path.join(FOLDER, name), "w", encoding="utf-8", newline="\r\n") as file:
        for row in rows:
            file.write(row if isinstance(row, str) else ",".join(str(value) for value in row))
            file.write("\n")


def office(hour):
    """Cooling and heating of the small office in the hour, kW."""
    day, clock = hour // 24, hour % 24
    air = (11 + 12 * math.sin(2 * math.pi * (hour - 2700) / 8760) +
           5 * math.sin(2 * math.pi * (clock - 9) / 24) + 4 * math.sin(2 * math.pi * day / 9.3))
    working = day % 7 < 5 and 8 <= clock < 18
    sun = max(0, math.sin(math.pi * (clock - 6) / 12)) if 6 <= clock < 18 else 0
    inside = (14 if working else 2) + 7 * sun
    load = 1.35 * (air - 18) + inside
    return round(max(0, load), 2), round(max(0, -load), 2)


def hours_file(name):
    with open(os.path.join(FOLDER, name), "w", encoding="utf-8", newline="\r\n") as file:
        file.write("Date/Time,Cooling [kW],Heating [kW]\n")
        hour = 0
        for month, days in enumerate(DAYS, 1):
            for day in range(1, days + 1):
                for ending in range(1, 25):
                    cooling, heating = office(hour)
                    file.write("%02d/%02d %02d:00,%.2f,%.2f\n" % (month, day, ending, cooling, heating))
                    hour += 1


def main():
    cooling, heating = (months(*load, shares) for load, shares in zip(school(), (COOLING, HEATING)))
    simulation("school-south.gt1", heating, cooling)
    simulation("school-south.gth", cooling, heating)
    hours_file("small-office.csv")


if __name__ == "__main__":
    main()
