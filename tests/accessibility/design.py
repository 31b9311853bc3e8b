# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes a design from nothing to a printed report by what the accessibility bus tells alone.

Every control is found by its name, worked by its actions, and read again. What cannot be found,
does nothing or tells something else is a fault.
"""

import os
import time

from bus import Atspi, Role, State, WINDOWS, below, children, has, name_of, own_name, press, \
    role_of, told

LOADS = "Average Block Loads"
DESIGN = "Borehole Design Project"
BLOCKS = ("8 a.m. - Noon", "Noon - 4 p.m.", "4 p.m. to 8 p.m.", "8 p.m. to 8 a.m.")
GAINS, LOSSES = (30, 36, 24, 12), (24, 18, 15, 21)
PATIENCE = 30  # times 0.3 s


def text_of(node):
    return told(lambda: Atspi.Text.get_text(node, 0, -1), "")


class Designer:
    """Somebody who sees nothing of the screen."""

    def __init__(self, application, home):
        self.application = application
        self.home = home
        self.faults = []
        self.steps = 0
        # Menus stay as they are; in a window that has been opened there is much more to look at.
        self.commands = {own_name(node): node for node in below(application, lambda n: True)
                         if role_of(node) == Role.MENU_ITEM and not any(children(node))}

    def fault(self, words):
        self.faults.append(f"design: {words}")

    def windows(self):
        """Those on show, boxes and dialogs included."""
        found = []
        for node in below(self.application, lambda n: role_of(n) == Role.APPLICATION
                          or has(n, State.SHOWING)):
            if role_of(node) in WINDOWS and has(node, State.SHOWING):
                found.append(node)
        return found

    def window(self, title):
        for node in self.windows():
            if own_name(node).startswith(title):
                return node
        return None

    def find(self, title, role, name):
        """The control of that name on show in the window; waits for it a little."""
        for _ in range(PATIENCE):
            window = self.window(title)
            if window is not None:
                for node in below(window, lambda n: has(n, State.SHOWING)):
                    if role_of(node) == role and (name_of(node) or own_name(node)) == name:
                        return node
            time.sleep(0.3)
        self.fault(f"{title}: there is no {name!r}")
        return None

    def button(self, title, name):
        """True when there is such a button."""
        node = self.find(title, Role.PUSH_BUTTON, name)
        if node is not None:
            self.steps += 1
            press(node)
        return node is not None

    def page(self, title, name):
        node = self.find(title, Role.PAGE_TAB, name)
        if node is not None:
            self.steps += 1
            press(node)

    def command(self, name):
        """An entry of a menu."""
        if name not in self.commands:
            return self.fault(f"there is no command {name!r}")
        self.steps += 1
        return press(self.commands[name])

    def write(self, title, name, value, stands=None):
        """A value into a field, which then tells what stands there."""
        node = self.find(title, Role.TEXT, name)
        if node is None:
            return
        self.steps += 1
        told(lambda: node.set_text_contents(value), False)
        time.sleep(0.3)
        wanted = value if stands is None else stands
        if text_of(node) != wanted:
            self.fault(f"{title}: {name!r} is {text_of(node)!r} and not {wanted!r}")

    def choose(self, title, name, entry):
        """An entry of a combo."""
        combo = self.find(title, Role.COMBO_BOX, name)
        if combo is None:
            return
        self.steps += 1
        entries = [item for part in children(combo) for item in children(part)]
        for item in entries:
            if own_name(item) == entry:
                press(item)
        if own_name(combo) != entry:
            self.fault(f"{title}: {name!r} is {own_name(combo)!r} and not {entry!r}")

    def option(self, title, name):
        node = self.find(title, Role.RADIO_BUTTON, name)
        if node is not None:
            self.steps += 1
            press(node)

    def tells(self, title, words):
        """Something on show in the window says the words, by its name or its description."""
        for _ in range(PATIENCE):
            window = self.window(title)
            if window is not None:
                for node in below(window, lambda n: has(n, State.SHOWING)):
                    said = own_name(node) + told(node.get_description, "") + text_of(node)
                    if words in said:
                        return
            time.sleep(0.3)
        self.fault(f"{title}: nothing tells {words!r}")

    def answer_files(self, files):
        """Questions are answered with Yes, and each file dialog with the file of its title."""
        while files:
            dialog = None
            for _ in range(PATIENCE):
                dialog = next((w for w in self.windows() if role_of(w) in
                               (Role.DIALOG, Role.ALERT)), None)
                if dialog is not None:
                    break
                time.sleep(0.3)
            if dialog is None:
                return self.fault(f"no dialog asks for {files}")
            title = own_name(dialog)
            if title in files:
                path = os.path.join(self.home, files.pop(title))
                self.write(title, "File name", path)
                self.button(title, "Save")
                if not waits_for(path):
                    self.fault(f"{title}: {path} was not written")
            elif not self.button(title, "Yes"):
                return self.fault(f"{title!r} asks, and {files} are to be written")
        return None

    # The design, step by step.

    def make(self):
        self.button("Varnholt", "Average Block Loads")
        self.enter_loads()
        self.button("Varnholt", "New Borehole")
        self.button("Varnholt", "Link to Loads")
        self.enter_design()
        self.button(DESIGN, "Calculate")
        self.read_results()
        self.look_beside()
        self.command("Save As")
        self.answer_files({"Save Zone File": "clinic.zon", "Save As": "clinic.vht"})
        self.print()

    def enter_loads(self):
        self.button(LOADS, "New")
        for words, loads in (("Heat Gains", GAINS), ("Heat Losses", LOSSES)):
            for block, load in zip(BLOCKS, loads):
                self.write(LOADS, f"{words}, {block}, MBtu/Hr", str(load), f"{load}.0")
        self.write(LOADS, "Full Load Hours, Cooling", "900")
        self.write(LOADS, "Full Load Hours, Heating", "700")
        self.tells(LOADS, "36.0")
        self.button(LOADS, "Select")
        self.choose(LOADS, "Model", "ML012")
        self.button(LOADS, "Select Pump")
        self.tells(LOADS, "ML012")

    def enter_design(self):
        self.page(DESIGN, "Fluid")
        self.write(DESIGN, "Design Fluid Inlet Temperatures, Heating, deg F", "45", "45.0")
        self.write(DESIGN, "Fluid Type", "Site mixture")
        self.choose(DESIGN, "Fluid Type", "Methanol")
        self.page(DESIGN, "Soil")
        self.write(DESIGN, "Ground Temperature, deg F", "500", "62.0")
        self.tells(DESIGN, "500 is outside 0.0 to 212.0 deg F; 62.0 stands")
        self.write(DESIGN, "Ground Temperature, deg F", "56", "56.0")
        self.page(DESIGN, "Piping")
        self.option(DESIGN, "Close Together")
        self.page(DESIGN, "Pattern")
        self.write(DESIGN, "Number of Rows Across", "3")
        self.write(DESIGN, "Number of Rows Down", "2")
        self.tells(DESIGN, "3 by 2")

    def read_results(self):
        self.page(DESIGN, "Results")
        self.tells(DESIGN, " governs: ")
        self.tells(DESIGN, "6 bores")

    def look_beside(self):
        for command, title in (("Second Opinion...", "Second Opinion"), ("What If...", "What If")):
            self.button(DESIGN, command)
            if self.window(title) is None:
                self.fault(f"{command!r} opens nothing")
                continue
            self.command("Close")
            if self.window(title) is not None:
                self.fault(f"{title!r} does not close")

    def print(self):
        self.command("Print Preview")
        self.button("Project Report Print Options", "OK")
        self.button("Borehole Design Project Report", "Save as PDF")
        self.answer_files({"Save Report": "clinic.pdf"})
        path = os.path.join(self.home, "clinic.pdf")
        if not os.path.exists(path):
            return
        with open(path, "rb") as file:
            written = file.read()
        if not written.startswith(b"%PDF-") or len(written) < 10000:
            self.fault(f"{path} is no report")


def waits_for(path):
    for _ in range(PATIENCE):
        if os.path.exists(path):
            return True
        time.sleep(0.3)
    return False
