// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/numeric_field.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

#include "basis/number_text.h"
#include "basis/run_time_error.h"
#include "forms/form.h"

namespace varnholt {
namespace {

/// The upper limit of a field that has none, and the largest number that one keeps.
constexpr double unlimited = 1e308;

/// Whether it is more than a field without an upper limit keeps.
bool overflows(const NumericFieldRow& row, double value) {
    return row.highest >= unlimited && value > unlimited;
}

}  // namespace

StoredNumber::StoredNumber(double* value)
    : get_([value] { return *value; }), set_([value](double x) { *value = x; }) {}

StoredNumber::StoredNumber(std::int16_t* value)
    : get_([value] { return static_cast<double>(*value); }),
      set_([value](double x) { *value = toInteger(x); }),
      largest_(std::numeric_limits<std::int16_t>::max()) {}

StoredNumber::StoredNumber(std::function<double()> get, std::function<void(double)> set,
                           double largest)
    : get_(std::move(get)), set_(std::move(set)), largest_(largest) {}

void NumericFields::add(NumericFieldRow row) {
    const std::string name = row.control;
    if (rows_.insert_or_assign(name, std::move(row)).second) order_.push_back(name);
}

const NumericFieldRow& NumericFields::row(const std::string& control) const {
    return rows_.at(control);
}

void NumericFields::textChanged(const std::string& control) {
    if (manner_.codeIsWriting && manner_.codeIsWriting()) return;
    const NumericFieldRow& row = rows_.at(control);
    if (row.checkedWhenLeft) return storeUnchecked(row);
    const std::string typed = form_.control(control).text();
    try {
        store(row);
        const bool tooLarge = overflows(row, row.stored.get());
        const bool refused = applyRange(row);
        if (refused)
            refuse(row, typed, tooLarge);
        else
            form_.control(control).setRefused(false);
        if (row.changed) row.changed();
        if (manner_.changed) manner_.changed();
    } catch (const RunTimeError&) {
        // A number that the field cannot hold: the field says so.
        if (manner_.anyErrorStoresZero) row.stored.set(0);
        refuse(row, typed, true);
    }
}

/// Takes any number that the stored value can be.
void NumericFields::storeUnchecked(const NumericFieldRow& row) {
    const std::optional<double> typed = readPlainNumber(form_.control(row.control).text());
    if (!typed) return;
    const double value = row.quantity->stored(*typed, units());
    if (!std::isfinite(value)) return;
    row.stored.set(value);
    form_.control(row.control).setRefused(false);
    if (row.changed) row.changed();
    if (manner_.changed) manner_.changed();
}

/// Repairs a stored value out of range, and shows what is stored in any case.
void NumericFields::checkLeft(const NumericFieldRow& row) {
    const double value = row.stored.get();
    const std::string typed = form_.control(row.control).text();
    const bool within = value >= row.lowest && value <= row.highest && row.notTaken != value;
    if (!within) {
        row.stored.set(fallbackOf(row));
        if (row.changed) row.changed();
        if (manner_.changed) manner_.changed();
    }
    show(row.control);
    if (within)
        form_.control(row.control).setRefused(false);
    else
        refuse(row, typed, false);
    if (row.left) row.left();
}

void NumericFields::refuse(const NumericFieldRow& row, const std::string& typed, bool tooLarge) {
    const double highest = std::min(row.highest, row.stored.largest());
    std::erase_if(refused_, [&](const RefusedValue& old) { return old.control == row.control; });
    refused_.push_back({row.control, typed, shownAs(row, row.lowest),
                        highest < unlimited ? shownAs(row, highest) : std::string(),
                        row.leastBesideZero ? shownAs(row, *row.leastBesideZero) : std::string(),
                        shownAs(row, row.stored.get()), form_.unitOf(row.control),
                        row.lowestIsRefused, tooLarge && highest >= unlimited,
                        row.notTaken.has_value()});
    form_.control(row.control).setRefused(true);
}

std::optional<RefusedValue> NumericFields::refused() const {
    for (auto last = refused_.rbegin(); last != refused_.rend(); ++last)
        if (form_.control(last->control).refused()) return *last;
    return std::nullopt;
}

void NumericFields::forgetRefused() {
    for (const std::string& name : order_) form_.control(name).setRefused(false);
    refused_.clear();
}

void NumericFields::store(const NumericFieldRow& row) {
    const std::string& text = form_.control(row.control).text();
    if (text.empty() && row.whileEmpty) {
        row.stored.set(*row.whileEmpty);
        return;
    }
    const std::optional<double> typed = readLeadingNumber(text);
    if (!typed && row.unparsable) {
        row.stored.set(*row.unparsable);
        return;
    }
    const double value = row.quantity->stored(typed.value_or(0), units());
    // No limit tells what would stand instead: the value before stays, as with any overflow.
    if (!manner_.anyErrorStoresZero && overflows(row, value)) throw RunTimeError(6);
    row.stored.set(value);
}

/// A value out of range is replaced once something is typed; an empty field waits until it is left.
bool NumericFields::applyRange(const NumericFieldRow& row) {
    const double value = row.stored.get();
    const std::string& text = form_.control(row.control).text();
    if (text.empty() || (row.unparsable && !readLeadingNumber(text))) return false;
    // Written so that a value that is no number is refused too.
    if (!isBelow(row, value) && value <= row.highest) return false;
    row.stored.set(instead(row, value));
    show(row.control);
    return true;
}

bool NumericFields::isBelow(const NumericFieldRow& row, double value) {
    const bool between = row.leastBesideZero && value > row.lowest && value < *row.leastBesideZero;
    return value < row.lowest || between || (row.lowestIsRefused && value == row.lowest);
}

double NumericFields::instead(const NumericFieldRow& row, double value) {
    return (isBelow(row, value) ? row.ifBelow : row.ifAbove).value_or(fallbackOf(row));
}

void NumericFields::refuseText(const std::string& control, const std::string& text) {
    refuse(rows_.at(control), text, false);
    refused_.back().noNumber = true;
}

std::optional<NumericFields::WouldStore> NumericFields::wouldStore(const std::string& control,
                                                                   const std::string& text) const {
    const NumericFieldRow& row = rows_.at(control);
    const std::optional<double> typed = readPlainNumber(text);
    if (!typed) return std::nullopt;
    const double value = row.quantity->stored(*typed, units());
    if (!manner_.anyErrorStoresZero && overflows(row, value)) return std::nullopt;
    if (!isBelow(row, value) && value <= row.highest) {
        if (std::abs(value) > row.stored.largest()) return std::nullopt;
        return WouldStore{value, false};
    }
    return WouldStore{instead(row, value), true};
}

void NumericFields::left(const std::string& control) {
    const NumericFieldRow& row = rows_.at(control);
    if (row.checkedWhenLeft) return checkLeft(row);
    const double value = row.stored.get();
    const bool temperature = row.quantity == &quantities::temperature;
    const bool neutral = value == 0 || (temperature && value == 32);
    const bool empty = form_.control(control).text().empty();
    const bool unparsable = row.unparsable && value == *row.unparsable;
    const bool tooSmall = row.leastWhenLeft && value < *row.leastWhenLeft;
    if (unparsable || tooSmall || (neutral && empty)) {
        row.stored.set(row.whenEmpty.value_or(fallbackOf(row)));
        if (row.changed) row.changed();
        if (manner_.changed) manner_.changed();
    }
    show(control);
    form_.control(control).setRefused(false);
    if (row.left) row.left();
}

void NumericFields::show(const std::string& control) {
    const NumericFieldRow& row = rows_.at(control);
    form_.control(control).setText(shownAs(row, row.stored.get()));
}

std::string NumericFields::shownAs(const NumericFieldRow& row, double value) const {
    return formatNumber(row.quantity->shown(value, units()), formatOf(row));
}

void NumericFields::showCaptions(const std::string& control) {
    const FieldCompanions& beside = rows_.at(control).beside;
    if (const int number = beside.caption.in(units()); number != 0)
        form_.control(beside.label).setCaption(form_.text(number));
    if (const int number = beside.unit.in(units()); number != 0)
        form_.control(beside.unitLabel).setCaption(form_.text(number));
    std::string name = beside.accessible != 0 ? form_.text(beside.accessible)
                       : beside.label.empty() ? std::string()
                                              : form_.control(beside.label).caption();
    name = captionWords(name);
    if (beside.distinction != 0)
        name += (name.empty() ? "" : ", ") + captionWords(form_.text(beside.distinction));
    form_.control(control).setAccessibleName(std::move(name));
}

void NumericFields::showCaptions() {
    for (const std::string& name : order_) showCaptions(name);
}

UnitSystem NumericFields::units() const {
    return manner_.units ? manner_.units() : UnitSystem::english;
}

void NumericFields::showAll(std::string_view prefix) {
    for (const std::string& name : order_)
        if (std::string_view(name).substr(0, prefix.size()) == prefix) show(name);
}

double NumericFields::fallbackOf(const NumericFieldRow& row) {
    return row.fallbackNow ? row.fallbackNow() : row.fallback;
}

std::string_view NumericFields::formatOf(const NumericFieldRow& row) const {
    const bool metric = units() == UnitSystem::metric;
    return metric && !row.metricFormat.empty() ? row.metricFormat : row.format;
}

}  // namespace varnholt
