// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/frmTransferOptions.h"

#include "forms/text_numbers/import.h"
#include "forms/text_numbers/loads.h"
#include "frame/varnmain.h"

namespace varnholt {

frmTransferOptions::frmTransferOptions(Varnmain& main)
    : Form("frmTransferOptions", main.platform(), main.texts()), main_(main) {
    const std::string frame = "fraTransferOption";
    setCaption(text(Text::transferTitle));
    add(frame, ControlKind::frame, Text::transferSelection);
    add("lblTransferSelect", ControlKind::label, Text::transferQuestion).in(frame);
    add("optMode(0)", ControlKind::option, Text::cooling)
        .grouped("optMode")
        .in(frame)
        .setChecked(true);
    add("optMode(1)", ControlKind::option, Text::heating).grouped("optMode").in(frame);
    add("cmdSelect", ControlKind::button, Text::selectPump);
    add("cmdCancel", ControlKind::button, Text::cancelSelection);
    onClick("cmdSelect", [this] { cmdSelect_Click(); });
    onClick("cmdCancel", [this] { endModal(); });
}

void frmTransferOptions::cmdSelect_Click() {
    main_.TransferOption = element("optMode", 0).checked() ? 0 : 1;
    selected_ = true;
    endModal();
}

}  // namespace varnholt
