// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/trench_texts.h"

#include "basis/number_text.h"
#include "forms/text_numbers/horizontal.h"
#include "forms/text_numbers/reports.h"
#include "forms/text_numbers/surface_water.h"

namespace varnholt {
namespace {

/// Arrangements of pipes in a trench: one to three columns of straight pipes, then the slinkies.
constexpr int arrangements = 5;
constexpr int firstSlinky = 3;

int arrangementOn(const FillContext& context) {
    for (int i = 0; i < arrangements; ++i)
        if (context.window
                .control(elementName("PAConfigurationOption", static_cast<std::size_t>(i)))
                .checked())
            return i;
    return 0;
}

bool isSlinky(const FillContext& context) { return arrangementOn(context) >= firstSlinky; }

std::string dimensionOf(const FillContext& context, std::size_t element) {
    return shownText(context.window, elementName("PAInTrenchConfigurationText", element)) + " " +
           shownText(context.window, elementName("PAInTrenchConfigurationUnitsLabel", element));
}

std::string captionOf(const FillContext& context, int straight, int slinky) {
    return context.window.text(isSlinky(context) ? slinky : straight) + ":";
}

constexpr std::size_t pitchField = 0;
/// Of straight pipes the step between rows, of a slinky its diameter.
constexpr std::size_t secondField = 1;
constexpr std::size_t columnStepField = 2;

}  // namespace

std::string pipeConfigurationOf(const FillContext& context) {
    return context.window.text(isSlinky(context) ? Text::slinky : Text::straightPipes);
}

std::string pipeLayoutOf(const FillContext& context) {
    if (isSlinky(context)) return "1 x 1";
    const int columns = arrangementOn(context) + 1;
    const double pipes =
        leadingNumber(shownText(context.window, "PAInTrenchConfigurationLabel(3)"));
    std::string layout = std::to_string(columns) + " x " + formatNumber(pipes / columns, "###0");
    if (context.window.control("PAOffsetCheck").checked())
        layout += ", " + shownText(context.window, "PAOffsetCheck");
    return layout;
}

std::string firstDimensionCaptionOf(const FillContext& context) {
    return captionOf(context, Text::verticalSeparation, Text::coilPitch);
}

std::string firstDimensionOf(const FillContext& context) {
    return dimensionOf(context, isSlinky(context) ? pitchField : secondField);
}

std::string secondDimensionCaptionOf(const FillContext& context) {
    return captionOf(context, Text::horizontalSeparation, Text::coilDiameter);
}

std::string secondDimensionOf(const FillContext& context) {
    return dimensionOf(context, isSlinky(context) ? secondField : columnStepField);
}

}  // namespace varnholt
