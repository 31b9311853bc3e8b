// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/drawings/canvas.h"
#include "forms/texts.h"
#include "loads/import/month_pictures.h"

namespace varnholt {

/// A year of one mode: columns of energy, marks for the peaks on a scale of their own, and the
/// peak month strong.
void paintMonths(const Canvas& canvas, const MonthsChart& year, const Texts& texts);

}  // namespace varnholt
