// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

namespace varnholt {

/// Chance, the same on every machine for the same seed.
class Dice {
 public:
    explicit Dice(std::uint64_t seed) : engine_(seed) {}

    /// 0 to n - 1; n is at least 1.
    std::size_t below(std::size_t n) { return static_cast<std::size_t>(engine_() % n); }
    bool chance(std::size_t percent) { return below(100) < percent; }
    /// 0 to 1.
    double share() { return static_cast<double>(engine_() >> 11) / 9007199254740992.0; }

    template <class T>
    const T& among(const std::vector<T>& choices) {
        return choices[below(choices.size())];
    }

 private:
    std::mt19937_64 engine_;
};

}  // namespace varnholt
