// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "basis/units.h"
#include "design/secondOpinion/second_opinion.h"
#include "forms/texts.h"

namespace varnholt {

// What the pictures of the second opinion show, in the units shown, and the sentence that tells a
// screen reader the same. Where there is nothing to draw, `empty` says why.

constexpr std::size_t opinionMonthsOfYear = 12;
using MonthNames = std::array<std::string, opinionMonthsOfYear>;

/// The water that enters the units over the years, and in the months of one of them.
struct HistoryPicture {
    struct Range {
        double low = 0, high = 0;
        friend bool operator==(const Range&, const Range&) = default;
    };

    std::string empty;
    /// From the first on: the lowest of the heating months and the highest of the cooling months.
    /// None without a month that counts.
    std::vector<std::optional<Range>> years;
    ByMode<double> limits{};
    std::optional<std::size_t>
        year;  ///< counted from 0; its months are shown in place of the years
    /// Of that year, at the end of each month's peak; none where the month does not count.
    std::array<ByMode<std::optional<double>>, opinionMonthsOfYear> months{};
    MonthNames names;
    std::string depth, unit;  ///< the depth with its unit

    friend bool operator==(const HistoryPicture&, const HistoryPicture&) = default;
};

/// Energies and peaks of the months, on a scale each.
struct YearPicture {
    std::string empty;
    ByMode<std::array<double, opinionMonthsOfYear>> energies{}, peaks{};
    ByMode<double> shares{};  ///< of the year's energy, in each mode's greatest month
    MonthNames names;
    std::string energyUnit, peakUnit;

    friend bool operator==(const YearPicture&, const YearPicture&) = default;
};

/// The g-function of the field beside that of one bore.
struct GFunctionPicture {
    struct Time {
        double hours;
        std::string name;
        friend bool operator==(const Time&, const Time&) = default;
    };

    std::string empty;
    ShownGFunction curves;
    std::vector<Time> times;  ///< that stand at the axis
    std::string depth;        ///< with its unit

    friend bool operator==(const GFunctionPicture&, const GFunctionPicture&) = default;
};

/// What a picture is made from besides the opinion.
struct OpinionScene {
    const Texts& texts;
    UnitSystem units;
    std::string empty;           ///< why nothing can be drawn; empty where it can
    ByMode<double> limits{};     ///< design temperatures of the water, degF
    std::size_t yearsShown = 0;  ///< at most opinionMonths / 12
    std::optional<std::size_t> year{};
};

HistoryPicture historyPicture(const SecondOpinion& opinion, const OpinionScene& scene);
YearPicture yearPicture(const SecondOpinion& opinion, const OpinionScene& scene);
GFunctionPicture gFunctionPicture(const SecondOpinion& opinion, const OpinionScene& scene);

std::string describe(const HistoryPicture& history, const Texts& texts);
std::string describe(const YearPicture& year, const Texts& texts);
std::string describe(const GFunctionPicture& curves, const Texts& texts);

}  // namespace varnholt
