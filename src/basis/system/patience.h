// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>
#include <condition_variable>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>

namespace varnholt {

/// Whether a call of the system that takes long is waited for any longer. Asked every few
/// hundredths of a second, with the time since the call began.
using Patience = std::function<bool(std::chrono::milliseconds waited)>;

/// So long, and no longer.
inline Patience upTo(std::chrono::milliseconds most) {
    return [most](std::chrono::milliseconds waited) { return waited < most; };
}

/// The result of work that may hang, as calls of a network's folder do; nothing when patience has
/// ended first. The work goes on by itself then, so it may use nothing but what it owns. What it
/// throws is thrown here.
template <class Result>
std::optional<Result> patiently(const Patience& patience, std::function<Result()> work) {
    struct Shared {
        std::mutex mutex;
        std::condition_variable ended;
        std::optional<Result> result;
        std::exception_ptr fault;
    };
    auto shared = std::make_shared<Shared>();
    const auto run = [shared, work] {
        std::optional<Result> result;
        std::exception_ptr fault;
        try {
            result = work();
        } catch (...) {
            fault = std::current_exception();
        }
        const std::lock_guard<std::mutex> lock(shared->mutex);
        shared->result = std::move(result);
        shared->fault = fault;
        shared->ended.notify_one();
    };
    try {
        std::thread(run).detach();
    } catch (const std::system_error&) {
        // Without a second thread there is no choice but to wait.
        run();
    }
    using namespace std::chrono;
    const auto begin = steady_clock::now();
    std::unique_lock<std::mutex> lock(shared->mutex);
    const auto hasEnded = [&] { return shared->result || shared->fault; };
    while (!shared->ended.wait_for(lock, milliseconds(20), hasEnded)) {
        lock.unlock();
        const bool goesOn = patience(duration_cast<milliseconds>(steady_clock::now() - begin));
        lock.lock();
        if (!goesOn && !hasEnded()) return std::nullopt;
    }
    if (shared->fault) std::rethrow_exception(shared->fault);
    return std::move(shared->result);
}

}  // namespace varnholt
