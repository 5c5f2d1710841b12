/// Count and capacity of growable arrays, and the data pointer and count of vectors.
///
/// Array operations refuse a link with their note. A failed allocation is reported, and the array is
/// unchanged.
#pragma once

#include "arrays/engine/storage/array_notes.hpp"
#include "arrays/engine/storage/array_storage.hpp"

namespace zeb::engine
{

/// Grows the block until the capacity exceeds `needed`. Reports `failure` and returns false if allocation
/// fails.
template <class Kind, class Report>
bool grow(Array_Storage<Kind> array, std::uint64_t needed, Report report,
          Char_Span failure = notes::reallocate_failed) noexcept
{
    if (array.capacity > needed) [[likely]]
        return true;
    Block block{array.data, array.capacity};
    if (!grow_block(block, needed, array.growth_seed, array.layout())) {
        report(failure);
        return false;
    }
    array.data = static_cast<typename Kind::Element *>(block.data);
    array.capacity = block.capacity;
    return true;
}

/// Makes the slots from the count up to `count` live. Reports `failure` and returns false if an element
/// object cannot be created.
template <class Kind, class Report>
bool open_up_to(Array_Storage<Kind> array, std::uint32_t count, Report report,
                Char_Span failure = notes::reallocate_failed) noexcept
{
    array.kind.adopt(array.count);
    if (array.kind.open(array.data, array.count, count))
        return true;
    report(failure);
    return false;
}

/// Reduces the capacity to the smallest seed × 2^k that holds the elements, if it is larger.
template <class Kind, class Report>
void trim(Array_Storage<Kind> array, Report report) noexcept
{
    if (array.is_link())
        return report(notes::trim_through_link);
    const std::uint64_t capacity = proper_capacity(array.count, array.growth_seed);
    if (capacity >= array.capacity)
        return;
    // Before the block is cut: release the objects in the slots that realloc may remove.
    array.kind.destroy(array.data, static_cast<std::uint32_t>(capacity), array.count);
    Block block{array.data, array.capacity};
    if (!resize_block(block, capacity, array.layout()))
        return report(notes::reallocate_failed);
    array.data = static_cast<typename Kind::Element *>(block.data);
    array.capacity = block.capacity;
}

/// Sets the count of an array whose block is large enough: elements past the new count are dropped, new ones
/// are opened.
template <class Kind, class Report>
void resize_within_room(Array_Storage<Kind> array, std::uint32_t count, Report report,
                        Char_Span failure) noexcept
{
    if (count < array.count)
        array.kind.close(array.data, count, array.count);
    else if (!open_up_to(array, count, report, failure))
        return;
    array.count = count;
}

template <class Kind, class Report>
void set_length(Array_Storage<Kind> array, std::uint32_t length, Report report) noexcept
{
    if (array.is_link())
        return report(notes::length_through_link);
    if (grow(array, length, report, notes::allocate_failed))
        resize_within_room(array, length, report, notes::allocate_failed);
}

template <class Kind, class Report>
void extend_length(Array_Storage<Kind> array, std::uint32_t n, Report report) noexcept
{
    if (array.is_link())
        return report(notes::room_through_link);
    if (grow(array, std::uint64_t{array.count} + n, report))
        resize_within_room(array, array.count + n, report, notes::reallocate_failed);
}

template <class Kind, class Report>
void ensure_room(Array_Storage<Kind> array, std::uint32_t n, Report report) noexcept
{
    if (array.is_link())
        return report(notes::room_through_link);
    grow(array, std::uint64_t{array.count} + n, report);
}

template <class Kind, class Report>
void ensure_capacity_above(Array_Storage<Kind> array, std::uint32_t n, Report report) noexcept
{
    if (array.is_link())
        return report(notes::capacity_through_link);
    grow(array, n, report, notes::allocate_failed);
}

/// Sets the data pointer and nothing else. The elements belong to the caller, even in an owner.
template <class Kind>
void change_data(Vector_Storage<Kind> vector, typename Kind::Element *data) noexcept
{
    if (data != vector.data)
        vector.kind.disown();
    vector.data = data;
}

/// Sets the count. An owner drops the elements past a smaller count and opens those that a larger one adds;
/// of a link only the view changes.
template <class Kind, class Report>
void change_count(Vector_Storage<Kind> vector, std::uint32_t count, Report report) noexcept
{
    if (vector.owns() && vector.data != nullptr) {
        if (count < vector.count)
            vector.kind.close(vector.data, count, vector.count);
        else if (!vector.kind.open(vector.data, vector.count, count))
            return report(notes::allocate_failed);
    }
    vector.count = count;
}

} // namespace zeb::engine
