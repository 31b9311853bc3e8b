// SPDX-License-Identifier: GPL-3.0-or-later
#include "basis/system/end_signals.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "basis/system/held_marks.h"

namespace varnholt {
namespace {

constexpr int endSignals[] = {SIGTERM, SIGHUP, SIGINT};

// A handler is given nothing but its signal: what it sets stands here.
volatile sig_atomic_t caught = 0;
volatile sig_atomic_t mayEnd = 0;
int wake[2] = {-1, -1};

void catchSignal(int signal) {
    const int before = errno;
    if (mayEnd != 0) {
        removeHeldMarks();
        ::signal(signal, SIG_DFL);
        ::raise(signal);
    }
    caught = signal;
    static_cast<void>(::write(wake[1], "", 1) == 1);
    errno = before;
}

}  // namespace

EndSignals::EndSignals() {
    caught = 0;
    mayEnd = 0;
    if (::pipe2(wake, O_CLOEXEC | O_NONBLOCK) != 0) wake[0] = wake[1] = -1;
    for (const int signal : endSignals) {
        struct sigaction before {};
        ::sigaction(signal, nullptr, &before);
        // A program that is started to outlive its terminal goes on ignoring the end of it.
        if (before.sa_handler == SIG_IGN) continue;
        struct sigaction action {};
        action.sa_handler = catchSignal;
        action.sa_flags = SA_RESTART | SA_NODEFER;
        ::sigaction(signal, &action, nullptr);
    }
}

EndSignals::~EndSignals() {
    for (const int signal : endSignals) ::signal(signal, SIG_DFL);
    for (int& end : wake) ::close(std::exchange(end, -1));
}

int EndSignals::pending() const { return caught; }
int EndSignals::wakeDescriptor() const { return wake[0]; }
void EndSignals::setWaiting(bool waiting) {
    mayEnd = waiting ? 1 : 0;
    // One that came just before would wait for the input.
    if (waiting && caught != 0) endBy(caught);
}

void EndSignals::endBy(int signal) {
    removeHeldMarks();
    ::signal(signal, SIG_DFL);
    ::raise(signal);
    ::_exit(128 + signal);
}

}  // namespace varnholt
