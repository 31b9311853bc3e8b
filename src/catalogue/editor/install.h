// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace varnholt {

class Varnmain;

/// Registers the command that opens the heat pump editor, one window.
/// @param catalogueWritten  called after it has written the catalogue's files
void installPumpEditor(Varnmain& main, std::function<void()> catalogueWritten);

}  // namespace varnholt
