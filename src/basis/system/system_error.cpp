// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/system/system_error.h"

#include <cerrno>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "basis/system/folders.h"

namespace varnholt {

void throwFileError(int systemError, const std::string& path) {
    switch (systemError) {
        case ENOENT: {
            const std::string folder = folderOf(path);
            if (folder.empty() || isFolder(folder)) throw RunTimeError(RunTimeError::fileNotFound);
            throw RunTimeError(76, path);
        }
        case ENOTDIR:
            throw RunTimeError(76, path);
        case ENOSPC:
        case EDQUOT:
        case EFBIG:
            throw RunTimeError(61, path);
        case EACCES:
        case EPERM:
        case EROFS:
            throw RunTimeError(70, path);
        case EIO:
            throw RunTimeError(57, path);
        default:
            throw RunTimeError(75, path);
    }
}

}  // namespace varnholt
