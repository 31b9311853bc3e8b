// SPDX-License-Identifier: GPL-3.0-or-later
// The page on which a pump is tried.
#include "catalogue/editor/frmHPEdit.h"
#include "basis/number_text.h"
#include "basis/run_time_error.h"
#include "basis/units.h"
#include "catalogue/editor/editor_names.h"
#include "forms/quantity.h"
#include "forms/text_numbers/heat_pump_editor.h"
#include "forms/text_numbers/loads.h"

namespace varnholt {
namespace {

constexpr double coldest = 0, hottest = 212;        // degF
constexpr double usualSource = 55, usualLoad = 68;  // degF
constexpr ByMode<int> modeTexts{Text::cooling, Text::heating};
constexpr UnitTexts degrees{Text::temperatureUnitsEnglish, Text::temperatureUnitsMetric};

}  // namespace

void frmHPEdit::addTestPage() {
    const std::string frame = pageFrames.back(), help = "pump_editor#test";
    add(frame, ControlKind::frame, Text::testPage).in("PumpDataPicture");
    for (const Mode mode : modes)
        add(elementName("TestModeLabel", mode), ControlKind::label, modeTexts[mode]).in(frame);
    addTestFields();
    add("TestCommand", ControlKind::button, Text::runTest).in(frame).helpedBy(help);
    const auto addResult = [&](const char* label, int captionText) {
        for (const Mode mode : modes) add(elementName(label, mode), ControlKind::label).in(frame);
        Control& caption = add(elementName(label, 2), ControlKind::label).in(frame);
        if (captionText != 0) caption.setCaption(text(captionText));
    };
    addResult("TestCapacityLabel", 0);
    addResult("TestPowerLabel", Text::testPower);
    addResult("TestCOPLabel", 0);
    add("TestChart", ControlKind::image, Text::testChart).in(frame);
}

/// Once more when the kind of the load side has changed.
void frmHPEdit::addTestFields() {
    struct Row {
        const char* stem;
        ByMode<double> TestInputs::*member;
        const Quantity* quantity;
        double highest, repair;
        const char *format, *metricFormat;
        int captionText;
        UnitTexts unit;
    };
    const bool air = labelledType_ == 0;
    const UnitTexts sourceUnits{Text::waterFlowUnitsEnglish, Text::waterFlowUnitsMetric};
    const UnitTexts airUnits{Text::airFlowUnitsEnglish, Text::airFlowUnitsMetric};
    const UnitTexts waterUnits{Text::loadWaterUnitsEnglish, Text::loadWaterUnitsMetric};
    const Row rows[] = {
        {"TestSourceEWT", &TestInputs::sourceTemperature, &quantities::temperature, hottest,
         usualSource, "###0.0", "###0.0", Text::testSourceTemperature, degrees},
        {"TestSourceFlow", &TestInputs::sourceFlow, &quantities::waterFlow, 1e308, 0, "###0.0",
         "###0.0", Text::testSourceFlow, sourceUnits},
        {"TestLoadELT", &TestInputs::loadTemperature, &quantities::temperature, hottest, usualLoad,
         "###0.0", "###0.0", Text::testLoadTemperature, degrees},
        {"TestLoadFlow", &TestInputs::loadFlow, air ? &quantities::airFlow : &quantities::waterFlow,
         1e308, 0, "###0", "###0.0", Text::testLoadFlow, air ? airUnits : waterUnits},
    };
    for (const Row& row : rows)
        for (const Mode mode : modes)
            addField({.control = elementName(row.stem + std::string("Text"), mode),
                      .stored = &(document_.test.*row.member)[mode],
                      .quantity = row.quantity,
                      .lowest = coldest,
                      .highest = row.highest,
                      .fallback = row.repair,
                      .format = row.format,
                      .metricFormat = row.metricFormat,
                      .beside = {.frame = pageFrames.back(),
                                 .label = row.stem + std::string("Label"),
                                 .caption = {row.captionText, row.captionText},
                                 .unitLabel = row.stem + std::string("UnitLabel"),
                                 .unit = row.unit,
                                 .help = "pump_editor#test",
                                 .distinction = modeTexts[mode]},
                      .checkedWhenLeft = true,
                      .left = [this] { TestCommand_Click(); }});
}

/// Tries the pump on show; a pump that cannot be tried ends in an error, and the results stay.
void frmHPEdit::TestCommand_Click() {
    const pump* shown = shownPump();
    if (shown == nullptr) return;
    results_ = EvaluateTestPoints(*shown, document_.test);
    triedPump_ = document_.pumps[static_cast<std::size_t>(selectedPump())];
    showTest();
}

/// Results of another pump do not stay on show.
void frmHPEdit::blankTest() {
    triedPump_.reset();
    results_ = {};
    for (const char* figure : {"TestCapacityLabel", "TestPowerLabel", "TestCOPLabel"})
        for (const Mode mode : modes) control(elementName(figure, mode)).setCaption({});
}

void frmHPEdit::showTest() {
    if (shownPump() == nullptr || !triedPump_) return;
    const bool metric = units() == UnitSystem::metric;
    const ByMode<double> efficiency{metric ? 1 : mbtuPerKilowatt, 1};
    for (const Mode mode : modes) {
        const auto write = [&](const char* label, double value, const char* format) {
            control(elementName(label, mode)).setCaption(formatNumber(value, format));
        };
        write("TestCapacityLabel", quantities::load.shown(results_.capacity[mode], units()),
              "###0.0");
        write("TestPowerLabel", results_.power[mode], "###0.00");
        write("TestCOPLabel", results_.COP[mode] * efficiency[mode], "###0.0");
    }
}

/// Results on show are those of the pump on show: another pump, and other curves of the same one,
/// are tried at once, without a word where that fails.
void frmHPEdit::refreshTest() {
    if (shownPump() == nullptr) return;
    const Shared<pump>& shown = document_.pumps[static_cast<std::size_t>(selectedPump())];
    if (triedPump_ && *triedPump_ == shown) return;
    try {
        TestCommand_Click();
    } catch (const RunTimeError&) {
        return;
    }
}

}  // namespace varnholt
