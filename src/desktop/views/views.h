// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class QWidget;

namespace varnholt {

class Binder;

// One function a form: it lays out the form's controls as the window shows them.

QWidget* makeBoreholeView(Binder& bind);
QWidget* makeHorizontalView(Binder& bind);
QWidget* makeSurfaceWaterView(Binder& bind);
QWidget* makeZoneManagerView(Binder& bind);
QWidget* makeAverageBlockView(Binder& bind);
QWidget* makeLinkOptionsView(Binder& bind);
QWidget* makeZoneReportOptionsView(Binder& bind);
QWidget* makeProjectReportOptionsView(Binder& bind);
QWidget* makePumpEditorView(Binder& bind);
QWidget* makeImporterView(Binder& bind);
QWidget* makeImportTableView(Binder& bind);
QWidget* makeTransferOptionsView(Binder& bind);
QWidget* makeDiffusivityView(Binder& bind);
QWidget* makePumpPowerView(Binder& bind);
QWidget* makeEqvHoursView(Binder& bind);
QWidget* makeBrowserView(Binder& bind);
QWidget* makeSecondOpinionView(Binder& bind);
QWidget* makeWhatIfView(Binder& bind);

}  // namespace varnholt
