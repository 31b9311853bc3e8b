// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/recovery/recovery.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "basis/date.h"
#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "basis/system/fingerprint.h"
#include "forms/text_numbers.h"
#include "frame/varnmain.h"
#include "persistence/recovery/recovered_windows.h"

namespace varnholt {
namespace {

/// The same for records that would open the same document in the same way.
std::uint64_t fingerprintOf(const RecoveryRecord& record) {
    const std::string flags{record.isStale ? 's' : '-', record.savesUnderNewName ? 'n' : '-'};
    return fingerprint(record.document + flags + record.path);
}

}  // namespace

Recovery::Recovery(Varnmain& main, std::chrono::milliseconds pace)
    : main_(main), folder_(main.MainDirectory), pace_(pace) {}

Recovery::~Recovery() {
    keepNow();
    folder_.removeIfEmpty();
}

void Recovery::tick(Time now) {
    const bool pause = seen_ == main_.actionsSoFar();
    if (!pause) look();
    if (!written_) written_ = now;
    if (!pause && now - *written_ < pace_) return;
    writePending();
    written_ = now;
}

void Recovery::keepNow() {
    look();
    writePending();
    writer_.finish(std::chrono::seconds(5));
}

/// Makes bytes of the documents that are unsaved, and forgets those that are not any more.
void Recovery::look() {
    seen_ = main_.actionsSoFar();
    std::vector<int> gone;
    for (const auto& [serial, kept] : kept_) gone.push_back(serial);
    for (const ChildWindow* window : main_.windows()) {
        std::optional<RecoveryRecord> record = unsavedWorkOf(*window);
        if (!record) continue;
        std::erase(gone, window->serial());
        keep(*window, std::move(*record));
    }
    for (const int serial : gone) drop(serial);
}

void Recovery::keep(const ChildWindow& window, RecoveryRecord record) {
    const std::uint64_t present = fingerprintOf(record);
    const auto known = kept_.find(window.serial());
    if (known != kept_.end() && known->second.fingerprint == present) return;
    try {
        if (known == kept_.end())
            kept_[window.serial()] = {folder_.newPath(), 0, freePlace(), nullptr};
    } catch (const RunTimeError&) {
        // Nothing can be kept where nothing can be written; the next look tries again.
        return;
    }
    Kept& kept = kept_[window.serial()];
    record.changed = presentMoment();
    kept.fingerprint = present;
    kept.bytes = std::make_shared<const std::string>(recordBytes(record));
    lastWords_.lay(kept.place, kept.path, kept.bytes);
}

std::size_t Recovery::freePlace() const {
    std::size_t place = 0;
    const auto isTaken = [&](const auto& kept) { return kept.second.place == place; };
    while (std::any_of(kept_.begin(), kept_.end(), isTaken)) ++place;
    return place;
}

void Recovery::writePending() {
    for (auto& [serial, kept] : kept_)
        if (kept.bytes) writer_.write(kept.path, std::exchange(kept.bytes, nullptr));
}

/// The document has been saved, or its changes refused.
void Recovery::drop(int serial) {
    const auto kept = kept_.find(serial);
    lastWords_.take(kept->second.place);
    writer_.remove(kept->second.path);
    kept_.erase(kept);
}

void Recovery::offer() {
    std::vector<std::string> setAside;
    std::vector<RecoveryFolder::Found> found = folder_.take(setAside);
    // Designs look for the windows of their loads.
    std::stable_partition(found.begin(), found.end(), [](const RecoveryFolder::Found& each) {
        return !isDesignForm(each.record.form);
    });
    for (const RecoveryFolder::Found& each : found) offer(each);
    if (!setAside.empty())
        main_.setNotice(filledIn(main_.text(Text::noticeSetAside), {setAside.front()}));
    main_.refreshCommands();
}

void Recovery::offer(const RecoveryFolder::Found& found) {
    const Answer answer = main_.platform().question(
        Buttons::yesNoCancel, main_.text(Text::unsavedTitle), questionAbout(found.record));
    if (answer == Answer::no) {
        removeFile(found.path);
        return folder_.removeIfEmpty();
    }
    if (answer != Answer::yes) return;
    // What was found stays until the window's own record takes its place.
    if (const ChildWindow* window = openRecovered(main_, found.record))
        kept_[window->serial()] = {found.path, fingerprintOf(found.record), freePlace(), nullptr};
}

std::string Recovery::questionAbout(const RecoveryRecord& record) const {
    Platform& platform = main_.platform();
    std::string file = main_.text(Text::unsavedWithoutFile);
    const auto stamp = record.path.empty() ? std::nullopt : DiskFiles().stamp(record.path);
    if (stamp)
        file = filledIn(main_.text(stamp->modified > record.changed ? Text::unsavedFileNewer
                                                                    : Text::unsavedFileOlder),
                        {platform.timeText(stamp->modified)});
    return filledIn(main_.text(Text::unsavedWork),
                    {record.name, platform.timeText(record.changed)}) +
           "\n\n" + file + "\n\n" + main_.text(Text::unsavedQuestion);
}

}  // namespace varnholt
