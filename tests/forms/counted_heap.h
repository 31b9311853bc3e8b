// SPDX-License-Identifier: GPL-3.0-or-later
// Counts what a test program has allocated. Replaces the program's operators new and delete, so
// that one source of it includes this and no other.
#pragma once

#include <malloc.h>

#include <atomic>
#include <cstddef>
#include <cstdlib>
#include <new>

namespace varnholt {

inline std::atomic<std::size_t>& heapInUse() {
    static std::atomic<std::size_t> bytes{0};
    return bytes;
}

}  // namespace varnholt

// Every form of them but the aligned ones, so that none meets a library's counterpart: the address
// sanitizer brings operators of its own, and reports what one made and the other deletes. Inlined,
// the compiler would take the memory for that of malloc and warn of its operator delete.
[[gnu::noinline]] void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
    void* memory = std::malloc(size == 0 ? 1 : size);
    if (memory != nullptr) varnholt::heapInUse() += malloc_usable_size(memory);
    return memory;
}

[[gnu::noinline]] void* operator new(std::size_t size) {
    void* memory = operator new(size, std::nothrow);
    if (memory == nullptr) throw std::bad_alloc();
    return memory;
}

[[gnu::noinline]] void* operator new[](std::size_t size) { return operator new(size); }
[[gnu::noinline]] void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept {
    return operator new(size, tag);
}

[[gnu::noinline]] void operator delete(void* memory) noexcept {
    if (memory != nullptr) varnholt::heapInUse() -= malloc_usable_size(memory);
    std::free(memory);
}

[[gnu::noinline]] void operator delete(void* memory, std::size_t) noexcept {
    operator delete(memory);
}
[[gnu::noinline]] void operator delete(void* memory, const std::nothrow_t&) noexcept {
    operator delete(memory);
}
[[gnu::noinline]] void operator delete[](void* memory) noexcept { operator delete(memory); }
[[gnu::noinline]] void operator delete[](void* memory, std::size_t) noexcept {
    operator delete(memory);
}
[[gnu::noinline]] void operator delete[](void* memory, const std::nothrow_t&) noexcept {
    operator delete(memory);
}
