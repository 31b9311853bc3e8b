# SPDX-License-Identifier: GPL-3.0-or-later
"""A display and an accessibility bus of one's own; nothing of the session at hand is used."""

import os
import subprocess
import sys
import tempfile

PRIVATE = "VARNHOLT_PRIVATE_BUS"


def private_session(script):
    """Runs the script again on a display and a bus of its own; returns its status."""
    read, write = os.pipe()
    with subprocess.Popen(
        ["Xvfb", "-displayfd", str(write), "-screen", "0", "1366x768x24", "-nolisten", "tcp",
         "-noreset"],
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
                command = ["dbus-run-session", "--", sys.executable, os.path.abspath(script)]
                return subprocess.run(command + sys.argv[1:], env=environment).returncode
        finally:
            display.terminate()
