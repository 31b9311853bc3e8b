// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/install.h"

#include "frame/open_once.h"
#include "tools/frmDiffusivityCalc.h"
#include "tools/frmEqvHoursCalc.h"
#include "tools/frmPumpPowerCalc.h"

namespace varnholt {

void installTools(Varnmain& main) {
    main.setCommand("mnuDiffCalc", CommandNeeds::nothing,
                    [&main] { openOnce<frmDiffusivityCalc>(main, "frmDiffusivityCalc"); });
    main.setCommand("mnuPumpPowerCalc", CommandNeeds::nothing,
                    [&main] { openOnce<frmPumpPowerCalc>(main, "frmPumpPowerCalc"); });
    main.setCommand("mnuEqvHours", CommandNeeds::nothing,
                    [&main] { openOnce<frmEqvHoursCalc>(main, "frmEqvHoursCalc").openedBy({}); });
}

}  // namespace varnholt
