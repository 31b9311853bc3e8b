// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/quantity.h"

namespace varnholt {

class Form;

/// Where a field keeps its value: a double, a 16-bit whole number (rounded half to even, error 6
/// beyond), or a pair of functions.
class StoredNumber {
 public:
    StoredNumber(double* value);        // NOLINT(google-explicit-constructor)
    StoredNumber(std::int16_t* value);  // NOLINT(google-explicit-constructor)
    StoredNumber(std::function<double()> get, std::function<void(double)> set,
                 double largest = 1e308);

    /// What it can hold: a 16-bit number ends at 32767.
    double largest() const { return largest_; }
    double get() const { return get_(); }
    void set(double value) const { set_(value); }

 private:
    std::function<double()> get_;
    std::function<void(double)> set_;
    double largest_ = 1e308;
};

/// A text in each system of units; often the same one.
struct UnitTexts {
    int english = 0, metric = 0;

    int in(UnitSystem units) const { return units == UnitSystem::metric ? metric : english; }
};

/// What stands beside a field and explains it. Labels are named, since several fields may share
/// one; texts are numbers of the language, 0 for none.
struct FieldCompanions {
    std::string frame{};      ///< that holds the field and its labels
    std::string label{};      ///< the label before it
    UnitTexts caption{};      ///< of that label, where this row is the one that writes it
    std::string unitLabel{};  ///< the label behind it
    UnitTexts unit{};         ///< of that label, likewise
    std::string help{};       ///< page of the help and its section
    int accessible = 0;       ///< what a screen reader calls it, where not by its caption
    /// What tells the field from others under the same caption, "Heating" for instance: it goes
    /// behind the caption where a screen reader names the field.
    int distinction = 0;
};

/// One numeric field of a form, as one row of its table. Limits and fallbacks are in stored
/// (English) units and hold for the number as stored.
struct NumericFieldRow {
    std::string control;
    StoredNumber stored;
    const Quantity* quantity = &quantities::plain;
    double lowest = 0;       ///< below: refused
    double highest = 1e308;  ///< above: refused
    double fallback = 0;     ///< what a refused or an empty field returns to
    std::string_view format = "###0.0";
    std::string_view metricFormat = {};  ///< when it differs
    FieldCompanions beside{};

    // What only some fields need.
    std::optional<double> ifBelow{};          ///< instead of the fallback, below the lowest
    std::optional<double> ifAbove{};          ///< instead of the fallback, above the highest
    bool lowestIsRefused = false;             ///< the lowest value itself is refused
    std::optional<double> leastBesideZero{};  ///< below it only the lowest is taken
    std::optional<double> leastWhenLeft{};    ///< below it the fallback takes its place on leaving
    std::optional<double> unparsable{};       ///< stored for text that is no number (0 otherwise)
    std::optional<double> whileEmpty{};       ///< stored while the field stands empty (0 otherwise)
    std::optional<double> whenEmpty{};        ///< instead of the fallback, for a field left empty
    std::function<double()> fallbackNow{};    ///< the fallback, where it varies
    /// Text that is not a number as a whole leaves the stored value alone, and the range is looked
    /// at when the field is left: the field may hold anything while one types.
    bool checkedWhenLeft = false;
    std::optional<double> notTaken{};  ///< with that, a single value that is refused
    std::function<void()> changed{};   ///< after the value is stored, before the form is told
    std::function<void()> left{};      ///< after the field has been reformatted
};

/// A value that a field has refused, in the units shown.
struct RefusedValue {
    std::string control;
    std::string typed;
    std::string lowest, highest;  ///< what it would have taken; empty for no limit
    std::string least;            ///< what it would have taken above the lowest; empty for any
    std::string taken;            ///< what stands in its place
    std::string unit;             ///< of all of them, as the field told it then; empty for none
    bool lowestIsRefused = false;
    bool tooLarge = false;  ///< for the field to hold at all, whatever its limits
    bool single = false;    ///< it takes any other value
    bool noNumber = false;  ///< what came was no number at all
};

/// What the fields of one form have in common.
struct NumericFieldManner {
    std::function<bool()> codeIsWriting;  ///< settingUnits: text changes are not the user's
    std::function<UnitSystem()> units;
    std::function<void()> changed;  ///< the results are stale, the file is unsaved
    /// Whether any run-time error in a handler stores 0 (designs), or a type mismatch only.
    bool anyErrorStoresZero = true;
};

/// The one field pattern: parse, convert, store, check the range, tell; on leaving: fill, reformat.
class NumericFields {
 public:
    explicit NumericFields(Form& form) : form_(form) {}

    void setManner(NumericFieldManner manner) { manner_ = std::move(manner); }
    void add(NumericFieldRow row);
    bool has(const std::string& control) const { return rows_.count(control) > 0; }
    const NumericFieldRow& row(const std::string& control) const;

    /// The text of the field has just been changed by the user.
    void textChanged(const std::string& control);
    /// The focus has just left the field.
    void left(const std::string& control);
    /// Writes the stored value as text in the active units.
    void show(const std::string& control);
    /// Writes every field whose control's name begins with the prefix.
    void showAll(std::string_view prefix = {});
    /// Writes caption, unit and accessible name of the field, and of all fields.
    void showCaptions(const std::string& control);
    void showCaptions();
    /// The last refused value, as long as its field carries the mark.
    std::optional<RefusedValue> refused() const;
    /// What the field refuses of a text that is no number as a whole: it keeps its value and is
    /// marked.
    void refuseText(const std::string& control, const std::string& text);
    /// What would be stored for a text if it were typed into the field and left, by the field's own
    /// range; nothing for a text that is no number or more than the stored value can be.
    struct WouldStore {
        double value = 0;
        bool refused = false;  ///< the value stands in place of one out of range
    };
    std::optional<WouldStore> wouldStore(const std::string& control, const std::string& text) const;
    /// Takes the mark of refused values away.
    void forgetRefused();

 private:
    void store(const NumericFieldRow& row);
    void storeUnchecked(const NumericFieldRow& row);
    void checkLeft(const NumericFieldRow& row);
    static double fallbackOf(const NumericFieldRow& row);
    bool applyRange(const NumericFieldRow& row);
    static bool isBelow(const NumericFieldRow& row, double value);
    static double instead(const NumericFieldRow& row, double value);
    void refuse(const NumericFieldRow& row, const std::string& typed, bool tooLarge);
    std::string shownAs(const NumericFieldRow& row, double value) const;
    UnitSystem units() const;
    std::string_view formatOf(const NumericFieldRow& row) const;

    Form& form_;
    NumericFieldManner manner_;
    /// By the fields that carry the mark, the last one last.
    std::vector<RefusedValue> refused_;
    std::map<std::string, NumericFieldRow> rows_;
    std::vector<std::string> order_;
};

}  // namespace varnholt
