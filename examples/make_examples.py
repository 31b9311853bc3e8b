#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes the scripts by which the example buildings and their designs are typed into the program.

    python3 examples/make_examples.py office > office.vscript
    cd FOLDER && varnholt-script --program-folder . --today 2026-01-15 office.vscript

leaves zones/office.zon and "work files/office.vht" in FOLDER, a program folder.

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
    "living": (17, 20, (0.55, 0.90, 1.00, 0.45), (1.00, 0.70, 0.80, 0.95), 7),
    "sleeping": (11, 17, (0.40, 0.70, 1.00, 0.60), (0.90, 0.60, 0.70, 1.00), 7),
    "entrance": (46, 52, (0.78, 1.00, 0.74, 0.15), (1.00, 0.70, 0.72, 0.92), 6),
}

OFFICE = [
    ("Reception", "entrance", 420), ("Open office south", "office", 1150),
    ("Open office north", "office", 980), ("Meeting rooms", "meeting", 480),
    ("Directors", "office", 520), ("Staff room", "meeting", 360),
]


HOUSE = [
    ("Living room", "living", 520), ("Kitchen", "living", 260), ("Study", "living", 180),
    ("Bedrooms", "sleeping", 640), ("Hall and bath", "living", 300),
]


COUNTRY_SCHOOL = [
    ("Classroom %d" % n, "classroom", 860 + 20 * (n % 3)) for n in range(1, 9)] + [
    ("Computer room", "computer", 900), ("Library", "library", 1450), ("Gym", "gym", 2400),
    ("Cafeteria", "cafeteria", 1800), ("Administration", "office", 1100),
    ("Teachers", "meeting", 700), ("Entrance hall", "entrance", 800), ("Corridors", "corridor", 2200),
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
    "house": ("house.zon", 0, HOUSE, (1.00, 1.10), (700, 1500)),
    "trench-office": ("trench-office.zon", 0, OFFICE, (0.95, 0.90), (900, 800)),
    "school-pond": ("school-pond.zon", 0, COUNTRY_SCHOOL, (0.90, 0.95), (700, 900)),
}


# kind of design: its window, its command, what is printed of its results
KINDS = {
    "borehole": ("frmBHDesign", "NewBorehole",
                 ("CATotalLengthLabel", "CABoreholeLengthLabel", "CASoilTempChangeLabel")),
    "horizontal": ("frmHZDesign", "NewHorizontal",
                   ("CATotalPipeLengthLabel", "CATrenchLengthLabel", "CASoilTempChangeLabel")),
    "surface water": ("frmSWDesign", "NewSurfaceWater",
                      ("CALoopLengthLabel", "CALoopNumberLabel", "CAApproachTempLabel",
                       "CATotalLossLabel")),
}

