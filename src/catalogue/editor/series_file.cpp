// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/editor/series_file.h"

#include "basis/file_system.h"
#include "basis/run_time_error.h"

namespace varnholt {

SeriesFile readSeriesFile(const std::string& path) {
    SeriesFile file;
    try {
        if (!fileExists(path)) return file;
        file.bytes = readWholeFile(path);
        const FileKind kind = fileKind(*file.bytes);
        if (isCertainlyOther(kind, FileKind::pumpSeries))
            file.other = kind;
        else
            readPumpSeries(*file.bytes, file.series, &file.report);
    } catch (const RunTimeError& error) {
        file.error = error.number();
    }
    return file;
}

bool holdsOther(const std::string& path, const std::optional<std::string>& bytes) {
    try {
        return fileExists(path) && readWholeFile(path) != bytes;
    } catch (const RunTimeError&) {
        return false;
    }
}

IndexFile readIndexFile(const std::string& path) {
    IndexFile file;
    try {
        file.missing = !fileExists(path);
        if (file.missing) return file;
        file.bytes = readWholeFile(path);
        const FileKind kind = fileKind(*file.bytes);
        if (isCertainlyOther(kind, FileKind::pumpList))
            file.other = kind;
        else
            readPumpIndex(*file.bytes, file.index, &file.report);
    } catch (const RunTimeError& error) {
        file.error = error.number();
    }
    return file;
}

}  // namespace varnholt
