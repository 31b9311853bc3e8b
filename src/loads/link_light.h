// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <optional>
#include <string>

#include "forms/texts.h"

namespace varnholt {

/// What a design or a loads window is linked with.
enum class LinkPartner { none, zones, block };

/// The partner that an element of `imgLinkLight` stands for: 0 the zones, 8 the block, 6 none.
/// Nothing for another image.
std::optional<LinkPartner> linkLightOf(const std::string& image);

/// What a light of a design says.
std::string describeLinkLight(LinkPartner partner, bool lit, const Texts& texts);

}  // namespace varnholt
