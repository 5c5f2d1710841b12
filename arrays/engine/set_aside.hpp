/// A run of elements that an operation reads as if it had been copied before the operation began.
#pragma once

#include "arrays/engine/scratch.hpp"

#include <cstring>
#include <functional>
#include <span>

namespace zeb
{

/// Copies the run aside only where it lies in the block that the operation is about to change.
template <class Element>
class Set_Aside
{
public:
    /// `block` is that block, of `size` bytes.
    Set_Aside(std::span<const Element> run, const void *block, std::size_t size) noexcept
        : overlapping(overlaps(run, static_cast<const char *>(block), size)),
          copy(overlapping ? run.size() : 0), source(run)
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
    static bool overlaps(std::span<const Element> run, const char *block, std::size_t size) noexcept
    {
        const std::less<> before;
        const char *const first = reinterpret_cast<const char *>(run.data());
        return !run.empty() && size != 0 && before(first, block + size) &&
               before(block, first + run.size_bytes());
    }

    bool overlapping;
    Scratch<Element> copy;
    std::span<const Element> source;
};

} // namespace zeb
