// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "persistence/recovery/kept_work.h"

namespace varnholt {

class ChildWindow;
class Varnmain;

/// The work in a window that closing it would lose; nothing where there is none. The time of the
/// change is left to the caller.
std::optional<UnsavedWork> unsavedWorkOf(const ChildWindow& window);

bool isDesignForm(const std::string& form);

/// Opens the window of a record with its document, which counts as changed. Null where the window
/// is in use, or no document can be read.
ChildWindow* openRecovered(Varnmain& main, const RecoveryRecord& record);

}  // namespace varnholt
