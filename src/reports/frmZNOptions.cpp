// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/frmZNOptions.h"

#include "forms/text_numbers/reports.h"
#include "loads/modLoads/zone_window.h"
#include "reports/zone_report_definitions.h"

namespace varnholt {

frmZNOptions::frmZNOptions(Varnmain& main)
    : Form("frmZNOptions", main.platform(), main.texts()), main_(main) {
    setCaption(text(Text::zoneReportOptions));
    add("ZoneReportSelectionFrame", ControlKind::frame, Text::zoneReportSelection);
    for (std::size_t i = 0; i < zoneReports.size(); ++i)
        add(elementName("LOPrintOption", i), ControlKind::option, zoneReports[i].optionCaption)
            .grouped("LOPrintOption")
            .in("ZoneReportSelectionFrame")
            .setChecked(i == 0);
    add("cmdOK", ControlKind::button, Text::zoneReportOk);
    add("cmdCancel", ControlKind::button, Text::zoneReportCancel);
    onClick("cmdOK", [this] { cmdOK_Click(); });
    onClick("cmdCancel", [this] { endModal(); });
}

/// The choice is left on the calling form, counted from 1.
void frmZNOptions::cmdOK_Click() {
    auto* window = dynamic_cast<ZoneWindow*>(main_.activeWindow());
    for (std::size_t i = 0; i < zoneReports.size() && window != nullptr; ++i)
        if (element("LOPrintOption", static_cast<int>(i)).checked())
            window->LOPrintOption = static_cast<std::int16_t>(i + 1);
    chosen_ = window != nullptr;
    endModal();
}

}  // namespace varnholt
