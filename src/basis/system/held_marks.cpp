// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/system/held_marks.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstring>

namespace varnholt {
namespace {

struct HeldMark {
    std::string path, content;
    pid_t process = 0;
};

/// What was held stays in memory until its place has been given away twice: a handler in another
/// thread may still read it.
struct MarkPlace {
    std::array<HeldMark, 2> turns;
    std::size_t turn = 0;
};

// A handler is given nothing but its signal: what it removes stands here.
std::array<std::atomic<const HeldMark*>, mostHeldMarks> heldMarks;

/// Lives until the very end of the program, since a signal may come as late as that.
std::array<MarkPlace, mostHeldMarks>& markPlaces() {
    static auto* const all = new std::array<MarkPlace, mostHeldMarks>;
    return *all;
}

bool holdsMark(const HeldMark& mark) {
    const int file = ::open(mark.path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (file < 0) return false;
    // One byte more than the mark has, which tells a longer file.
    std::array<char, 1024> bytes;
    const std::size_t wanted = std::min(bytes.size(), mark.content.size() + 1);
    const ssize_t got = ::read(file, bytes.data(), wanted);
    ::close(file);
    return got >= 0 && static_cast<std::size_t>(got) == mark.content.size() &&
           std::memcmp(bytes.data(), mark.content.data(), mark.content.size()) == 0;
}

}  // namespace

void holdMark(const std::string& path, const std::string& content) {
    for (std::size_t place = 0; place < mostHeldMarks; ++place) {
        if (heldMarks[place].load() != nullptr) continue;
        MarkPlace& own = markPlaces()[place];
        own.turn = 1 - own.turn;
        own.turns[own.turn] = {path, content, ::getpid()};
        heldMarks[place].store(&own.turns[own.turn]);
        return;
    }
}

void letMarkGo(const std::string& path) {
    for (auto& place : heldMarks) {
        const HeldMark* const mark = place.load();
        if (mark != nullptr && mark->path == path) place.store(nullptr);
    }
}

void removeHeldMarks() {
    const int before = errno;
    for (const auto& place : heldMarks)
        if (const HeldMark* mark = place.load())
            if (mark->process == ::getpid() && holdsMark(*mark)) ::unlink(mark->path.c_str());
    errno = before;
}

}  // namespace varnholt
