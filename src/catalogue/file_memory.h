// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "basis/file_kind.h"
#include "basis/reading_report.h"
#include "basis/run_time_error.h"
#include "basis/system/file_source.h"

namespace varnholt {

/// What a file held when it was read.
template <class Content>
struct ReadFile {
    Content content;
    int error = 0;         ///< number of the RunTimeError that ended the reading; 0 for none
    ReadingReport report;  ///< how far the reading came
    FileKind other = FileKind::unknown;  ///< what the file is for certain, if not what is wanted
};

/// Remembers the files that were read last, each as long as it does not change.
template <class Content>
class FileMemory {
 public:
    /// Fills the content from a file's bytes; what was read before a RunTimeError stays in it.
    using Parse = void (*)(std::string_view bytes, Content& content, ReadingReport* report);

    /// @param kind of the files; of one that is certainly another nothing is taken
    /// @param most as many files are remembered
    FileMemory(Parse parse, FileKind kind, std::size_t most)
        : parse_(parse), kind_(kind), most_(most) {}

    /// Null when the file cannot be opened. Throws as FileSource::read.
    std::shared_ptr<const ReadFile<Content>> read(const FileSource& files,
                                                  const std::string& path) {
        const std::optional<FileStamp> now = files.stamp(path);
        if (!now) return nullptr;
        const auto known = std::find_if(known_.begin(), known_.end(),
                                        [&](const Known& file) { return file.path == path; });
        if (known != known_.end() && isUnchanged(known->stamp, *now)) {
            std::rotate(known_.begin(), known, known + 1);
            return known_.front().file;
        }
        if (known != known_.end()) known_.erase(known);
        known_.insert(known_.begin(), readAfresh(files, path));
        if (known_.size() > most_) known_.pop_back();
        return known_.front().file;
    }

 private:
    struct Known {
        std::string path;
        FileStamp stamp;
        std::shared_ptr<const ReadFile<Content>> file;
    };

    Known readAfresh(const FileSource& files, const std::string& path) const {
        const FileSource::Content found = files.read(path);
        auto file = std::make_shared<ReadFile<Content>>();
        const FileKind kind = fileKind(found.bytes);
        try {
            if (isCertainlyOther(kind, kind_))
                file->other = kind;
            else
                parse_(found.bytes, file->content, &file->report);
        } catch (const RunTimeError& error) {
            file->error = error.number();
        }
        return {path, found.stamp, std::move(file)};
    }

    Parse parse_;
    FileKind kind_;
    std::size_t most_;
    std::vector<Known> known_;  // the file used last stands first
};

}  // namespace varnholt
