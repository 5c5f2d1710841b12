/// Copies of sources that lie in the block an operation is about to change.
#pragma once

#include "arrays/engine/overlap.hpp"
#include "arrays/engine/storage/lifetime.hpp"

#include <span>

namespace zeb::engine
{

/// A copy of a run of elements, or several copies one after the other, stored as the array stores its own.
template <class Kind>
class Element_Copy
{
public:
    using Element = typename Kind::Element;

    Element_Copy(Kind kind, std::span<Element const> run, std::uint32_t times = 1) noexcept
        : storage{data, count, marker, kind.fresh(state)}
    {
        const auto n = static_cast<std::uint32_t>(run.size());
        const auto silent = [](Char_Span) {};
        valid = allocate_storage(storage, n * times, n * times, silent) == n * times;
        for (std::uint32_t i = 0; valid && i < times; ++i) {
            valid = kind.prepare(data + i * n, run.data(), n);
            if (valid)
                kind.assign_shared(data + i * n, run.data(), n);
        }
    }

    ~Element_Copy() { release_storage(storage); }

    Element_Copy(const Element_Copy &) = delete;
    Element_Copy &operator=(const Element_Copy &) = delete;

    /// False if allocation failed.
    bool is_valid() const noexcept { return valid; }

    std::span<Element const> elements() const noexcept { return {data, count}; }

    /// Returns the slots. Elements stored there are released with the copy.
    Element *slots() noexcept { return data; }

private:
    Element *data = nullptr;
    std::uint32_t count = 0;
    std::uint32_t marker = 0;
    typename Kind::Fresh state{};
    Vector_Storage<Kind> storage;
    bool valid = false;
};

/// A run of elements, read as if copied before the operation began. It is copied only if it overlaps the
/// block that the operation changes.
template <class Kind>
class Unaliased_Source
{
public:
    using Element = typename Kind::Element;

    /// The operation changes the `size` bytes at `block`.
    Unaliased_Source(Kind kind, std::span<Element const> source, const void *block, std::size_t size) noexcept
        : overlapping(overlaps(source, block, size)),
          copy(kind, overlapping ? source : std::span<Element const>()), run(source)
    {
    }

    /// False if the copy was needed and could not be allocated.
    bool is_valid() const noexcept { return copy.is_valid(); }

    bool is_copied() const noexcept { return overlapping; }

    std::span<Element const> elements() const noexcept { return overlapping ? copy.elements() : run; }

private:
    bool overlapping;
    Element_Copy<Kind> copy;
    std::span<Element const> run;
};

/// The same for plain elements.
template <class Element>
using Unaliased_Values = Unaliased_Source<Plain_Elements<Element>>;

} // namespace zeb::engine
