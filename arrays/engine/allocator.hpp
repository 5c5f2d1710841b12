/// The C allocator, behind three names of its own, so that a test can put a failing one in its place.
#pragma once

#include <cstddef>

namespace zeb::engine
{

/// `malloc` when `block` is none, else `realloc`. `size` is not 0. Null when there is no memory; the old
/// block then stays.
void *reallocate(void *block, std::size_t size) noexcept;

/// `free`.
void release(void *block) noexcept;

/// Whether the allocator has 64 KiB left. Objects are only made while it has: an object runtime whose own
/// allocations fail ends the process.
inline bool has_reserve() noexcept
{
    void *const reserve = reallocate(nullptr, std::size_t{1} << 16);
    release(reserve);
    return reserve != nullptr;
}

} // namespace zeb::engine
