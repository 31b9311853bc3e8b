// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/system/kept_copy.h"

#include <fmt/format.h>
#include <unistd.h>

#include <filesystem>
#include <vector>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "basis/system/file_source.h"
#include "basis/system/fingerprint.h"

namespace varnholt {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t anyLength = std::size_t{1} << 40;

std::string beginOfName(std::uint64_t inode) { return fmt::format(".varnholt-kept-{:x}-", inode); }

std::string endOfName(std::string_view bytes) { return fmt::format("{:016x}", fingerprint(bytes)); }

std::vector<std::string> copiesIn(const std::string& folder, std::uint64_t inode) {
    const std::string begin = beginOfName(inode);
    std::error_code error;
    std::vector<std::string> found;
    fs::directory_iterator entries(folder, error);
    for (; !error && entries != fs::directory_iterator(); entries.increment(error))
        if (entries->path().filename().native().starts_with(begin))
            found.push_back(entries->path().native());
    return found;
}

}  // namespace

std::string keptCopyPath(const std::string& folder, std::uint64_t inode, std::string_view bytes) {
    return joinPath(folder, beginOfName(inode) + endOfName(bytes));
}

std::optional<KeptCopy> keptCopyOf(const std::string& path) {
    try {
        const std::optional<FileStamp> stamp = DiskFiles().stamp(path);
        if (!stamp) return std::nullopt;
        const std::string folder = folderOf(path);
        const auto copies = copiesIn(folder.empty() ? "." : folder, stamp->inode);
        if (copies.empty()) return std::nullopt;
        const std::string now = readOwnFile(path);
        std::optional<KeptCopy> oldest;
        for (const std::string& copy : copies) {
            const FileSource::Content before = DiskFiles::read(copy, {anyLength, {}});
            if (copy.ends_with(endOfName(now)) || before.bytes == now)
                ::unlink(copy.c_str());
            else if (!oldest || before.stamp.modified < oldest->modified)
                // A later one may hold what a first writing left.
                oldest = KeptCopy{copy, before.stamp.modified};
        }
        return oldest;
    } catch (const RunTimeError&) {
        // A copy that cannot be read is none to offer.
        return std::nullopt;
    }
}

void restoreKeptCopy(const std::string& path, const KeptCopy& copy) {
    replaceWholeFile(path, readOwnFile(copy.path));
    ::unlink(copy.path.c_str());
}

}  // namespace varnholt
