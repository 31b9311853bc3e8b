// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QtPlugin>
#include <functional>

#include "desktop/drawings/chart_picture.h"
#include "desktop/widgets/look.h"

class QWidget;

namespace varnholt {

/// One chart on the screen. It belongs to its widget and ends with it.
class Chart {
 public:
    virtual ~Chart() = default;
    virtual QWidget* widget() = 0;
    /// Draws the picture; what is as before stays as it is.
    virtual void draw(const ChartPicture& picture) = 0;
    /// Takes other colours, and another font for the figures.
    virtual void dress(const Look& look, const QFont& figures) = 0;
};

/// The part of the program that draws charts. It stands in a library of its own, which is loaded
/// with the first chart: the engine behind it costs every start more than all the rest.
class ChartModule {
 public:
    virtual ~ChartModule() = default;
    virtual Chart* newChart(QWidget* parent) = 0;
};

/// Finds the module; null where it is missing.
using ChartModuleFinder = std::function<ChartModule*()>;

/// The module that lies beside the program or in ../lib/varnholt/modules.
ChartModule* findChartModule();

}  // namespace varnholt

Q_DECLARE_INTERFACE(varnholt::ChartModule, "varnholt.ChartModule/1")
