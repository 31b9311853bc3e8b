#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Walks all windows of Varnholt as a screen reader does, by what the accessibility bus tells.

The windows are opened by menus and buttons over the bus, and page after page is turned to.
Everything that a person can work has to have a name of its own in its window: none nameless, no
two alike. Pictures have to say what they show. Before that a design is made from nothing to a
printed report. Display and bus are private; nothing of the session at hand is used.

usage: walk.py PROGRAM EXAMPLES
"""

import os
import sys
import tempfile
import time

from session import PRIVATE, private_session

if __name__ == "__main__" and PRIVATE not in os.environ:
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    sys.exit(private_session(__file__))

from bus import (  # noqa: E402
    Atspi, Role, State, WINDOWS, appeared, below, has, name_of, own_name, press, role_of, running,
    told,
)
from design import Designer  # noqa: E402

# The button of the importer that reads a table, which it asks for by a file dialog.
TABLE = ("Read hours or months from a table: a file of a spreadsheet or of a simulation, "
         "or the clipboard")
# What is opened over each example, in this order: by entries of menus, or by buttons of windows.
SESSIONS = {
    "office": [
        "Open", "Save As", "Print Preview", "Second Opinion...", "What If...", "Summary", "Details",
        "New Borehole", "New Horizontal", "New Surface Water", "Average Block Loads",
        "Monthly Loads Importer", TABLE, "Edit/Add Pumps", "Diffusivity Calculator", "Eqivalent Hours Calculator",
        "Pump Power Calculator", "Fluid Properties", "Help", "About",
        "Find Command, Field or Example…",
    ],
    "trench-office": ["Metric", "Print Preview"],
    "school-pond": ["Metric", "Print Preview"],
}


# What a person works. Cells of lists are data and may be alike.
WORKED = {
    Role.PUSH_BUTTON, Role.TOGGLE_BUTTON, Role.CHECK_BOX, Role.RADIO_BUTTON, Role.COMBO_BOX,
    Role.TEXT, Role.PASSWORD_TEXT, Role.ENTRY, Role.SPIN_BUTTON, Role.SLIDER, Role.LIST,
    Role.LIST_BOX, Role.TREE, Role.TREE_TABLE, Role.TABLE, Role.PAGE_TAB, Role.LINK,
}
BOXES = {Role.DIALOG, Role.ALERT}
# How what waits for an answer is answered.
ANSWERS = ("OK", "Close", "Cancel")
# Parts of these work what has a name of its own.
WHOLES = {Role.COMBO_BOX, Role.SPIN_BUTTON, Role.SCROLL_BAR}


def place_of(node):
    """The names around it, for whoever looks for it."""
    around = []
    while node is not None and role_of(node) not in WINDOWS:
        if own_name(node):
            around.append(own_name(node))
        node = told(node.get_parent, None)
    return " in ".join(around) or "the window itself"


class Walk:
    """One run of the program."""

    def __init__(self, application):
        self.application = application
        self.names = {}
        self.faults = []
        self.seen = {}
        self.menu = {}
        for node in below(application, lambda n: role_of(n) not in WINDOWS or self.is_main(n)):
            if role_of(node) == Role.MENU_ITEM:
                # A menu may be called as an entry of it.
                self.menu[own_name(node)] = node

    @staticmethod
    def is_main(node):
        return own_name(node) == "Varnholt"

    def fault(self, words):
        if words not in self.faults:
            self.faults.append(words)

    def windows(self):
        """Those on show, the main window with its bars first."""
        def may_hold_windows(node):
            role = role_of(node)
            return role == Role.APPLICATION or (
                has(node, State.SHOWING) and (role not in WINDOWS or self.is_main(node)))
        return [node for node in below(self.application, may_hold_windows)
                if role_of(node) in WINDOWS and has(node, State.SHOWING)]

    def parts(self, window):
        """What the window shows now, without the windows in it."""
        return list(below(window, lambda n: n == window or
                          (role_of(n) not in WINDOWS and has(n, State.SHOWING))))[1:]

    def look(self, window):
        title = own_name(window)
        parts = [part for part in self.parts(window) if has(part, State.SHOWING)]
        for part in parts:
            role = role_of(part)
            if role == Role.IMAGE and own_name(part) and not told(part.get_description, ""):
                self.fault(f"{title}: the picture {own_name(part)!r} says nothing")
            whole = told(part.get_parent, None)
            if role in WORKED and (whole is None or role_of(whole) not in WHOLES):
                self.take(title, part, role)
        return parts

    def take(self, title, node, role):
        kind, name = told(node.get_role_name, "thing"), name_of(node)
        if not name:
            return self.fault(f"{title}: a {kind} without a name, in {place_of(node)}")
        if self.names.setdefault((title, role, name), node) != node:
            self.fault(f"{title}: two times {kind} {name!r}")

    def whole(self, window):
        """Every page of the window, and then the first one again."""
        if self.seen.get(own_name(window)) == window:
            return
        self.seen[own_name(window)] = window
        turned = []
        while True:
            tabs = [n for n in self.look(window) if role_of(n) == Role.PAGE_TAB and n not in turned]
            if not tabs:
                break
            turned.append(tabs[0])
            press(tabs[0])
        for tab in turned[:1]:
            press(tab)

    def all(self):
        for window in self.windows():
            self.whole(window)

    def open(self, name):
        """Gives the command, and walks what it has opened or changed."""
        before = len(self.names)
        entry, window = self.menu.get(name), None
        if entry is None:
            entry, window = self.button(name)
        if entry is None:
            return self.fault(f"there is no {name!r}")
        press(entry)
        if name == TABLE:
            self.give_table()
        # A button may open a panel of its window, and units change every name.
        if window is not None:
            self.seen.pop(own_name(window), None)
        if name == "Metric":
            self.seen.clear()
        for _ in range(6):
            self.all()
            while self.close_box():
                self.all()
            if len(self.names) > before:
                return None
            time.sleep(0.7)
        return self.fault(f"{name!r} opens nothing that was not there")

    def give_table(self):
        """Answers the file dialog of a table with one of twelve months."""
        with tempfile.NamedTemporaryFile("w", suffix=".csv", delete=False) as table:
            table.write("Month,Cooling,Heating\n")
            for month in range(1, 13):
                table.write(f"{month},{100 * month},{50 * month}\n")
        for box in [w for w in self.windows() if role_of(w) in BOXES]:
            self.whole(box)
            for node in self.parts(box):
                if role_of(node) == Role.TEXT and name_of(node) == "File name":
                    told(lambda node=node: node.set_text_contents(table.name), False)
            for node in self.parts(box):
                if role_of(node) == Role.PUSH_BUTTON and own_name(node) == "Open":
                    press(node)
        os.remove(table.name)
        if not any(own_name(w) == "Import a Table" for w in self.windows()):
            self.fault("the importer shows no table")

    def button(self, name):
        """The button on show and its window."""
        for window in self.windows():
            for node in self.parts(window):
                if role_of(node) == Role.PUSH_BUTTON and own_name(node) == name:
                    return node, window
        return None, None

    def close_box(self):
        """What waits for an answer gets one, so that the other windows can be worked again."""
        for box in reversed([w for w in self.windows() if role_of(w) in BOXES]):
            buttons = {own_name(n): n for n in self.parts(box) if role_of(n) == Role.PUSH_BUTTON}
            for answer in ANSWERS:
                if answer in buttons:
                    press(buttons[answer])
                    return True
        return False


def from_nothing_to_a_report(path):
    """The faults met on the way."""
    with running(path) as program:
        designer = Designer(appeared(program), program.home)
        designer.make()
        print(f"from nothing to a report: {designer.steps} steps", flush=True)
        return designer.faults


def main():
    path, examples = sys.argv[1:3]
    Atspi.set_timeout(3000, 15000)
    faults, controls = from_nothing_to_a_report(path), 0
    for example, entries in SESSIONS.items():
        with running(path, os.path.join(examples, example + ".vht")) as program:
            walk = Walk(appeared(program))
            walk.all()
            for name in entries:
                walk.open(name)
            print(f"{example}: {len(walk.names)} controls in {len(walk.seen)} windows: "
                  + ", ".join(walk.seen), flush=True)
            controls += len(walk.names)
            faults += [f"{example}: {fault}" for fault in walk.faults]
    print("\n".join(faults))
    print(f"{controls} controls, {len(faults)} faults")
    sys.exit(1 if faults or controls < 500 else 0)


if __name__ == "__main__":
    main()
