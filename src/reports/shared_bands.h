// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>

#include "reports/report_definition.h"

namespace varnholt {

// The bands that reports share.

/// Title, notice, logo and project block at the head of the first page.
extern const BandDefinition reportHead[2];
/// The same without the project block, for the short forms of project reports.
extern const BandDefinition shortReportHead;
/// The foot of every page: program, file, time, page number.
extern const BandDefinition pageFoot;
/// The same without the page number, for the short forms of project reports.
extern const BandDefinition shortPageFoot;

/// Whether an address of the web is that of a manufacturer who may have an edition of the program,
/// however it is written: with or without "https://", "www." and a slash behind it.
bool isMakersAddress(const std::string& address);

}  // namespace varnholt
