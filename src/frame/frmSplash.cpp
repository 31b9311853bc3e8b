// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/frmSplash.h"

#include "frame/program_version.h"

namespace varnholt {

frmSplash::frmSplash(Platform& platform, const Texts& texts) : Form("frmSplash", platform, texts) {
    setCaption(text(1001));
    add("lblTitle", ControlKind::label, 1001).setBold(true);
    add("lblVersion", ControlKind::label).setCaption(text(1073) + " " + programVersion);
    add("lblWarning", ControlKind::label, 1074);
}

}  // namespace varnholt
