// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace varnholt {

/// The signals that ask the program to end: SIGTERM, SIGHUP, SIGINT. While this object lives they
/// are caught, so that the program can keep its work first. There is one at most.
class EndSignals {
 public:
    EndSignals();
    ~EndSignals();
    EndSignals(const EndSignals&) = delete;
    EndSignals& operator=(const EndSignals&) = delete;

    /// The signal that has come; 0 for none.
    int pending() const;
    /// A descriptor from which a byte can be read once a signal has come.
    int wakeDescriptor() const;
    /// While everything is kept and the program waits for its input, a signal ends it at once; the
    /// marks that it holds go before.
    void setWaiting(bool waiting);
    /// Ends the program as the signal does by itself; the marks that it holds go before.
    [[noreturn]] static void endBy(int signal);
};

}  // namespace varnholt
