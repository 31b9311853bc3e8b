// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "forms/texts.h"
#include "loads/shared_zones.h"

namespace varnholt {

// The tables that the zone reports are bound to, by the names of their fields.

enum class ReportTable : std::uint8_t { zones, pumps };
enum class FieldType : std::uint8_t { integer, number, text };

struct ReportField {
    const char* name;
    FieldType type;
};

inline constexpr const char* projectTable = "Project Table";
inline constexpr const char* zoneTable = "Zone Table";
inline constexpr const char* pumpTable = "Pump Table";

/// One row a zone.
inline constexpr std::array zoneFields{
    ReportField{"Project ID", FieldType::integer},
    ReportField{"Zone ID", FieldType::integer},
    ReportField{"Title", FieldType::text},
    ReportField{"Name", FieldType::text},
    ReportField{"Cooling Hours", FieldType::number},
    ReportField{"Heating Hours", FieldType::number},
    ReportField{"Days per Week", FieldType::number},
};

/// One row a zone as well, since a zone has one pump.
inline constexpr std::array pumpFields{
    ReportField{"Project ID", FieldType::integer}, ReportField{"Zone ID", FieldType::integer},
    ReportField{"Pump ID", FieldType::integer},    ReportField{"Name", FieldType::text},
    ReportField{"Manufacturer", FieldType::text},  ReportField{"Series", FieldType::text},
    ReportField{"PumpType", FieldType::text},      ReportField{"PumpTypeLabel", FieldType::text},
    ReportField{"UnitNumber", FieldType::integer}, ReportField{"Watts Cool", FieldType::text},
    ReportField{"Watts Heat", FieldType::text},    ReportField{"PLF Cool", FieldType::text},
    ReportField{"PLF Heat", FieldType::text},      ReportField{"COP Cool", FieldType::text},
    ReportField{"COP Heat", FieldType::text},      ReportField{"Loads 0 Cool", FieldType::text},
    ReportField{"Loads 1 Cool", FieldType::text},  ReportField{"Loads 2 Cool", FieldType::text},
    ReportField{"Loads 3 Cool", FieldType::text},  ReportField{"Loads 0 Heat", FieldType::text},
    ReportField{"Loads 1 Heat", FieldType::text},  ReportField{"Loads 2 Heat", FieldType::text},
    ReportField{"Loads 3 Heat", FieldType::text},  ReportField{"Capacity Cool", FieldType::text},
    ReportField{"Capacity Heat", FieldType::text}, ReportField{"FlowRate Cool", FieldType::text},
    ReportField{"FlowRate Heat", FieldType::text}, ReportField{"LoadTemp Cool", FieldType::text},
    ReportField{"LoadTemp Heat", FieldType::text}, ReportField{"NominalFlow", FieldType::text},
    ReportField{"LoadFlow Cool", FieldType::text}, ReportField{"LoadFlow Heat", FieldType::text},
};

/// The place of a field; a table that lacks it does not compile.
consteval std::size_t fieldNamed(std::span<const ReportField> fields, std::string_view name) {
    for (std::size_t i = 0; i < fields.size(); ++i)
        if (fields[i].name == name) return i;
    throw "the table has no such field";
}

/// A value of a field; none in a new row that nothing has been written to.
using FieldValue = std::variant<std::monostate, std::int64_t, double, std::string>;
using FieldValues = std::vector<FieldValue>;

/// What a report prints of a value: nothing of an empty one.
std::string printedText(const FieldValue& value);

/// A row of the zone table with its child rows of the pump table.
struct ZoneRow {
    FieldValues zone;
    std::vector<FieldValues> pumps;

    friend bool operator==(const ZoneRow&, const ZoneRow&) = default;
};

/// The rows of a list of zones: numbers as the screen shows them, in the units shown, so that a
/// report prints exactly that. A list without zones has one row with empty fields.
/// @param names  the entry of the list for each zone
std::vector<ZoneRow> zoneRows(const SharedZones& zones, const std::vector<std::string>& names,
                              bool metric, const Texts& texts);

}  // namespace varnholt
