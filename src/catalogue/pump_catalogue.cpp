// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/pump_catalogue.h"

#include <algorithm>
#include <utility>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "catalogue/makers.h"
#include "forms/text_numbers/borehole.h"
#include "forms/text_numbers/program.h"

namespace varnholt {
namespace {

std::string joined(const PumpList& manufacturer, const PumpSeriesInfo& series) {
    return manufacturer.mfgInfo.mfgName + series.seriesName;
}

}  // namespace

PumpCatalogue::PumpCatalogue(const std::string& programFolder, const Texts& texts,
                             std::string& activeSeries, Exclaim exclaim,
                             std::shared_ptr<CatalogueFiles> files)
    : folder_(programFolder + "/pumps"),
      texts_(texts),
      activeSeries_(activeSeries),
      exclaim_(std::move(exclaim)),
      files_(std::move(files)),
      index_(std::make_shared<const CatalogueFiles::Index>()) {}

std::int16_t PumpCatalogue::vhtTotalSeriesCount() const {
    std::size_t total = 0;
    for (const varnholt::PumpList& manufacturer : vhtPumpNames())
        total += manufacturer.seriesInfo.size();
    return static_cast<std::int16_t>(total);
}

const pump& PumpCatalogue::PumpList(std::size_t slot, std::size_t i) const {
    return at(slots_, static_cast<std::ptrdiff_t>(slot)).model(i);
}

std::size_t PumpCatalogue::size(std::size_t slot) const {
    return at(slots_, static_cast<std::ptrdiff_t>(slot)).size();
}

std::span<const pump> PumpCatalogue::models(std::size_t slot) const {
    return at(slots_, static_cast<std::ptrdiff_t>(slot)).models();
}

bool PumpCatalogue::holds(std::size_t slot, const std::string& mfgName,
                          const std::string& seriesName) const {
    const LoadedSeries& loaded = at(slots_, static_cast<std::ptrdiff_t>(slot));
    return loaded.isLoaded() && loaded.model(0).mfgInfo.mfgName == mfgName &&
           loaded.model(0).seriesInfo.seriesName == seriesName;
}

void PumpCatalogue::InitializeHeatPumpLists() {
    readPumpNames();
    if (activeSeries_.empty()) activeSeries_ = preferredSeries();
    readActiveSeries(activeSlot);
}

void PumpCatalogue::readPumpNames() {
    index_ = std::make_shared<const CatalogueFiles::Index>();
    lookedUp_.clear();
    const std::string path = pumpIndexPath(folder_);
    try {
        const auto file = files_->index(path);
        if (file == nullptr) return tellMissing(path);
        index_ = file;
        noteDamage(path, *file);
        tell(file->error);
    } catch (const RunTimeError& error) {
        tell(error.number());
    }
}

bool PumpCatalogue::readPumps(const std::string& FileName, std::size_t slot) {
    const std::string path = pumpSeriesPath(folder_, FileName);
    if (!staysInFolder(FileName)) return tellMissing(path), false;
    try {
        const auto file = files_->series(path);
        if (file == nullptr) return tellMissing(path), false;
        noteDamage(path, *file);
        tell(file->error);
        if (file->content == PumpSeries{}) return false;
        at(slots_, static_cast<std::ptrdiff_t>(slot)).load({file, &file->content});
        return true;
    } catch (const RunTimeError& error) {
        return tell(error.number()), false;
    }
}

bool PumpCatalogue::readActiveSeries(std::size_t slot) {
    const PumpSeriesInfo* series = findJoined(activeSeries_);
    if (series == nullptr && !firstSeries().empty()) {
        activeSeries_ = firstSeries();
        series = findJoined(activeSeries_);
    }
    return series != nullptr && readPumps(series->FileName, slot);
}

bool PumpCatalogue::activate(const std::string& mfgName, const PumpSeriesInfo& series) {
    if (!readPumps(series.FileName, activeSlot)) return false;
    activeSeries_ = mfgName + series.seriesName;
    return true;
}

std::vector<const PumpSeriesInfo*> PumpCatalogue::seriesOf(const std::string& mfgName) const {
    std::vector<const PumpSeriesInfo*> found;
    for (const varnholt::PumpList& manufacturer : vhtPumpNames())
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

std::shared_ptr<const PumpSeries> PumpCatalogue::readUntold(const PumpSeriesInfo* series) const {
    if (series == nullptr || !staysInFolder(series->FileName)) return nullptr;
    try {
        auto read = std::make_shared<PumpSeries>();
        readPumpSeries(DiskFiles().read(pumpSeriesPath(folder_, series->FileName)).bytes, *read);
        return read;
    } catch (const RunTimeError&) {
        return nullptr;
    }
}

const pump* PumpCatalogue::lookUp(const std::string& mfgName, const std::string& seriesName,
                                  const std::string& modelName) const {
    const auto [known, isNew] = lookedUp_.try_emplace({mfgName, seriesName});
    if (isNew) known->second = readUntold(find(mfgName, seriesName));
    if (known->second == nullptr) return nullptr;
    const std::vector<pump>& models = known->second->models;
    const auto found = std::find_if(models.begin(), models.end(),
                                    [&](const pump& model) { return model.name == modelName; });
    return found == models.end() ? nullptr : &*found;
}

const PumpSeriesInfo* PumpCatalogue::findJoined(const std::string& joinedName) const {
    for (const varnholt::PumpList& manufacturer : vhtPumpNames())
        for (const PumpSeriesInfo& series : manufacturer.seriesInfo)
            if (joined(manufacturer, series) == joinedName) return &series;
    return nullptr;
}

std::string PumpCatalogue::firstSeries() const {
    for (const varnholt::PumpList& manufacturer : vhtPumpNames())
        if (!manufacturer.seriesInfo.empty())
            return joined(manufacturer, manufacturer.seriesInfo.front());
    return {};
}

/// The edition of one of the known makers starts with a series of that maker.
std::string PumpCatalogue::preferredSeries() const {
    const std::string address = texts_.text(Text::makerAddress);
    for (const Maker& maker : makers)
        if (address == maker.webAddress && find(maker.mfgName, maker.preferredSeries) != nullptr)
            return std::string(maker.mfgName) + maker.preferredSeries;
    return firstSeries();
}

void PumpCatalogue::tellMissing(const std::string& path) const {
    exclaim_(texts_.text(Text::pumpDataMissing) + "\r\r" + path);
}

template <class Content>
void PumpCatalogue::noteDamage(const std::string& path, const ReadFile<Content>& file) {
    const FileDamage damage{fileNameOf(path), file.report, file.other};
    if (damage.isTold())
        damage_[path] = damage;
    else
        damage_.erase(path);
}

std::vector<FileDamage> PumpCatalogue::damage() const {
    std::vector<FileDamage> found;
    for (const auto& [path, damage] : damage_) found.push_back(damage);
    return found;
}

/// Only a missing file and a file that ends too early are worth a message.
void PumpCatalogue::tell(int error) const {
    if (error == 53 || error == 62) exclaim_(RunTimeError(error).message());
}

}  // namespace varnholt
