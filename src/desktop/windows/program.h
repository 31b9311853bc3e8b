// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>

#include "script/command_line.h"

namespace varnholt {

/// Runs the windows for a person. Returns the program's exit status.
int runForPerson(QApplication& application, const CommandLine& line);

/// Before a script's application is created.
void prepareForScript();

/// Runs a script on the real windows. Returns the program's exit status.
int runScriptInWindows(QApplication& application, const CommandLine& line);

}  // namespace varnholt
