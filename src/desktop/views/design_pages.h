// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "desktop/widgets/field_row.h"
#include "desktop/widgets/layout.h"

class QWidget;

namespace varnholt {

class Binder;
class Drawing;

// Pages and panels that the windows of several kinds of design share.

using FieldRows = std::vector<FieldRow>;

/// The window around a design's pages: unit switch, lights of the link and notice above them, below
/// them the lengths and the command that calculates them.
QWidget* designWindow(Binder& bind, QWidget* pages);

/// The page of the results: the length that the design is made for, its table, where the lengths
/// come from, and what stands beside that in the kind's own window.
/// @param table  parts of the table, which hairlines divide
QWidget* resultsPageOf(Binder& bind, const std::vector<FieldRows>& table,
                       const std::vector<Piece>& beside);
/// A plan of what is to be laid, in small.
QWidget* smallPlan(Binder& bind, Drawing* plan);
/// Parts of that table which every kind of design has.
FieldRows unitTemperatures(Binder& bind);
FieldRows systemPerformance(Binder& bind);

/// The share of a cooling tower and the sizes that follow from it.
QWidget* towerPanel(Binder& bind);

QWidget* fluidPage(Binder& bind);
/// Ground whose temperature is the same at every depth.
QWidget* soilPage(Binder& bind);
/// Panels of that page.
QWidget* groundTempPanel(Binder& bind);
QWidget* soilPropertiesPanel(Binder& bind);
/// Swing and extreme days of a ground whose temperature follows the year, and what comes of them.
QWidget* groundSwingPanel(Binder& bind, const FieldRows& results = {});
/// Size and thermal resistance of the pipe.
QWidget* pipePanel(Binder& bind);
/// Circulation pump, additional power, and the fan and pump of a cooling tower where the kind has
/// one.
QWidget* extraPowerPage(Binder& bind);
/// Who designs what for whom, and remarks.
QWidget* informationPage(Binder& bind);

}  // namespace varnholt
