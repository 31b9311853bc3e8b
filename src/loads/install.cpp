// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/install.h"

#include <memory>

#include "frame/varnmain.h"
#include "loads/frmAvgBlock.h"
#include "loads/frmZoneManage.h"

namespace varnholt {
namespace {

/// One window of each kind: a second command brings it to the front.
template <class Window>
void openOnce(Varnmain& main, const char* formName) {
    if (ChildWindow* open = main.find(formName))
        main.activate(*open);
    else
        main.open(std::make_unique<Window>(main));
}

}  // namespace

void installLoads(Varnmain& main) {
    main.setCommand("mnuZoneManage", CommandNeeds::nothing,
                    [&main] { openOnce<frmZoneManage>(main, "frmZoneManage"); });
    main.setCommand("mnuAvgBlock", CommandNeeds::nothing,
                    [&main] { openOnce<frmAvgBlock>(main, "frmAvgBlock"); });
}

void refreshPumpLists(Varnmain& main) {
    for (ChildWindow* window : main.windows())
        if (auto* loads = dynamic_cast<LoadsWindow*>(window)) loads->refreshPumpLists();
}

}  // namespace varnholt
