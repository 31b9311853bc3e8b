// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/editor/series_file.h"

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "basis/system/fingerprint.h"
#include "forms/patient_reading.h"

namespace varnholt {

SeriesFile readSeriesFile(Platform& platform, const std::string& path) {
    SeriesFile file;
    try {
        if (!fileExists(path)) return file;
        const std::string bytes = readFor(platform, path).bytes;
        file.fingerprint = fingerprint(bytes);
        const FileKind kind = fileKind(bytes);
        if (isCertainlyOther(kind, FileKind::pumpSeries))
            file.other = kind;
        else
            readPumpSeries(bytes, file.series, &file.report);
    } catch (const RunTimeError& error) {
        file.error = error.number();
    }
    return file;
}

bool holdsOther(Platform& platform, const std::string& path,
                const std::optional<std::uint64_t>& known) {
    try {
        return fileExists(path) && fingerprint(readFor(platform, path).bytes) != known;
    } catch (const RunTimeError&) {
        return false;
    }
}

IndexFile readIndexFile(Platform& platform, const std::string& path) {
    IndexFile file;
    try {
        file.missing = !fileExists(path);
        if (file.missing) return file;
        const std::string bytes = readFor(platform, path).bytes;
        file.fingerprint = fingerprint(bytes);
        const FileKind kind = fileKind(bytes);
        if (isCertainlyOther(kind, FileKind::pumpList))
            file.other = kind;
        else
            readPumpIndex(bytes, file.index, &file.report);
    } catch (const RunTimeError& error) {
        file.error = error.number();
    }
    return file;
}

}  // namespace varnholt
