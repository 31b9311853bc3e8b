// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <utility>

#include "forms/values.h"

namespace varnholt {

/// An element of a public array; outside it throws what Values makes a run-time error 9.
template <class Container>
const auto& publicElement(const Container& container, int index) {
    return container.at(static_cast<std::size_t>(index));
}

/// Registers values that one function finds in the results of the moment.
template <class Results>
class ResultValues {
 public:
    ResultValues(Values& values, std::function<const Results&()> results)
        : values_(values), results_(std::move(results)) {}

    template <class Get>
    void number(const std::string& name, Get get) {
        values_.add(name, 0, [results = results_, get](const Values::Indices&) {
            return static_cast<double>(get(results()));
        });
    }
    /// Elements outside are run-time error 9.
    template <class Get>
    void array(const std::string& name, Get get) {
        values_.add(name, 1, [results = results_, get](const Values::Indices& i) {
            return static_cast<double>(publicElement(get(results()), i[0]));
        });
    }
    /// An array of arrays: two indices.
    template <class Get>
    void table(const std::string& name, Get get) {
        values_.add(name, 2, [results = results_, get](const Values::Indices& i) {
            return static_cast<double>(publicElement(publicElement(get(results()), i[0]), i[1]));
        });
    }

 private:
    Values& values_;
    std::function<const Results&()> results_;
};

}  // namespace varnholt
