// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/computed_texts.h"

#include <cmath>

#include "basis/number_text.h"
#include "forms/quantity.h"
#include "forms/text_numbers/loads.h"
#include "forms/text_numbers/reports.h"
#include "loads/loads_window.h"

namespace varnholt {
namespace {

std::string shownIn(const FillContext& context, const char* control) {
    return shownText(context.window, control);
}

/// Index of the chosen element of an array of options, -1 for none.
int chosenOf(const FillContext& context, const char* options) {
    for (int i = 0; context.window.has(elementName(options, static_cast<std::size_t>(i))); ++i)
        if (context.window.control(elementName(options, static_cast<std::size_t>(i))).checked())
            return i;
    return -1;
}

std::string chosenCaption(const FillContext& context, const char* options) {
    const int chosen = chosenOf(context, options);
    return chosen < 0
               ? std::string()
               : shownText(context.window, elementName(options, static_cast<std::size_t>(chosen)));
}

double valueOf(const FillContext& context, const char* name) {
    return std::get<double>(context.window.values().read(name));
}

/// degF in the active units, with the unit that the window shows.
std::string temperatureOf(const FillContext& context, double fahrenheit, const char* format) {
    const UnitSystem units = context.metric ? UnitSystem::metric : UnitSystem::english;
    return formatNumber(quantities::temperature.shown(fahrenheit, units), format);
}

std::string longTermOf(const FillContext& context, const char* penalty) {
    return temperatureOf(context, valueOf(context, "GetGroundTemp") + valueOf(context, penalty),
                         "###0.0") +
           " " + shownIn(context, "SOGroundTempUnitsLabel");
}

std::string loadTempOf(const FillContext& context, double fahrenheit) {
    const int unit = context.metric ? Text::temperatureUnitsMetric : Text::temperatureUnitsEnglish;
    return temperatureOf(context, fahrenheit, "##0.0") + " " + context.window.text(unit);
}

/// The active series of the linked loads window as its catalogue lists it.
struct ActiveSeries {
    std::string maker, series;
};

ActiveSeries activeSeriesOf(const LoadsWindow& loads) {
    for (const PumpList& maker : loads.catalogue.vhtPumpNames())
        for (const PumpSeriesInfo& series : maker.seriesInfo)
            if (maker.mfgInfo.mfgName + series.seriesName == loads.activeSeries())
                return {maker.mfgInfo.mfgName, series.seriesName};
    // A series that the catalogue at hand does not list.
    return {{}, loads.activeSeries()};
}

}  // namespace

std::string fluidOf(const FillContext& context) {
    return shownIn(context, "FLPercentAntifreezeText") + "% " +
           shownIn(context, "FLFluidTypeCombo");
}

std::string flowTypeOf(const FillContext& context) {
    return shownIn(context, "PIPipeResistanceCombo(0)") + " - " +
           shownIn(context, "PIPipeResistanceCombo(1)");
}

std::string pipeSizeWithFlowOf(const FillContext& context) {
    return shownIn(context, "PIPipeDiameterCombo") + " - " +
           shownIn(context, "PIPipeResistanceCombo(0)");
}

std::string configurationOf(const FillContext& context) {
    return chosenCaption(context, "PIConfigurationOption");
}

std::string placementOf(const FillContext& context) {
    return chosenCaption(context, "PIPlacementOption");
}

std::string loopStyleOf(const FillContext& context) {
    for (const char* option : {"PISlinkyOption", "PICoilOption"})
        if (context.window.control(option).checked()) return shownIn(context, option);
    return {};
}

std::string arrangementOf(const FillContext& context) {
    return shownIn(context, "PAPatternRowsText(0)") + " x " +
           shownIn(context, "PAPatternRowsText(1)");
}

std::string longTermCoolingOf(const FillContext& context) {
    return longTermOf(context, "GetTemperaturePenalty(0)");
}

std::string longTermHeatingOf(const FillContext& context) {
    return longTermOf(context, "GetTemperaturePenalty(1)");
}

std::string manufacturerOf(const FillContext& context) {
    return context.loads == nullptr ? std::string() : activeSeriesOf(*context.loads).maker;
}

std::string seriesOf(const FillContext& context) {
    return context.loads == nullptr ? std::string() : activeSeriesOf(*context.loads).series;
}

std::string airCoolingOf(const FillContext& context) {
    if (context.loads == nullptr) return {};
    return loadTempOf(context, context.loads->conditions().inletLoadAirTemp[cooling]);
}

std::string airHeatingOf(const FillContext& context) {
    if (context.loads == nullptr) return {};
    return loadTempOf(context, context.loads->conditions().inletLoadAirTemp[heating]);
}

std::string waterCoolingOf(const FillContext& context) {
    if (context.loads == nullptr) return {};
    return loadTempOf(context, context.loads->conditions().inletLoadWaterTemp[cooling]);
}

std::string waterHeatingOf(const FillContext& context) {
    if (context.loads == nullptr) return {};
    return loadTempOf(context, context.loads->conditions().inletLoadWaterTemp[heating]);
}

std::string loadsFileOf(const FillContext& context) {
    return std::get<std::string>(context.window.values().read("workingZoneFile"));
}

std::string inputParametersContOf(const FillContext& context) {
    return context.window.text(Text::inputParameters) + context.window.text(Text::continued);
}

}  // namespace varnholt
