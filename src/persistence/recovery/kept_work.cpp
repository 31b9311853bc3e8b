// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/recovery/kept_work.h"

#include <new>
#include <utility>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "basis/system/fingerprint.h"
#include "basis/system/private_files.h"

namespace varnholt {

std::uint64_t fingerprintOf(const RecoveryRecord& record) {
    const std::string flags{record.isStale ? 's' : '-', record.savesUnderNewName ? 'n' : '-'};
    return fingerprint(record.path, fingerprint(flags, fingerprint(record.document)));
}

KeptWork::KeptWork(std::string path, std::shared_ptr<LastWords> lastWords, std::size_t place,
                   std::uint64_t fingerprint)
    : path_(std::move(path)),
      place_(place),
      lastWords_(std::move(lastWords)),
      fingerprint_(fingerprint) {}

void KeptWork::make(const UnsavedWork& work) {
    try {
        RecoveryRecord record = work.record;
        record.document = work.document();
        const std::uint64_t present = fingerprintOf(record);
        if (present == fingerprint_) return;
        auto bytes = std::make_shared<const std::string>(recordBytes(record));
        fingerprint_ = present;
        const std::lock_guard<std::mutex> lock(mutex_);
        if (dropped_) return;
        lastWords_->lay(place_, path_, bytes);
        waiting_ = std::move(bytes);
    } catch (const std::bad_alloc&) {
        // What was made before is still kept; the next change is made anew.
    }
}

bool KeptWork::isWaiting() const {
    const std::lock_guard<std::mutex> lock(mutex_);
    return waiting_ != nullptr;
}

void KeptWork::makeFolder() const {
    try {
        const std::string folder = folderOf(path_);
        makePrivateFolder(folderOf(folder));
        makePrivateFolder(folder);
    } catch (const RunTimeError&) {
        // The write that follows fails too, and is tried again.
    }
}

void KeptWork::write() {
    std::shared_ptr<const std::string> bytes;
    {
        const std::lock_guard<std::mutex> lock(mutex_);
        bytes = std::exchange(waiting_, nullptr);
    }
    if (bytes == nullptr) return;
    try {
        makeFolder();
        writePrivateFile(path_, *bytes);
    } catch (const RunTimeError&) {
        const std::lock_guard<std::mutex> lock(mutex_);
        if (waiting_ == nullptr && !dropped_) waiting_ = std::move(bytes);
    }
}

void KeptWork::drop() {
    const std::lock_guard<std::mutex> lock(mutex_);
    dropped_ = true;
    waiting_ = nullptr;
    lastWords_->take(place_);
}

}  // namespace varnholt
