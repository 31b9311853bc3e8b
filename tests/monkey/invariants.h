// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frame/varnmain.h"

namespace varnholt {

/// What holds in every window whatever was done. Throws std::runtime_error with the first thing
/// that does not.
void checkForm(const Form& form);

/// What holds in the main window's account of windows, slots, units and commands.
void checkFrame(Varnmain& main);

}  // namespace varnholt
