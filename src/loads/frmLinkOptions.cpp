// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/frmLinkOptions.h"

#include "frame/varnmain.h"

namespace varnholt {

frmLinkOptions::frmLinkOptions(Varnmain& main)
    : Form("frmLinkOptions", main.platform(), main.texts()), main_(main) {
    setCaption(text(1210));
    add("LinkFrame", ControlKind::frame, 1211);
    add("LinkLabel", ControlKind::label, 1212).in("LinkFrame");
    add("optLink(0)", ControlKind::option, 1213)
        .grouped("optLink")
        .in("LinkFrame")
        .setChecked(true);
    add("optLink(1)", ControlKind::option, 1214).grouped("optLink").in("LinkFrame");
    add("cmdSelect", ControlKind::button, 1215);
    add("cmdCancel", ControlKind::button, 1216);
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
