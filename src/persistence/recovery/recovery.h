// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "basis/system/background_worker.h"
#include "basis/system/last_words.h"
#include "persistence/recovery/kept_work.h"
#include "persistence/recovery/recovery_folder.h"

namespace varnholt {

class ChildWindow;
class Varnmain;

/// Keeps the unsaved work of every window in the program's folder, and offers it again at the next
/// start when the program has ended without saving it.
///
/// Whoever owns the program's clock calls `tick`, which copies the documents that have changed:
/// that takes no time that anybody notices, since copies share what they hold. They are made into
/// bytes and written while the program goes on.
class Recovery {
 public:
    using Time = std::chrono::steady_clock::time_point;
    /// Between two calls of `tick`.
    static constexpr std::chrono::milliseconds step{1'000};

    /// As long as somebody types on, this much time passes between two writings.
    static constexpr std::chrono::milliseconds usualPace{4'000};

    explicit Recovery(Varnmain& main, std::chrono::milliseconds pace = usualPace);
    /// Keeps what is unsaved.
    ~Recovery();
    Recovery(const Recovery&) = delete;
    Recovery& operator=(const Recovery&) = delete;

    /// Offers what was found, a question a document: Yes opens it as changed, No discards it,
    /// Cancel keeps it for the next start.
    void offer();
    /// Documents that have changed since the last time are kept a few seconds later, or as soon as
    /// there is a pause. What could not be written is tried again.
    void tick(Time now);
    /// Keeps everything and waits until it is on the disk.
    void keepNow();

 private:
    void look();
    void keep(const ChildWindow& window, UnsavedWork work);
    void writeWaiting();
    void drop(int serial);
    std::size_t freePlace() const;
    /// What there is to tell afterwards; empty for nothing.
    std::string offer(const RecoveryFolder::Found& found);
    std::string questionAbout(const RecoveryRecord& record) const;

    Varnmain& main_;
    RecoveryFolder folder_;
    std::shared_ptr<LastWords> lastWords_ = std::make_shared<LastWords>();
    std::map<int, std::shared_ptr<KeptWork>> kept_;  ///< by the number of the window
    int seen_ = 0;  ///< the actions that had been when the documents were looked at
    std::chrono::milliseconds pace_;
    std::optional<Time> written_;
    BackgroundWorker maker_, writer_;
};

}  // namespace varnholt
