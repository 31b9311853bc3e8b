// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "basis/date.h"
#include "basis/mode.h"
#include "basis/shared_text.h"

namespace varnholt {

/// A public value of a form as scripts and reports see it.
using PublicValue = std::variant<double, bool, std::string, Date>;

/// Public values of a form, registered once under their names.
///
/// "ZoneList(2).pump.plf(0)" is looked up as "ZoneList.pump.plf" with the indices {2, 0}.
class Values {
 public:
    using Indices = std::vector<int>;
    using Read = std::function<PublicValue(const Indices&)>;

    /// @param indices how many indices the name takes
    void add(const std::string& name, std::size_t indices, Read read);

    void add(const std::string& name, const double* value);
    void add(const std::string& name, const std::int16_t* value);
    void add(const std::string& name, const bool* value);
    void add(const std::string& name, const std::string* value);
    void add(const std::string& name, const SharedText* value);
    void add(const std::string& name, const Date* value);

    /// An array: one index. Elements outside are RunTimeError 9.
    template <class Array>
    void addArray(const std::string& name, const Array* array);

    /// Whether such a name is registered, with that number of indices.
    bool has(std::string_view path) const;
    /// Throws RunTimeError 9 for an index outside, std::out_of_range for an unknown name.
    PublicValue read(std::string_view path) const;
    std::vector<std::string> names() const;

 private:
    struct Entry {
        std::size_t indices;
        Read read;
    };
    std::map<std::string, Entry, std::less<>> entries_;
};

/// A name such as "ZoneList(2).pump.plf(0)" as name and indices; "GetGroundTemp()" has none.
struct ValuePath {
    std::string name;
    Values::Indices indices;
};
/// Throws std::invalid_argument when the text is no such name.
ValuePath parseValuePath(std::string_view text);

template <class Array>
void Values::addArray(const std::string& name, const Array* array) {
    add(name, 1, [array](const Indices& i) {
        const auto& element = array->at(static_cast<std::size_t>(i[0]));
        using Element = std::decay_t<decltype(element)>;
        if constexpr (std::is_arithmetic_v<Element> && !std::is_same_v<Element, bool>)
            return PublicValue(static_cast<double>(element));
        else
            return PublicValue(element);
    });
}

}  // namespace varnholt
