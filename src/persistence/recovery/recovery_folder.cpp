// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/recovery/recovery_folder.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <optional>
#include <utility>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "basis/system/folders.h"
#include "basis/system/private_files.h"
#include "basis/system/process.h"
#include "basis/system/temporary_names.h"

namespace varnholt {
namespace {

constexpr std::string_view extension = ".unsaved";
constexpr std::size_t largestRecord = std::size_t{512} << 20;

/// The computer's name stands last, since it may hold any sign but a slash.
std::string nameOf(const ProcessIdentity& process) {
    return fmt::format("{}-{}-{}", process.number, process.begun, process.host);
}

std::optional<ProcessIdentity> processOf(const std::string& name) {
    ProcessIdentity process;
    const char* const end = name.data() + name.size();
    const auto number = std::from_chars(name.data(), end, process.number);
    if (number.ec != std::errc{} || number.ptr == end || *number.ptr != '-') return std::nullopt;
    const auto begun = std::from_chars(number.ptr + 1, end, process.begun);
    if (begun.ec != std::errc{} || begun.ptr == end || *begun.ptr != '-') return std::nullopt;
    process.host.assign(begun.ptr + 1, end);
    return process;
}

/// The number that the file's name begins with; 0 for none.
int numberOf(const std::string& file) {
    const std::string name = fileNameOf(file);
    int number = 0;
    std::from_chars(name.data(), name.data() + name.size(), number);
    return number;
}

}  // namespace

RecoveryFolder::RecoveryFolder(const std::string& programFolder)
    : folder_(joinPath(programFolder, "recovery")), own_(joinPath(folder_, nameOf(thisProcess()))) {
    if (!isFolder(own_)) return;
    for (const std::string& file : filesIn(own_)) last_ = std::max(last_, numberOf(file));
}

std::string RecoveryFolder::newPath() {
    return joinPath(own_, std::to_string(++last_) + std::string(extension));
}

void RecoveryFolder::removeIfEmpty() const {
    if (isFolder(own_)) removeEmptyFolder(own_);
    if (isFolder(folder_)) removeEmptyFolder(folder_);
}

/// Two programs may start at once: each file goes to the one that renames it.
void RecoveryFolder::takeFrom(const std::string& folder, std::vector<std::string>& taken) {
    makePrivateFolder(folder_);
    makePrivateFolder(own_);
    removeLeftovers(folder);
    for (const std::string& file : filesIn(folder)) {
        if (!file.ends_with(extension)) continue;
        const std::string path = newPath();
        if (moveFile(file, path)) taken.push_back(path);
    }
    removeEmptyFolder(folder);
}

std::vector<std::string> RecoveryFolder::takeFiles() {
    std::vector<std::string> taken;
    try {
        if (!isFolder(folder_)) return taken;
        for (const std::string& folder : foldersIn(folder_)) {
            const std::optional<ProcessIdentity> process = processOf(fileNameOf(folder));
            if (process && hasEnded(*process)) takeFrom(folder, taken);
        }
    } catch (const RunTimeError&) {
        // What cannot be taken stays where it is.
    }
    return taken;
}

RecoveryFolder::Taken RecoveryFolder::take() {
    Taken taken;
    for (const std::string& path : takeFiles()) {
        std::string bytes;
        try {
            bytes = readWholeFile(path, {largestRecord, {}});
        } catch (const RunTimeError&) {
            // The disk failed, which may pass: the next start tries again.
            taken.left.push_back(path);
            continue;
        }
        const std::string aside = path + ".damaged";
        if (std::optional<RecoveryRecord> record = readRecord(bytes))
            taken.found.push_back({path, std::move(*record)});
        else if (isOfAnotherVersion(bytes))
            taken.left.push_back(path);
        else if (moveFile(path, aside))
            taken.setAside.push_back(aside);
    }
    std::sort(taken.found.begin(), taken.found.end(),
              [](const Found& a, const Found& b) { return a.record.changed < b.record.changed; });
    return taken;
}

}  // namespace varnholt
