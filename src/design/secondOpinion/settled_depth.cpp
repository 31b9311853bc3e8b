// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/secondOpinion/settled_depth.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace varnholt::secondOpinion {
namespace {

constexpr int mostSecants = 30;
constexpr double tolerance = 1.0e-7;  // of the depth; the rungs are at hand, so it costs nothing
constexpr double overshoot = 1.3;     // a deeper bore asks for a little more than the shallow one

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
        while (!(low_ && high_ && highRung_ - lowRung_ == 1)) {
            const auto function = memory_.atRung(rung);
            if (!function) return {SettledDepth::waiting};
            const double length = lengthWith_(DepthFunction(function));
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
            rung = nextRung(trial);
        }
        return between();
    }

 private:
    std::size_t nextRung(const Trial& trial) const {
        const double guess =
            low_ && high_ ? rootBetween(*low_, *high_) : trial.depth + overshoot * trial.excess;
        const std::size_t least = low_ ? lowRung_ + 1 : rungOfLeastDepth;
        const std::size_t most = high_ ? highRung_ - 1 : search_.deepestRung;
        return std::clamp(rungAbove(guess), least, std::max(least, most));
    }

    /// The false position, with the weight of an end that stays halved.
    SettledDepth between() {
        Trial a = *low_, b = *high_;
        Trial trial = b;
        for (int i = 0; i < mostSecants; ++i) {
            const double depth = rootBetween(a, b);
            const bool close = std::abs(depth - trial.depth) <= tolerance * depth;
            const auto function = memory_.atDepth(depth);
            if (!function) return {SettledDepth::waiting};
            const double length = lengthWith_(*function);
            if (!std::isfinite(length)) return {SettledDepth::notComputable};
            trial = {depth, length / search_.bores - depth};
            if (close || trial.excess == 0) break;
            if (trial.excess > 0) {
                a = trial;
                b.excess /= 2;
            } else {
                b = trial;
                a.excess /= 2;
            }
        }
        return {SettledDepth::settled, trial.depth * search_.bores};
    }

    GFunctionMemory& memory_;
    const DepthSearch& search_;
    const std::function<double(const DepthFunction&)>& lengthWith_;
    std::optional<Trial> low_, high_;
    std::size_t lowRung_ = 0, highRung_ = 0;
};

}  // namespace

SettledDepth settleDepth(GFunctionMemory& memory, const DepthSearch& search,
                         const std::function<double(const DepthFunction&)>& lengthWith) {
    return Search(memory, search, lengthWith).run();
}

}  // namespace varnholt::secondOpinion
