// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

namespace varnholt {

/// The colours of one scheme, light or dark. Cooling is blue and heating red in every field,
/// result, chart and drawing.
struct Look {
    bool dark;
    QColor window;    ///< behind everything
    QColor surface;   ///< groups, panels
    QColor field;     ///< what can be typed into
    QColor line;      ///< edges of fields and buttons
    QColor hairline;  ///< edges of groups, grid lines of charts
    QColor ink;       ///< text and figures
    QColor muted;     ///< units, hints
    QColor disabled;  ///< text that cannot be worked
    QColor accent;    ///< focus, selection, links
    QColor onAccent;
    QColor cooling, coolingWash;  ///< lines and text; areas
    QColor heating, heatingWash;
    QColor stale, onStale;       ///< results older than their inputs
    QColor alarm;                ///< refused values, errors
    QColor on;                   ///< a live link
    QColor pipe, grout, ground;  ///< drawings of bore and trench
};

/// The scheme that goes with a palette: told by how light its window colour is.
const Look& lookOf(const QPalette& palette);
const Look& lightLook();
const Look& darkLook();

/// How a colour number of the forms is shown. The numbers are meanings: in the light scheme they
/// stand as they are, in the dark one by an equivalent with enough contrast.
QColor textColour(int number, const Look& look);
QColor backColour(int number, const Look& look);

/// Ratio of the luminances of two colours, 1 to 21 (Web Content Accessibility Guidelines 2.1).
double contrast(const QColor& a, const QColor& b);

/// The font of figures: the face around with digits of one width, so that columns align, where
/// registerTabularFaces() found such digits; else a condensed face whose digits are so. A font of
/// figures stays what it is.
QFont figureFont(const QFont& around);
/// The font of lists whose columns are made of blanks.
QFont fixedPitchFont(const QFont& around);

/// The grid on which everything stands, in device-independent pixels.
constexpr int gridStep = 8;

}  // namespace varnholt
