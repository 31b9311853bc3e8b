#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes the reference pages from the facts: make_tables.py FACTS FOLDER

Each page is one file, without a network and without a library of scripts. The metric pages come
from the same figures by the factors that the program itself uses, so that a page and a field
agree in both unit systems.
"""
import csv
import html
import pathlib
import re
import sys

HERE = pathlib.Path(__file__).resolve().parent

# The program's own factors, as conversions.csv lists them.
METRES_PER_FOOT = 0.3048
MILLIMETRES_PER_INCH = 304.8 / 12
LITRES_PER_GALLON = 3.785412
DENSITY = 16.01846
SPECIFIC_HEAT = 4.186
CONDUCTIVITY = 1 / 0.5777892
DIFFUSIVITY = 1 / 10.7639104


def celsius(fahrenheit):
    return (fahrenheit - 32) * 5 / 9


def times(factor):
    return lambda value: value * factor


class Column:
    """One column: its field of the data, its heads in both systems, and how metric is made.

    English figures stand as the data has them; metric ones are rounded to `places`.
    """

    def __init__(self, field, head, unit="", metric_unit=None, convert=None, places=2):
        self.field, self.head = field, head
        self.units = (unit, unit if metric_unit is None else metric_unit)
        self.convert, self.places = convert, places

    def title(self, metric):
        # A unit breaks behind its stroke and nowhere else.
        unit = self.units[metric].replace(" ", "\N{NO-BREAK SPACE}")
        return html.escape(self.head) + (f"<br>{html.escape(unit)}" if unit else "")

    def is_words(self):
        return self.convert is None and self.places is None

    def cell(self, row, metric):
        text = row[self.field]
        if metric and self.convert and is_number(text):
            text = f"{self.convert(float(text)):.{self.places}f}"
            if float(text) == 0:
                text = text.lstrip("-")
        order = f' data-order="{float(text):g}"' if is_number(text) else size_order(text)
        if self.is_words():
            text = text.replace("^2", "²").replace("^3", "³")
        kind = ' class="words"' if self.is_words() else ""
        # A figure at the end, such as that of "SDR 13.5", stays on the line of its word.
        shown = re.sub(r" (?=[\d.]+$)", "&nbsp;", html.escape(text))
        return f"<td{kind}{order}>{shown}</td>"


def words(field, head):
    return Column(field, head, places=None)


def is_number(text):
    try:
        float(text)
        return True
    except ValueError:
        return False


def size_order(text):
    """Nominal sizes such as "1 1/4" sort by what they are worth."""
    worth = 0
    for part in text.split():
        upper, _, lower = part.partition("/")
        if not upper.isdigit() or (lower and not lower.isdigit()):
            return ""
        worth += int(upper) / int(lower or 1)
    return f' data-order="{worth:g}"' if text else ""


def table(columns, rows, metric, name):
    head = "".join(
        f'<th scope="col"{" class=" + chr(34) + "words" + chr(34) if c.is_words() else ""}>'
        f"{c.title(metric)}</th>"
        for c in columns)
    body = "\n".join("<tr>" + "".join(c.cell(row, metric) for c in columns) + "</tr>"
                     for row in rows)
    return (f'<table class="sortable" id="{name}">\n<thead><tr>{head}</tr></thead>\n'
            f"<tbody>\n{body}\n</tbody>\n</table>\n")


def source(text):
    return f'<p class="source">{text}</p>\n'


class Page:
    """One page: its sections in their order, and a line of contents that leads to them."""

    def __init__(self, base, title, metric, both=True):
        self.base, self.title, self.metric, self.both = base, title, metric, both
        self.sections, self.body = [], ""

    def section(self, name, title):
        self.sections.append((name, title))
        self.body += f'<h2 id="{name}">{html.escape(title)}</h2>\n'

    def add(self, text):
        self.body += text

    def write(self, folder):
        links = [f'<a href="#{n}">{html.escape(t)}</a>' for n, t in self.sections]
        units = ""
        if self.both:
            other = self.base + ("" if self.metric else "Metric") + ".html"
            now, then = ("Metric", "English") if self.metric else ("English", "Metric")
            units = f'<p class="contents">{now} units. <a href="{other}">{then} units</a></p>\n'
        text = (
            '<!DOCTYPE html>\n<html lang="en">\n<head>\n<meta charset="utf-8">\n'
            '<meta name="viewport" content="width=device-width">\n'
            f"<title>{html.escape(self.title)}</title>\n"
            f"<style>\n{(HERE / 'tables.css').read_text()}</style>\n</head>\n<body>\n"
            f"<h1>{html.escape(self.title)}</h1>\n{units}"
            f'<p class="contents">{" | ".join(links)}</p>\n{self.body}'
            f"<script>\n{(HERE / 'sort.js').read_text()}</script>\n</body>\n</html>\n")
        name = self.base + ("Metric" if self.metric else "") + ".html"
        (folder / name).write_text(text, encoding="utf-8")


def name_of(title):
    return "".join(c if c.isalnum() else "-" for c in title.lower()).strip("-")


def groups(rows, field):
    """The rows by a field's value, in the order in which the values come up."""
    found = {}
    for row in rows:
        found.setdefault(row[field], []).append(row)
    return found.items()


