// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/system/background_writer.h"

#include <condition_variable>
#include <deque>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

#include "basis/file_system.h"
#include "basis/run_time_error.h"
#include "basis/system/private_files.h"

namespace varnholt {
namespace {

struct Job {
    std::string path;
    std::shared_ptr<const std::string> bytes;  ///< null to take the file away

    void run() const {
        try {
            if (bytes)
                writePrivateFile(path, *bytes);
            else
                removeFile(path);
        } catch (const RunTimeError&) {
            // The next change tries again.
        }
    }
};

}  // namespace

struct BackgroundWriter::Queue {
    mutable std::mutex mutex;
    std::condition_variable changed;
    std::deque<Job> jobs;  ///< the first is being done
    bool ends = false;
    bool hasThread = false;

    void add(Job job) {
        {
            const std::lock_guard<std::mutex> lock(mutex);
            if (hasThread) jobs.push_back(job);
        }
        if (hasThread)
            changed.notify_all();
        else
            job.run();
    }

    void work() {
        std::unique_lock<std::mutex> lock(mutex);
        for (;;) {
            changed.wait(lock, [&] { return ends || !jobs.empty(); });
            if (jobs.empty()) return;
            const Job job = jobs.front();
            lock.unlock();
            job.run();
            lock.lock();
            jobs.pop_front();
            changed.notify_all();
        }
    }
};

BackgroundWriter::BackgroundWriter() : queue_(std::make_shared<Queue>()) {
    try {
        queue_->hasThread = true;
        std::thread([queue = queue_] { queue->work(); }).detach();
    } catch (const std::system_error&) {
        queue_->hasThread = false;
    }
}

BackgroundWriter::~BackgroundWriter() {
    finish(std::chrono::seconds(5));
    const std::lock_guard<std::mutex> lock(queue_->mutex);
    queue_->ends = true;
    queue_->changed.notify_all();
}

void BackgroundWriter::write(const std::string& path, std::shared_ptr<const std::string> bytes) {
    queue_->add({path, std::move(bytes)});
}

void BackgroundWriter::remove(const std::string& path) { queue_->add({path, nullptr}); }

bool BackgroundWriter::finish(std::chrono::milliseconds most) {
    std::unique_lock<std::mutex> lock(queue_->mutex);
    return queue_->changed.wait_for(lock, most, [&] { return queue_->jobs.empty(); });
}

bool BackgroundWriter::isIdle() const {
    const std::lock_guard<std::mutex> lock(queue_->mutex);
    return queue_->jobs.empty();
}

}  // namespace varnholt
