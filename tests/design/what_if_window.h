// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <variant>

#include "borehole_window.h"
#include "design/frmWhatIf.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/what_if_window.h"
#include "whatIf/office.h"

namespace varnholt {

/// The office's design with What If open in front of it, by the classical method.
class WhatIfWindow : public BoreholeWindow {
 public:
    WhatIfWindow() {
        texts.known.insert({{Text::whatIfTitle, "What If"},
                            {Text::whatIfAlternativeName, "Alternative %1"},
                            {Text::whatIfHoldsIn, "%1 of 100: %2 bores of %3"},
                            {Text::whatIfFewerThanOne, "fewer than 1"},
                            {Text::whatIfMoreThan99, "more than 99"},
                            {Text::whatIfPasteNumbers, "line %1"},
                            {Text::whatIfPasteCorners, "%1 has too few"},
                            {Text::whatIfPasteCrosses, "%1 crosses"},
                            {Text::whatIfOutline, "outline"},
                            {Text::whatIfNoGoArea, "area %1"},
                            {Text::lengthUnitsEnglish, "ft"},
                            {Text::lengthUnitsMetric, "m"}});
        change(*design, [](BoreholeProject& project) {
            const BoreholeProject office = officeProject();
            project.loads = office.loads;
            project.arrangement = office.arrangement;
        });
        design->setLabels();
        design->setUnitLabels();
        design->startHistory();
        what = open();
        what->click("WIMeasureOption(0)");
    }

    frmWhatIf* open() {
        design->click("CAWhatIfCommand");
        return dynamic_cast<frmWhatIf*>(main.find("frmWhatIf"));
    }
    void enter(const std::string& field, const std::string& text) {
        what->type(field, text);
        what->leave(field);
    }
    std::string shown(const std::string& field) const { return what->control(field).text(); }
    std::string captioned(const std::string& label) {
        what->catchUp();
        return what->control(label).caption();
    }
    double held(const std::string& name) const {
        return std::get<double>(what->values().read(name));
    }
    std::string heldText(const std::string& name) const {
        return std::get<std::string>(what->values().read(name));
    }
    const WhatIfInputs& inputs() const { return design->project().whatIf; }

    frmWhatIf* what = nullptr;
};

}  // namespace varnholt
