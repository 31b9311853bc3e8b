// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "catalogue/pump.h"

namespace varnholt {

// The catalogue's index as a list that is edited. Names are compared exactly, upper and lower case
// distinct; the order of the lists ignores the case.

using CatalogueIndex = std::vector<PumpList>;

/// A series in the index.
struct SeriesPlace {
    std::size_t manufacturer = 0, series = 0;

    friend bool operator==(const SeriesPlace&, const SeriesPlace&) = default;
};

/// The first manufacturer of that name.
std::optional<std::size_t> findManufacturer(const CatalogueIndex& index, const std::string& name);
/// The first of the manufacturer's series of that name.
std::optional<std::size_t> findSeries(const PumpList& manufacturer, const std::string& name);

/// Whether another manufacturer than the one at `except` has the name.
bool isManufacturerTaken(const CatalogueIndex& index, const std::string& name,
                         std::optional<std::size_t> except = {});
/// Whether the manufacturer has the series, elsewhere than at `except`.
bool isSeriesTaken(const PumpList& manufacturer, const std::string& name,
                   std::optional<std::size_t> except = {});
/// Whether any series but the one at `except` has the file name.
bool isFileTaken(const CatalogueIndex& index, const std::string& FileName,
                 std::optional<SeriesPlace> except = {});

/// Inserts the manufacturer with its first series in front of the first one that follows it in the
/// alphabet.
SeriesPlace insertManufacturer(CatalogueIndex& index, const PumpManufacturerInfo& manufacturer,
                               const PumpSeriesInfo& series);
/// Likewise a series of a manufacturer that the index holds.
SeriesPlace insertSeries(CatalogueIndex& index, std::size_t manufacturer,
                         const PumpSeriesInfo& series);
/// Takes a series away, and with the last one its manufacturer.
void removeSeries(CatalogueIndex& index, const SeriesPlace& place);

/// The name up to its first full stop: the extension is the program's.
std::string withoutExtension(const std::string& FileName);

/// Whether a file of that base name can be made in any folder of any system: no slashes and no
/// signs that some systems refuse, no name that some keep for their devices, no blanks at the ends,
/// at most 200 bytes.
bool isUsableFileName(const std::string& FileName);

}  // namespace varnholt
