// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/values.h"

#include <charconv>
#include <stdexcept>

#include "basis/run_time_error.h"

namespace varnholt {

void Values::add(const std::string& name, std::size_t indices, Read read) {
    entries_.insert_or_assign(name, Entry{indices, std::move(read)});
}

void Values::add(const std::string& name, const double* value) {
    add(name, 0, [value](const Indices&) { return *value; });
}
void Values::add(const std::string& name, const std::int16_t* value) {
    add(name, 0, [value](const Indices&) { return static_cast<double>(*value); });
}
void Values::add(const std::string& name, const bool* value) {
    add(name, 0, [value](const Indices&) { return *value; });
}
void Values::add(const std::string& name, const std::string* value) {
    add(name, 0, [value](const Indices&) { return *value; });
}
void Values::add(const std::string& name, const SharedText* value) {
    add(name, 0, [value](const Indices&) { return value->string(); });
}
void Values::add(const std::string& name, const Date* value) {
    add(name, 0, [value](const Indices&) { return *value; });
}

bool Values::has(std::string_view path) const {
    const ValuePath parsed = parseValuePath(path);
    const auto entry = entries_.find(parsed.name);
    return entry != entries_.end() && entry->second.indices == parsed.indices.size();
}

PublicValue Values::read(std::string_view path) const {
    const ValuePath parsed = parseValuePath(path);
    const auto entry = entries_.find(parsed.name);
    if (entry == entries_.end() || entry->second.indices != parsed.indices.size())
        throw std::out_of_range("no value " + std::string(path));
    try {
        return entry->second.read(parsed.indices);
    } catch (const std::out_of_range&) {
        throw RunTimeError(9);
    }
}

std::vector<std::string> Values::names() const {
    std::vector<std::string> names;
    for (const auto& entry : entries_) names.push_back(entry.first);
    return names;
}

namespace {

int readIndex(std::string_view& text) {
    int index = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), index);
    if (result.ec != std::errc{} || index < 0) throw std::invalid_argument("not an index");
    text.remove_prefix(static_cast<std::size_t>(result.ptr - text.data()));
    return index;
}

}  // namespace

ValuePath parseValuePath(std::string_view text) {
    ValuePath path;
    while (!text.empty()) {
        if (text.front() != '(') {
            path.name += text.front();
            text.remove_prefix(1);
            continue;
        }
        // A function without arguments may be written as it is called.
        if (text.starts_with("()")) {
            text.remove_prefix(2);
            continue;
        }
        do {
            text.remove_prefix(1);
            path.indices.push_back(readIndex(text));
        } while (!text.empty() && text.front() == ',');
        if (text.empty() || text.front() != ')') throw std::invalid_argument("no closing bracket");
        text.remove_prefix(1);
    }
    return path;
}

}  // namespace varnholt
