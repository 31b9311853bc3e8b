// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "forms/form.h"

namespace varnholt {

/// The start picture: stays on show until a command opens a window.
class frmSplash : public Form {
 public:
    frmSplash(Platform& platform, const Texts& texts);
};

}  // namespace varnholt
