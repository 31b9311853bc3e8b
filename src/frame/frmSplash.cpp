// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/frmSplash.h"

#include "forms/text_numbers/main.h"
#include "frame/program_version.h"

namespace varnholt {

frmSplash::frmSplash(Platform& platform, const Texts& texts) : Form("frmSplash", platform, texts) {
    setCaption(text(Text::programTitle));
    add("lblTitle", ControlKind::label, Text::programTitle).setBold(true);
    add("lblVersion", ControlKind::label).setCaption(text(Text::version) + " " + programVersion);
    add("lblWarning", ControlKind::label, Text::trainedUsersNote);
}

}  // namespace varnholt
