// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/link_light.h"
#include "forms/text_numbers/pictures.h"
#include "forms/text_numbers/screen_reader.h"

namespace varnholt {

std::optional<LinkPartner> linkLightOf(const std::string& image) {
    if (image == "imgLinkLight(0)") return LinkPartner::zones;
    if (image == "imgLinkLight(8)") return LinkPartner::block;
    if (image == "imgLinkLight(6)") return LinkPartner::none;
    return std::nullopt;
}

std::string describeLinkLight(LinkPartner partner, bool lit, const Texts& texts) {
    switch (partner) {
        case LinkPartner::zones:
            return texts.text(lit ? Text::linkedWithZoneManager : Text::notLinkedWithZoneManager);
        case LinkPartner::block:
            return texts.text(lit ? Text::linkedWithAverageBlock : Text::notLinkedWithAverageBlock);
        case LinkPartner::none:
            break;
    }
    return texts.text(Text::notLinked);
}

}  // namespace varnholt
