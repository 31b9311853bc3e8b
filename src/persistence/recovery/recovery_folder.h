// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <string>
#include <vector>

#include "persistence/recovery/recovery_record.h"

namespace varnholt {

/// Where unsaved work is kept: a folder for each running program, and in it a file for each
/// document. The files of programs that have ended belong to whoever takes them first.
class RecoveryFolder {
 public:
    /// @param programFolder  the program's folder; nothing is made in it before something is kept
    explicit RecoveryFolder(const std::string& programFolder);

    /// Work that was found: the file's path, now in this program's own folder, and what it holds.
    struct Found {
        std::string path;
        RecoveryRecord record;
    };

    struct Taken {
        std::vector<Found> found;           ///< the oldest first
        std::vector<std::string> setAside;  ///< paths of damaged files under their new names
        /// Paths of files that cannot be read now, or only by another version of the program: the
        /// next start meets them again.
        std::vector<std::string> left;
    };
    /// Takes what programs have left that have ended. Does not throw.
    Taken take();

    /// A path in the own folder, which need not exist yet, that nothing has and nothing was given.
    std::string newPath();
    /// Takes the own folder away when nothing is left in it.
    void removeIfEmpty() const;

 private:
    void takeFrom(const std::string& folder, std::vector<std::string>& taken);
    std::vector<std::string> takeFiles();

    std::string folder_, own_;
    int last_ = 0;
};

}  // namespace varnholt
