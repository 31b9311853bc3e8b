// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/install.h"

#include "frame/open_once.h"
#include "loads/frmAvgBlock.h"
#include "loads/frmZoneManage.h"
#include "loads/import/frmImport1.h"

namespace varnholt {
void installLoads(Varnmain& main) {
    main.setCommand("mnuZoneManage", CommandNeeds::nothing,
                    [&main] { openOnce<frmZoneManage>(main, "frmZoneManage"); });
    installImporter(main);
    main.setCommand("mnuAvgBlock", CommandNeeds::nothing,
                    [&main] { openOnce<frmAvgBlock>(main, "frmAvgBlock"); });
}

void refreshPumpLists(Varnmain& main) {
    for (ChildWindow* window : main.windows())
        if (auto* loads = dynamic_cast<LoadsWindow*>(window)) loads->refreshPumpLists();
}

}  // namespace varnholt
