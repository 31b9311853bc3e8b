// SPDX-License-Identifier: GPL-3.0-or-later
#include "reports/csv_report.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <vector>

namespace varnholt {
namespace {

using Line = std::vector<std::string>;

bool isWholeNumber(std::string_view text) {
    if (text.starts_with('+')) text.remove_prefix(1);
    double number = 0;
    const auto [end, error] =
        std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    return error == std::errc() && end == text.data() + text.size();
}

bool looksLikeFormula(const std::string& text) {
    return !text.empty() && std::string_view("=+-@\t\r").find(text[0]) != std::string_view::npos &&
           !isWholeNumber(text);
}

void append(std::string& file, const Line& line) {
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (i > 0) file += ',';
        file += csvField(line[i]);
    }
    file += "\r\n";
}

/// The columns of a table of zones: a field each.
class FieldColumns {
 public:
    explicit FieldColumns(const Report& report) : names_(report.fields) {
        for (std::size_t i = 0; i < names_.size(); ++i) places_.emplace(names_[i], i);
    }
    const Line& names() const { return names_; }
    void write(const ReportBand& band, Line& line) const {
        for (const ReportRow& row : band.rows)
            for (const ReportItem& item : row.items)
                if (isField(item.style)) line[places_.at(item.control)] = item.text;
    }

 private:
    Line names_;
    std::map<std::string, std::size_t> places_;
};

/// A zone's own fields stand before those of each of its pumps.
std::string csvOfZones(const Report& report) {
    const FieldColumns columns(report);
    std::string file;
    append(file, columns.names());
    std::size_t zone = 0;
    Line line, ofZone;
    bool written = true;
    const auto finish = [&] {
        if (!written) append(file, ofZone);
        written = true;
    };
    for (const ReportBand& band : report.bands) {
        if (band.zone == 0) continue;
        if (band.zone != zone) {
            finish();
            zone = band.zone;
            ofZone.assign(columns.names().size(), {});
            written = false;
        }
        if (band.section == ReportSection::Zones_Header) columns.write(band, ofZone);
        if (band.section != ReportSection::Pumps_Detail) continue;
        line = ofZone;
        columns.write(band, line);
        append(file, line);
        written = true;
    }
    finish();
    return file;
}

}  // namespace

std::string csvField(const std::string& text) {
    const std::string safe = looksLikeFormula(text) ? "'" + text : text;
    if (safe.find_first_of(",\"\r\n") == std::string::npos) return safe;
    std::string quoted = "\"";
    for (const char c : safe) quoted += c == '"' ? "\"\"" : std::string(1, c);
    return quoted + '"';
}

std::string csvOf(const Report& report) {
    if (!report.zones.empty()) return csvOfZones(report);
    std::string file;
    append(file, {"Section", "Label", "Text"});
    for (const ReportEntry& entry : entriesOf(report))
        append(file, {entry.section, entry.control, entry.text});
    return file;
}

}  // namespace varnholt
