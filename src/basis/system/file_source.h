// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "basis/system/patience.h"

struct stat;

namespace varnholt {

/// What tells one state of a file from another without reading it.
struct FileStamp {
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t size = 0;      ///< bytes
    std::int64_t modified = 0;  ///< ns since 1970
    /// Whether the last change lies so far back that a further one is bound to show in `modified`,
    /// which some file systems keep in steps of two seconds.
    bool settled = false;
};

/// Of what the system tells of a file.
FileStamp stampOf(const struct stat& status);

/// Whether a file, now of the stamp `now`, is sure to hold what it held when it had `then`.
bool isUnchanged(const FileStamp& then, const FileStamp& now);

/// A file as it was read or written last: by its stamp, and by what goes with its bytes, for
/// changes that come so soon that no stamp shows them.
struct KnownFile {
    FileStamp stamp;
    std::uint64_t fingerprint = 0;
};

KnownFile knownFile(const FileStamp& stamp, std::string_view bytes);
/// The file's stamp where it is another one than the known; nothing where it is the same, or gone.
std::optional<FileStamp> changedStamp(const std::string& path, const KnownFile& known);

/// How much of a file is read, and how long it is waited for.
struct ReadingLimits {
    std::size_t mostBytes = std::size_t{64} << 20;  ///< a longer file is RunTimeError 75
    /// Empty for that of a program that nobody watches.
    Patience patience = {};
};

/// Where files are read from. A port, so that a test can see what is read.
class FileSource {
 public:
    struct Content {
        std::string bytes;
        FileStamp stamp;  ///< as it was before the bytes were read
    };

    virtual ~FileSource() = default;
    /// Nothing when the file cannot be opened for reading.
    virtual std::optional<FileStamp> stamp(const std::string& path) const = 0;
    /// The whole file. Throws as readWholeFile.
    virtual Content read(const std::string& path) const = 0;
};

/// The files of the disk.
class DiskFiles : public FileSource {
 public:
    std::optional<FileStamp> stamp(const std::string& path) const override;
    Content read(const std::string& path) const override { return read(path, {}); }
    static Content read(const std::string& path, const ReadingLimits& limits);
};

}  // namespace varnholt
