// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/charts/charts.h"

#include "desktop/charts/chart_view.h"

namespace varnholt {

Chart* Charts::newChart(QWidget* parent) { return new ChartView(parent); }

}  // namespace varnholt
