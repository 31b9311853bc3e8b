// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include "desktop/drawings/chart_module.h"

namespace varnholt {

/// What the program finds when it loads the library of charts.
class Charts : public QObject, public ChartModule {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "varnholt.ChartModule/1")
    Q_INTERFACES(varnholt::ChartModule)

 public:
    Chart* newChart(QWidget* parent) override;
};

}  // namespace varnholt
