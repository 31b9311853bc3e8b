// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "basis/mode.h"
#include "design/borehole_results.h"
#include "design/secondOpinion/second_opinion_inputs.h"
#include "loads/import/monthly_loads.h"

namespace varnholt {

struct BoreholeProject;

/// All that a second opinion starts from.
struct SecondOpinionCase {
    BoreholeInputs design;  ///< with a tower percent other than 0 as a move of the slider has it
    SecondOpinionInputs window;
    std::optional<ByMode<MonthlyLoads>> imported;  ///< of the importer, where it is open

    friend bool operator==(const SecondOpinionCase&, const SecondOpinionCase&) = default;
};

SecondOpinionCase secondOpinionCase(const BoreholeProject& project,
                                    const SecondOpinionInputs& window,
                                    const std::optional<ByMode<MonthlyLoads>>& imported);

/// Why a figure cannot be had. The first eight concern both modes.
enum class OpinionFailure {
    none,
    noLoads,         ///< no mode has a load
    noConductivity,  ///< of the soil
    noDiffusivity,   ///< of the soil
    noBoreDiameter,
    noRows,  ///< across or down
    noPredictionTime,
    boresTooClose,        ///< their separation is not above their diameter
    tooManyBores,         ///< more than mostBoresOfOpinion
    noLoadOfMode,         ///< the mode alone is without load
    limitNotAboveGround,  ///< cooling: the limit of the mean fluid is not above the ground
    limitNotBelowGround,  ///< heating: it is not below the ground
    noDepthHoldsLimit,    ///< no depth up to greatestOpinionDepth; `waterAtGreatest` tells the rest
    notComputable,        ///< an overflow, or a result that is not finite
    noDesignLength,       ///< of what is shown: the classical run has no length
    noOpinionLength,      ///< of what is shown: no mode has one
    noShownDepth          ///< of what is shown: the depth that is typed is 0
};

constexpr std::size_t mostBoresOfOpinion = 2500;
constexpr double greatestOpinionDepth = 2000;  ///< ft
constexpr double leastOpinionDepth = 10;       ///< ft, of which a g-function is taken

struct OpinionReason {
    OpinionFailure failure = OpinionFailure::none;
    /// Water entering the units with bores of greatestOpinionDepth, degF: the highest of cooling,
    /// the lowest of heating.
    double waterAtGreatest = 0;

    bool holds() const { return failure != OpinionFailure::none; }
    friend bool operator==(const OpinionReason&, const OpinionReason&) = default;
};

/// What the year of a mode rests on, as far as it is told in a sentence.
struct OpinionYear {
    int peakMonth = 0;     ///< the first month of the greatest energy, 1 to 12; 0 without energy
    double peakShare = 0;  ///< its fraction of the year's energy
    /// The standard year would put more than the greatest share allowed into one month.
    bool heldAtGreatest = false;
    /// The standard year spreads the energy evenly: the hours exceed what the design month holds.
    bool evenMonths = false;

    friend bool operator==(const OpinionYear&, const OpinionYear&) = default;
};

constexpr double greatestMonthShare = 0.40;

constexpr std::array<double, 5> opinionYears{1, 5, 10, 20, 50};
constexpr std::size_t opinionMonths = 600;  ///< of the fluid's history
/// Times at which gValue is told, hr: 1 h, 6 h, 1 d, 7 d, 30 d, then 1, 5, 10, 20, 50 years.
constexpr std::array<double, 10> gValueHours{1,    6,     24,    168,    720,
                                             8760, 43800, 87600, 175200, 438000};

/// Parts of the difference between the two lengths.
enum LengthPart : std::size_t { neighboursAndEnds = 0, shortPulseAsLine = 1, monthsAndYears = 2 };
using LengthParts = std::array<double, 3>;

/// The fluid in one month, degF.
struct MonthOfWater {
    double mean = 0;  ///< mean fluid in the ground under the month's mean load
    /// Water entering the units at the end of the month's peak; none where the month does not count
    /// for the mode.
    ByMode<std::optional<double>> entering{};

    friend bool operator==(const MonthOfWater&, const MonthOfWater&) = default;
};

/// One line of the table of years, degF; what cannot be had is none.
struct OpinionYearLine {
    std::optional<double> penalty;  ///< of the classical penalty's sign
    std::optional<double> high;     ///< highest entering water of the cooling months
    std::optional<double> low;      ///< lowest entering water of the heating months

