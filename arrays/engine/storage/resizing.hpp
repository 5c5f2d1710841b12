/// Size and capacity of a growable array: trimming, lengths, room; and the pointer and the count of a vector.
///
/// Each operation of arrays refuses on a link with its note. A failed allocation is reported, and the array
/// stays as it was.
#pragma once

#include "arrays/engine/storage/array_notes.hpp"
#include "arrays/engine/storage/array_storage.hpp"

namespace zeb::engine
{

/// Grows the block until the capacity exceeds `needed`; false, after the report of `failure`, where that
/// cannot be.
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

/// Makes the slots from the count up to `count` live; false, after a report, where an element object
/// cannot be made.
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

/// Cuts the capacity to the smallest seed × 2^k that holds the elements, where it is larger.
template <class Kind, class Report>
void trim(Array_Storage<Kind> array, Report report) noexcept
{
    if (array.is_link())
        return report(notes::trim_through_link);
    const std::uint64_t capacity = proper_capacity(array.count, array.growth_seed);
    if (capacity >= array.capacity)
        return;
    // Objects in the slots that go are ended first: realloc may cut them off.
    array.kind.destroy(array.data, static_cast<std::uint32_t>(capacity), array.count);
    Block block{array.data, array.capacity};
    if (!resize_block(block, capacity, array.layout()))
        return report(notes::reallocate_failed);
    array.data = static_cast<typename Kind::Element *>(block.data);
    array.capacity = block.capacity;
}

/// Sets the count of an array whose block has the room: elements past the new count are dropped, those
/// gained are as freshly opened.
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

/// Sets the pointer to the elements, and nothing else; they belong to the caller, also in an owner.
template <class Kind>
void change_data(Vector_Storage<Kind> vector, typename Kind::Element *data) noexcept
{
    if (data != vector.data)
        vector.kind.disown();
    vector.data = data;
}

/// Sets the count. An owner drops the elements past a smaller count and opens those that a larger one
/// gains; a link's elements belong to someone else, and only its view changes.
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
