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
        const FileSource::Content content = readFor(platform, path);
        const std::string& bytes = content.bytes;
        file.known = knownFile(content.stamp, bytes);
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

std::optional<FileStamp> stampOfOther(Platform& platform, const std::string& path,
                                      const std::optional<KnownFile>& known) {
    try {
        if (!fileExists(path)) return std::nullopt;
        const FileSource::Content now = readFor(platform, path);
        if (known && fingerprint(now.bytes) == known->fingerprint) return std::nullopt;
        return now.stamp;
    } catch (const RunTimeError&) {
        return std::nullopt;
    }
}

IndexFile readIndexFile(Platform& platform, const std::string& path) {
    IndexFile file;
    try {
        file.missing = !fileExists(path);
        if (file.missing) return file;
        const FileSource::Content content = readFor(platform, path);
        const std::string& bytes = content.bytes;
        file.known = knownFile(content.stamp, bytes);
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
