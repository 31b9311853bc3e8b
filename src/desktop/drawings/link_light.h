// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/drawings/canvas.h"
#include "forms/texts.h"

namespace varnholt {

/// What a design or a loads window is linked with.
enum class LinkLight { none, zones, block };

/// A lamp with the sign of the partner: lit for a link, an empty socket for none.
void paintLinkLight(const Canvas& canvas, LinkLight light);

/// What the light says, for a screen reader and as its hint.
QString describeLinkLight(LinkLight light, const Texts& texts);

}  // namespace varnholt
