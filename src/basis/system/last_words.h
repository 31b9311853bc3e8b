// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <memory>
#include <string>

namespace varnholt {

/// Bytes that must reach the disk even when the program fails in its own code. They are laid down
/// here when they are made; a handler of fatal signals writes what lies here, with calls of the
/// system alone, before the program ends as it would have without. The marks that the program holds
/// go too.
///
/// A place is for one thread at a time; the handler may come in any other. So what lay in a place
/// stays in memory until something else has been laid down there twice.
class LastWords {
 public:
    static constexpr std::size_t most = 160;

    /// From the first of these on the fatal signals are caught.
    LastWords();
    ~LastWords();
    LastWords(const LastWords&) = delete;
    LastWords& operator=(const LastWords&) = delete;

    /// Lays bytes down in a place from 0, for a file in a folder that exists, instead of those that
    /// lay there.
    void lay(std::size_t place, const std::string& path, std::shared_ptr<const std::string> bytes);
    /// The bytes are on the disk, or of no use any more.
    void take(std::size_t place);

 private:
    struct Words;
    std::unique_ptr<Words[]> words_;
};

}  // namespace varnholt
