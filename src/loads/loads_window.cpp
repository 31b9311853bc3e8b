// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/loads_window.h"

#include <memory>
#include <utility>

#include "forms/patient_reading.h"
#include "frame/varnmain.h"
#include "loads/linked_design.h"
#include "loads/links.h"

namespace varnholt {

LoadsWindow::LoadsWindow(std::string formName, Varnmain& main)
    : ChildWindow(std::move(formName), main),
      catalogue(
          main.MainDirectory, main.texts(), document_.data.activeSeries,
          [this](const std::string& message) { show(MessageIcon::exclamation, message); },
          std::make_shared<CatalogueFiles>(std::make_unique<PatientFiles>(platform()))) {}

LoadsWindow::~LoadsWindow() {
    while (!links_.all().empty()) links_.all().back()->design().dropLink();
}

void LoadsWindow::takeTemperature(Mode mode, double temperature) {
    touch();
    document_.data.conditions.inletTemp[mode] = temperature;
    SetFluidsTabbedPaneSwitchVariables();
}

void LoadsWindow::takeFlow(double flowPerTon) {
    touch();
    document_.data.conditions.flowRate = flowPerTon;
    SetFluidsTabbedPaneSwitchVariables();
}

void LoadsWindow::takeSeries(const std::string& activeSeries) {
    document_.data.activeSeries = activeSeries;
    InitializeHeatPumpLists();
}

void LoadsWindow::takeProject(const ProjectInformation& information) {
    SharedText comments = std::move(document_.information.comments);
    document_.information = information;
    document_.information.comments = std::move(comments);
}

void LoadsWindow::TransferCall() { varnholt::TransferCall(main(), links_.designLinkID()); }

void LoadsWindow::switchLinkedUnits() {
    // A design that switches may answer by renaming the window, but ends no link.
    for (const Link* link : std::vector<Link*>(links_.all())) link->design().switchUnits(units());
}

void LoadsWindow::actionEnds(const UserAction& action) {
    ChildWindow::actionEnds(action);
    refreshLinkedNotices();
    // The importer tells which zones of this window it would fill.
    if (ChildWindow* importer = main().find("frmImport1")) importer->windowsChanged();
}

void LoadsWindow::refreshLinkedNotices() {
    for (const Link* link : links_.all()) link->design().refreshNotice();
}

void LoadsWindow::savedStateReached(bool) { refreshLinkedNotices(); }

void LoadsWindow::unloaded() { cleanupLinks(*this); }

}  // namespace varnholt
