// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "benching.h"

#include <atomic>
#include <new>

// Qt's containers take memory with malloc: that is what is counted, in place of the C library's.
extern "C" void* __libc_malloc(std::size_t size);

namespace {

std::atomic<long> count = 0;

} // namespace

extern "C" void* malloc(std::size_t size) noexcept
{
    count.fetch_add(1, std::memory_order_relaxed);
    return __libc_malloc(size);
}

long allocations()
{
    return count.load(std::memory_order_relaxed);
}
