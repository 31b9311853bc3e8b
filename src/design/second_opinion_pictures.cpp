// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/second_opinion_pictures.h"

#include <algorithm>
#include <cmath>

#include "basis/number_text.h"
#include "design/second_opinion_texts.h"
#include "forms/numeric_field.h"
#include "forms/quantity.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/loads.h"
#include "forms/text_numbers/second_opinion.h"

namespace varnholt {
namespace {

std::string figure(double value) { return formatNumber(value, "###0.0"); }

MonthNames monthNames(const Texts& texts) {
    MonthNames names;
    for (std::size_t month = 0; month < names.size(); ++month)
        names[month] = monthName(texts, static_cast<int>(month));
    return names;
}

std::string unitText(const OpinionScene& scene, int english, int metric) {
    return scene.texts.text(UnitTexts{english, metric}.in(scene.units));
}

std::string depthText(const SecondOpinion& opinion, const OpinionScene& scene) {
    return figure(quantities::length.shown(opinion.shownDepth, scene.units)) + " " +
           unitText(scene, Text::lengthUnitsEnglish, Text::lengthUnitsMetric);
}

/// A month and the water then.
struct Extreme {
    std::size_t month;
    double water;
};

/// The warmest water of the cooling months, or the coldest of the heating months, as they are
/// limited; of the other mode's where the mode has no month. A month in which a mode does little
/// tells less than it seems, since its temperatures go with the range of the design day.
/// @param waterOf  of a month and mode; none where the month does not count
template <class WaterOf>
std::optional<Extreme> extremeOf(Mode limited, const WaterOf& waterOf) {
    const Mode other = limited == cooling ? heating : cooling;
    for (const Mode mode : {limited, other}) {
        std::optional<Extreme> found;
        for (std::size_t month = 0; month < opinionMonthsOfYear; ++month) {
            const std::optional<double> water = waterOf(month, mode);
            if (!water) continue;
            const bool beyond =
                !found || (limited == cooling ? *water > found->water : *water < found->water);
            if (beyond) found = {month, *water};
        }
        if (found) return found;
    }
    return std::nullopt;
}

/// The range of the water over twelve months of the history.
std::optional<HistoryPicture::Range> rangeOf(const std::vector<MonthOfWater>& water,
                                             std::size_t year, UnitSystem units) {
    const auto waterOf = [&](std::size_t month, Mode mode) -> std::optional<double> {
        const std::size_t at = year * opinionMonthsOfYear + month;
        return at < water.size() ? water[at].entering[mode] : std::nullopt;
    };
    const auto high = extremeOf(cooling, waterOf), low = extremeOf(heating, waterOf);
    if (!high || !low) return std::nullopt;
    const auto shown = [units](double fahrenheit) {
        return quantities::temperature.shown(fahrenheit, units);
    };
    return HistoryPicture::Range{shown(std::min(low->water, high->water)),
                                 shown(std::max(low->water, high->water))};
}

std::string describeYear(const HistoryPicture& history, const Texts& texts) {
    const auto waterOf = [&](std::size_t month, Mode mode) { return history.months[month][mode]; };
    const auto high = extremeOf(cooling, waterOf), low = extremeOf(heating, waterOf);
    if (!high || !low) return {};
    return filledIn(texts.text(Text::opinionYearTells),
                    {std::to_string(*history.year + 1), figure(high->water), history.unit,
                     history.names[high->month], figure(low->water), history.names[low->month]});
}

/// Times that the axis names.
std::vector<GFunctionPicture::Time> namedTimes(const Texts& texts) {
    struct Row {
        double hours;
        int words;
        const char* count;
    };
    constexpr Row rows[] = {
        {1, Text::opinionSomeHours, "1"},      {24, Text::opinionSomeDays, "1"},
        {720, Text::opinionSomeDays, "30"},    {8760, Text::opinionSomeYears, "1"},
        {87600, Text::opinionSomeYears, "10"}, {438000, Text::opinionSomeYears, "50"}};
    std::vector<GFunctionPicture::Time> times;
    for (const Row& row : rows)
        times.push_back({row.hours, filledIn(texts.text(row.words), {row.count})});
    return times;
}

/// The curve between its points, straight over the logarithm of time.
double valueAt(const std::vector<double>& hours, const std::vector<double>& values, double at) {
    if (hours.empty()) return 0;
    const auto next = std::lower_bound(hours.begin(), hours.end(), at);
    if (next == hours.begin()) return values.front();
    if (next == hours.end()) return values.back();
    const auto i = static_cast<std::size_t>(next - hours.begin());
    const double share = std::log(at / hours[i - 1]) / std::log(hours[i] / hours[i - 1]);
    return values[i - 1] + share * (values[i] - values[i - 1]);
}

}  // namespace

HistoryPicture historyPicture(const SecondOpinion& opinion, const OpinionScene& scene) {
    HistoryPicture picture;
    picture.empty = scene.empty;
    picture.names = monthNames(scene.texts);
    picture.unit = unitText(scene, Text::temperatureUnitsEnglish, Text::temperatureUnitsMetric);
    picture.depth = depthText(opinion, scene);
    for (const Mode mode : modes)
        picture.limits[mode] = quantities::temperature.shown(scene.limits[mode], scene.units);
    if (!picture.empty.empty()) return picture;
    for (std::size_t year = 0; year < scene.yearsShown; ++year)
        picture.years.push_back(rangeOf(opinion.water, year, scene.units));
    if (!scene.year || *scene.year >= scene.yearsShown) return picture;
    picture.year = scene.year;
    const std::size_t first = *scene.year * opinionMonthsOfYear;
    for (std::size_t month = 0; month < opinionMonthsOfYear; ++month) {
        if (first + month >= opinion.water.size()) break;
        for (const Mode mode : modes)
            if (const auto& entering = opinion.water[first + month].entering[mode])
                picture.months[month][mode] = quantities::temperature.shown(*entering, scene.units);
    }
    return picture;
}

YearPicture yearPicture(const SecondOpinion& opinion, const OpinionScene& scene) {
    YearPicture picture;
    // The months can be shown as long as they are known, though there may be no length.
    if (opinion.reason.holds()) picture.empty = scene.empty;
    picture.names = monthNames(scene.texts);
    picture.energyUnit =
        unitText(scene, Text::opinionEnergyUnitEnglish, Text::opinionEnergyUnitMetric);
    picture.peakUnit = unitText(scene, Text::opinionPeakUnitEnglish, Text::opinionPeakUnitMetric);
    for (const Mode mode : modes)
        for (std::size_t month = 0; month < opinionMonthsOfYear; ++month) {
            const double share = opinion.monthShare[month][mode];
            const double energy = share * opinion.annualEnergy[mode];
            const double peak = opinion.monthPeak[month][mode] * opinion.designPeak[mode];
            picture.energies[mode][month] = quantities::load.shown(energy, scene.units);
            picture.peaks[mode][month] = quantities::load.shown(peak, scene.units);
            picture.shares[mode] = std::max(picture.shares[mode], share);
        }
    return picture;
}

GFunctionPicture gFunctionPicture(const SecondOpinion& opinion, const OpinionScene& scene) {
    GFunctionPicture picture;
    picture.empty = scene.empty;
    picture.depth = depthText(opinion, scene);
    if (!picture.empty.empty()) return picture;
    picture.curves = opinion.gFunction;
    picture.times = namedTimes(scene.texts);
    return picture;
}

std::string describe(const HistoryPicture& history, const Texts& texts) {
    if (!history.empty.empty()) return history.empty;
    if (history.year) return describeYear(history, texts);
    if (history.years.empty() || !history.years.front() || !history.years.back()) return {};
    const HistoryPicture::Range& first = *history.years.front();
    const HistoryPicture::Range& last = *history.years.back();
    return filledIn(texts.text(Text::opinionHistoryTells),
                    {history.depth, figure(first.low), figure(first.high), history.unit,
                     figure(last.low), figure(last.high), std::to_string(history.years.size()),
                     figure(history.limits[cooling]), figure(history.limits[heating])});
}

std::string describe(const YearPicture& year, const Texts& texts) {
    if (!year.empty.empty()) return year.empty;
    constexpr double percent = 100;
    std::string sentences;
    for (const Mode mode : modes) {
        const auto& energies = year.energies[mode];
        double sum = 0;
        for (const double energy : energies) sum += energy;
        const auto greatest = std::max_element(energies.begin(), energies.end());
        const auto month = static_cast<std::size_t>(greatest - energies.begin());
        const auto& peaks = year.peaks[mode];
        if (!sentences.empty()) sentences += ' ';
        sentences += filledIn(
            texts.text(Text::opinionMonthsTell),
            {texts.text(mode == cooling ? Text::cooling : Text::heating), figure(sum),
             year.energyUnit, year.names[month], formatNumber(percent * year.shares[mode], "###0"),
             figure(*std::max_element(peaks.begin(), peaks.end())), year.peakUnit});
    }
    return sentences;
}

std::string describe(const GFunctionPicture& picture, const Texts& texts) {
    if (!picture.empty.empty()) return picture.empty;
    constexpr double year = 8760;  // hr
    constexpr double tenYears = 10 * year, fiftyYears = 50 * year;
    const ShownGFunction& curves = picture.curves;
    const auto text = [](double g) { return formatNumber(g, "##0.00"); };
    return filledIn(texts.text(Text::opinionGTells),
                    {picture.depth, text(valueAt(curves.hours, curves.g, year)),
                     text(valueAt(curves.hours, curves.g, tenYears)),
                     text(valueAt(curves.hours, curves.g, fiftyYears)),
                     text(valueAt(curves.hours, curves.ofOneBore, fiftyYears))});
}

}  // namespace varnholt
