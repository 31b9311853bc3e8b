// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "catalogue/catalogue_files.h"
#include "catalogue/loaded_series.h"
#include "catalogue/pump.h"
#include "forms/texts.h"
#include "frame/file_damage.h"

namespace varnholt {

/// The two series that a window keeps loaded.
enum SeriesSlot : std::size_t {
    activeSlot = 0,   ///< the active series, which the auto-selection searches
    browsedSlot = 1,  ///< the series being browsed, or that of the zone at hand
};

/// A loads window's own view of the catalogue: the index, two loaded series, and which one is
/// active. Reading never throws: what went wrong is shown, each time, and what was read up to there
/// stays.
class PumpCatalogue {
 public:
    /// Shows a message with an exclamation mark.
    using Exclaim = std::function<void(const std::string& text)>;

    /// @param programFolder  the program's folder, without a slash at its end; the catalogue is
    ///                       its folder `pumps`
    /// @param activeSeries   manufacturer's and series' name joined, part of the document that the
    ///                       window edits. A window that opens a zone file stores its series there
    ///                       and calls InitializeHeatPumpLists
    /// @param files          what the program has read of the catalogue, for windows to share
    PumpCatalogue(const std::string& programFolder, const Texts& texts, std::string& activeSeries,
                  Exclaim exclaim,
                  std::shared_ptr<CatalogueFiles> files = std::make_shared<CatalogueFiles>());

    const std::string& activeSeries() const { return activeSeries_; }
    const std::vector<varnholt::PumpList>& vhtPumpNames() const { return index_->content; }
    std::int16_t vhtMfgCount() const { return static_cast<std::int16_t>(vhtPumpNames().size()); }
    std::int16_t vhtTotalSeriesCount() const;

    // Throw RunTimeError 9 for a slot that there is not. What they return lasts until the slot is
    // read into again.

    /// Model i of a slot in file order, RunTimeError 9 beyond those ever read into it.
    const pump& PumpList(std::size_t slot, std::size_t i) const;
    /// Number of models in the slot; models beyond it belong to a series read before.
    std::size_t size(std::size_t slot) const;
    /// The models that count.
    std::span<const pump> models(std::size_t slot) const;
    /// Whether the slot holds this series.
    bool holds(std::size_t slot, const std::string& mfgName, const std::string& seriesName) const;

    // A file that has not changed since the program read it is not read again.

    /// Reads the index afresh, chooses the active series if none is set, and loads it into slot
    /// 0. An active series that the catalogue does not list gives way to the first series.
    void InitializeHeatPumpLists();
    /// Reads the catalogue's index alone.
    void readPumpNames();
    /// Reads a series file by its base name into a slot. False when nothing could be read; the
    /// slot is then as it was.
    bool readPumps(const std::string& FileName, std::size_t slot);
    /// Reads the series that `activeSeries` names, or the first one, into a slot. False when
    /// nothing could be read.
    bool readActiveSeries(std::size_t slot);
    /// Makes a series the active one and loads it into slot 0. False when it cannot be read;
    /// another one stays active then.
    bool activate(const std::string& mfgName, const PumpSeriesInfo& series);

    /// The series of all manufacturers of that name: an index may list one more than once.
    std::vector<const PumpSeriesInfo*> seriesOf(const std::string& mfgName) const;
    /// The catalogue's entry of a series; null when it lists none of these names.
    const PumpSeriesInfo* find(const std::string& mfgName, const std::string& seriesName) const;
    /// The entry of the first series whose joined name this is, or null.
    const PumpSeriesInfo* findJoined(const std::string& joinedName) const;
    /// The model of that name in whatever series of the catalogue, which need not be loaded; null
    /// where there is none. A series is looked up once and then remembered until the index is read
    /// again. Of files that cannot be read nothing is told, and none is waited for. Lasts as long
    /// as what is remembered.
    const pump* lookUp(const std::string& mfgName, const std::string& seriesName,
                       const std::string& modelName) const;
    /// Of the index and the series read last, those that could not be read whole.
    std::vector<FileDamage> damage() const;
    /// Joined name of the first series of the first manufacturer that has one, or empty.
    std::string firstSeries() const;

 private:
    std::string preferredSeries() const;
    std::shared_ptr<const PumpSeries> readUntold(const PumpSeriesInfo* series) const;
    template <class Content>
    void noteDamage(const std::string& path, const ReadFile<Content>& file);
    void tellMissing(const std::string& path) const;
    void tell(int error) const;

    std::string folder_;
    const Texts& texts_;
    std::string& activeSeries_;
    Exclaim exclaim_;
    std::shared_ptr<CatalogueFiles> files_;
    std::shared_ptr<const CatalogueFiles::Index> index_;
    std::array<LoadedSeries, 2> slots_;
    std::map<std::string, FileDamage> damage_;  ///< by the files' paths
    /// By names of manufacturer and series; null for those that cannot be read.
    mutable std::map<std::pair<std::string, std::string>, std::shared_ptr<const PumpSeries>>
        lookedUp_;
};

}  // namespace varnholt
