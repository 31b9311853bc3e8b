// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/drawings/canvas.h"
#include "forms/texts.h"

namespace varnholt {

/// What a design or a loads window is linked with.
enum class LinkPartner { none, zones, block };

/// A lamp with the sign of the partner: lit for a link, an empty socket for none, dark glass for a
/// link with the other partner.
void paintLinkLight(const Canvas& canvas, LinkPartner partner, bool lit);

/// What the light says, for a screen reader and as its hint.
QString describeLinkLight(LinkPartner partner, const Texts& texts);

}  // namespace varnholt
