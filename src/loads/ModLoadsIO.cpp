// SPDX-License-Identifier: GPL-3.0-or-later
#include "loads/ModLoadsIO.h"

#include <algorithm>
#include <utility>

#include "basis/file_system.h"
#include "basis/line_file.h"
#include "forms/patient_reading.h"

namespace varnholt {
namespace {

constexpr std::size_t linesOfZone = 30;
constexpr std::size_t linesOfLoadFlow = 3;

// One description of the file, run with a reader or with a writer.

template <class File, class AZone>
void describeZone(File& file, AZone& zone) {
    auto& pump = zone.pump;
    for (const Mode m : modes)
        for (auto& block : zone.gains) file.number(block[m]);
    for (const Mode m : modes) file.integer(zone.hours[m]);
    for (const Mode m : modes) {
        file.number(pump.efficiency[m]);
        file.number(pump.watts[m]);
        file.number(pump.capacity[m]);
        file.number(pump.flowRate[m]);
        file.number(pump.plf[m]);
        file.number(pump.elt[m]);
    }
    file.number(zone.days);
    file.text(zone.title);
    file.text(pump.mfgName);
    file.text(pump.seriesName);
    file.text(pump.name);
    file.integer(pump.pumpType);
    file.integer(pump.number);
    file.integer(pump.customPump);
}

/// Returns how many zones there are in the file that the program does not count.
template <class File, class Data>
std::size_t describeZones(File& file, const ZoneFileContext& context, Data& data) {
    file.title("Zone Data File Version ");
    const std::size_t inFile = file.count(data.zones.size(), linesOfZone);
    const std::size_t count = File::reading ? std::min(inFile, mostZones) : inFile;
    if constexpr (File::reading) data.zones.clear();
    for (std::size_t i = 0; i < count; ++i) {
        if constexpr (File::reading) {
            Zone zone;
            zone.name = context.zoneWord + " " + std::to_string(i + 1);
            describeZone(file, zone);
            data.zones.push_back(std::move(zone));
        } else {
            describeZone(file, data.zones[i]);
        }
    }
    if constexpr (File::reading) file.skipLines((inFile - count) * linesOfZone);
    return inFile - count;
}

template <class File, class Pump>
void describeLoadFlow(File& file, Pump& pump) {
    double nominalFlow = pump.nominalFlow;
    file.number(nominalFlow);
    if constexpr (File::reading) pump.setNominalFlow(nominalFlow);
    for (const Mode m : modes) file.number(pump.elf[m]);
}

template <class File, class Zones>
void describeLoadFlows(File& file, Zones& zones, std::size_t leftOut) {
    for (std::size_t i = 0; i < zones.size(); ++i) {
        if constexpr (File::reading)
            describeLoadFlow(file, zones.edit(i).pump);
        else
            describeLoadFlow(file, zones[i].pump);
    }
    if constexpr (File::reading) file.skipLines(leftOut * linesOfLoadFlow);
}

template <class File, class Data>
void describeFile(File& file, const ZoneFileContext& context, Data& data) {
    const std::size_t leftOut = describeZones(file, context, data);
    auto& conditions = data.conditions;
    const DesignConditions before;  // what held before files could tell
    if (file.since(1.1)) describeLoadFlows(file, data.zones, leftOut);
    if (file.since(2.0)) {
        file.number(conditions.flowRate);
        for (const Mode m : modes) file.number(conditions.inletTemp[m]);
    } else if constexpr (File::reading) {
        conditions.flowRate = before.flowRate;
        conditions.inletTemp = before.inletTemp;
    }
    if (file.since(2.1)) {
        file.text(data.activeSeries);
        for (const Mode m : modes) {
            file.number(conditions.inletLoadAirTemp[m]);
            file.number(conditions.inletLoadWaterTemp[m]);
        }
    } else if constexpr (File::reading) {
        data.activeSeries = context.firstSeries;
        conditions.inletLoadAirTemp = before.inletLoadAirTemp;
        conditions.inletLoadWaterTemp = before.inletLoadWaterTemp;
    }
}

}  // namespace

void readZones(std::string_view bytes, const ZoneFileContext& context, LoadsData& data,
               ReadingReport* report) {
    LineFileReader file(bytes);
    // What the file states and what was read of it is told however the reading ends.
    const auto count = [&] {
        if (report == nullptr || file.lineNumber() < 2) return;
        report->stated = file.statedCount();
        report->found = data.zones.size();
        report->leftOut = report->stated > mostZones && report->found == mostZones
                              ? report->stated - mostZones
                              : 0;
    };
    try {
        reportReading(file, report, [&] { describeFile(file, context, data); });
    } catch (const RunTimeError&) {
        count();
        throw;
    }
    count();
}

std::string zonesText(const LoadsData& data) {
    LineFileWriter file;
    describeFile(file, {}, data);
    return std::move(file).bytes();
}

void readZoneFile(const std::string& path, const ZoneFileContext& context, LoadsData& data) {
    readZones(readWholeFile(path, {largestZoneFile, {}}), context, data);
}

void saveZoneFile(const std::string& path, const LoadsData& data) {
    replaceWholeFile(path, zonesText(data));
}

}  // namespace varnholt
