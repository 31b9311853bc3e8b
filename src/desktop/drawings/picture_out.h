// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>

namespace varnholt {

class Drawing;

/// The drawing as it is on show, on the ground that it stands on.
/// @param scale  pixels of the picture to one of the screen
QImage imageOf(Drawing& drawing, double scale);

/// Writes the drawing as the path's ending says: .svg and .pdf by lines and letters, .png by
/// pixels. False when it cannot be written, or for another ending.
bool writePicture(Drawing& drawing, const QString& path);

}  // namespace varnholt
