// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <functional>
#include <memory>

namespace varnholt {

/// Does jobs one after the other in the order in which they come, while the program goes on:
/// flushing to a disk may take longer than anybody should wait at a key.
class BackgroundWorker {
 public:
    /// Something to be done. It must not throw, and use nothing that may be gone before it is done:
    /// one that hangs goes on when the worker has ended.
    using Job = std::function<void()>;

    BackgroundWorker();
    /// Ends when all is done, or after some seconds.
    ~BackgroundWorker();
    BackgroundWorker(const BackgroundWorker&) = delete;
    BackgroundWorker& operator=(const BackgroundWorker&) = delete;

    void post(Job job);
    /// Waits until all is done. False when that takes longer.
    bool finish(std::chrono::milliseconds most);

 private:
    struct Queue;
    std::shared_ptr<Queue> queue_;
};

}  // namespace varnholt