def temperature(field, head):
    return Column(field, head, "°F", "°C", celsius, 1)


def fluid_page(facts, metric):
    page = Page("FluidTables", "Fluid properties", metric)
    page.add("<p>Water and mixtures of water with antifreeze at atmospheric pressure. Percent is by"
             " mass. A mixture at or below its freezing point is marked as frozen.</p>\n")
    columns = [
        Column("mass_percent", "Antifreeze", "%", places=0),
        temperature("temperature_F", "Temperature"),
        Column("density_lb_ft3", "Density", "lb/ft³", "kg/m³", times(DENSITY), 1),
        Column("specific_heat_Btu_lbF", "Specific heat", "Btu/(lb °F)", "kJ/(kg K)",
               times(SPECIFIC_HEAT), 3),
        Column("conductivity_Btu_hrftF", "Conductivity", "Btu/(hr ft °F)", "W/(m K)",
               times(CONDUCTIVITY), 3),
        Column("viscosity_cP", "Viscosity", "cP", "mPa s"),
        temperature("freezing_point_F", "Freezing point"),
        words("state", "State"),
    ]
    if not metric:
        columns.insert(6, Column("viscosity_lb_fthr", "Viscosity", "lb/(ft hr)"))
    for fluid, rows in groups(facts["fluids"], "fluid"):
        page.section(name_of(fluid), fluid)
        page.add(table(columns, rows, metric, name_of(fluid) + "-table"))
        if fluid == "Water":
            page.add(source(
                "Density: G. S. Kell (1975). Viscosity and conductivity: IAPWS formulas for"
                " 0.1 MPa. Specific heat: handbook points. The program's rule for water is"
                " 62.4 lb/ft³ and 1.0 Btu/(lb °F)."))
        else:
            page.add(source(
                "Å. Melinder, Properties of Secondary Working Fluids for Indirect Systems (IIR,"
                " 2010), by the coefficients that the CoolProp library publishes (MIT licence)."
                " At 10 percent the glycol fits are at their edge."))
    return page


