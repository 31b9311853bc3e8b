#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes a satellite for every locale number of locales.cpp: make_satellites.py LOCALES FOLDER

All of them share the English table; those of metric countries name a font, which starts the
program in metric units. A satellite of this folder goes before the made one: it may name another
table or hold texts of its own.
"""
import pathlib
import re
import shutil
import sys

HERE = pathlib.Path(__file__).resolve().parent
locales, folder = map(pathlib.Path, sys.argv[1:3])

satellites = {}
for name, number, metric in re.findall(r'\{"(\w+)", 0x(\w+), (true|false)\}', locales.read_text()):
    satellites.setdefault(number, ([], metric))[0].append(name)
folder.mkdir(parents=True, exist_ok=True)
for old in folder.glob("vhtSat*.txt"):
    old.unlink()
for number, (names, metric) in satellites.items():
    font = "1101\tSans Serif\n" if metric == "true" else ""
    (folder / f"vhtSat{number}.txt").write_text(f"# {', '.join(names)}\ntable english\n{font}")
for own in HERE.glob("vhtSat*.txt"):
    shutil.copy(own, folder)
