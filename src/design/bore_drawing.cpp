// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/bore_drawing.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace varnholt {
namespace {

/// Distance of the legs' middles from the bore's, in.
double circleRadius(double bore, double outside, double placement, double closest) {
    const double atWall = (bore - outside) / 2;
    if (placement == 2 || atWall <= closest) return closest;
    if (placement == 0) return atWall;
    const double gap = (bore - 2 * outside) / 3;
    return std::clamp((gap + outside) / 2, closest, atWall);
}

}  // namespace

BoreDrawing drawBore(const BoreValues& bore, const PipeValues& pipe) {
    const double outside = std::max(0.0, pipe.pipeDiameter[0]);
    const double inside = std::clamp(pipe.pipeDiameter[1], 0.0, outside);
    const int legs = bore.uTubeConfig == 1 ? 4 : 2;
    // Neighbours on the circle touch each other at this radius.
    const double closest = outside / (2 * std::sin(std::numbers::pi / legs));
    const double radius = circleRadius(bore.boreDiameter, outside, bore.pipePlacement, closest);

    BoreDrawing drawing;
    drawing.boreDiameter = std::max(0.0, bore.boreDiameter);
    drawing.fits = 2 * closest + outside <= bore.boreDiameter;
    for (int leg = 0; leg < legs; ++leg) {
        const double angle = 2 * std::numbers::pi * leg / legs;
        drawing.pipes.push_back(
            {radius * std::cos(angle), radius * std::sin(angle), outside, inside});
    }
    return drawing;
}

}  // namespace varnholt
