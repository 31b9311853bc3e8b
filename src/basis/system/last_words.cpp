// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/system/last_words.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cstdio>

#include "basis/system/descriptor.h"
#include "basis/system/held_marks.h"

namespace varnholt {

/// A handler is given nothing but its signal: what it writes stands here.
struct LaidWords {
    const char* fresh;
    const char* path;
    const char* bytes;
    std::size_t size;
};

namespace {

constexpr int fatalSignals[] = {SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT};

std::array<std::atomic<const LaidWords*>, LastWords::most> laid;

void writeLaid(const LaidWords& words) {
    const int file =
        ::open(words.fresh, O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW | O_CLOEXEC, 0600);
    if (file < 0) return;
    const bool written = writeAll(file, {words.bytes, words.size}) && ::fsync(file) == 0;
    ::close(file);
    if (written) static_cast<void>(::rename(words.fresh, words.path) == 0);
}

void writeAllLaid(int signal) {
    for (const auto& place : laid)
        if (const LaidWords* words = place.load()) writeLaid(*words);
    removeHeldMarks();
    // The handler was for once: the signal now does what it always does.
    ::raise(signal);
}

}  // namespace

struct LastWords::Words {
    struct Laying {
        std::string fresh, path;
        std::shared_ptr<const std::string> bytes;
        LaidWords row{};
    };
    std::array<Laying, 2> turns;
    std::size_t turn = 0;
};

namespace {

/// A stack that has overflowed is no place for a handler.
alignas(16) std::array<char, 65'536> ownStack;

/// Gives this thread's handlers a stack of their own, unless they have one.
void giveStack() {
    stack_t present{};
    if (::sigaltstack(nullptr, &present) != 0 || (present.ss_flags & SS_DISABLE) == 0) return;
    const stack_t own{ownStack.data(), 0, ownStack.size()};
    ::sigaltstack(&own, nullptr);
}

void takeStack() {
    stack_t present{};
    if (::sigaltstack(nullptr, &present) != 0 || present.ss_sp != ownStack.data()) return;
    const stack_t none{nullptr, SS_DISABLE, 0};
    ::sigaltstack(&none, nullptr);
}

}  // namespace

LastWords::LastWords() : words_(new Words[most]) {
    giveStack();
    struct sigaction action {};
    action.sa_handler = writeAllLaid;
    // The last of the flags is unsigned in the system's headers, the field is not.
    action.sa_flags = static_cast<int>(SA_RESETHAND | SA_NODEFER | SA_ONSTACK);
    for (const int signal : fatalSignals) ::sigaction(signal, &action, nullptr);
}

LastWords::~LastWords() {
    for (std::size_t place = 0; place < most; ++place) take(place);
    for (const int signal : fatalSignals) ::signal(signal, SIG_DFL);
    takeStack();
}

void LastWords::lay(std::size_t place, const std::string& path,
                    std::shared_ptr<const std::string> bytes) {
    if (place >= most) return;
    Words& words = words_[place];
    words.turn = 1 - words.turn;
    Words::Laying& laying = words.turns[words.turn];
    laying.path = path;
    laying.fresh = path + ".last";
    laying.bytes = std::move(bytes);
    laying.row = {laying.fresh.c_str(), laying.path.c_str(), laying.bytes->data(),
                  laying.bytes->size()};
    laid[place].store(&laying.row);
}

void LastWords::take(std::size_t place) {
    if (place < most) laid[place].store(nullptr);
}

}  // namespace varnholt
