// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace varnholt {

class ReportShelf;
class Varnmain;

/// Registers the print commands of the main window. The shelf must outlive it.
void installReports(Varnmain& main, ReportShelf& shelf);

}  // namespace varnholt
