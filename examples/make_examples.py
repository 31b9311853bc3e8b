#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes the scripts by which the example buildings are typed into the program.

    python3 examples/make_examples.py office > office.vscript
    varnholt-script --program-folder FOLDER office.vscript

Loads are in MBtu/hr for the blocks 8-12, 12-4, 4-8 and 8-8.  A room's peak follows its floor area
with figures that are usual for its use; the shape over the day is the same for all rooms of a use.
"""
import sys

# use: (cooling Btu/hr ft2, heating Btu/hr ft2, cooling by block, heating by block, days a week)
USES = {
    "office": (30, 24, (0.72, 1.00, 0.84, 0.16), (0.92, 0.55, 0.62, 1.00), 5),
    "meeting": (44, 26, (0.80, 1.00, 0.62, 0.10), (0.90, 0.50, 0.58, 1.00), 5),
    "classroom": (38, 30, (0.82, 1.00, 0.55, 0.10), (1.00, 0.62, 0.58, 0.88), 5),
    "computer": (52, 18, (0.85, 1.00, 0.70, 0.25), (0.90, 0.45, 0.55, 1.00), 5),
    "library": (34, 28, (0.76, 1.00, 0.80, 0.14), (0.95, 0.60, 0.60, 1.00), 6),
    "gym": (42, 40, (0.65, 0.92, 1.00, 0.12), (1.00, 0.70, 0.60, 0.90), 6),
    "cafeteria": (60, 46, (0.86, 1.00, 0.35, 0.08), (1.00, 0.66, 0.52, 0.84), 5),
    "corridor": (16, 26, (0.80, 1.00, 0.70, 0.20), (1.00, 0.68, 0.66, 0.96), 5),
    "entrance": (46, 52, (0.78, 1.00, 0.74, 0.15), (1.00, 0.70, 0.72, 0.92), 6),
}

OFFICE = [
    ("Reception", "entrance", 420), ("Open office south", "office", 1150),
    ("Open office north", "office", 980), ("Meeting rooms", "meeting", 480),
    ("Directors", "office", 520), ("Staff room", "meeting", 360),
]


def school():
    rooms = [("Classroom %s%02d" % (wing, n), "classroom", 860 + 20 * (n % 3))
             for wing in "AB" for n in range(1, 13)]
    rooms += [("Science %d" % n, "classroom", 1080) for n in (1, 2)]
    rooms += [("Computer room %d" % n, "computer", 900) for n in (1, 2)]
    rooms += [("Music room", "classroom", 1200), ("Art room", "classroom", 1150),
              ("Library west", "library", 1500), ("Library east", "library", 1450),
              ("Gym north", "gym", 2400), ("Gym south", "gym", 2400),
              ("Cafeteria", "cafeteria", 2100), ("Kitchen", "cafeteria", 800),
              ("Administration", "office", 1300), ("Teachers", "meeting", 900),
              ("Entrance hall", "entrance", 950), ("Corridors", "corridor", 3600)]
    assert len(rooms) == 40
    return rooms


# building: (file, series, rooms, cooling and heating factor of the climate, full load hours)
BUILDINGS = {
    "office": ("office.zon", 0, OFFICE, (1.00, 0.80), (1050, 620)),
    "school-south": ("school-south.zon", 0, school(), (1.12, 0.62), (1150, 380)),
    "school-north": ("school-north.zon", 0, school(), (0.74, 1.30), (420, 1350)),
}


def main():
    file, series, rooms, climate, hours = BUILDINGS[sys.argv[1]]
    lines = ["# Types the example building %s zone by zone and saves its loads." % sys.argv[1],
             "click Varnmain.mnuZoneManage"]
    window = "frmZoneManage."
    for name, use, area in rooms:
        cool, heat, cool_day, heat_day, days = USES[use]
        lines += ["click " + window + "LONewCommand",
                  "type " + window + "LOZoneReferenceText " + name]
        for block in range(4):
            lines.append("type %sLOGainsText(%d) %.1f" % (
                window, block, area * cool * climate[0] * cool_day[block] / 1000))
        for block in range(4):
            lines.append("type %sLOGainsText(%d) %.1f" % (
                window, block + 4, area * heat * climate[1] * heat_day[block] / 1000))
        lines += ["type %sLOHoursText(0) %d" % (window, hours[0]),
                  "type %sLOHoursText(1) %d" % (window, hours[1]),
                  "type %sLODaysperWeekText %d" % (window, days)]
    lines += ["click " + window + "LOAutoSelectAllCommand", "pick zones/" + file,
              "click " + window + "LOSaveCommand"]
    print("\n".join(lines))


if __name__ == "__main__":
    main()
