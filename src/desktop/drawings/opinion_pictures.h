// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <optional>

#include "design/second_opinion_pictures.h"
#include "desktop/drawings/drawing.h"
#include "desktop/drawings/plot.h"

namespace varnholt {

// The pictures of the second opinion. Each paints the sentence of its model where that has nothing
// to show.

/// The water over the years as a band between each year's extremes, or over the months of one; the
/// limits as dashed lines.
/// @return  where the years stand, for who points at one
QRectF paintHistory(const Canvas& canvas, const HistoryPicture& history, const Texts& texts);
/// Columns of energy and marks of peaks, both modes side by side.
void paintYear(const Canvas& canvas, const YearPicture& year, const Texts& texts);
/// Both g-functions over the logarithm of time.
void paintGFunction(const Canvas& canvas, const GFunctionPicture& picture, const Texts& texts);

/// The year of the picture that stands at that place; none outside, and where months are shown.
std::optional<std::size_t> yearAt(const HistoryPicture& history, const QRectF& plot,
                                  const QPointF& place);

/// @param pointed  called with the year that is pressed, from 0; with none where months are shown
Drawing* newHistoryDrawing(std::function<HistoryPicture()> source, const Texts& texts,
                           std::function<void(std::optional<std::size_t>)> pointed);
Drawing* newYearDrawing(std::function<YearPicture()> source, const Texts& texts);
Drawing* newGFunctionDrawing(std::function<GFunctionPicture()> source, const Texts& texts);

}  // namespace varnholt