def pipe_page(facts, metric):
    page = Page("PipeTables", "Pipe and grout properties", metric)
    pipes = facts["pipes"]
    sizes = {(p["nominal_size_in"], p["wall_class"]): p for p in pipes}.values()
    pipe = [words("nominal_size_in", "Nominal size, in"), words("wall_class", "Wall")]

    def diameter(field, head):
        return Column(field, head, "in", "mm", times(MILLIMETRES_PER_INCH), 1)

    page.section("sizes", "Pipe sizes")
    page.add(table(pipe + [
        diameter("outside_diameter_in", "Outside diameter"),
        diameter("min_wall_in", "Least wall"),
        diameter("inside_diameter_in", "Inside diameter"),
        diameter("average_inside_diameter_in", "Average inside diameter"),
        Column("volume_gal_per_100ft", "Volume", "gal per 100 ft", "L per 100 m",
               times(LITRES_PER_GALLON / METRES_PER_FOOT), 1),
    ], sizes, metric, "sizes-table"))
    page.add(source(
        "Outside diameters are iron pipe sizes. Polyethylene pipe of a dimension ratio has the"
        " inside diameter OD (1 - 2/SDR); the average is OD - 2.12 walls, as makers of pipe give"
        " it. Schedule walls are those of steel pipe. The pipe boxes of the program round the"
        " inside diameters of SDR pipe to a hundredth of an inch."))

    mixtures = [("water_40F", "Water, 40 °F", "Water, 4.4 °C"),
                ("water_70F", "Water, 70 °F", "Water, 21.1 °C"),
                ("pg20_32F", "20 % propylene glycol, 32 °F", "20 % propylene glycol, 0 °C"),
                ("pg20_50F", "20 % propylene glycol, 50 °F", "20 % propylene glycol, 10 °C")]
    flow = (times(LITRES_PER_GALLON), 1)
    reynolds_source = source(
        "2500 is the value of the International Ground Source Heat Pump Association, as quoted by"
        " J. Siegenthaler (pmmag.com, article 106081). Properties: the fluid tables.")
    for reynolds, note in (("2500", "the least flow of a turbulent loop by the usual rule"),
                           ("4000", "fully turbulent flow")):
        page.section(f"flow-{reynolds}", f"Least flow for a Reynolds number of {reynolds}")
        page.add(f"<p>A Reynolds number of {reynolds} is {note}.</p>\n")
        page.add(table(pipe + [
            Column(f"min_gpm_Re{reynolds}_{key}", (english, si)[metric], "gpm", "L/min", *flow)
            for key, english, si in mixtures], sizes, metric, f"flow-{reynolds}-table"))
        page.add(reynolds_source)

    page.section("head", "Head loss")
    page.add("<p>Feet of the flowing fluid per 100 ft of pipe, which is the same figure in metres"
             " per 100 m.</p>\n")
    head = pipe[1:] + [
        Column("flow_gpm", "Flow", "gpm", "L/min", *flow),
        Column("velocity_ft_s", "Velocity", "ft/s", "m/s", times(METRES_PER_FOOT), 2),
    ] + [Column(f"head_ft_per_100ft_{key}", (english, si)[metric], "ft/100 ft", "m/100 m")
         for key, english, si in mixtures]
    for size, rows in groups(pipes, "nominal_size_in"):
        name = "head-" + name_of(size)
        page.add(f'<h3 id="{name}">{size} in</h3>\n' + table(head, rows, metric, name + "-table"))
        page.add(source("Darcy and Weisbach with the friction factor of Colebrook and White."))
    page.add("<p>The pipe's roughness is 0.000005 ft. The friction factor is 64/Re below a Reynolds"
             " number of 2300 and lies on a straight line from there to 4000, where figures are"
             " uncertain by a third.</p>\n")

    page.section("grouts", "Grouts and fills")
    page.add(table(ground_columns("Grout or fill", moist=False),
                   [r for r in facts["soils"] if r["kind"] in ("grout", "fill")], metric,
                   "grouts-table"))
    page.add(source(
        "Each row names its source. A maker's figure for the very product goes before this"
        " table: figures from a single source are the weakest here."))
    return page


def ground_columns(title, moist=True, density=True):
    def conductivity(which, head):
        return Column(f"conductivity_{which}_Btu_hrftF", head, "Btu/(hr ft °F)", "W/(m K)",
                      times(CONDUCTIVITY), 2)

    def diffusivity(which, head):
        return Column(f"diffusivity_{which}_ft2_day", head, "ft²/day", "m²/day",
                      times(DIFFUSIVITY), 3)

    columns = [words("class", title), words("state", "State")]
    if moist:
        columns += [
            Column("dry_density_lb_ft3", "Dry density", "lb/ft³", "kg/m³", times(DENSITY), 0),
            Column("moisture_percent_of_dry_mass", "Moisture", "% of dry mass", places=0),
            Column("specific_heat_dry_Btu_lbF", "Specific heat, dry", "Btu/(lb °F)", "kJ/(kg K)",
                   times(SPECIFIC_HEAT), 2),
        ]
    columns += [conductivity("low", "Conductivity, low"), conductivity("high", "high"),
                conductivity("typical", "typical"), diffusivity("low", "Diffusivity, low"),
                diffusivity("high", "high"), diffusivity("typical", "typical")]
    if moist:
        columns.append(diffusivity("calculator", "by the calculator"))
    return columns + [words("source", "Source")]


# Typical diffusivities of the three classes that the surface water design offers, ft²/day.
SOIL_CLASSES = [
    {"class": "Dry soil", "like": "dry sand or gravel", "diffusivity_typical_ft2_day": "0.26"},
    {"class": "Damp soil", "like": "damp clay or light sand", "diffusivity_typical_ft2_day": "0.60"},
    {"class": "Wet sand or rock", "like": "heavy damp sand, or limestone",
     "diffusivity_typical_ft2_day": "0.96"},
]


