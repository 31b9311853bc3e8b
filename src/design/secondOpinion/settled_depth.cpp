// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/settled_depth.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace varnholt::secondOpinion {
namespace {

constexpr int mostSecants = 30;
constexpr double depthTolerance =
    1.0e-7;                        // of the depth; the rungs are at hand, so it costs nothing
constexpr double overshoot = 1.3;  // a deeper bore asks for a little more than the shallow one

/// A depth and by how much the one that its g-function asks for exceeds it.
struct Trial {
    double depth, excess;
};

double rootBetween(const Trial& a, const Trial& b) {
    return a.depth + (b.depth - a.depth) * a.excess / (a.excess - b.excess);
}

class Search {
 public:
    Search(GFunctionMemory& memory, const DepthSearch& search,
           const std::function<double(const DepthFunction&)>& lengthWith)
        : memory_(memory), search_(search), lengthWith_(lengthWith) {}

    SettledDepth run() {
        std::size_t rung = std::min(rungAbove(search_.startDepth), search_.deepestRung);
        for (;;) {
            const auto function = memory_.atRung(rung);
            if (!function) return {SettledDepth::waiting};
            const double length = lengthWith_(DepthFunction(function, rung));
            if (!std::isfinite(length)) return {SettledDepth::notComputable};
            const double depth = depthOfRung(rung);
            const Trial trial{depth, length / search_.bores - depth};
            if (trial.excess > 0) {
                if (rung == search_.deepestRung) return {SettledDepth::tooDeep};
                low_ = trial;
                lowRung_ = rung;
            } else {
                if (rung == rungOfLeastDepth) return {SettledDepth::settled, length};
                high_ = trial;
                highRung_ = rung;
            }
            if (low_ && high_ && highRung_ - lowRung_ == 1) return between();
            rung = nextRung(trial);
        }
    }

 private:
    /// Where the excess hardly falls with the depth, guesses creep: on one side of the root each
    /// step is twice the last one at least, between two sides every second one halves.
    std::size_t nextRung(const Trial& trial) {
        ++trials_;
        const std::size_t reach = std::size_t{1} << std::min(trials_, 6) >> 1;
        if (!high_) {
            const std::size_t least = std::min(lowRung_ + reach, search_.deepestRung);
            return std::clamp(rungAbove(trial.depth + overshoot * trial.excess), least,
                              search_.deepestRung);
        }
        if (!low_) {
            const std::size_t most = highRung_ - std::min(reach, highRung_ - rungOfLeastDepth);
            return std::min(rungAbove(trial.depth + overshoot * trial.excess), most);
        }
        if (trials_ % 2 == 0) return (lowRung_ + highRung_) / 2;
        return std::clamp(rungAbove(rootBetween(*low_, *high_)), lowRung_ + 1, highRung_ - 1);
    }

    /// The false position; the weight of an end that stays a second time is halved.
    SettledDepth between() {
        Trial a = *low_, b = *high_;
        Trial trial = b;
        int side = 0;
        for (int i = 0; i < mostSecants; ++i) {
            const double depth = rootBetween(a, b);
            const bool close = std::abs(depth - trial.depth) <= depthTolerance * depth;
            const auto function = memory_.atDepth(depth);
            if (!function) return {SettledDepth::waiting};
            const double length = lengthWith_(*function);
            if (!std::isfinite(length)) return {SettledDepth::notComputable};
            trial = {depth, length / search_.bores - depth};
            if (close || trial.excess == 0) break;
            if (trial.excess > 0) {
                a = trial;
                if (side == 1) b.excess /= 2;
                side = 1;
            } else {
                b = trial;
                if (side == -1) a.excess /= 2;
                side = -1;
            }
        }
        return {SettledDepth::settled, trial.depth * search_.bores};
    }

    GFunctionMemory& memory_;
    const DepthSearch& search_;
    const std::function<double(const DepthFunction&)>& lengthWith_;
    std::optional<Trial> low_, high_;
    std::size_t lowRung_ = 0, highRung_ = 0;
    int trials_ = 0;
};

}  // namespace

SettledDepth settleDepth(GFunctionMemory& memory, const DepthSearch& search,
                         const std::function<double(const DepthFunction&)>& lengthWith) {
    return Search(memory, search, lengthWith).run();
}

}  // namespace varnholt::secondOpinion