# building: kind, title, place, what is done to the controls of the design (in the units of the last
# item), percent to the tower
DESIGNS = {
    "office": ("borehole", "Harbour Street offices", "Portland", {
        "FLInletTempText(0)": "85", "FLInletTempText(1)": "45", "SOGroundTempText": "55",
        "SOThermalConductivityText": "1.25", "SOThermalDiffusivityText": "0.85",
        "PAPatternRowsText(0)": "6", "PAPatternRowsText(1)": "2", "PATimeText": "15",
        "EKWPumpPowerText(1)": "0.75"}, 0, "English"),
    "school-south": ("borehole", "Riverside school", "San Antonio", {
        "FLInletTempText(0)": "92", "FLInletTempText(1)": "52", "SOGroundTempText": "70",
        "SOThermalConductivityText": "1.15", "SOThermalDiffusivityText": "0.70",
        "PAPatternRowsText(0)": "14", "PAPatternRowsText(1)": "10", "PASeparationText": "25",
        "PATimeText": "20", "EKWPumpPowerText(1)": "10", "EKWPumpPowerText(4)": "5",
        "EKWPumpPowerText(6)": "3"}, 30, "English"),
    "school-north": ("borehole", "Lakeside school", "Duluth", {
        "FLInletTempText(0)": "25", "FLInletTempText(1)": "0", "SOGroundTempText": "8",
        "SOThermalConductivityText": "2.2", "SOThermalDiffusivityText": "0.085",
        "PAPatternRowsText(0)": "12", "PAPatternRowsText(1)": "12", "PASeparationText": "7",
        "PIBoreholeDiameterText": "140", "PIGroutConductivityText": "1.6", "PATimeText": "25",
        "FLFluidDensityText": "1020", "FLSpecificHeatText": "3.95",
        "EKWPumpPowerText(1)": "7.5"}, 0, "Metric"),
    "house": ("horizontal", "Orchard house", "Columbus", {
        "FLInletTempText(0)": "85", "FLInletTempText(1)": "30",
        "FLFluidTypeCombo": "#1", "FLPercentAntifreezeText": "20",
        "FLSpecificHeatText": "0.95", "FLFluidDensityText": "63.8",
        "SOGroundTempText": "54", "SOThermalConductivityText": "0.9",
        "SOThermalDiffusivityText": "0.6", "SOAirTempSwingText": "23",
        "SODayText(0)": "205", "SODayText(1)": "25",
        "PIPipeDiameterCombo": "#0", "PAConfigurationOption(3)": None,
        "PASeparationText(3)": "4", "PASeparationText(0)": "12", "PASeparationText(1)": "5",
        "PAInTrenchConfigurationText(0)": "18", "PASeparationText(2)": "36",
        "PATimeText": "20", "EKWPumpPowerText(1)": "0.25"}, 0, "English"),
    "trench-office": ("horizontal", "Mill Lane offices", "Richmond", {
        "FLInletTempText(0)": "88", "FLInletTempText(1)": "40",
        "SOGroundTempText": "59", "SOThermalConductivityText": "1.1",
        "SOThermalDiffusivityText": "0.7", "SOAirTempSwingText": "20",
        "SODayText(0)": "204", "SODayText(1)": "24",
        "PIPipeDiameterCombo": "#1", "PAConfigurationOption(1)": None,
        "PASeparationText(2)": "24", "PAConfigurationUpDown(1)": 4, "PAInTrenchConfigurationText(1)": "24",
        "PAInTrenchConfigurationText(2)": "24",
        "PASeparationText(3)": "8", "PASeparationText(0)": "14", "PASeparationText(1)": "6",
        "PATimeText": "15", "EKWPumpPowerText(1)": "0.75"}, 0, "English"),
    "school-pond": ("surface water", "Millpond school", "Madison", {
        "FLInletTempText(0)": "86", "FLInletTempText(1)": "32",
        "FLFluidTypeCombo": "#1", "FLPercentAntifreezeText": "20",
        "FLSpecificHeatText": "0.95", "FLFluidDensityText": "63.8",
        "FLMinFlowText(0)": "3", "FLMinFlowText(1)": "3.6",
        "SOGroundTempText": "49", "SOSoilTypeCombo": "#1", "SOHeaderDepthText": "5",
        "SOAirTempSwingText": "25", "SODayText(0)": "204", "SODayText(1)": "32",
        "PICoilOption": None, "PILoopPipeSizeCombo": "#1", "PIExtraEqvLengthText": "12",
        "PIParallelLoopsText(0)": "48", "PIParallelLoopsText(1)": "48",
        "PILoopHeadLossText(0)": "2.4", "PILoopHeadLossText(1)": "3.1",
        "PIHeaderNumberText(0)": "2", "PIHeaderPipeSizeCombo(0)": "#6",
        "PIHeaderLengthText(0)": "40", "PIHeaderLengthText(1)": "160",
        "PIHeaderNumberText(1)": "3", "PIHeaderPipeSizeCombo(1)": "#4",
        "PIHeaderLengthText(2)": "90",
        "PIHeaderHeadLossText(0)": "1.6", "PIHeaderHeadLossText(1)": "1.9",
        "PIHeaderHeadLossText(2)": "1.8", "PIHeaderHeadLossText(3)": "2.2",
        "WALoopTempText(0)": "74", "WALoopTempText(1)": "40",
        "WAHeaderTempText(0)": "76", "WAHeaderTempText(1)": "38",
        "WAHeaderTempText(2)": "75", "WAHeaderTempText(3)": "39",
        "WASurfaceWaterTypeCombo": "#0", "WASurfaceAreaText": "52000", "WALoopPipeDepthText": "9",
        "EKWPumpPowerText(1)": "5"}, 0, "English"),
}


