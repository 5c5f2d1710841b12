/// Columns of numbers received through the Arrow C data interface.
#pragma once

#include "encoding/engine/arrow_export.hpp"

#include <cstring>
#include <limits>
#include <type_traits>

namespace zeb::engine
{

/// The elements that an array shows: `count` from `start` on.
struct Arrow_Slice {
    const ArrowArray &array;
    std::uint64_t start;
    std::uint64_t count;
};

/// Whether an array has not been released, and its counts make sense.
bool is_usable(const ArrowArray &array, const ArrowSchema &schema) noexcept;

/// Whether the schema is that of a table.
bool is_table(const ArrowSchema &schema) noexcept;

/// Whether the schema is that of plain elements of a format, and the array has them.
bool has_elements(Arrow_Slice slice, const ArrowSchema &schema, const char *format) noexcept;

/// How many elements of a slice are null. Where there are bits for them, those are counted.
std::uint64_t null_count(Arrow_Slice slice) noexcept;

/// Whether an element of the slice is null.
bool is_null(Arrow_Slice slice, std::uint64_t index) noexcept;

/// The address of the slice's first element, which the interface does not align for a whole number of
/// elements.
template <class Element>
const Element *first_element(Arrow_Slice slice) noexcept
{
    return static_cast<const Element *>(slice.array.buffers[1]) + slice.start;
}

inline bool is_aligned(const void *address, std::size_t size) noexcept
{
    return reinterpret_cast<std::uintptr_t>(address) % size == 0;
}

/// Copies the elements; those that are null become NaN.
template <class Element>
void copy_slice(Arrow_Slice slice, Element *elements) noexcept
{
    if (slice.count == 0)
        return;
    std::memcpy(elements, first_element<Element>(slice), slice.count * sizeof(Element));
    if constexpr (std::is_floating_point_v<Element>)
        if (null_count(slice) != 0)
            for (std::uint64_t i = 0; i < slice.count; ++i)
                if (is_null(slice, i))
                    elements[i] = std::numeric_limits<Element>::quiet_NaN();
}

} // namespace zeb::engine
