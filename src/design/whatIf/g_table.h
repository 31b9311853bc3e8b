// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "design/secondOpinion/cylinder_source.h"
#include "design/secondOpinion/g_function.h"
#include "design/secondOpinion/g_function_memory.h"

namespace varnholt {

/// The field that a table is for.
struct TableSite {
    secondOpinion::FieldSite field;
    bool cylinder = false;  ///< the bores are cylinders: their short pulse is added

    friend bool operator==(const TableSite&, const TableSite&) = default;
};

/// Places in a node's values, by which it is read: found once for a time and used for every depth.
struct TimePlace {
    std::size_t first = 0;
    std::array<double, 4> weights{};
};

/// One g-function as values at even steps of the logarithm of time, read by the cubic through four
/// of them.
class GNode {
 public:
    explicit GNode(std::vector<double> values) : values_(std::move(values)) {}

    double at(const TimePlace& place) const {
        const double* v = &values_[place.first];
        const auto& w = place.weights;
        return w[0] * v[0] + w[1] * v[1] + w[2] * v[2] + w[3] * v[3];
    }

 private:
    std::vector<double> values_;
};

/// g-functions of one field for every depth and every soil.
///
/// g depends on time by diffusivity times time alone, and smoothly on depth. So functions of some
/// depths, the rungs of a ladder of equal steps of the logarithm, serve all cases: read at the time
/// that a case's diffusivity makes of it, and by the polynomial through some rungs in the logarithm
/// of depth. A function reaches times twice as short and twice as long as were asked for; soils
/// beyond that have functions of their own, four times as fast or slow.
class GTable {
 public:
    explicit GTable(TableSite site);

    const TableSite& site() const { return site_; }
    std::size_t boreCount() const { return site_.field.bores.size(); }

    /// Which functions serve a soil so many times as quick as the site's.
    static int stretchOf(double quickness);
    /// By how much the logarithm of a time grows in them.
    double shiftOf(double quickness, int stretch) const;
    /// Where a time is found in them.
    TimePlace placeOf(double hours, double shift) const;

    /// The function of a rung; none while it has to be computed first, by computeMore.
    const GNode* node(int stretch, std::size_t rung);
    /// Works on what is missing for some milliseconds at most.
    void computeMore();

    static constexpr double stepOfRungs = 0.25;  ///< of the logarithm of depth
    static constexpr std::size_t rungCount = 26;
    /// The rung nearest to a depth; 0 is 10 ft.
    static double rungPlace(double depth);
    static double depthOfRung(std::size_t rung);

 private:
    using Key = std::pair<int, std::size_t>;

    std::vector<double> cylinderValues(int stretch) const;
    double alphaOf(int stretch) const;
    double lastHour() const;

    TableSite site_;
    std::size_t valueCount_;
    secondOpinion::BoreField field_;
    bool measured_ = false;
    std::map<Key, std::unique_ptr<GNode>> nodes_;
    std::map<int, std::vector<double>> cylinders_;
    std::optional<Key> wanted_;
    std::unique_ptr<secondOpinion::GFunctionWork> work_;
};

/// The tables of the last fields.
class FieldMemory {
 public:
    /// The table of a field. This memory keeps it while fifteen others are asked for.
    std::shared_ptr<GTable> table(const TableSite& site);

 private:
    std::vector<std::shared_ptr<GTable>> tables_;  ///< the last used first
};

}  // namespace varnholt