# building: the land with an area without bores, and alternatives that are kept, each with what is
# typed first and what brings the design back
WHAT_IF = {
    "school-south": (
        [[(0, 0), (420, 0), (420, 260), (300, 320), (0, 320)],
         [(180, 130), (240, 130), (240, 190), (180, 190)]],
        [("20 ft apart", {"PASeparationText": "20"}, {"PASeparationText": "25"}),
         ("12 by 8 bores", {"PAPatternRowsText(0)": "12", "PAPatternRowsText(1)": "8"}, {}),
         ("18 by 12 bores", {"PAPatternRowsText(0)": "18", "PAPatternRowsText(1)": "12"},
          {"PAPatternRowsText(0)": "14", "PAPatternRowsText(1)": "10"})]),
}


def action_lines(control, what):
    """A button is pressed, an entry chosen, an up-down moved, anything else typed."""
    if what is None:
        return ["click " + control]
    if "UpDown" in control:
        return ["slide %s %d" % (control, what)]
    if "Combo" in control:
        return ["choose %s %s" % (control, what)]
    return ["type %s %s" % (control, what), "leave " + control]


def what_if_lines(name):
    if name not in WHAT_IF:
        return []
    polygons, alternatives = WHAT_IF[name]
    land = "\\r\\n".join("".join("%d\\t%d\\r\\n" % corner for corner in each) for each in polygons)
    lines = ["click frmBHDesign.CAWhatIfCommand", "choose frmWhatIf.WITabs #2", "clipboard " + land,
             "click frmWhatIf.WLPasteCommand", "choose frmWhatIf.WITabs #4"]
    for title, first, back in alternatives:
        for control, what in first.items():
            lines += action_lines("frmBHDesign." + control, what)
        lines += ["type frmWhatIf.WVNameText " + title, "click frmWhatIf.WVKeepCommand"]
        for control, what in back.items():
            lines += action_lines("frmBHDesign." + control, what)
    return lines


def design_lines(name):
    kind, title, city, actions, percent, units = DESIGNS[name]
    form, command, results = KINDS[kind]
    window = form + "."
    lines = ["click Varnmain." + command,
             "type %sINProjectNameText %s" % (window, title), "type %sINCityText %s" % (window, city),
             "click Varnmain.mnuLink"]
    if units == "Metric":
        lines += ["click Varnmain.Metric", "choose %sFLFluidTypeCombo #1" % window,
                  "type %sFLPercentAntifreezeText 25" % window]
    for control, what in actions.items():
        lines += action_lines(window + control, what)
    lines += ["click %sCACalculateCommand" % window]
    # Other water temperatures may have changed the pumps.
    lines += ["activate frmZoneManage", "pick zones/%s.zon" % name,
              "click frmZoneManage.LOSaveCommand", "activate " + form,
              "click %sCACalculateCommand" % window]
    if percent:
        lines += ["slide %sCAHybridSlider %d" % (window, percent),
                  "slide %sCACoolingRangeUpDown 10" % window,
                  "slide %sCACondenserCapacityUpDown 10000" % window]
    lines += what_if_lines(name)
    lines += ["activate " + form, "pick work files/%s.vht" % name, "click Varnmain.mnuFileSave"]
    for label in results:
        lines += ["print %s%s(%d)" % (window, label, m) for m in (0, 1)]
    return lines


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
    lines += design_lines(sys.argv[1])
    print("\n".join(lines))


if __name__ == "__main__":
    main()
