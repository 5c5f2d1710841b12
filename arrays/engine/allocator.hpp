/// The C allocator, behind three names of its own, so that a test can put a failing one in its place.
#pragma once

#include <cstddef>

namespace zeb
{

/// `malloc` when `block` is none, else `realloc`. `size` is not 0. Null when there is no memory; the old
/// block then stays.
void *reallocate(void *block, std::size_t size) noexcept;

/// `free`.
void release(void *block) noexcept;

} // namespace zeb
