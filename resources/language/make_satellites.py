#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes a satellite for every locale number of src/tools/locales.cpp that has none yet.

All of them share the English table. Run it after adding a row there; a satellite that exists is
left as it is, since it may name another table or hold texts of its own.
"""
import pathlib
import re

here = pathlib.Path(__file__).resolve().parent
source = (here.parents[1] / "src/tools/locales.cpp").read_text()
satellites = {}
for name, number, metric in re.findall(r'\{"(\w+)", 0x(\w+), (true|false)\}', source):
    satellites.setdefault(number, ([], metric))[0].append(name)
for number, (names, metric) in satellites.items():
    path = here / f"vhtSat{number}.txt"
    if not path.exists():
        font = "1101\tSans Serif\n" if metric == "true" else ""
        path.write_text(f"# {', '.join(names)}\ntable english\n{font}")
