// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/ModPumpsIO.h"

#include <algorithm>
#include <utility>

#include "basis/file_system.h"
#include "basis/line_file.h"
#include "basis/run_time_error.h"

namespace varnholt {
namespace {

constexpr std::size_t linesOfManufacturer = 7;
constexpr std::size_t linesOfSeries = 3;
constexpr std::size_t linesOfModel = 154;
/// As many as 16 bits count.
constexpr std::size_t mostModels = 32'767;

// One description of each file, run with a reader or with a writer.

template <class File, class Info>
void describeManufacturerInfo(File& file, Info& info) {
    file.text(info.mfgName);
    file.text(info.addressLine1);
    file.text(info.addressLine2);
    file.text(info.country);
    file.text(info.phone);
}

template <class File, class Info>
void describeSeriesInfo(File& file, Info& info) {
    file.text(info.seriesName);
    file.text(info.FileName);
    file.date(info.currentDate);
}

template <class File, class Manufacturer>
void describeManufacturer(File& file, Manufacturer& manufacturer) {
    file.fixed("");
    describeManufacturerInfo(file, manufacturer.mfgInfo);
    const std::size_t count = file.count(manufacturer.seriesInfo.size(), linesOfSeries);
    for (std::size_t i = 0; i < count; ++i) {
        if constexpr (File::reading) {
            checkIndex(static_cast<std::ptrdiff_t>(i), seriesPerManufacturer);
            PumpSeriesInfo info;
            describeSeriesInfo(file, info);
            manufacturer.seriesInfo.push_back(std::move(info));
        } else {
            describeSeriesInfo(file, manufacturer.seriesInfo[i]);
        }
    }
}

/// @param stated  is told how many manufacturers a file that is read states
template <class File, class Manufacturers>
void describeIndex(File& file, Manufacturers& manufacturers, std::size_t& stated) {
    file.title("Pump List File Version ");
    const std::size_t count = file.count(manufacturers.size(), linesOfManufacturer);
    if constexpr (File::reading) stated = file.statedCount();
    for (std::size_t i = 0; i < count; ++i) {
        if constexpr (File::reading) toInteger(static_cast<double>(i + 1));
        if constexpr (File::reading) manufacturers.emplace_back();
        describeManufacturer(file, manufacturers[i]);
    }
}

template <class File, class Rows>
void describeMeasuredTable(File& file, Rows& rows) {
    for (auto& row : rows) {
        file.number(row.temperature);
        for (auto& flow : row.flowRate) {
            file.number(flow.flowRate);
            for (auto& point : flow.HeatMode) {
                file.number(point.capacity);
                file.number(point.watts);
            }
        }
    }
}

template <class File, class Curves>
void describeCurves(File& file, Curves& curves) {
    for (std::size_t k = 0; k < 3; ++k)
        for (const Mode m : modes) {
            file.number(curves.capacity[k][m]);
            file.number(curves.watts[k][m]);
            file.number(curves.capacityCorrection[k][m]);
            file.number(curves.wattsCorrection[k][m]);
        }
}

/// What every version of a series file holds of a model.
template <class File, class Model>
void describeModel(File& file, Model& model) {
    file.text(model.name);
    file.integer(model.pumpType);
    describeMeasuredTable(file, model.ewt);
    describeCurves(file, model.coefficients);
    for (auto& row : model.eat)
        for (const Mode m : modes) {
            file.number(row.temperature[m]);
            file.number(row.capacityCorrection[m]);
            file.number(row.wattsCorrection[m]);
        }
    for (const Mode m : modes) file.number(model.flowCf[0][m]);
}

/// The fourth term of the load-temperature corrections came later than the other three and
/// stands apart from them.
template <class File, class Curves>
void describeCurveAdditions(File& file, Curves& curves) {
    for (std::size_t k = 0; k < 4; ++k)
        for (const Mode m : modes) {
            file.number(curves.capacityFlowCorrection[k][m]);
            file.number(curves.wattsFlowCorrection[k][m]);
            if (k < 3) continue;
            file.number(curves.capacityCorrection[3][m]);
            file.number(curves.wattsCorrection[3][m]);
        }
}

/// What version 1.1 added. Models are matched by position, their names are for the human reader.
template <class File, class Model>
void describeAdditions(File& file, Model& model) {
    file.fixed("");
    file.fixed(model.name);
    for (const Mode m : modes) file.number(model.flowCf[1][m]);
    file.number(model.nominalFlow);
    for (auto& row : model.elf)
        for (const Mode m : modes) {
            file.number(row.percent[m]);
            file.number(row.capacityCorrection[m]);
            file.number(row.wattsCorrection[m]);
        }
    describeCurveAdditions(file, model.coefficients);
}

/// A model without additions: no load-flow data, and a power that the source flow leaves alone.
pump neutralModel(const PumpSeries& series) {
    pump model;
    model.seriesInfo = series.seriesInfo;
    model.mfgInfo = series.mfgInfo;
    model.flowCf[1] = {1, 1};
    double percent = 80;
    for (elf& row : model.elf) {
        row = {{1, 1}, {1, 1}, {percent, percent}};
        percent += 10;
    }
    // The power's polynomial stays 0 even in its first term: harmless, since a nominal flow of 0
    // keeps the load flow out of the evaluation.
    model.coefficients.capacityFlowCorrection[0] = {1, 1};
    return model;
}

/// Returns the number of models.
template <class File, class Series>
std::size_t describeHead(File& file, Series& series) {
    file.title(series.mfgInfo.mfgName + " " + series.seriesInfo.seriesName + " List Version ");
    const std::size_t count = file.count(series.models.size(), linesOfModel);
    file.fixed("");
    describeSeriesInfo(file, series.seriesInfo);
    file.fixed("");
    describeManufacturerInfo(file, series.mfgInfo);
    file.fixed("");
    return count;
}

template <class File, class Series>
void describeSeries(File& file, Series& series) {
    const std::size_t count = describeHead(file, series);
    // A list that grows bit by bit would take twice the memory on its way.
    if constexpr (File::reading) series.models.reserve(std::min(count, mostModels));
    for (std::size_t i = 0; i < count; ++i) {
        if constexpr (File::reading) {
            toInteger(static_cast<double>(i + 1));
            pump model = neutralModel(series);
            describeModel(file, model);
            series.models.push_back(std::move(model));
        } else {
            describeModel(file, series.models[i]);
        }
    }
    if (!file.since(1.1)) return;
    file.fixed("");
    file.fixed("Version 1.2 Additions");
    for (auto& model : series.models) describeAdditions(file, model);
}

void tellEntries(ReadingReport* report, Entries entries, std::size_t stated, std::size_t found) {
    if (report == nullptr) return;
    report->entries = entries;
    report->stated = stated;
    report->found = found;
}

}  // namespace

void readPumpIndex(std::string_view bytes, std::vector<PumpList>& manufacturers,
                   ReadingReport* report) {
    manufacturers.clear();
    LineFileReader file(bytes);
    std::size_t stated = 0;
    try {
        reportReading(file, report, [&] { describeIndex(file, manufacturers, stated); });
        tellEntries(report, Entries::manufacturers, stated, manufacturers.size());
    } catch (const RunTimeError&) {
        // The last one is not whole.
        tellEntries(report, Entries::manufacturers, stated,
                    manufacturers.empty() ? 0 : manufacturers.size() - 1);
        if (!manufacturers.empty() && manufacturers.back() == PumpList{}) manufacturers.pop_back();
        throw;
    }
}

void readPumpSeries(std::string_view bytes, PumpSeries& series, ReadingReport* report) {
    series = {};
    LineFileReader file(bytes);
    try {
        reportReading(file, report, [&] { describeSeries(file, series); });
    } catch (const RunTimeError&) {
        tellEntries(report, Entries::pumps, file.statedCount(), series.models.size());
        throw;
    }
    tellEntries(report, Entries::pumps, file.statedCount(), series.models.size());
}

std::string pumpIndexText(const std::vector<PumpList>& manufacturers) {
    LineFileWriter file;
    std::size_t stated = 0;
    describeIndex(file, manufacturers, stated);
    return std::move(file).bytes();
}

std::string pumpSeriesText(const PumpSeries& series) {
    LineFileWriter file;
    describeSeries(file, series);
    return std::move(file).bytes();
}

void WritePumpList(const std::string& pumpsFolder, const std::vector<PumpList>& manufacturers) {
    replaceWholeFile(pumpIndexPath(pumpsFolder), pumpIndexText(manufacturers));
}

void WritePumpSeries(const std::string& pumpsFolder, const PumpSeries& series) {
    replaceWholeFile(pumpSeriesPath(pumpsFolder, series.seriesInfo.FileName),
                     pumpSeriesText(series));
}

std::string pumpIndexPath(const std::string& pumpsFolder) {
    return joinPath(pumpsFolder, "PumpList.vht");
}

bool staysInFolder(const std::string& FileName) {
    return FileName.find_first_of("/\\") == std::string::npos;
}

std::string pumpSeriesPath(const std::string& pumpsFolder, const std::string& FileName) {
    return joinPath(pumpsFolder, FileName + ".hpd");
}

}  // namespace varnholt
