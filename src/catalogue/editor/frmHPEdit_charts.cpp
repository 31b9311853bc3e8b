// SPDX-License-Identifier: GPL-3.0-or-later
// The curves of the pump on show, as they are drawn and told.
#include "catalogue/editor/curve_sentences.h"
#include "catalogue/editor/editor_names.h"
#include "catalogue/editor/frmHPEdit.h"
#include "forms/text_numbers/heat_pump_editor.h"
#include "forms/text_numbers/loads.h"

namespace varnholt {
namespace {

bool showsCorrections(const std::string& image, CorrectionKind kind) {
    return image == elementName("CorrectionsChart", kind);
}

FitPicture fitOf(const pump& model, const std::string& image, const TestInputs& test,
                 UnitSystem units) {
    for (const CorrectionKind kind : {byTemperature, byFlow})
        if (showsCorrections(image, kind)) return correctionPicture(model, kind, units);
    for (const Mode mode : modes)
        if (image == prefixOf(mode) + "RatingChart") return ratingPicture(model, {mode}, units);
    if (image == "TestChart") return testPicture(model, test, units);
    return ratingPicture(model, {cooling, heating}, units);
}

/// "Entering water (deg F)". The texts of some units stand in parentheses of their own.
std::string axisTitle(const std::string& words, const std::string& unit) {
    return words + (unit.front() == '(' ? " " + unit : " (" + unit + ")");
}

}  // namespace

FitCurvesPicture frmHPEdit::chart(const std::string& image) const {
    FitCurvesPicture picture;
    const pump* model = shownPump();
    if (model != nullptr) picture.curves = fitOf(*model, image, document_.test, units());
    picture.emptyText = image == "TestChart" ? Text::nothingToTest : Text::nothingMeasured;
    const bool metric = units() == UnitSystem::metric;
    const std::string degrees =
        text(metric ? Text::temperatureUnitsMetric : Text::temperatureUnitsEnglish);
    const bool byPercent = showsCorrections(image, byFlow);
    if (byPercent || showsCorrections(image, byTemperature)) {
        picture.across = byPercent ? text(Text::loadPercentAxis)
                                   : axisTitle(text(Text::loadTemperatureAxis), degrees);
        picture.capacity = text(Text::capacityFactor);
        picture.power = text(Text::powerFactor);
        return picture;
    }
    picture.across = axisTitle(text(Text::enteringWater), degrees);
    picture.capacity = axisTitle(text(Text::ratedCapacity),
                                 text(metric ? Text::loadUnitsMetric : Text::loadUnitsEnglish));
    picture.power = axisTitle(text(Text::ratedPower), text(Text::loadUnitsMetric));
    return picture;
}

std::string frmHPEdit::descriptionOf(const std::string& image) const {
    if (!has(image) || control(image).kind() != ControlKind::image) return {};
    return describe(chart(image), texts());
}

}  // namespace varnholt
