// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/report.h"

#include <array>
#include <string_view>

namespace varnholt {
namespace {

void replaceAll(std::string& text, std::string_view place, const std::string& value) {
    for (std::size_t at = text.find(place); at != std::string::npos;
         at = text.find(place, at + value.size()))
        text.replace(at, place.size(), value);
}

}  // namespace

const char* nameOf(ReportSection section) {
    constexpr std::array<const char*, reportSections> names{
        "ReportHeader", "PageHeader",       "ProjectID_Header", "Zones_Header", "Pumps_Detail",
        "Zones_Footer", "ProjectID_Footer", "PageFooter",       "ReportFooter"};
    return names[static_cast<std::size_t>(section)];
}

std::string withPages(const std::string& text, std::size_t page, std::size_t pages) {
    std::string filled = text;
    replaceAll(filled, "%p", std::to_string(page));
    replaceAll(filled, "%P", std::to_string(pages));
    return filled;
}

bool isText(ItemStyle style) { return style != ItemStyle::rule && style != ItemStyle::drawing; }

bool isField(ItemStyle style) {
    return style == ItemStyle::value || style == ItemStyle::figure || style == ItemStyle::zone;
}

std::vector<ReportEntry> entriesOf(const Report& report) {
    std::vector<ReportEntry> entries;
    for (const ReportBand& band : report.bands)
        for (const ReportRow& row : band.rows)
            for (const ReportItem& item : row.items) {
                if (!isText(item.style)) continue;
                const bool paged = item.text == pageNumberText;
                entries.push_back({nameOf(band.section), item.control,
                                   paged ? withPages(item.text, 1, 1) : item.text});
            }
    return entries;
}

}  // namespace varnholt
