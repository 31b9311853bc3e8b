// SPDX-License-Identifier: GPL-3.0-or-later
// The question which loads window a design is to be linked with.
#include "desktop/views/view_pieces.h"
#include "desktop/views/views.h"

namespace varnholt {

QWidget* makeLinkOptionsView(Binder& bind) {
    return page(column(group(bind.frame("LinkFrame"), bind.widget("LinkLabel"),
                             bind.widget("optLink(0)"), bind.widget("optLink(1)")),
                       row_(stretch(), bind.primary("cmdSelect"), bind.widget("cmdCancel"))));
}

}  // namespace varnholt
