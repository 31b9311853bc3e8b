// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/views/views.h"

#include "desktop/views/view_registry.h"

namespace varnholt {

void registerViews(ViewRegistry& views) {
    views.registerView("frmBHDesign", makeBoreholeView);
    views.registerView("frmHZDesign", makeHorizontalView);
    views.registerView("frmSWDesign", makeSurfaceWaterView);
    views.registerView("frmZoneManage", makeZoneManagerView);
    views.registerView("frmAvgBlock", makeAverageBlockView);
    views.registerView("frmLinkOptions", makeLinkOptionsView);
    views.registerView("frmZNOptions", makeZoneReportOptionsView);
    views.registerView("frmPROptions", makeProjectReportOptionsView);
    views.registerView("frmHPEdit", makePumpEditorView);
    views.registerView("frmImport1", makeImporterView);
    views.registerView("frmImportTable", makeImportTableView);
    views.registerView("frmTransferOptions", makeTransferOptionsView);
    views.registerView("frmDiffusivityCalc", makeDiffusivityView);
    views.registerView("frmPumpPowerCalc", makePumpPowerView);
    views.registerView("frmEqvHoursCalc", makeEqvHoursView);
    views.registerView("frmBrowser", makeBrowserView);
    views.registerView("frmSecondOpinion", makeSecondOpinionView);
    views.registerView("frmWhatIf", makeWhatIfView);
}

}  // namespace varnholt
