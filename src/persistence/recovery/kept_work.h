// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>

#include "basis/system/last_words.h"
#include "persistence/recovery/recovery_record.h"

namespace varnholt {

/// The work in a window that closing it would lose, as it was at a moment.
struct UnsavedWork {
    RecoveryRecord record;  ///< all but the document
    /// Makes the bytes of a file that holds the document. It uses copies alone, so that another
    /// thread can call it while the window is worked.
    std::function<std::string()> document;
};

/// The same for records that would open the same document in the same way.
std::uint64_t fingerprintOf(const RecoveryRecord& record);

/// The unsaved work of one window on its way to the disk. One thread makes bytes of it, another
/// writes them, and the window's own waits for neither.
class KeptWork {
 public:
    /// @param path         of its file, in a folder that need not exist yet
    /// @param place        among the last words, which nothing else uses as long as this is kept
    /// @param fingerprint  of what the file holds already; 0 for nothing
    KeptWork(std::string path, std::shared_ptr<LastWords> lastWords, std::size_t place,
             std::uint64_t fingerprint = 0);

    const std::string& path() const { return path_; }
    std::size_t place() const { return place_; }

    /// Makes bytes, to be written and to be the last words; none where they would be those that
    /// were made before. Does not throw.
    void make(const UnsavedWork& work);
    /// Whether bytes wait to be written.
    bool isWaiting() const;
    /// Makes the folder, so that last words have a place to go. Does not throw.
    void makeFolder() const;
    /// Writes what waits. What cannot be written, for instance on a full disk, goes on waiting
    /// unless something newer does. Does not throw.
    void write();
    /// The work has been saved or refused: nothing waits from now on.
    void drop();

 private:
    const std::string path_;
    const std::size_t place_;
    const std::shared_ptr<LastWords> lastWords_;
    std::uint64_t fingerprint_;  ///< of what was made last; used by one thread alone

    mutable std::mutex mutex_;
    std::shared_ptr<const std::string> waiting_;
    bool dropped_ = false;
};

}  // namespace varnholt
