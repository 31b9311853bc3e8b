// SPDX-License-Identifier: GPL-3.0-or-later
// The page that tells what decides the length: how far each quantity may be off, and what comes of
// it.
#include "basis/number_text.h"
#include "design/frmBHDesign.h"
#include "design/frmWhatIf.h"
#include "forms/text_numbers/second_opinion.h"
#include "forms/text_numbers/what_if_window.h"
#include "frame/varnmain.h"

namespace varnholt {
namespace {

constexpr const char* groundFrame = "WIGroundFrame";
constexpr const char* spreadFrame = "WISpreadFrame";
constexpr const char* tieFrame = "WITieFrame";
constexpr const char* decidesHelp = "decides";

/// The quantities whose spreads the ground's knowledge tells.
bool isOfGround(std::size_t quantity) { return quantity <= boreResistance; }

/// The field of the design that a lever is of.
constexpr std::array<const char*, leverCount> leverFields{
    "FLInletTempText(0)", "FLInletTempText(1)", "PASeparationText", "PATimeText", "FLFlowRateText"};

}  // namespace

void frmWhatIf::addDecides() {
    add(groundFrame, ControlKind::frame, Text::whatIfGround);
    const std::array<int, 3> knowledge{Text::whatIfTest, Text::whatIfLog, Text::whatIfTable};
    for (std::size_t i = 0; i < knowledge.size(); ++i) {
        addOption("WIGroundOption", i, knowledge[i], groundFrame, decidesHelp);
        onClick(elementName("WIGroundOption", i),
                [this, i] { WIGroundOption_Click(static_cast<GroundKnowledge>(i)); });
    }
    add(spreadFrame, ControlKind::frame, Text::whatIfSpreads);
    add("WISpreadHeadLabel(0)", ControlKind::label, Text::whatIfLow).in(spreadFrame);
    add("WISpreadHeadLabel(1)", ControlKind::label, Text::whatIfHigh).in(spreadFrame);
    add("WISpreadHeadLabel(2)", ControlKind::label, Text::whatIfShare).in(spreadFrame);
    for (std::size_t j = 0; j < quantityCount; ++j) addSpread(j);
    add(tieFrame, ControlKind::frame, Text::whatIfTies);
    const std::array<int, tieCount> ties{Text::whatIfCapacityTie, Text::whatIfResistanceTie,
                                         Text::whatIfHeatingTie};
    for (std::size_t n = 0; n < tieCount; ++n) {
        NumberField field{elementName("WITieText", n),
                          elementName("tie", n),
                          tieFrame,
                          {ties[n], ties[n]},
                          "0.00"};
        if (n == resistanceTie) field.changed = [this] { typedGround(); };
        addNumber(field, decidesHelp);
    }
    add("WITiedLabel", ControlKind::label, Text::whatIfTied).in(tieFrame);
    add("imgTornado", ControlKind::image, Text::whatIfTornado).foundLate();
}

void frmWhatIf::addSpread(std::size_t quantity) {
    const bool temperature = quantity == groundTemperature;
    const UnitTexts caption =
        temperature
            ? UnitTexts{Text::whatIfGroundTemperatureEnglish, Text::whatIfGroundTemperatureMetric}
            : UnitTexts{quantityTexts[quantity], quantityTexts[quantity]};
    NumberField field{elementName("WILowText", quantity), elementName("spreadLow", quantity),
                      spreadFrame, caption, "##0.0"};
    if (temperature) field.quantity = &quantities::temperatureDifference;
    field.label = elementName("WIQuantityLabel", quantity);
    field.distinction = Text::whatIfLow;
    if (isOfGround(quantity)) field.changed = [this] { typedGround(); };
    addNumber(field, decidesHelp);
    field.control = elementName("WIHighText", quantity);
    field.stored = elementName("spreadHigh", quantity);
    field.distinction = Text::whatIfHigh;
    addNumber(field, decidesHelp);
    addOutput(elementName("WIShareLabel", quantity), spreadFrame);
}

void frmWhatIf::WIGroundOption_Click(GroundKnowledge knowledge) {
    inputs().knowledge = knowledge;
    inputs().spreads = withKnowledge(inputs().spreads, knowledge);
    fields().forgetRefused();
    showInputs();
}

/// A spread of one's own is none of the three.
void frmWhatIf::typedGround() {
    inputs().knowledge = knownAsTyped;
    for (std::size_t i = 0; i < 3; ++i) control(elementName("WIGroundOption", i)).setChecked(false);
}

void frmWhatIf::showDecides() {
    for (std::size_t j = 0; j < quantityCount; ++j) {
        const double share = known().share[j];
        write(elementName("WIShareLabel", j),
              share > 0 ? filledIn(text(Text::opinionPercent), {formatNumber(100 * share, "##0")})
                        : "-");
    }
}

void frmWhatIf::pointAtBar(std::size_t bar) {
    const TornadoPicture picture = tornadoPicture();
    if (bar >= picture.bars.size()) return;
    const TornadoPicture::Bar& pointed = picture.bars[bar];
    if (pointed.lever) {
        main().activate(design());
        design().showField(leverFields[pointed.index]);
    } else {
        control(elementName("WILowText", pointed.index)).takeFocus();
    }
}

}  // namespace varnholt
