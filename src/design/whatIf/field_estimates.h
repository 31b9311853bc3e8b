// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "design/whatIf/lattice_fields.h"

namespace varnholt {

/// How deep a field's bores are for some need, and what the field costs then.
struct PricedDepth {
    double depth = 0;  ///< of a bore, ft
    double firstCost = 0;
};

/// The order of a list of fields: first cost, bores, separation, rows.
bool isCheaper(double costA, const LatticeField& a, double costB, const LatticeField& b);

/// Fields whose needs by g-functions are estimated until they are computed: the classical need
/// times a ratio, a mean of the ratios computed so far that weighs those of like fields most. Two
/// fields are unlike by their bores, their proportions and their separation.
class FieldEstimates {
 public:
    using Pricing = std::function<PricedDepth(const LatticeField&, double need)>;

    /// @param mostDepth  that is allowed, ft
    FieldEstimates(Pricing pricing, double mostDepth)
        : price_(std::move(pricing)), mostDepth_(mostDepth) {}

    void reserve(std::size_t fields) { all_.reserve(fields); }
    /// @param classicalNeed  ft
    void add(const LatticeField& field, double classicalNeed);
    std::size_t size() const { return all_.size(); }
    const LatticeField& field(std::size_t index) const { return all_[index].field; }
    double classicalNeed(std::size_t index) const { return all_[index].classical; }
    bool isComputed(std::size_t index) const { return all_[index].computed; }
    double estimatedNeed(std::size_t index) const;

    /// A field's need has been computed: it is estimated no more, and the others learn from it.
    void tell(std::size_t index, double need);
    /// Learns from what was told last and looks for the cheapest, over so many fields. True when
    /// `cheapest` stands.
    bool step(std::size_t fields);
    /// The field of the cheapest estimate among those that are not computed and are shallow enough;
    /// where none is, the one of the least depth. None when all are computed.
    std::optional<std::size_t> cheapest() const {
        return shallow_.index ? shallow_.index : deep_.index;
    }

    /// The field of a shape, or of its mirror image where that stands for both.
    std::optional<std::size_t> like(double separation, std::size_t rows, std::size_t columns) const;

 private:
    struct Estimate {
        LatticeField field;
        double classical = 0;            ///< need, ft
        double size = 0, shape = 0;      ///< logarithms of bores, and of rows over columns
        double ratios = 0, weights = 0;  ///< sums over the fields that have been computed
        bool computed = false;
    };
    struct Best {
        std::optional<std::size_t> index;
        double measure = 0;  ///< depth or cost
    };

    void learn(Estimate& from) const;
    void look(std::size_t index);

    Pricing price_;
    double mostDepth_;
    std::vector<Estimate> all_;
    std::size_t next_ = 0;  ///< place of the round of all fields
    std::optional<std::size_t> lesson_;
    double lessonRatio_ = 0;
    Best shallow_, deep_;
};

}  // namespace varnholt
