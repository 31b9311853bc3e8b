// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "basis/mode.h"
#include "desktop/drawings/canvas.h"
#include "forms/texts.h"

namespace varnholt {

/// Widths of the lines that tell something.
constexpr double strongPen = 2.2, thinPen = 1.2;
/// Figures at a scale, about.
constexpr int usualFigures = 5;

/// A scale from one round number to another.
struct PlotScale {
    double least = 0, most = 1, step = 1;
};

/// A scale around the values, with figures at about so many round numbers.
PlotScale scaleAround(double least, double most, int figures);

/// The place of a plot in a picture, with its upright scale.
struct Plot {
    QRectF area;
    PlotScale scale;

    double heightOf(double value) const;
};

/// A sign with its word, in the line over a plot.
struct LegendSign {
    enum class Kind { area, pair, line, thinLine, dashes, mark };

    Kind kind;
    QColor colour, wash;  ///< the border and what it holds; of a pair the two areas side by side
    QString word;
};

/// Draws the signs over a plot from left to right, in as many lines as they take, and gives their
/// height.
double drawSigns(const Canvas& canvas, const std::vector<LegendSign>& signs);

/// The plot between the legend, the figures at its left and a line of words below, with a hairline
/// at each figure.
/// @param head  height of the legend
/// @param unit  behind the greatest figure
Plot drawPlot(const Canvas& canvas, const PlotScale& scale, double head, const QString& unit = {});

/// A word below the plot, centred about the place.
void drawBelow(const Canvas& canvas, const Plot& plot, double x, const QString& word,
               bool strong = false);

/// A thin line from the top of the plot to its foot.
void drawUpright(const Canvas& canvas, const Plot& plot, double x, const QColor& colour,
                 Qt::PenStyle style);

/// A sentence in the middle of a picture that has nothing to show.
void drawEmpty(const Canvas& canvas, const QString& sentence);

/// A mode's word in a picture.
QString chartWord(Mode mode, const Texts& texts);

/// The colour of a mode's lines and text, and that of its areas.
const QColor& colourOf(const Look& look, Mode mode);
const QColor& washOf(const Look& look, Mode mode);

}  // namespace varnholt
