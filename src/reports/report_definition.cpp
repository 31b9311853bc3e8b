// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/report_definition.h"

#include <cctype>

#include "basis/date.h"
#include "forms/text_numbers/reports.h"

namespace varnholt {
namespace {

struct TextOf {
    const FillContext& context;

    std::string operator()(const Words& words) const {
        const int number = context.metric ? words.metric : words.english;
        return number == 0 ? std::string() : context.window.text(number) + words.behind;
    }
    std::string operator()(const ShownIn& from) const {
        const std::string value = shownText(context.window, from.control);
        return from.units == nullptr ? value : value + " " + shownText(context.window, from.units);
    }
    std::string operator()(const OfProject& member) const {
        if (member.text != nullptr) return context.project.*member.text;
        return isoText(context.project.*member.date);
    }
    std::string operator()(const Bound& bound) const {
        const FieldValues* row = bound.table == ReportTable::zones ? context.zone : context.pump;
        return row == nullptr ? std::string() : printedText((*row)[bound.field]);
    }
    std::string operator()(const Computed& rule) const { return rule.text(context); }
};

/// Whether the load side of the pump at hand is water.
bool isWaterPump(const FillContext& context) {
    constexpr std::size_t type = fieldNamed(pumpFields, "PumpType");
    return context.pump != nullptr &&
           printedText((*context.pump)[type]) == context.window.text(Text::reportWaterToWater);
}

bool isFigure(char c) { return std::isdigit(static_cast<unsigned char>(c)) != 0; }

}  // namespace

std::string shownText(const Form& window, const std::string& control) {
    const Control& shown = window.control(control);
    switch (shown.kind()) {
        case ControlKind::text:
        case ControlKind::richText:
        case ControlKind::combo:
            return shown.text();
        case ControlKind::date:
            return isoText(shown.date());
        default:
            return shown.caption();
    }
}

std::string textOf(const Source& source, const FillContext& context) {
    return std::visit(TextOf{context}, source);
}

bool isPrinted(Printed printed, const FillContext& context) {
    switch (printed) {
        case Printed::always:
            return true;
        case Printed::withDays:
            return context.days;
        case Printed::withoutDays:
            return !context.days;
        case Printed::ofAirPump:
            return !isWaterPump(context);
        case Printed::ofWaterPump:
            return isWaterPump(context);
        case Printed::withTower:
            return context.tower;
        case Printed::inDetail:
            return context.detailed;
        case Printed::withNotice:
            return !context.notice.empty();
        case Printed::withLogo:
            return !context.maker.empty();
    }
    return true;
}

std::size_t unitPlace(const std::string& text) {
    const std::size_t blank = text.find(' ');
    if (blank == std::string::npos || blank == 0 || blank + 1 == text.size()) return 0;
    const std::size_t sign = text[0] == '-' || text[0] == '+' ? 1 : 0;
    if (!isFigure(text[sign])) return 0;
    for (std::size_t i = sign; i < blank; ++i)
        if (!isFigure(text[i]) && text[i] != '.') return 0;
    // "3 x 4" is a count by a count, 1 1/2" a size.
    return text[blank + 1] == 'x' || isFigure(text[blank + 1]) ? 0 : blank + 1;
}

ReportBand fillBand(const BandDefinition& definition, const FillContext& context) {
    ReportBand band{definition.section, definition.columns, {}, 0};
    int row = -1;
    for (const ItemDefinition& item : definition.items) {
        if (!isPrinted(item.printed, context)) continue;
        if (item.row != row || band.rows.empty()) band.rows.emplace_back();
        row = item.row;
        ReportItem filled{.control = item.control,
                          .text = textOf(item.source, context),
                          .style = item.style,
                          .tint = item.tint,
                          .first = static_cast<std::uint8_t>(item.first),
                          .span = static_cast<std::uint8_t>(item.span),
                          .length = item.length};
        band.rows.back().items.push_back(std::move(filled));
    }
    return band;
}

}  // namespace varnholt
