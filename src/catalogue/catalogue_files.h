// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "basis/system/file_source.h"
#include "catalogue/ModPumpsIO.h"
#include "catalogue/file_memory.h"

namespace varnholt {

/// The catalogue's files as the program has read them: a file that has not changed on the disk is
/// neither read nor parsed again, and all windows share what it holds. One for the whole program;
/// it is for one thread.
class CatalogueFiles {
 public:
    using Index = ReadFile<std::vector<PumpList>>;
    using Series = ReadFile<PumpSeries>;

    explicit CatalogueFiles(std::unique_ptr<const FileSource> files);
    /// On the files of the disk.
    CatalogueFiles();

    // Null when the file cannot be opened. Both throw as readWholeFile when it cannot be read; a
    // file whose content ends in an error holds what stood before that, and the error's number.

    std::shared_ptr<const Index> index(const std::string& path);
    std::shared_ptr<const Series> series(const std::string& path);

 private:
    std::unique_ptr<const FileSource> files_;
    FileMemory<std::vector<PumpList>> indices_;
    FileMemory<PumpSeries> series_;
};

}  // namespace varnholt
