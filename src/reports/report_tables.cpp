// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/report_tables.h"

#include "basis/number_text.h"
#include "basis/units.h"
#include "forms/quantity.h"
#include "forms/text_numbers/loads.h"
#include "forms/text_numbers/reports.h"

namespace varnholt {
namespace {

constexpr std::int64_t onlyProject = 1;

/// A text that a report is bound to must not be empty.
std::string neverEmpty(const std::string& text) { return text.empty() ? std::string(" ") : text; }

/// The fields of a pump's row, in the order of the table.
class PumpRow {
 public:
    PumpRow(const Zone& zone, std::int64_t id, bool metric, const Texts& texts)
        : zone_(zone), pump_(zone.pump), metric_(metric), texts_(texts) {
        row_.reserve(pumpFields.size());
        for (const std::int64_t key : {onlyProject, id, id}) row_.emplace_back(key);
        addNames();
        row_.emplace_back(std::int64_t{pump_.number});
        addEfficiency();
        for (const Mode mode : modes)
            for (std::size_t block = 0; block < timeBlocks; ++block)
                add(quantities::load, zone_.gains[block][mode], "###0.0");
        addBoth(quantities::load, pump_.capacity, "###0.0");
        addBoth(quantities::waterFlow, pump_.flowRate, "###0.0");
        addBoth(quantities::temperature, pump_.elt, "###0.0");
        add(loadFlow(), pump_.nominalFlow, "###0");
        addBoth(loadFlow(), pump_.elf, ofWater() ? "###0.0" : "###0");
    }
    FieldValues take() { return std::move(row_); }

 private:
    bool ofWater() const { return pump_.pumpType != 0; }
    bool isCustom() const { return pump_.customPump == 1; }
    const Quantity& loadFlow() const {
        return ofWater() ? quantities::waterFlow : quantities::airFlow;
    }

    /// A custom pump has neither maker nor series.
    void addNames() {
        row_.emplace_back(neverEmpty(pump_.name));
        row_.emplace_back(isCustom() ? std::string(" ") : neverEmpty(pump_.mfgName));
        row_.emplace_back(isCustom() ? std::string(" ") : neverEmpty(pump_.seriesName));
        const std::string type =
            texts_.text(ofWater() ? Text::reportWaterToWater : Text::reportWaterToAir);
        row_.emplace_back(type);
        row_.emplace_back(isCustom() ? texts_.text(Text::customPump) : type);
    }

    /// The cooling figure is an energy efficiency ratio where the units are English.
    void addEfficiency() {
        addBoth(quantities::plain, pump_.watts, "###0.00");
        addBoth(quantities::plain, pump_.plf, "###0.00");
        const double ratio = metric_ ? 1 : mbtuPerKilowatt;
        add(quantities::plain, pump_.efficiency[cooling] * ratio, "###0.0");
        add(quantities::plain, pump_.efficiency[heating], "###0.0");
    }

    void addBoth(const Quantity& quantity, const ByMode<double>& stored, const char* format) {
        for (const Mode mode : modes) add(quantity, stored[mode], format);
    }
    void add(const Quantity& quantity, double stored, const char* format) {
        const UnitSystem units = metric_ ? UnitSystem::metric : UnitSystem::english;
        row_.emplace_back(formatNumber(quantity.shown(stored, units), format));
    }

    const Zone& zone_;
    const MiniPump& pump_;
    bool metric_;
    const Texts& texts_;
    FieldValues row_;
};

FieldValues zoneValues(const Zone& zone, std::int64_t id, const std::string& name) {
    return {onlyProject,
            id,
            neverEmpty(zone.title),
            name,
            double{static_cast<double>(zone.hours[cooling])},
            double{static_cast<double>(zone.hours[heating])},
            zone.days};
}

/// The row that stands where no zone has been written: it belongs to the project and is empty.
ZoneRow emptyRow() {
    ZoneRow row{FieldValues(zoneFields.size()), {}};
    row.zone[fieldNamed(zoneFields, "Project ID")] = onlyProject;
    return row;
}

}  // namespace

std::string printedText(const FieldValue& value) {
    if (const auto* text = std::get_if<std::string>(&value)) return *text;
    if (const auto* number = std::get_if<double>(&value)) return shortestText(*number);
    if (const auto* whole = std::get_if<std::int64_t>(&value)) return std::to_string(*whole);
    return {};
}

std::vector<ZoneRow> zoneRows(const SharedZones& zones, const std::vector<std::string>& names,
                              bool metric, const Texts& texts) {
    if (names.empty()) return {emptyRow()};
    std::vector<ZoneRow> rows;
    rows.reserve(names.size());
    for (std::size_t i = 0; i < names.size(); ++i) {
        const auto id = static_cast<std::int64_t>(i + 1);
        rows.push_back(
            {zoneValues(zones[i], id, names[i]), {PumpRow(zones[i], id, metric, texts).take()}});
    }
    return rows;
}

}  // namespace varnholt