def soil_page(facts, metric):
    page = Page("SoilTables", "Soil properties", metric)
    sources = {
        "soil": "M. S. Kersten, Thermal Properties of Soils (University of Minnesota, Bulletin 28,"
                " 1949), with his own range of 25 percent; typical values of EN 17522 and VDI 4640;"
                " open-access paper PMC4813881; ranges of Salomone and Marlowe (1989); peat after"
                " Farouki (1981). The column of the calculator is what the Diffusivity Calculator"
                " gives: it weighs water by its share of the whole, and so lies 5 to 20 percent"
                " above the usual definition in moist soil.",
        "rock": "Ranges of Salomone and Marlowe (1989), means and deviations of Ericsson (1985)."
                " Siltstone, shale and gabbro take the specific heat of a like rock.",
    }
    for kind, title in (("soil", "Soils"), ("rock", "Rocks")):
        page.section(kind + "s", title)
        page.add(table(ground_columns(title[:-1]),
                       [r for r in facts["soils"] if r["kind"] == kind], metric, kind + "s-table"))
        page.add(source(sources[kind]))
    page.section("classes", "Soil classes of the surface water design")
    page.add(table([words("class", "Class"), words("like", "Such as"),
                    Column("diffusivity_typical_ft2_day", "Diffusivity", "ft²/day", "m²/day",
                           times(DIFFUSIVITY), 3)], SOIL_CLASSES, metric, "classes-table"))
    page.add(source("The classes and their diffusivities are the method's; the soils named beside"
                    " them have about the same in the tables above."))
    page.section("swing", "Ground temperature and its swing")
    page.add(
        "<p>The swing is half of the yearly range, as the program's field takes it. Days are"
        " counted from 1 January. Where the second harmonic is more than about a fifth of the"
        " swing, one cosine is only a fair picture of the year. Use the air's figures where the"
        " ground's are not at hand: ground is 1 to 5 °F (0.5 to 3 °C) warmer than air on average,"
        " and swings a little less, much less under snow.</p>\n")

    def difference(field, head):
        return Column(field, head, "°F", "K", times(5 / 9), 1)

    columns = [
        words("place", "Place"), temperature("mean_ground_temperature_F", "Ground, mean"),
        difference("swing_amplitude_F", "Ground, swing"),
        Column("coldest_day", "coldest day", places=0),
        Column("warmest_day", "warmest day", places=0),
        difference("second_harmonic_F", "second harmonic"),
        temperature("air_mean_F", "Air, mean"), difference("air_swing_amplitude_F", "Air, swing"),
        Column("air_coldest_day", "coldest day", places=0),
        Column("air_warmest_day", "warmest day", places=0)]
    for country, rows in by_continent(facts["swing"]):
        name = "swing-" + name_of(country)
        page.add(f'<h3 id="{name}">{html.escape(country)}</h3>\n' +
                 table(columns, rows, metric, name + "-table"))
        page.add(source(
            "Ground: L. Xing, Estimations of Undisturbed Ground Temperatures (Ph.D., Oklahoma"
            " State University, 2014), table A-3, as the OpenStudio-HPXML data folder carries it"
            " (BSD-3 style licence); the ground cover is believed to be short grass. Air: first"
            " harmonic of the daily means of the TMY3 years (NREL, public domain)."))
    return page


def by_continent(rows):
    """Countries with many places stand by themselves, the others together with their names."""
    other = []
    for country, places in groups(rows, "country"):
        if len(places) > 5:
            yield country, places
        else:
            other += [dict(p, place=f"{p['place']}, {country}") for p in places]
    yield "Other countries", sorted(other, key=lambda p: p["place"].split(", ")[-1])


def conversion_page(facts):
    page = Page("ConversionTable", "Conversion tables", False, both=False)
    page.add("<p>To go from the first unit to the second, multiply by the factor. Where the"
             " program has a factor of its own, every field, file and report uses that one.</p>\n")
    columns = [words("quantity", "Quantity"), words("from", "From"), words("to", "To"),
               words("multiply_by", "Multiply by"),
               words("factor_the_program_uses", "The program's factor"),
               words("remark", "Remark")]
    page.section("factors", "Factors")
    page.add(table(columns, facts["conversions"], False, "factors-table"))
    page.add(source(
        "The foot, the inch, the pound and the US gallon are defined in metric units and exact."
        " British thermal units are those of the International Steam Table."))
    return page


def main():
    facts_folder, folder = map(pathlib.Path, sys.argv[1:3])
    facts = {}
    for name in ("fluids", "pipes", "soils", "swing", "conversions"):
        with open(facts_folder / f"{name}.csv", newline="", encoding="utf-8") as file:
            facts[name] = list(csv.DictReader(file))
    folder.mkdir(parents=True, exist_ok=True)
    for make in (fluid_page, pipe_page, soil_page):
        for metric in (False, True):
            make(facts, metric).write(folder)
    conversion_page(facts).write(folder)


main()
