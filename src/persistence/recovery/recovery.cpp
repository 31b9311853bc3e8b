// SPDX-License-Identifier: GPL-3.0-or-later
#include "persistence/recovery/recovery.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "basis/date.h"
#include "basis/file_system.h"
#include "forms/text_numbers/files.h"
#include "frame/varnmain.h"
#include "persistence/recovery/recovered_windows.h"

namespace varnholt {
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
    writeWaiting();
    written_ = now;
}

void Recovery::keepNow() {
    constexpr std::chrono::seconds most(5);
    look();
    maker_.finish(most);
    // A write that failed may succeed the second time; where none did, there is nothing to do.
    for (int attempt = 0; attempt < 2; ++attempt) {
        writeWaiting();
        writer_.finish(most);
    }
}

/// Copies the documents that are unsaved, and forgets those that are not any more.
void Recovery::look() {
    seen_ = main_.actionsSoFar();
    std::vector<int> gone;
    for (const auto& [serial, kept] : kept_) gone.push_back(serial);
    for (const ChildWindow* window : main_.windows()) {
        std::optional<UnsavedWork> work = unsavedWorkOf(*window);
        if (!work) continue;
        std::erase(gone, window->serial());
        keep(*window, std::move(*work));
    }
    for (const int serial : gone) drop(serial);
}

void Recovery::keep(const ChildWindow& window, UnsavedWork work) {
    std::shared_ptr<KeptWork>& kept = kept_[window.serial()];
    if (kept == nullptr) {
        kept = std::make_shared<KeptWork>(folder_.newPath(), lastWords_, freePlace());
        writer_.post([kept] { kept->makeFolder(); });
    }
    work.record.changed = presentMoment();
    maker_.post([kept, work = std::move(work)] { kept->make(work); });
}

std::size_t Recovery::freePlace() const {
    std::size_t place = 0;
    const auto isTaken = [&](const auto& kept) {
        return kept.second != nullptr && kept.second->place() == place;
    };
    while (std::any_of(kept_.begin(), kept_.end(), isTaken)) ++place;
    return place;
}

void Recovery::writeWaiting() {
    for (const auto& [serial, kept] : kept_)
        if (kept->isWaiting()) writer_.post([kept = kept] { kept->write(); });
}

/// The document has been saved, or its changes refused.
void Recovery::drop(int serial) {
    const auto found = kept_.find(serial);
    found->second->drop();
    writer_.post([path = found->second->path()] { removeFile(path); });
    kept_.erase(found);
}

void Recovery::offer() {
    RecoveryFolder::Taken taken = folder_.take();
    std::vector<RecoveryFolder::Found>& found = taken.found;
    // Designs look for the windows of their loads.
    std::stable_partition(found.begin(), found.end(), [](const RecoveryFolder::Found& each) {
        return !isDesignForm(each.record.form);
    });
    std::vector<std::string> told;
    for (const std::string& path : taken.setAside)
        told.push_back(filledIn(main_.text(Text::noticeSetAside), {path}));
    for (const std::string& path : taken.left)
        told.push_back(filledIn(main_.text(Text::noticeLeftUnread), {path}));
    for (const RecoveryFolder::Found& each : found) told.push_back(offer(each));
    std::string notice;
    for (const std::string& sentence : told)
        if (!sentence.empty()) notice += (notice.empty() ? "" : " ") + sentence;
    if (!notice.empty()) main_.setNotice(notice);
    main_.refreshCommands();
}

std::string Recovery::offer(const RecoveryFolder::Found& found) {
    const Answer answer = main_.platform().question(
        Buttons::yesNoCancel, main_.text(Text::unsavedTitle), questionAbout(found.record));
    if (answer == Answer::no) {
        removeFile(found.path);
        folder_.removeIfEmpty();
    }
    if (answer != Answer::yes) return {};
    const ChildWindow* window = openRecovered(main_, found.record);
    if (window == nullptr) return filledIn(main_.text(Text::noticeStillKept), {found.record.name});
    // What was found stays until the window's own record takes its place.
    kept_[window->serial()] = std::make_shared<KeptWork>(found.path, lastWords_, freePlace(),
                                                         fingerprintOf(found.record));
    return {};
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
