// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/paper/page_setup.h"

#include <algorithm>
#include <iterator>

namespace varnholt {
namespace {

// The text is as wide as the bands are designed, on A4; a punch fits at the left.
const QMarginsF margins(15, 13, 15, 12);

}  // namespace

QPageLayout PageSetup::layoutFor(const Report& report) const {
    const QPageLayout::Orientation own =
        report.landscape ? QPageLayout::Landscape : QPageLayout::Portrait;
    return {size, orientation.value_or(own), margins, QPageLayout::Millimeter};
}

void PageSetup::take(const QPageLayout& chosen) {
    if (chosen.orientation() != layoutFor(Report()).orientation())
        orientation = chosen.orientation();
    size = chosen.pageSize();
}

PageSetup usualPage(unsigned localeNumber) {
    // The countries of the Unicode consortium's list whose paper is Letter, by language and region.
    constexpr unsigned letterLocales[] = {
        0x409,  0x540A,                                          // United States
        0x1009, 0xC0C,                                           // Canada
        0x80A,  0x500A, 0x3409, 0x464,  0x340A, 0x240A, 0x200A,  // Mexico to Venezuela
        0x140A, 0x100A, 0x440A, 0x4C0A, 0x180A};                 // Central America
    const bool letter = std::find(std::begin(letterLocales), std::end(letterLocales),
                                  localeNumber) != std::end(letterLocales);
    return {QPageSize(letter ? QPageSize::Letter : QPageSize::A4)};
}

}  // namespace varnholt
