// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The names of the texts in resources/language/english/1087_browser.txt.
namespace varnholt::Text {

// The browser window.
constexpr int browserTitle = 1087;
constexpr int browserAddress = 1088;
constexpr int browserWorking = 1089;
constexpr int browserBack = 1090;
constexpr int browserForward = 1091;
constexpr int browserRefresh = 1092;
constexpr int browserHome = 1093;
constexpr int browserSearch = 1094;
constexpr int browserStop = 1095;
constexpr int browserErrorTitle = 1096;
constexpr int browserErrorText = 1097;

}  // namespace varnholt::Text
