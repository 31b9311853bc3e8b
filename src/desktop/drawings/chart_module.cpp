// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/drawings/chart_module.h"

#include "desktop/widgets/modules.h"

namespace varnholt {

ChartModule* findChartModule() { return findModule<ChartModule>("varnholt_charts"); }

}  // namespace varnholt
