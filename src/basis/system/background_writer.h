// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <memory>
#include <string>

namespace varnholt {

/// Writes private files (see private_files.h) and takes them away in the order in which it is told,
/// while the program goes on: flushing to a disk may take longer than anybody should wait at a key.
/// It sees bytes alone, never a document. What cannot be written is left out.
class BackgroundWriter {
 public:
    BackgroundWriter();
    /// Ends when all is done, or after some seconds.
    ~BackgroundWriter();
    BackgroundWriter(const BackgroundWriter&) = delete;
    BackgroundWriter& operator=(const BackgroundWriter&) = delete;

    void write(const std::string& path, std::shared_ptr<const std::string> bytes);
    void remove(const std::string& path);
    /// Waits until all is done. False when that takes longer.
    bool finish(std::chrono::milliseconds most);
    bool isIdle() const;

 private:
    struct Queue;
    std::shared_ptr<Queue> queue_;
};

}  // namespace varnholt
