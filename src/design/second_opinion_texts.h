// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <string>

#include "basis/units.h"
#include "design/secondOpinion/second_opinion.h"
#include "forms/texts.h"

namespace varnholt {

// What the second opinion tells in words, in the units shown. A figure that cannot be had is "-".

/// Numbers of the texts of the parts of the difference, by LengthPart.
extern const std::array<int, 3> lengthPartTexts;

/// "July", for month 6 counted from 0; any number of months before or after counts on.
std::string monthName(const Texts& texts, int month);
/// "July of year 20", for the month counted from 1 of the first year on; "-" for 0.
std::string monthOfYearText(const Texts& texts, int month);

/// Length of a mode, one of the opinion's, as "###0.0".
std::string lengthOrDash(const ByMode<double>& lengths, const SecondOpinion& opinion, Mode mode,
                         UnitSystem units);
/// "+26.8", percent of the classical length; "-" where one of the two is missing.
std::string differenceOrDash(const SecondOpinion& opinion, Mode mode);
/// "+120.4": a part of the difference, a length.
std::string partOrDash(const SecondOpinion& opinion, Mode mode, std::size_t part, UnitSystem units);
/// How far the methods differ in a mode that has both figures, and mostly by what.
std::string differenceText(const Texts& texts, const SecondOpinion& opinion, Mode mode,
                           UnitSystem units);

/// What the figures rest on, in sentences; empty where there are none.
std::string opinionNote(const Texts& texts, const SecondOpinion& opinion);
/// Why figures are missing, in sentences; empty where none is.
/// @param groundTemp  degF
std::string opinionMessage(const Texts& texts, const SecondOpinion& opinion, double groundTemp,
                           UnitSystem units);
/// Why nothing can be drawn; empty where it can.
std::string shownMessage(const Texts& texts, const SecondOpinion& opinion, double groundTemp,
                         UnitSystem units);

}  // namespace varnholt
