// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "basis/system/file_source.h"
#include "forms/platform.h"

namespace varnholt {

/// As much as a file of zones may hold; all other files hold less.
constexpr std::size_t largestZoneFile = std::size_t{256} << 20;

/// Reads a whole file that a person has named, as long as the platform waits for it. Throws as
/// readWholeFile.
inline FileSource::Content readFor(Platform& platform, const std::string& path,
                                   std::size_t mostBytes = ReadingLimits{}.mostBytes) {
    struct Waiting {
        ~Waiting() { platform.waitingEnded(); }
        Platform& platform;
    } const waiting{platform};
    return DiskFiles::read(path, {mostBytes, [&](std::chrono::milliseconds waited) {
                                      return platform.waitFor(path, waited);
                                  }});
}

/// The files of the disk, read as long as the platform waits for them.
class PatientFiles : public FileSource {
 public:
    explicit PatientFiles(Platform& platform) : platform_(platform) {}

    std::optional<FileStamp> stamp(const std::string& path) const override {
        return DiskFiles().stamp(path);
    }
    Content read(const std::string& path) const override { return readFor(platform_, path); }

 private:
    Platform& platform_;
};

}  // namespace varnholt