    friend bool operator==(const OpinionYearLine&, const OpinionYearLine&) = default;
};

/// A g-function as a picture shows it, from one hour on.
struct ShownGFunction {
    std::vector<double> hours;
    std::vector<double> g;
    std::vector<double> ofOneBore;

    friend bool operator==(const ShownGFunction&, const ShownGFunction&) = default;
};

/// Everything that the second opinion computes, in English units. A figure that cannot be had is 0.
struct SecondOpinion {
    // Failures. A mode is without figures where `reason` or its own holds.
    OpinionReason reason;
    ByMode<OpinionReason> reasonOfMode{};
    OpinionReason reasonOfShown;    ///< why nothing can be drawn, though lengths may stand
    bool importerMissing = false;   ///< the imported year is chosen; the standard year took over
    std::int16_t towerPercent = 0;  ///< that the tower takes; 0 for none
    double pulseHours = 0;          ///< hr, of this window or of the design
    ByMode<OpinionYear> year{};     ///< what the notes tell
    std::int16_t shape = standardYear;  ///< the YearShape that was used

    // From the zones.
    ByMode<double> annualEnergy{};  ///< heat into (cooling) and out of the ground, MBtu a year
    ByMode<double> designPeak{};    ///< MBtu/hr
    ByMode<double> meanLimit{};     ///< of the mean fluid, degF
    MonthsOfModes monthShare{};     ///< fractions of the year's energy
    MonthsOfModes monthPeak{};      ///< fractions of the design peak
    std::array<double, 12> monthlyLoad{};  ///< mean, MBtu/hr; positive when heat is taken out

    // Sizes.
    ByMode<double> soLength{};         ///< of all bores, ft
    ByMode<double> soDepth{};          ///< of a bore, ft
    ByMode<int> soMonth{};             ///< that governs; 1 is the first month of the first year
    ByMode<double> classicalLength{};  ///< of a run of its own, ft; 0 where it has none
    ByMode<std::optional<LengthParts>> lengthPart{};  ///< ft; none where the classical has none

    // What is shown, for bores of one depth.
    double shownDepth = 0;  ///< ft
    std::array<double, 10> gValue{};
    std::array<OpinionYearLine, 5> years{};
    std::vector<MonthOfWater> water;  ///< opinionMonths of them, or none
    ShownGFunction gFunction;
    std::size_t groupCount = 0;

    bool hasLength(Mode mode) const { return !reason.holds() && !reasonOfMode[mode].holds(); }
    /// Lengths' difference as a fraction of the classical one; none where there is none.
    std::optional<double> difference(Mode mode) const;
    /// The mode with the longer second opinion; heating of equal ones. None without a length.
    std::optional<Mode> governing() const;

    friend bool operator==(const SecondOpinion&, const SecondOpinion&) = default;
};

namespace secondOpinion {
class GFunctionMemory;
}

/// What is kept from one second opinion to the next: the g-functions of the last sixteen depths of
/// a field. A changed load, temperature or bore resistance needs no new one.
class SecondOpinionMemory {
 public:
    SecondOpinionMemory();
    ~SecondOpinionMemory();
    SecondOpinionMemory(SecondOpinionMemory&&) noexcept;
    SecondOpinionMemory& operator=(SecondOpinionMemory&&) noexcept;

    secondOpinion::GFunctionMemory& gFunctions() { return *gFunctions_; }

 private:
    std::unique_ptr<secondOpinion::GFunctionMemory> gFunctions_;
};

/// A second opinion on the way, computed in slices so that whoever waits for a key can go on
/// between two of them. A run that is dropped half-way leaves the memory sound.
///
///     SecondOpinionRun run(theCase, memory);
///     while (!run.step()) {}
///     show(run.result());
///
/// It never throws for the sake of its inputs: what goes wrong with the numbers is a reason in the
/// result.
class SecondOpinionRun {
 public:
    /// @param memory  outlives the run
    SecondOpinionRun(SecondOpinionCase theCase, SecondOpinionMemory& memory);
    ~SecondOpinionRun();
    SecondOpinionRun(SecondOpinionRun&&) noexcept;
    SecondOpinionRun& operator=(SecondOpinionRun&&) noexcept;

    /// Works for a few milliseconds at most. True when all is done.
    bool step();
    /// Once done.
    const SecondOpinion& result() const;

 private:
    class Work;
    std::unique_ptr<Work> work_;
};

/// The whole second opinion at once.
SecondOpinion secondOpinionOf(const SecondOpinionCase& theCase, SecondOpinionMemory& memory);

}  // namespace varnholt
