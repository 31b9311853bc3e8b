// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "design/what_if_pictures.h"
#include "desktop/drawings/drawing.h"
#include "desktop/drawings/plot.h"

namespace varnholt {

// The pictures of What If. Each paints the sentence of its model where that has nothing to show.

/// Bars between the lengths at the ends of each quantity, the middle case a line through all; below
/// them the same of what can be chosen.
/// @return  the rows of the bars, for who points at one
std::vector<QRectF> paintTornado(const Canvas& canvas, const TornadoPicture& picture,
                                 const Texts& texts);
/// The share of cases held as a curve that rises with the depth, with twenty dots on it, and the
/// other method's beside it.
void paintSure(const Canvas& canvas, const SurePicture& picture, const Texts& texts);
/// The land from above, what must stay free hatched, and the bores of a field.
void paintLand(const Canvas& canvas, const LandPicture& picture, const Texts& texts);
/// A point for each field, the darker the cheaper.
/// @return  their places, for who points at one
std::vector<QPointF> paintFields(const Canvas& canvas, const FieldsPicture& picture,
                                 const Texts& texts);
/// The parts of a cost in one bar, with their names over it.
void paintCost(const Canvas& canvas, const CostPicture& picture, const Texts& texts);
/// First cost, bores below and tower above, and the cost over life, against the tower's percent.
void paintTower(const Canvas& canvas, const TowerPicture& picture, const Texts& texts);

/// @param pointed  called with the bar that is pressed
Drawing* newTornadoDrawing(std::function<TornadoPicture()> source, const Texts& texts,
                           std::function<void(std::size_t)> pointed);
Drawing* newSureDrawing(std::function<SurePicture()> source, const Texts& texts);
Drawing* newLandDrawing(std::function<LandPicture()> source, const Texts& texts);
/// @param pointed  called with the field that is pressed
Drawing* newFieldsDrawing(std::function<FieldsPicture()> source, const Texts& texts,
                          std::function<void(std::size_t)> pointed);
Drawing* newCostDrawing(std::function<CostPicture()> source, const Texts& texts);
Drawing* newTowerDrawing(std::function<TowerPicture()> source, const Texts& texts);

}  // namespace varnholt
