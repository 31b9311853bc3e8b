// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame/child_window.h"

#include <utility>

#include "frame/varnmain.h"

namespace varnholt {

ChildWindow::ChildWindow(std::string formName, Varnmain& main)
    : Form(std::move(formName), main.platform(), main.texts()), main_(main) {}

UnitSystem ChildWindow::units() const {
    return hasUnitSwitch() && control("MetricCheck").checked() ? UnitSystem::metric
                                                               : UnitSystem::english;
}

void ChildWindow::switchUnits(UnitSystem wanted) {
    if (!hasUnitSwitch() || units() == wanted) return;
    control("MetricCheck").setChecked(wanted == UnitSystem::metric);
    MetricCheck_Click();
}

}  // namespace varnholt
