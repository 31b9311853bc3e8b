// SPDX-License-Identifier: GPL-3.0-or-later
// Whose project it is.
#include "desktop/views/design_pages.h"
#include "desktop/views/view_pieces.h"

namespace varnholt {

QWidget* informationPage(Binder& bind) {
    return column(group(
        bind.frame("INProjectFrame"),
        grow(reflow(grow(column(grid(bind.row("INProjectNameText"), bind.row("INDesignerNameText"),
                                     bind.row("INClientNameText"), bind.row("INAddressLine1Text"),
                                     bind.row("INAddressLine2Text"), bind.row("INCityText"),
                                     bind.row("INStateText"), bind.row("INZipText"),
                                     bind.row("INPhoneText"), bind.row("INFaxText"),
                                     bind.row("INEmailText")))),
                    grow(column(grid(bind.row("INDateDTPicker"), bind.row("INStartDateDTPicker")),
                                bind.widget("INCommentsLabel"),
                                grow(bind.widget("INCommentsRichTextBox"))))))));
}

}  // namespace varnholt
