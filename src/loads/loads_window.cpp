// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/loads_window.h"

#include <utility>

#include "frame/varnmain.h"
#include "loads/links.h"

namespace varnholt {

LoadsWindow::LoadsWindow(std::string formName, Varnmain& main)
    : ChildWindow(std::move(formName), main),
      catalogue(main.MainDirectory, main.texts(),
                [this](const std::string& message) { show(MessageIcon::exclamation, message); }) {}

DesignConditions LoadsWindow::designConditions() const {
    return {flowRate, inletTemp, inletLoadAirTemp, inletLoadWaterTemp};
}

void LoadsWindow::TransferCall() { varnholt::TransferCall(main(), designLinkID); }

}  // namespace varnholt
