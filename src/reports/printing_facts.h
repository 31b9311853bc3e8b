// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "basis/date.h"
#include "forms/texts.h"
#include "reports/report_definition.h"

namespace varnholt {

/// What a report tells of the moment of its printing.
struct PrintingFacts {
    Date today;
    std::string time{};      ///< "14:03"; empty where the day was given from outside
    bool withFolder = true;  ///< file names with their folders
};

/// "2026-01-15 14:03"
std::string printedAt(const PrintingFacts& facts);
/// The file as the foot of the page tells it.
std::string shownFile(const std::string& folder, const std::string& name,
                      const PrintingFacts& facts);

/// Fills in what all reports take from the language: font, logo, version, words of later pages.
void takeFromLanguage(Report& report, FillContext& context);

}  // namespace varnholt
