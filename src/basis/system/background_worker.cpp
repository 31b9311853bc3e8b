// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/system/background_worker.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace varnholt {

struct BackgroundWorker::Queue {
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<Job> jobs;  ///< the first is being done
    bool ends = false;
    bool hasThread = false;

    void add(Job job) {
        if (!hasThread) return job();
        const std::lock_guard<std::mutex> lock(mutex);
        jobs.push_back(std::move(job));
        changed.notify_all();
    }

    void work() {
        std::unique_lock<std::mutex> lock(mutex);
        for (;;) {
            changed.wait(lock, [&] { return ends || !jobs.empty(); });
            if (jobs.empty()) return;
            const Job job = std::move(jobs.front());
            lock.unlock();
            job();
            lock.lock();
            jobs.pop_front();
            changed.notify_all();
        }
    }
};

BackgroundWorker::BackgroundWorker() : queue_(std::make_shared<Queue>()) {
    queue_->hasThread = true;
    try {
        std::thread([queue = queue_] { queue->work(); }).detach();
    } catch (const std::system_error&) {
        // Without a second thread there is no choice but to wait.
        queue_->hasThread = false;
    }
}

BackgroundWorker::~BackgroundWorker() {
    finish(std::chrono::seconds(5));
    const std::lock_guard<std::mutex> lock(queue_->mutex);
    queue_->ends = true;
    queue_->changed.notify_all();
}

void BackgroundWorker::post(Job job) { queue_->add(std::move(job)); }

bool BackgroundWorker::finish(std::chrono::milliseconds most) {
    std::unique_lock<std::mutex> lock(queue_->mutex);
    return queue_->changed.wait_for(lock, most, [&] { return queue_->jobs.empty(); });
}

}  // namespace varnholt
