// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSize>
#include <functional>

#include "design/bore_drawing.h"
#include "design/circuit_plan.h"
#include "design/field_plan.h"
#include "design/ground_temp_curves.h"
#include "design/length_summary.h"
#include "design/loop_curves.h"
#include "design/trench_drawing.h"
#include "design/trench_plan.h"
#include "desktop/drawings/chart_module.h"
#include "desktop/drawings/drawing.h"
#include "desktop/drawings/fit_curves.h"
#include "desktop/drawings/link_light.h"
#include "desktop/drawings/loads_picture.h"
#include "desktop/drawings/months_picture.h"
#include "desktop/drawings/pump_curves.h"

namespace varnholt {

// The program's pictures as widgets. Each asks its source for what to draw whenever it is shown or
// refreshed. The texts must outlive the widget.

Drawing* newBoreDrawing(std::function<BoreDrawing()> source, const Texts& texts);
Drawing* newFieldDrawing(std::function<FieldPlan()> source, const Texts& texts);
/// The same in small, with a line of words for its measures.
Drawing* newSmallFieldDrawing(std::function<FieldPlan()> source, const Texts& texts);
/// The lengths as bars made of their parts.
Drawing* newLengthDrawing(std::function<LengthSummary()> source, const Texts& texts);
/// The lengths in a strip of text.
Drawing* newLengthStrip(std::function<LengthSummary()> source, const Texts& texts);
Drawing* newTrenchDrawing(std::function<TrenchDrawing()> source, const Texts& texts);
Drawing* newTrenchPlanDrawing(std::function<TrenchPlan()> source, const Texts& texts);
/// @param usual  its size where nothing else decides
Drawing* newCircuitDrawing(std::function<CircuitPlan()> source, const Texts& texts,
                           const QSize& usual);
Drawing* newGroundTempChart(std::function<GroundTempCurves()> source, const Texts& texts,
                            ChartModuleFinder charts = findChartModule);
Drawing* newLoopChart(std::function<LoopCurves()> source, const Texts& texts,
                      ChartModuleFinder charts = findChartModule);
/// A light that stands for one partner; it is lit while it is enabled.
/// @param sentence  what it says
Drawing* newLinkLight(LinkPartner partner, std::function<std::string()> sentence);
/// Small bars beside the numbers of a zone.
Drawing* newLoadsBars(std::function<LoadsChart()> source, std::function<LoadsCaptions()> captions,
                      const Texts& texts);
/// The importer's year of one mode.
Drawing* newMonthsPicture(std::function<MonthsChart()> source, const Texts& texts);
Drawing* newDayChart(std::function<LoadsChart()> source, std::function<LoadsCaptions()> captions,
                     const Texts& texts, ChartModuleFinder charts = findChartModule);
Drawing* newPumpCurves(std::function<PumpPicture()> source, const Texts& texts,
                       ChartModuleFinder charts = findChartModule);
Drawing* newFitCurves(std::function<FitCurvesPicture()> source, const Texts& texts,
                      ChartModuleFinder charts = findChartModule);

}  // namespace varnholt
