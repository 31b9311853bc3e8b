# SPDX-License-Identifier: GPL-3.0-or-later
"""What the accessibility bus tells of a program, and what can be done with it there."""

import contextlib
import os
import subprocess
import sys
import tempfile
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib

Role, State = Atspi.Role, Atspi.StateType

WINDOWS = {Role.FRAME, Role.WINDOW, Role.DIALOG, Role.ALERT}


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


def press(node):
    """The first thing that can be done with it. What a box keeps waiting answers late."""
    told(lambda: node.do_action(0), False)
    time.sleep(0.7)


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
def running(path, *files):
    """The program in a home of its own, until the end of the block."""
    with tempfile.TemporaryDirectory() as home:
        program = subprocess.Popen([os.path.abspath(path), *map(os.path.abspath, files)], stderr=subprocess.DEVNULL, cwd=home,
                                   env=dict(os.environ, HOME=home, XDG_DATA_HOME=home))
        program.home = home
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
