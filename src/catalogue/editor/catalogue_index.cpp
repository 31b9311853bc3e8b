// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/editor/catalogue_index.h"

#include <algorithm>
#include <array>

#include "catalogue/editor/new_pump.h"

namespace varnholt {
namespace {

/// Leaves room for the extension and for the names of files that are being written.
constexpr std::size_t longestFileName = 200;

/// Position of the first element that follows the name in the alphabet, or the end.
template <class List, class NameOf>
std::size_t placeFor(const List& list, const std::string& name, const NameOf& nameOf) {
    std::size_t place = 0;
    while (place < list.size() && compareIgnoringCase(nameOf(list[place]), name) <= 0) ++place;
    return place;
}

template <class List, class Element>
void insertAt(List& list, std::size_t place, Element element) {
    list.insert(list.begin() + static_cast<std::ptrdiff_t>(place), std::move(element));
}

template <class List>
void eraseAt(List& list, std::size_t place) {
    list.erase(list.begin() + static_cast<std::ptrdiff_t>(place));
}

/// Names of devices, with which some systems do not let a file be named.
bool isDevice(const std::string& name) {
    static constexpr std::array<const char*, 4> devices{"con", "prn", "aux", "nul"};
    for (const char* device : devices)
        if (compareIgnoringCase(name, device) == 0) return true;
    if (name.size() != 4 || name[3] < '0' || name[3] > '9') return false;
    const std::string stem = name.substr(0, 3);
    return compareIgnoringCase(stem, "com") == 0 || compareIgnoringCase(stem, "lpt") == 0;
}

bool isPlainCharacter(char c) {
    const auto code = static_cast<unsigned char>(c);
    return code >= 0x20 && code != 0x7F && std::string("/\\:*?\"<>|.").find(c) == std::string::npos;
}

}  // namespace

std::optional<std::size_t> findManufacturer(const CatalogueIndex& index, const std::string& name) {
    for (std::size_t m = 0; m < index.size(); ++m)
        if (index[m].mfgInfo.mfgName == name) return m;
    return std::nullopt;
}

std::optional<std::size_t> findSeries(const PumpList& manufacturer, const std::string& name) {
    for (std::size_t s = 0; s < manufacturer.seriesInfo.size(); ++s)
        if (manufacturer.seriesInfo[s].seriesName == name) return s;
    return std::nullopt;
}

bool isManufacturerTaken(const CatalogueIndex& index, const std::string& name,
                         std::optional<std::size_t> except) {
    for (std::size_t m = 0; m < index.size(); ++m)
        if (m != except && index[m].mfgInfo.mfgName == name) return true;
    return false;
}

bool isSeriesTaken(const PumpList& manufacturer, const std::string& name,
                   std::optional<std::size_t> except) {
    for (std::size_t s = 0; s < manufacturer.seriesInfo.size(); ++s)
        if (s != except && manufacturer.seriesInfo[s].seriesName == name) return true;
    return false;
}

bool isFileTaken(const CatalogueIndex& index, const std::string& FileName,
                 std::optional<SeriesPlace> except) {
    for (std::size_t m = 0; m < index.size(); ++m)
        for (std::size_t s = 0; s < index[m].seriesInfo.size(); ++s)
            if (SeriesPlace{m, s} != except && index[m].seriesInfo[s].FileName == FileName)
                return true;
    return false;
}

SeriesPlace insertManufacturer(CatalogueIndex& index, const PumpManufacturerInfo& manufacturer,
                               const PumpSeriesInfo& series) {
    const std::size_t place = placeFor(
        index, manufacturer.mfgName,
        [](const PumpList& listed) -> const std::string& { return listed.mfgInfo.mfgName; });
    insertAt(index, place, PumpList{manufacturer, {series}});
    return {place, 0};
}

SeriesPlace insertSeries(CatalogueIndex& index, std::size_t manufacturer,
                         const PumpSeriesInfo& series) {
    auto& list = index[manufacturer].seriesInfo;
    const std::size_t place = placeFor(
        list, series.seriesName,
        [](const PumpSeriesInfo& listed) -> const std::string& { return listed.seriesName; });
    insertAt(list, place, series);
    return {manufacturer, place};
}

void removeSeries(CatalogueIndex& index, const SeriesPlace& place) {
    auto& list = index[place.manufacturer].seriesInfo;
    eraseAt(list, place.series);
    if (list.empty()) eraseAt(index, place.manufacturer);
}

std::string withoutExtension(const std::string& FileName) {
    return FileName.substr(0, FileName.find('.'));
}

bool isUsableFileName(const std::string& FileName) {
    return !FileName.empty() && FileName.size() <= longestFileName && FileName.front() != ' ' &&
           FileName.back() != ' ' && !isDevice(FileName) &&
           std::all_of(FileName.begin(), FileName.end(), isPlainCharacter);
}

}  // namespace varnholt
