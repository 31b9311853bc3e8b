// SPDX-License-Identifier: GPL-3.0-or-later
// What an engineer would look at in a design, in the user's words and units.
#include "basis/number_text.h"
#include "design/design_warnings.h"
#include "design/ground_design.h"
#include "forms/quantity.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/feedback.h"
#include "forms/text_numbers/loads.h"
#include "loads/loads_window.h"
#include "loads/zone_warning_texts.h"

namespace varnholt {
namespace {

using Concern = DesignWarning::Concern;

/// Numbers and words of one design's units.
class WarningWords {
 public:
    explicit WarningWords(const GroundDesign& design) : design_(design) {}

    std::string number(const Quantity& quantity, double value, const char* picture) const {
        return formatNumber(quantity.shown(value, design_.units()), picture);
    }
    std::string unit(int english, int metric) const {
        return design_.text(design_.units() == UnitSystem::metric ? metric : english);
    }
    std::string feet() const { return unit(Text::warningFeet, Text::warningMetres); }
    std::string inches() const { return unit(Text::warningInches, Text::warningMillimetres); }

    std::string nearFluid(int sentence, const DesignWarning& warning) const {
        const char* const tenths = "###0.0";
        return filledIn(
            design_.text(sentence),
            {number(quantities::temperature, warning.figure, tenths),
             number(quantities::temperature, warning.meanFluid, tenths),
             design_.text(warning.mode == cooling ? Text::cooling : Text::heating),
             unit(Text::groundTemperatureUnitsEnglish, Text::groundTemperatureUnitsMetric),
             number(quantities::temperatureDifference, warning.limit, tenths)});
    }

 private:
    const GroundDesign& design_;
};

}  // namespace

std::string sentenceOf(const DesignWarning& warning, const GroundDesign& design) {
    const WarningWords words(design);
    switch (warning.concern) {
        case Concern::groundNearFluid:
            return words.nearFluid(Text::warningGround, warning);
        case Concern::waterNearFluid:
            return words.nearFluid(Text::warningWater, warning);
        case Concern::boresTouch:
            return filledIn(design.text(Text::warningTouch),
                            {words.number(quantities::diameter, warning.figure, "###0.0"),
                             words.number(quantities::length, warning.limit, "###0.00"),
                             words.inches(), words.feet()});
        case Concern::pipesTouch:
            return filledIn(
                design.text(Text::warningPipesTouch),
                {words.number(quantities::diameter, warning.figure, "###0.00"),
                 words.number(quantities::diameter, warning.limit, "###0.00"), words.inches()});
        case Concern::rowsInParts:
            return filledIn(
                design.text(Text::warningRows),
                {formatNumber(warning.figure, "###0.0#"), formatNumber(warning.limit, "###0")});
        case Concern::boreTooDeep:
            return filledIn(
                design.text(Text::warningDeep),
                {words.number(quantities::length, warning.figure, "###0"),
                 words.number(quantities::length, warning.limit, "###0"), words.feet()});
    }
    return {};
}

std::vector<std::string> sentencesOf(const std::vector<DesignWarning>& warnings,
                                     const GroundDesign& design) {
    std::vector<std::string> sentences;
    for (const DesignWarning& warning : warnings) sentences.push_back(sentenceOf(warning, design));
    if (const LoadsWindow* loads = design.LoadsHome())
        for (std::string& sentence : inletSentences(*loads, design.conditions().inletTemp, design))
            sentences.push_back(std::move(sentence));
    return sentences;
}

}  // namespace varnholt
