// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <vector>

#include "design/whatIf/field_estimates.h"
#include "design/whatIf/field_finder.h"
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

/// Why it is no land: sides that cross.
Reason reasonAgainst(const Land& land);

/// The need of a field by g-functions, ft, however deep its bores would have to be; noLength where
/// there is none. None while it is being computed: asked again, it works on it for some
/// milliseconds.
/// @param bores       their places, ft
/// @param startDepth  a guess, ft
using NeedByGFunctions = std::function<std::optional<double>(
    const std::vector<Point>& bores, const LatticeField& field, double startDepth)>;

/// Finds the cheapest fields of bores that a land allows, in slices.
///
/// By the classical method every field is computed. By g-functions that would take long, and the
/// classical order must not choose whom to compute: its rings flatter dense and large fields. So
/// every field is estimated (see FieldEstimates), the cheapest estimate is computed, and so on;
/// then the neighbours of the best.
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
    enum class Stage { finding, classical, sorting, adding, estimating, neighbours, others, done };
    struct Shape {
        double separation = 0;
        std::size_t rows = 0, columns = 0;
    };

    void prepare();
    void fail(Reason reason);
    void work();
    void go(Stage stage);
    void afterFinding();
    void computeClassical();
    void sortClassical();
    void addEstimates();
    void computeNext();
    void queueNeighbours();
    void computeNeighbour();
    void computeOther();
    void conclude();

    LayoutField priced(const LatticeField& field, double need) const;
    bool isTooDeep(const LayoutField& field) const;
    bool take(const LatticeField& field, double need);
    /// None while the need is being computed.
    std::optional<double> needByGFunctions(const LatticeField& field, double startDepth);
    /// Whether a computed field is the best so far; none while its need is being computed.
    std::optional<bool> computeByGFunctions(std::size_t index);

    LayoutCase case_;
    NeedByGFunctions byGFunctions_;
    Land land_;
    Stage stage_ = Stage::finding;
    std::optional<RolledZones> zones_;
    std::optional<FieldNeeds> needs_;
    std::optional<FieldFinder> finder_;
    double towerTons_ = 0;
    std::size_t next_ = 0;           ///< place in what the stage goes through
    std::vector<LayoutField> heap_;  ///< classical fields before they are sorted, the dearest first
    std::optional<FieldEstimates> estimates_;
    std::optional<std::size_t> waiting_;  ///< whose need is being computed
    std::optional<LatticeField> asked_;   ///< the same, with its bores
    std::vector<Point> askedBores_;
    int computed_ = 0, fruitless_ = 0;
    std::vector<Shape> neighbours_;
    std::optional<LayoutField> shallowest_;
    Layouts result_;
};

}  // namespace varnholt
