// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QString>

namespace varnholt {

/// A drawn picture of the program as an icon, by its file's name without extension
/// ("new-borehole"). It is drawn at the size and resolution that is asked for, in the colours of
/// the scheme at that moment. Icons are line drawings of one weight; the file's colours are names
/// of a role: #000000 ink, #0000ff cooling, #ff0000 heating, #00ff00 accent, #808080 muted, #ffffff
/// surface.
QIcon houseIcon(const QString& name);

/// The program's own icon, in its own colours.
QIcon applicationIcon();

}  // namespace varnholt
