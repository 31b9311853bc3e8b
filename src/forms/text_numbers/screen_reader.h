// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The names of the texts in resources/language/english/3800_screen_reader.txt.
namespace varnholt::Text {

// What only a screen reader tells.
constexpr int moreOfNumber = 3800;
constexpr int lessOfNumber = 3801;
constexpr int emptySearch = 3802;
constexpr int linkedWithDesign = 3803;
constexpr int notLinkedWithZoneManager = 3804;
constexpr int notLinkedWithAverageBlock = 3805;
constexpr int clearPumpTold = 3806;
constexpr int gainsByBlock = 3810;
constexpr int lossesByBlock = 3811;

}  // namespace varnholt::Text
