// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "desktop/drawings/canvas.h"
#include "loads/link_light.h"

namespace varnholt {

/// A lamp with the sign of the partner: lit for a link, an empty socket for none, dark glass for a
/// link with the other partner.
void paintLinkLight(const Canvas& canvas, LinkPartner partner, bool lit);

}  // namespace varnholt
