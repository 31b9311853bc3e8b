// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/frmLinkOptions.h"

#include "forms/text_numbers/commands.h"
#include "frame/varnmain.h"

namespace varnholt {

frmLinkOptions::frmLinkOptions(Varnmain& main)
    : Form("frmLinkOptions", main.platform(), main.texts()), main_(main) {
    setCaption(text(Text::linkTitle));
    add("LinkFrame", ControlKind::frame, Text::linkModuleSelection);
    add("LinkLabel", ControlKind::label, Text::linkModuleQuestion).in("LinkFrame");
    add("optLink(0)", ControlKind::option, Text::linkZoneManager)
        .grouped("optLink")
        .in("LinkFrame")
        .setChecked(true);
    add("optLink(1)", ControlKind::option, Text::linkAverageBlock)
        .grouped("optLink")
        .in("LinkFrame");
    add("cmdSelect", ControlKind::button, Text::linkSelect);
    add("cmdCancel", ControlKind::button, Text::linkCancel);
    onClick("cmdSelect", [this] { cmdSelect_Click(); });
    onClick("cmdCancel", [this] { cmdCancel_Click(); });
    main_.LinkOption = cancelled;
}

void frmLinkOptions::cmdSelect_Click() {
    main_.LinkOption = element("optLink", 0).checked() ? 0 : 1;
    endModal();
}

void frmLinkOptions::cmdCancel_Click() {
    main_.LinkOption = cancelled;
    endModal();
}

bool frmLinkOptions::queryClose() {
    cmdCancel_Click();
    return true;
}

}  // namespace varnholt
