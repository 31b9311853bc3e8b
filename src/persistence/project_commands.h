// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "frame/design_slots.h"

namespace varnholt {

struct DesignFileKind;
class GroundDesign;
struct RecoveryRecord;
class Varnmain;

/// Registers the file commands: new, open, save, save as.
void installPersistence(Varnmain& main);

/// Opens an empty design of the kind with the defaults of the last saved one.
void newDesign(Varnmain& main, DesignKind kind);

void mnuFileOpen_Click(Varnmain& main);
void mnuFileSave_Click(Varnmain& main);
void mnuFileSaveAs_Click(Varnmain& main);

/// Opens a project file without a dialog: from the command line, dropped on the window, or one of
/// the recent files. A file that is open already stays in its window, with a message.
void openProjectFile(Varnmain& main, const std::string& path);
/// Opens a design that starts with what a project file holds; it has no file of its own yet.
void openTemplate(Varnmain& main, const std::string& path);
/// Opens a zone file in the Zone Manager, after that window's own question when it has changes.
void openZoneFile(Varnmain& main, const std::string& path);
/// Opens the design of a record of unsaved work, which counts as changed, under its own name where
/// no other window has that. Null when all slots are taken.
GroundDesign* openRecoveredDesign(Varnmain& main, const DesignFileKind& kind,
                                  const RecoveryRecord& record);
/// Either of them, told by the name's extension. A relative path is taken from the program's
/// folder.
void openFile(Varnmain& main, const std::string& path);

}  // namespace varnholt
