// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/pump_catalogue.h"

#include <algorithm>
#include <utility>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "catalogue/makers.h"

namespace varnholt {
namespace {

constexpr int makerAddressText = 108;
constexpr int missingFileText = 2455;

std::string joined(const PumpList& manufacturer, const PumpSeriesInfo& series) {
    return manufacturer.mfgInfo.mfgName + series.seriesName;
}

}  // namespace

PumpCatalogue::PumpCatalogue(const std::string& programFolder, const Texts& texts, Exclaim exclaim)
    : folder_(programFolder + "/pumps"), texts_(texts), exclaim_(std::move(exclaim)) {}

std::int16_t PumpCatalogue::vhtTotalSeriesCount() const {
    std::size_t total = 0;
    for (const varnholt::PumpList& manufacturer : manufacturers_)
        total += manufacturer.seriesInfo.size();
    return static_cast<std::int16_t>(total);
}

const pump& PumpCatalogue::PumpList(std::size_t slot, std::size_t i) const {
    return at(slots_.at(slot).models, static_cast<std::ptrdiff_t>(i));
}

std::span<const pump> PumpCatalogue::models(std::size_t slot) const {
    return std::span(slots_.at(slot).models).first(slots_.at(slot).size);
}

bool PumpCatalogue::holds(std::size_t slot, const std::string& mfgName,
                          const std::string& seriesName) const {
    const std::vector<pump>& models = slots_.at(slot).models;
    return !models.empty() && models[0].mfgInfo.mfgName == mfgName &&
           models[0].seriesInfo.seriesName == seriesName;
}

void PumpCatalogue::InitializeHeatPumpLists() {
    readPumpNames();
    if (activeSeries.empty()) activeSeries = preferredSeries();
    readActiveSeries(activeSlot);
}

void PumpCatalogue::readPumpNames() {
    manufacturers_.clear();
    const std::string path = pumpIndexPath(folder_);
    if (!checkFile(path)) return;
    try {
        readPumpIndex(readWholeFile(path), manufacturers_);
    } catch (const RunTimeError& error) {
        tell(error);
    }
}

bool PumpCatalogue::readPumps(const std::string& FileName, std::size_t slot) {
    const std::string path = pumpSeriesPath(folder_, FileName);
    if (!checkFile(path)) return false;
    PumpSeries series;
    try {
        readPumpSeries(readWholeFile(path), series);
    } catch (const RunTimeError& error) {
        tell(error);
    }
    if (series == PumpSeries{}) return false;
    store(std::move(series), slots_.at(slot));
    return true;
}

bool PumpCatalogue::readActiveSeries(std::size_t slot) {
    const PumpSeriesInfo* series = findJoined(activeSeries);
    if (series == nullptr && !firstSeries().empty()) {
        activeSeries = firstSeries();
        series = findJoined(activeSeries);
    }
    return series != nullptr && readPumps(series->FileName, slot);
}

bool PumpCatalogue::activate(const std::string& mfgName, const PumpSeriesInfo& series) {
    if (!readPumps(series.FileName, activeSlot)) return false;
    activeSeries = mfgName + series.seriesName;
    return true;
}

std::vector<const PumpSeriesInfo*> PumpCatalogue::seriesOf(const std::string& mfgName) const {
    std::vector<const PumpSeriesInfo*> found;
    for (const varnholt::PumpList& manufacturer : manufacturers_)
        if (manufacturer.mfgInfo.mfgName == mfgName)
            for (const PumpSeriesInfo& series : manufacturer.seriesInfo) found.push_back(&series);
    return found;
}

const PumpSeriesInfo* PumpCatalogue::find(const std::string& mfgName,
                                          const std::string& seriesName) const {
    for (const PumpSeriesInfo* series : seriesOf(mfgName))
        if (series->seriesName == seriesName) return series;
    return nullptr;
}

const PumpSeriesInfo* PumpCatalogue::findJoined(const std::string& joinedName) const {
    for (const varnholt::PumpList& manufacturer : manufacturers_)
        for (const PumpSeriesInfo& series : manufacturer.seriesInfo)
            if (joined(manufacturer, series) == joinedName) return &series;
    return nullptr;
}

std::string PumpCatalogue::firstSeries() const {
    for (const varnholt::PumpList& manufacturer : manufacturers_)
        if (!manufacturer.seriesInfo.empty())
            return joined(manufacturer, manufacturer.seriesInfo.front());
    return {};
}

/// The edition of one of the known makers starts with a series of that maker.
std::string PumpCatalogue::preferredSeries() const {
    const std::string address = texts_.text(makerAddressText);
    for (const Maker& maker : makers)
        if (address == maker.webAddress && find(maker.mfgName, maker.preferredSeries) != nullptr)
            return std::string(maker.mfgName) + maker.preferredSeries;
    return firstSeries();
}

/// A shorter series leaves the slot's higher models in place.
void PumpCatalogue::store(PumpSeries series, Slot& slot) {
    slot.size = series.models.size();
    if (slot.models.size() < slot.size) slot.models.resize(slot.size);
    if (slot.models.empty()) slot.models.emplace_back();
    if (slot.size == 0) {  // the head belongs to model 0 even where no model follows
        slot.models[0] = {};
        slot.models[0].mfgInfo = series.mfgInfo;
        slot.models[0].seriesInfo = series.seriesInfo;
    }
    std::move(series.models.begin(), series.models.end(), slot.models.begin());
}

bool PumpCatalogue::checkFile(const std::string& path) const {
    const bool found = fileExists(path);
    if (!found) exclaim_(texts_.text(missingFileText) + "\r\r" + path);
    return found;
}

/// Only a missing file and a file that ends too early are worth a message.
void PumpCatalogue::tell(const RunTimeError& error) const {
    if (error.number() == 53 || error.number() == 62) exclaim_(error.message());
}

}  // namespace varnholt
