// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/loaded_series.h"

#include <utility>

#include "basis/run_time_error.h"

namespace varnholt {
namespace {

std::shared_ptr<const PumpSeries> withHeadAsModel(const PumpSeries& series) {
    PumpSeries headed = series;
    pump& head = headed.models.emplace_back();
    head.mfgInfo = series.mfgInfo;
    head.seriesInfo = series.seriesInfo;
    return std::make_shared<const PumpSeries>(std::move(headed));
}

}  // namespace

void LoadedSeries::load(std::shared_ptr<const PumpSeries> series) {
    size_ = series->models.size();
    if (size_ == 0) series = withHeadAsModel(*series);
    std::erase_if(layers_, [&](const std::shared_ptr<const PumpSeries>& older) {
        return older->models.size() <= series->models.size();
    });
    layers_.insert(layers_.begin(), std::move(series));
}

std::span<const pump> LoadedSeries::models() const {
    if (size_ == 0) return {};
    return std::span(layers_.front()->models).first(size_);
}

const pump& LoadedSeries::model(std::size_t i) const {
    for (const std::shared_ptr<const PumpSeries>& layer : layers_)
        if (i < layer->models.size()) return layer->models[i];
    throw RunTimeError(9);
}

}  // namespace varnholt
