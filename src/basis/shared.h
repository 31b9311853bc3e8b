// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <atomic>
#include <memory>
#include <utility>

namespace varnholt {

/// A value that its copies share until one of them is written to, so that copying it costs the
/// same whatever its size. A copy may be read by another thread than the one that writes to its
/// own.
template <class T>
class Shared {
 public:
    Shared() : value_(std::make_shared<T>()) {}
    Shared(T value)  // NOLINT(google-explicit-constructor)
        : value_(std::make_shared<T>(std::move(value))) {}

    const T& operator*() const { return *value_; }
    const T* operator->() const { return value_.get(); }

    /// The value to write to, which no other copy shares from now on. The reference serves until
    /// this object is copied.
    T& edit() {
        if (value_.use_count() > 1) value_ = std::make_shared<T>(*value_);
        // What another thread has read of a copy that is gone comes before what is written now.
        std::atomic_thread_fence(std::memory_order_acquire);
        return *value_;
    }

    /// Whether both are one value in memory, which is more than being equal.
    bool isSameAs(const Shared& other) const { return value_ == other.value_; }
    friend bool operator==(const Shared& a, const Shared& b) { return a.isSameAs(b) || *a == *b; }

 private:
    std::shared_ptr<T> value_;
};

}  // namespace varnholt
