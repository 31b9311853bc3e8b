// SPDX-License-Identifier: GPL-3.0-or-later
#include "design/whatIf/g_table.h"

#include <algorithm>
#include <cmath>

namespace varnholt {
namespace {

using namespace secondOpinion;

constexpr double stepOfTimes = 0.05;  // of the logarithm of time between two values of a node
constexpr double timesReach = 2;      // times shorter and longer than asked for
constexpr double shallowest = 10;     // ft
constexpr std::size_t mostTables = 16;
constexpr std::size_t spareValues = 3;  // behind the last time, for the cubic

}  // namespace

GTable::GTable(TableSite site)
    : site_(std::move(site)),
      valueCount_(static_cast<std::size_t>(std::log(lastHour()) / stepOfTimes) + 1 + spareValues),
      field_(site_.field.bores) {}

int GTable::stretchOf(double quickness) {
    const double stretch = std::round(std::log(quickness) / std::log(timesReach * timesReach));
    return static_cast<int>(std::clamp(stretch, -50.0, 50.0));
}

/// The functions are those of the slowest soil that they serve, from an hour on.
double GTable::alphaOf(int stretch) const {
    return site_.field.alpha * std::pow(timesReach * timesReach, stretch) / timesReach;
}

double GTable::lastHour() const { return site_.field.lastHour * timesReach * timesReach; }

double GTable::shiftOf(double quickness, int stretch) const {
    return std::log(quickness * site_.field.alpha / alphaOf(stretch));
}

TimePlace GTable::placeOf(double hours, double shift) const {
    const double place = std::clamp((std::log(hours) + shift) / stepOfTimes, 1.0,
                                    static_cast<double>(valueCount_ - spareValues));
    const double whole = std::floor(place);
    const double x = place - whole;
    return {static_cast<std::size_t>(whole) - 1,
            {-x * (x - 1) * (x - 2) / 6, (x + 1) * (x - 1) * (x - 2) / 2,
             -(x + 1) * x * (x - 2) / 2, (x + 1) * x * (x - 1) / 6}};
}

double GTable::rungPlace(double depth) { return std::log(depth / shallowest) / stepOfRungs; }

double GTable::depthOfRung(std::size_t rung) {
    return shallowest * std::exp(stepOfRungs * static_cast<double>(rung));
}

const GNode* GTable::node(int stretch, std::size_t rung) {
    const auto found = nodes_.find({stretch, rung});
    if (found != nodes_.end()) return found->second.get();
    if (!wanted_) wanted_ = {stretch, rung};
    return nullptr;
}

std::vector<double> GTable::cylinderValues(int stretch) const {
    const CylinderSource cylinder;
    const double fourierPerHour = alphaOf(stretch) / (site_.field.radius * site_.field.radius);
    std::vector<double> values(valueCount_);
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] =
            cylinder.overLine(fourierPerHour * std::exp(stepOfTimes * static_cast<double>(i)));
    return values;
}

void GTable::computeMore() {
    if (!wanted_) return;
    if (!measured_) {
        measured_ = field_.measureMore();
        return;
    }
    const auto& [stretch, rung] = *wanted_;
    if (!work_) {
        const BoreShape shape{depthOfRung(rung), site_.field.buried, site_.field.radius};
        const double end = std::exp(stepOfTimes * static_cast<double>(valueCount_));
        work_ = std::make_unique<GFunctionWork>(field_, shape, alphaOf(stretch), end);
    }
    if (!work_->step()) return;
    std::vector<double> values(valueCount_);
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = work_->result().at(std::exp(stepOfTimes * static_cast<double>(i)));
    if (site_.cylinder) {
        std::vector<double>& cylinder = cylinders_[stretch];
        if (cylinder.empty()) cylinder = cylinderValues(stretch);
        for (std::size_t i = 0; i < values.size(); ++i) values[i] += cylinder[i];
    }
    nodes_[*wanted_] = std::make_unique<GNode>(std::move(values));
    work_.reset();
    wanted_.reset();
}

std::shared_ptr<GTable> FieldMemory::table(const TableSite& site) {
    const auto found = std::find_if(tables_.begin(), tables_.end(),
                                    [&](const auto& table) { return table->site() == site; });
    if (found != tables_.end()) {
        std::rotate(tables_.begin(), found, found + 1);
        return tables_.front();
    }
    tables_.insert(tables_.begin(), std::make_shared<GTable>(site));
    if (tables_.size() > mostTables) tables_.pop_back();
    return tables_.front();
}

}  // namespace varnholt
