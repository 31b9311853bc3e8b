// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFont>
#include <QString>

namespace varnholt {

/// The name under which tabularFaces() registers the sister of a family.
QString tabularFamily(const QString& family);

/// Registers a sister of each of a font's families, in the weights that the windows use: the same
/// face, whose digits are its own digits of one width (the OpenType feature "tnum"), so that
/// columns of figures align in the face of the labels. A widget's font has no such switch before
/// version 6.7 of the toolkit.
///
/// A family that the machine has not, that has no such digits, or whose weights stand in one
/// variable file, gets no sister. The sisters live in memory for as long as the program runs.
void registerTabularFaces(const QFont& font);

}  // namespace varnholt
