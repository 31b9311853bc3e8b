// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <memory>
#include <span>
#include <vector>

#include "catalogue/ModPumpsIO.h"

namespace varnholt {

/// The models loaded into one of a window's two slots. The series are shared with whoever else
/// has loaded them.
class LoadedSeries {
 public:
    /// Loads a series. One that is shorter than the slot leaves the slot's higher models in place;
    /// they do not count. One without models still has a model 0, which tells maker and series.
    void load(std::shared_ptr<const PumpSeries> series);

    /// Number of models that count.
    std::size_t size() const { return size_; }
    /// The models that count.
    std::span<const pump> models() const;
    /// Any model that was ever loaded and is still in place. Throws RunTimeError 9 beyond them.
    const pump& model(std::size_t i) const;
    /// Whether any series was ever loaded.
    bool isLoaded() const { return !layers_.empty(); }

 private:
    /// The newest first; each is longer than the one before it, whose models hide its own.
    std::vector<std::shared_ptr<const PumpSeries>> layers_;
    std::size_t size_ = 0;
};

}  // namespace varnholt
