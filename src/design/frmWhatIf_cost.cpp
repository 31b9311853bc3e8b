// SPDX-License-Identifier: GPL-3.0-or-later
// The page of prices, and of what the design costs by them.
#include "basis/number_text.h"
#include "design/frmBHDesign.h"
#include "design/frmWhatIf.h"
#include "design/shared_texts.h"
#include "forms/text_numbers/what_if_window.h"

namespace varnholt {
namespace {

constexpr const char* buildFrame = "WCBuildFrame";
constexpr const char* towerFrame = "WCTowerFrame";
constexpr const char* loopFrame = "WCLoopFrame";
constexpr const char* energyFrame = "WCEnergyFrame";
constexpr const char* resultFrame = "WCResultFrame";
constexpr const char* costHelp = "cost";

double metersOfAFoot() { return quantities::length.shown(1, UnitSystem::metric); }
double same(double value) { return value; }

/// A price a foot, shown a meter where the units are metric.
const Quantity priceOfLength{{same, [](double price) { return price / metersOfAFoot(); }},
                             {same, [](double price) { return price * metersOfAFoot(); }}};

}  // namespace

void frmWhatIf::addCost() {
    addPrices();
    add(resultFrame, ControlKind::frame, Text::whatIfCostOfDesign);
    for (std::size_t part = 0; part < costPartTexts.size(); ++part) {
        add(elementName("WCPartLabel", part), ControlKind::label, costPartTexts[part])
            .in(resultFrame);
        addOutput(elementName("WCPartCostLabel", part), resultFrame);
    }
    const int captions[] = {Text::whatIfFirstCost, Text::whatIfEnergy, Text::whatIfYearlyCost,
                            Text::whatIfLifeCost};
    for (std::size_t i = 0; i < std::size(captions); ++i) {
        add(elementName("WCResultCaptionLabel", i), ControlKind::label, captions[i])
            .in(resultFrame);
        addOutput(elementName("WCResultLabel", i), resultFrame);
    }
    add("WCLeftOutLabel", ControlKind::label, Text::whatIfLeftOut);
    add("imgCost", ControlKind::image, Text::whatIfCostPicture).foundLate();
}

void frmWhatIf::addPrices() {
    const auto price = [this](const char* control, const char* stored, const char* frame,
                              int caption, std::string_view format) {
        addNumber({control, stored, frame, {caption, caption}, format}, costHelp);
    };
    const auto byLength = [this](const char* control, const char* stored, const char* frame,
                                 UnitTexts caption) {
        addNumber({control, stored, frame, caption, "###0.00", &priceOfLength}, costHelp);
    };
    const auto length = [this](const char* control, const char* stored, int caption) {
        addNumber({control,
                   stored,
                   buildFrame,
                   {caption, caption},
                   "###0.0",
                   &quantities::length,
                   lengthUnit},
                  costHelp);
    };
    add(buildFrame, ControlKind::frame, Text::whatIfBuild);
    price("WCFixedText", "costFixed", buildFrame, Text::whatIfMobilization, "#####0");
    price("WCBoreText", "costBore", buildFrame, Text::whatIfEachBorePrice, "#####0");
    byLength("WCFootText", "costFoot", buildFrame,
             {Text::whatIfDrillingEnglish, Text::whatIfDrillingMetric});
    length("WCBandText", "costBand", Text::whatIfBand);
    byLength("WCDeepText", "costDeep", buildFrame, {Text::whatIfBelow, Text::whatIfBelow});
    byLength("WCTrenchText", "costTrench", buildFrame,
             {Text::whatIfTrenchEnglish, Text::whatIfTrenchMetric});
    length("WCRunText", "costRun", Text::whatIfRun);
    add(towerFrame, ControlKind::frame, Text::whatIfTowerPrices);
    price("WCTowerText", "costTower", towerFrame, Text::whatIfTowerTon, "###0.00");
    price("WCCareText", "costCare", towerFrame, Text::whatIfCare, "###0.00");
    price("WCTowerPowerText", "towerPower", towerFrame, Text::whatIfTowerPower, "###0.00");
    add(loopFrame, ControlKind::frame, Text::whatIfLoopPrices);
    byLength("WCGroundText", "costGround", loopFrame,
             {Text::whatIfGroundEnglish, Text::whatIfGroundMetric});
    byLength("WCPipeText", "costPipe", loopFrame,
             {Text::whatIfPipeEnglish, Text::whatIfPipeMetric});
    add(energyFrame, ControlKind::frame, Text::whatIfEnergyPrices);
    price("WCEnergyText", "costEnergy", energyFrame, Text::whatIfKilowattHour, "0.000");
    price("WCEscalationText", "escalation", energyFrame, Text::whatIfEscalation, "##0.0");
    price("WCDiscountText", "discount", energyFrame, Text::whatIfDiscount, "##0.0");
    price("WCYearsText", "costYears", energyFrame, Text::whatIfYears, "##0");
    addPriceText("WCCurrencyText", Text::whatIfCurrency, &WhatIfInputs::currency);
    addPriceText("WCDateText", Text::whatIfPricesDate, &WhatIfInputs::pricesOf);
}

void frmWhatIf::addPriceText(const char* control, int caption, std::string WhatIfInputs::*held) {
    const std::string name = control;
    const std::string label = name.substr(0, name.size() - 4) + "Label";
    add(label, ControlKind::label, caption).in(energyFrame);
    add(name, ControlKind::text).in(energyFrame).captionedBy(label).helpedBy("what_if#cost");
    onChange(name, [this, name, held] { inputs().*held = this->control(name).text(); });
}

void frmWhatIf::showCost() {
    const WhatIf& found = known();
    const bool there = found.firstCost > 0;
    for (std::size_t part = 0; part < costPartTexts.size(); ++part)
        write(elementName("WCPartCostLabel", part),
              there ? teller().money(found.costPart[part]) : "-");
    const auto result = [&](std::size_t i, const std::string& shown) {
        write(elementName("WCResultLabel", i), there ? shown : "-");
    };
    result(0, teller().money(found.firstCost));
    result(1, groupedNumber(found.yearlyEnergy));
    result(2, teller().money(found.yearlyCost));
    result(3, teller().money(found.lifeCost));
}

}  // namespace varnholt
