// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/frmPROptions.h"

#include "forms/text_numbers/reports.h"
#include "reports/project_report_definition.h"

namespace varnholt {

frmPROptions::frmPROptions(Varnmain& main) : Form("frmPROptions", main.platform(), main.texts()) {
    setCaption(text(Text::projectReportOptions));
    add("ProjectReportSelectionFrame", ControlKind::frame, Text::projectReportSelection);
    const auto addOption = [this](int index, int caption) {
        add(elementName("PrintOption", static_cast<std::size_t>(index)), ControlKind::option,
            caption)
            .grouped("PrintOption")
            .in("ProjectReportSelectionFrame")
            .setChecked(index == detailedForm);
    };
    addOption(detailedForm, Text::detailedForm);
    addOption(shortForm, Text::conciseForm);
    add("cmdOK", ControlKind::button, Text::projectReportOk);
    add("cmdCancel", ControlKind::button, Text::projectReportCancel);
    onClick("cmdOK", [this, &main] {
        chosen_ = element("PrintOption", shortForm).checked() ? shortForm : detailedForm;
        main.PrintOption = static_cast<std::int16_t>(*chosen_);
        endModal();
    });
    onClick("cmdCancel", [this] { endModal(); });
}

}  // namespace varnholt
