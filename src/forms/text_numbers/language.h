// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// The names of the texts in resources/language/english/1100_language.txt.
namespace varnholt::Text {

// The language itself.
constexpr int tablesFolder = 1100;
constexpr int languageFont = 1101;
constexpr int tablesLanguageFolder = 1102;
constexpr int reportFont = 1103;

}  // namespace varnholt::Text
