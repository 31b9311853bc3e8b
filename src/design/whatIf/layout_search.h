// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

#include "design/whatIf/lattice_fields.h"
#include "design/whatIf/reason.h"
#include "design/whatIf/settled_length.h"

namespace varnholt {

/// The classical need of any field of one design, by the neighbours' weights on the lattice: all
/// but the penalty is the same for every field.
class FieldNeeds {
 public:
    /// @param design  its field is not read. Throws as settledMode does
    FieldNeeds(const RolledZones& zones, const BoreholeInputs& design);

    /// ft; noLength where a loaded mode has none.
    double need(const LatticeField& field);

 private:
    BoreholeInputs design_;
    double annualGroundLoad_ = 0;
    ByMode<SettledMode> withoutPenalty_{};
    double separation_ = -1, penalty_ = 0;  ///< of the separation asked for last
};

/// A field that was found, with what it needs and costs.
struct LayoutField {
    LatticeField field;
    double depth = 0;   ///< of a bore, with margin and at least the least depth, ft
    double length = 0;  ///< depth times bores, ft
    double firstCost = 0;
    double otherDepth = 0;  ///< depth by the other method, ft; 0 where there is none

    friend bool operator==(const LayoutField&, const LayoutField&) = default;
};

/// What a search has found.
struct Layouts {
    Reason reason;              ///< why there is no field
    std::vector<Reason> notes;  ///< what was changed to search at all
    double landArea = 0;        ///< of the outline, ft^2
    std::size_t noGoCount = 0;
    std::size_t possible = 0;         ///< fields that the land allows, deep or shallow
    std::vector<LayoutField> fields;  ///< computed and within the depths, the cheapest first

    friend bool operator==(const Layouts&, const Layouts&) = default;
};

/// How many fields the list shows.
constexpr std::size_t listedFields = 20;

/// What a search starts from.
struct LayoutCase {
    BoreholeInputs design;
    LandValues land;
    LayoutValues layout;
    Prices prices;
    WhatIfMeasure measure = classicalMethod;
};

/// The land as it is typed or drawn.
Land landOf(const LandValues& values);

/// The need of a field by g-functions, ft; noLength where there is none. None while it is being
/// computed: asked again, it works on it for some milliseconds.
/// @param bores       their places, ft
/// @param startDepth  a guess, ft
using NeedByGFunctions = std::function<std::optional<double>(
    const std::vector<Point>& bores, const LatticeField& field, double startDepth)>;

/// Finds the cheapest fields of bores that a land allows, in slices.
///
/// By the classical method every field is computed. By g-functions that would take long, and the
/// classical order must not choose whom to compute: its rings flatter dense and large fields. So
/// every field is estimated as its classical need times a ratio, a mean of the ratios found so far
/// that weighs those of like fields most; the cheapest estimate is computed, and so on.
class LayoutSearch {
 public:
    LayoutSearch(LayoutCase theCase, NeedByGFunctions byGFunctions);

    /// Some milliseconds of work. True when all is done.
    bool step();
    /// The list stands; only depths by the other method may follow.
    bool isListed() const { return stage_ >= Stage::others; }
    /// What has been found so far.
    const Layouts& result() const { return result_; }
    const Land& land() const { return land_; }

 private:
    enum class Stage { finding, classical, estimating, neighbours, others, done };
    struct Candidate {
        LatticeField field;
        double classical = 0;            ///< need, ft
        double ratios = 0, weights = 0;  ///< sums of those computed by g-functions
        bool computed = false;
    };

    void prepare();
    void fail(Reason reason);
    void afterFinding();
    void computeClassical();
    void computeNext();
    void computeNeighbour();
    void computeOther();
    void conclude();

    double depthOf(const LatticeField& field, double need) const;
    double costOf(const LatticeField& field, double depth) const;
    bool take(const LatticeField& field, double need);
    /// None while the field's need is being computed.
    std::optional<bool> computeByGFunctions(std::size_t index);
    double estimatedDepth(const Candidate& candidate) const;
    std::optional<std::size_t> cheapestEstimate() const;
    std::optional<std::size_t> candidateLike(double separation, std::size_t rows,
                                             std::size_t columns) const;
    void queueNeighbours();

    LayoutCase case_;
    NeedByGFunctions byGFunctions_;
    Land land_;
    Stage stage_ = Stage::finding;
    std::optional<RolledZones> zones_;
    std::optional<FieldNeeds> needs_;
    std::optional<FieldFinder> finder_;
    double towerTons_ = 0;
    std::vector<Candidate> candidates_;
    std::optional<std::size_t> waiting_;  ///< whose need is being computed
    std::size_t next_ = 0;
    int computed_ = 0, fruitless_ = 0;
    std::vector<std::size_t> neighbours_;
    std::optional<LayoutField> shallowest_;
    Layouts result_;
};

}  // namespace varnholt
