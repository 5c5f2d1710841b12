/// Whether runs of elements share memory.
#pragma once

#include <cstddef>
#include <functional>
#include <span>

namespace zeb::engine
{

/// Whether a run shares bytes with the `size` bytes at `block`.
template <class Element>
bool overlaps(std::span<const Element> run, const void *block, std::size_t size) noexcept
{
    const std::less<> before;
    const char *const first = reinterpret_cast<const char *>(run.data());
    const char *const start = static_cast<const char *>(block);
    return !run.empty() && size != 0 && before(first, start + size) &&
           before(start, first + run.size_bytes());
}

} // namespace zeb::engine
