// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/calculator.h"

#include <utility>

#include "basis/raised_flag.h"
#include "forms/text_numbers/calculators.h"
#include "forms/text_numbers/loads.h"

namespace varnholt {

Calculator::Calculator(std::string formName, bool Varnmain::*exists, int titleText, Varnmain& main)
    : ChildWindow(std::move(formName), main), exists_(exists) {
    main.*exists_ = true;
    setCaption(text(titleText));
    fields().setManner({.codeIsWriting = [this] { return settingUnits; },
                        .units = [this] { return units(); },
                        .changed = {}});
    add("MetricCheck", ControlKind::check, Text::loadsMetricSwitch);
    onClick("MetricCheck", [this] { MetricCheck_Click(); });
}

void Calculator::addClose() {
    add("cmdClose", ControlKind::button, Text::closeWindow);
    onClick("cmdClose", [this] { main().close(*this); });
}

void Calculator::load() {
    startInUnitsOfMenu();
    const RaisedFlag writing(settingUnits);
    showValues();
}

void Calculator::unloaded() { main().*exists_ = false; }

void Calculator::MetricCheck_Click() {
    const RaisedFlag writing(settingUnits);
    main().unitsSwitched(*this);
    showValues();
}

void Calculator::showValues() {
    fields().showCaptions();
    fields().showAll();
}

}  // namespace varnholt
