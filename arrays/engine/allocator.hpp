/// The C allocator under names of its own, so that tests can substitute one that fails.
#pragma once

#include <cstddef>

namespace zeb::engine
{

/// Calls `malloc` if `block` is null, else `realloc`. `size` must not be 0. Returns null, with the old block
/// unchanged, if allocation fails.
void *reallocate(void *block, std::size_t size) noexcept;

/// `free`.
void release(void *block) noexcept;

/// Whether the allocator has 64 KiB left. Objects are created only then, because an object runtime whose own
/// allocations fail ends the process.
inline bool has_reserve() noexcept
{
    void *const reserve = reallocate(nullptr, std::size_t{1} << 16);
    release(reserve);
    return reserve != nullptr;
}

} // namespace zeb::engine
