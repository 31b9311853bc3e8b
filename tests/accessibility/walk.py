#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Walks all windows of Varnholt as a screen reader does, by what the accessibility bus tells.

The windows are opened by menus and buttons over the bus, and page after page is turned to.
Everything that a person can work has to have a name of its own in its window: none nameless, no
two alike. Pictures have to say what they show. Display and bus are private; nothing of the session
at hand is used.

usage: walk.py PROGRAM EXAMPLES
"""

import contextlib
import os
import subprocess
import sys
import tempfile
import time

PRIVATE = "VARNHOLT_PRIVATE_BUS"

# What is opened over each example, in this order: by entries of menus, or by buttons of windows.
SESSIONS = {
    "office": [
        "Print Preview", "Second Opinion...", "What If...", "Summary", "Details", "New Borehole",
        "New Horizontal", "New Surface Water", "Average Block Loads", "Monthly Loads Importer",
        "Edit/Add Pumps", "Diffusivity Calculator", "Eqivalent Hours Calculator",
        "Pump Power Calculator", "Fluid Properties", "Help", "About",
        "Find Command, Field or Example…",
    ],
    "trench-office": ["Metric", "Print Preview"],
    "school-pond": ["Metric", "Print Preview"],
}


def private_session():
    """Runs this program again on a display and a bus of its own; returns its status."""
    read, write = os.pipe()
    with subprocess.Popen(
        ["Xvfb", "-displayfd", str(write), "-screen", "0", "1366x768x24", "-nolisten", "tcp"],
        pass_fds=[write], stderr=subprocess.DEVNULL,
    ) as display:
        os.close(write)
        try:
            number = b""
            while not number.endswith(b"\n"):
                more = os.read(read, 16)
                if not more:
                    sys.exit("no display could be made")
                number += more
            with tempfile.TemporaryDirectory() as runtime:
                environment = dict(os.environ, DISPLAY=":" + number.decode().strip(),
                                   XDG_RUNTIME_DIR=runtime, QT_QPA_PLATFORM="xcb",
                                   QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", **{PRIVATE: "1"})
                environment.pop("XAUTHORITY", None)
                command = ["dbus-run-session", "--", sys.executable, os.path.abspath(__file__)]
                return subprocess.run(command + sys.argv[1:], env=environment).returncode
        finally:
            display.terminate()


if __name__ == "__main__" and PRIVATE not in os.environ:
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    sys.exit(private_session())

import gi  # noqa: E402

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

Role, State = Atspi.Role, Atspi.StateType

# What a person works. Cells of lists are data and may be alike.
WORKED = {
    Role.PUSH_BUTTON, Role.TOGGLE_BUTTON, Role.CHECK_BOX, Role.RADIO_BUTTON, Role.COMBO_BOX,
    Role.TEXT, Role.PASSWORD_TEXT, Role.ENTRY, Role.SPIN_BUTTON, Role.SLIDER, Role.LIST,
    Role.LIST_BOX, Role.TREE, Role.TREE_TABLE, Role.TABLE, Role.PAGE_TAB, Role.LINK,
}
BOXES = {Role.DIALOG, Role.ALERT}
WINDOWS = {Role.FRAME, Role.WINDOW} | BOXES
# How what waits for an answer is answered.
ANSWERS = ("OK", "Close", "Cancel")
# Parts of these work what has a name of its own.
WHOLES = {Role.COMBO_BOX, Role.SPIN_BUTTON, Role.SCROLL_BAR}


def told(ask, otherwise):
    """What the program answers; an answer that does not come is none."""
    try:
        return ask()
    except GLib.Error:
        return otherwise


def role_of(node):
    return told(node.get_role, Role.INVALID)


def own_name(node):
    return told(node.get_name, "")


def has(node, state):
    return told(lambda: node.get_state_set().contains(state), False)


def children(node):
    for i in range(told(node.get_child_count, 0)):
        child = told(lambda i=i: node.get_child_at_index(i), None)
        if child is not None:
            yield child


def below(node, descends):
    """The node and what is below it, in reading order; where descends says no, nothing further."""
    yield node
    if descends(node):
        for child in children(node):
            yield from below(child, descends)


def name_of(node):
    """What a screen reader calls it: by its label where it has one, else by its own name."""
    for relation in told(node.get_relation_set, None) or []:
        if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY:
            words = own_name(relation.get_target(0)).rstrip(": ")
            if words:
                return words
    # A combo tells what is chosen for its name, which says nothing of what it is.
    return "" if role_of(node) == Role.COMBO_BOX else own_name(node)


def place_of(node):
    """The names around it, for whoever looks for it."""
    around = []
    while node is not None and role_of(node) not in WINDOWS:
        if own_name(node):
            around.append(own_name(node))
        node = told(node.get_parent, None)
    return " in ".join(around) or "the window itself"


def press(node):
    """The first thing that can be done with it. What a box keeps waiting answers late."""
    told(lambda: node.do_action(0), False)
    time.sleep(0.7)


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


def appeared(program):
    """The program on the bus, once its window is there."""
    for _ in range(300):
        for one in children(Atspi.get_desktop(0)):
            if own_name(one) == "varnholt" and any(children(one)):
                time.sleep(2)
                return one
        if program.poll() is not None:
            sys.exit(f"the program ended with {program.returncode} before it was seen")
        time.sleep(0.2)
    sys.exit("the program does not appear on the accessibility bus")


@contextlib.contextmanager
def running(path, example):
    with tempfile.TemporaryDirectory() as home:
        program = subprocess.Popen([path, example], env=dict(os.environ, XDG_DATA_HOME=home),
                                   stderr=subprocess.DEVNULL)
        try:
            yield program
            if program.poll() is not None:
                sys.exit(f"the program ended with {program.returncode}")
        finally:
            # Asked to end, it takes its mark from beside the example.
            program.terminate()
            try:
                program.wait(20)
            except subprocess.TimeoutExpired:
                program.kill()
                program.wait()


def main():
    path, examples = sys.argv[1:3]
    Atspi.set_timeout(3000, 15000)
    faults, controls = [], 0
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
