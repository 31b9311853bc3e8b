// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <variant>

#include "forms/form.h"
#include "frame/project_information.h"
#include "reports/report.h"
#include "reports/report_tables.h"

namespace varnholt {

// What a report is made of, as data: bands, rows and controls by name, and the way from a control's
// name to its text.

struct FillContext;
class LoadsWindow;

/// Texts of the language: one that holds in both systems, or one for each.
struct Words {
    int english = 0, metric = 0;
    const char* behind = "";  ///< stands behind the language's text
};
/// What a control of the calling window shows: its text, or the caption of one that has no text.
struct ShownIn {
    const char* control;
    const char* units = nullptr;  ///< the label whose caption follows behind a blank
};
/// A member of the calling window's project information.
struct OfProject {
    SharedText ProjectInformation::*text = nullptr;
    Date ProjectInformation::*date = nullptr;
};
/// A field of the row at hand of the zone table or of the pump table.
struct Bound {
    ReportTable table;
    std::size_t field;
};
/// A text that a rule of its own makes.
struct Computed {
    std::string (*text)(const FillContext& context);
};

using Source = std::variant<Words, ShownIn, OfProject, Bound, Computed>;

constexpr Source words(int text) { return Words{text, text}; }
constexpr Source words(int metric, int english) { return Words{english, metric}; }
constexpr Source shown(const char* control, const char* units = nullptr) {
    return ShownIn{control, units};
}
constexpr Source project(SharedText ProjectInformation::*text) { return OfProject{text, nullptr}; }
constexpr Source project(Date ProjectInformation::*date) { return OfProject{nullptr, date}; }
constexpr Source computed(std::string (*text)(const FillContext&)) { return Computed{text}; }
/// A field by its name; a name that the table lacks does not compile.
consteval Source zoneField(const char* name) {
    return Bound{ReportTable::zones, fieldNamed(zoneFields, name)};
}
consteval Source pumpField(const char* name) {
    return Bound{ReportTable::pumps, fieldNamed(pumpFields, name)};
}
/// Nothing at all: rules and drawings.
constexpr Source nothing() { return Words{}; }

/// Under what condition a control is printed.
enum class Printed : std::uint8_t {
    always,
    withDays,     ///< the calling window shows the days per week
    withoutDays,  ///< it does not
    ofAirPump,    ///< the pump at hand heats and cools air
    ofWaterPump,  ///< it heats and cools water
    withTower,    ///< a cooling tower takes a part of the load
    inDetail,     ///< the report is the detailed form
    withNotice,   ///< there is something that the reader must know
    withLogo,     ///< the edition of the maker has one
};

/// One control of a band.
struct ItemDefinition {
    int row;
    int first, span;  ///< columns
    const char* control;
    ItemStyle style;
    Source source;
    Tint tint = Tint::none;
    Printed printed = Printed::always;
    double length = 0;  ///< of a rule
};

struct BandDefinition {
    ReportSection section;
    std::span<const double> columns;
    std::span<const ItemDefinition> items;
};

/// What the texts of a report are taken from.
struct FillContext {
    const Form& window;
    const ProjectInformation& project;
    bool metric = false;
    bool days = true;  ///< the window shows the days per week
    bool tower = false;
    bool detailed = false;
    std::string title{};    ///< of the report
    std::string notice{};   ///< empty for none
    std::string maker{};    ///< web address of the maker whose logo is printed, empty for none
    std::string version{};  ///< the program's name and version
    std::string file{};     ///< of the window's project or zones
    std::string printedAt{};
    const LoadsWindow* loads = nullptr;  ///< linked with the design; null without a link
    const FieldValues* zone = nullptr;
    const FieldValues* pump = nullptr;
};

/// The text of a source.
/// @throws RunTimeError what a computed text throws
std::string textOf(const Source& source, const FillContext& context);
/// Whether the condition holds.
bool isPrinted(Printed printed, const FillContext& context);
/// Where the unit begins behind the number of "20.0 ft"; 0 for a text of another form.
std::size_t unitPlace(const std::string& text);

/// The band with the texts of the context; what is not printed is not there.
ReportBand fillBand(const BandDefinition& definition, const FillContext& context);

/// One of the controls of an element, with or without text: what a person reads of it.
std::string shownText(const Form& window, const std::string& control);

}  // namespace varnholt
