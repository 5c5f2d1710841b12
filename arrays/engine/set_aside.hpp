/// A run of elements that an operation reads as if it had been copied before the operation began.
#pragma once

#include "arrays/engine/scratch.hpp"

#include <cstring>
#include <functional>
#include <span>

namespace zeb
{

/// Whether a run has bytes in common with the `size` bytes at `block`.
template <class Element>
bool overlaps(std::span<const Element> run, const void *block, std::size_t size) noexcept
{
    const std::less<> before;
    const char *const first = reinterpret_cast<const char *>(run.data());
    const char *const start = static_cast<const char *>(block);
    return !run.empty() && size != 0 && before(first, start + size) &&
           before(start, first + run.size_bytes());
}

/// Copies the run aside only where it lies in the block that the operation is about to change.
template <class Element>
class Set_Aside
{
public:
    /// `block` is that block, of `size` bytes.
    Set_Aside(std::span<const Element> run, const void *block, std::size_t size) noexcept
        : overlapping(overlaps(run, block, size)), copy(overlapping ? run.size() : 0), source(run)
    {
        if (copy.get() == nullptr)
            return;
        std::memcpy(copy.get(), run.data(), run.size_bytes());
        source = {copy.get(), run.size()};
    }

    /// True when a copy was needed and memory for it is short.
    bool failed() const noexcept { return overlapping && copy.get() == nullptr; }

    std::span<const Element> elements() const noexcept { return source; }

private:
    bool overlapping;
    Scratch<Element> copy;
    std::span<const Element> source;
};

} // namespace zeb
