/// Storing elements in a growable array: append, insert, replace, and set the whole contents.
///
/// Each operation but set_contents refuses a link with its note. A failed allocation is reported, and the
/// array is unchanged. A source that lies in the array's own block is read as if copied first.
#pragma once

#include "arrays/engine/storage/lifetime.hpp"
#include "arrays/engine/storage/own_source.hpp"
#include "arrays/engine/storage/removal.hpp"
#include "arrays/engine/storage/resizing.hpp"

#include <algorithm>
#include <functional>

namespace zeb::engine
{

/// A run of elements to store, and who holds its references.
template <class Kind>
struct Elements_Of {
    typename Kind::Element const *first;
    std::uint32_t count;
    Source source = Source::of_the_caller;

    std::span<typename Kind::Element const> span() const noexcept { return {first, count}; }
};

/// Whether a source lies in the array's block: among the live elements, or above them, where a link may still
/// view elements of a larger count.
template <class Kind>
bool lies_in_block(Array_Storage<Kind> array, Elements_Of<Kind> source) noexcept
{
    const std::less<> before;
    return !before(source.first, array.data) && before(source.first, array.data + array.capacity) &&
           source.count <= array.data + array.capacity - source.first;
}

template <class Kind, class Report>
bool insert_with_room(Array_Storage<Kind> array, std::uint32_t at, Elements_Of<Kind> elements,
                      std::uint64_t needed, Report report) noexcept;

/// Inserts a copy of the source, because growth and the gap would move or overwrite the source itself.
template <class Kind, class Report>
[[gnu::noinline, gnu::cold]] bool insert_copy(Array_Storage<Kind> array, std::uint32_t at,
                                              Elements_Of<Kind> elements, std::uint64_t needed,
                                              Report report) noexcept
{
    const Element_Copy<Kind> copy(array.kind, elements.span());
    if (!copy.is_valid()) {
        report(notes::reallocate_failed);
        return false;
    }
    return insert_with_room(array, at, {copy.elements().data(), elements.count, Source::of_another_array},
                            needed, report);
}

/// Inserts before index `at` (the count appends) into an owner, after growing its capacity above `needed`,
/// which is at least the new count less one.
template <class Kind, class Report>
bool insert_with_room(Array_Storage<Kind> array, std::uint32_t at, Elements_Of<Kind> elements,
                      std::uint64_t needed, Report report) noexcept
{
    if (lies_in_block(array, elements)) [[unlikely]]
        return insert_copy(array, at, elements, needed, report);
    const std::uint64_t count = std::uint64_t{array.count} + elements.count;
    if (!grow(array, needed, report) || !open_up_to(array, static_cast<std::uint32_t>(count), report))
        return false;
    if (!array.kind.prepare(array.data + array.count, elements.first, elements.count)) {
        report(notes::reallocate_failed);
        return false;
    }
    const std::uint32_t index = std::min(at, array.count);
    if (index < array.count)
        array.kind.open_gap(array.data, array.count, index, elements.count);
    assign_from(elements.source, array.kind, array.data + index, elements.first, elements.count);
    array.count = static_cast<std::uint32_t>(count);
    return true;
}

/// Appends an element when no slot is ready. Out of line, so that the common case is two tests and a store.
template <class Kind, class Report>
[[gnu::noinline, gnu::cold]] void append_with_growth(Array_Storage<Kind> array,
                                                     typename Kind::Element element, Report report) noexcept
{
    if (array.is_link())
        return report(notes::append_element_through_link);
    insert_with_room(array, array.count, Elements_Of<Kind>{&element, 1}, array.count, report);
}

template <class Kind, class Report>
inline void append_element(Array_Storage<Kind> array, typename Kind::Element element, Report report) noexcept
{
    if (array.is_link() || array.count >= array.capacity || !Kind::is_plain) [[unlikely]]
        return append_with_growth(array, element, report);
    array.kind.assign(array.data + array.count, &element, 1);
    ++array.count;
}

/// Appending no elements returns without a link test or report.
template <class Kind, class Report>
void append_elements(Array_Storage<Kind> array, Elements_Of<Kind> elements, Report report) noexcept
{
    if (elements.count == 0)
        return;
    if (array.is_link())
        return report(notes::append_array_through_link);
    insert_with_room(array, array.count, elements, std::uint64_t{array.count} + elements.count, report);
}

/// An index past the count appends.
template <class Kind, class Report>
void insert_element(Array_Storage<Kind> array, typename Kind::Element element, std::uint32_t at,
                    Report report) noexcept
{
    if (array.is_link())
        return report(notes::insert_element_through_link);
    insert_with_room(array, at, Elements_Of<Kind>{&element, 1}, array.count, report);
}

/// An index past the count appends.
template <class Kind, class Report>
void insert_elements(Array_Storage<Kind> array, Elements_Of<Kind> elements, std::uint32_t at,
                     Report report) noexcept
{
    if (array.is_link())
        return report(notes::insert_array_through_link);
    if (elements.count != 0)
        insert_with_room(array, at, elements, std::uint64_t{array.count} + elements.count, report);
}

/// Replaces the element at `at` with `elements`; without any it is removed. An index past the last element
/// changes nothing.
template <class Kind, class Report>
void replace_element(Array_Storage<Kind> array, std::uint32_t at, Elements_Of<Kind> elements,
                     Report report) noexcept
{
    if (array.is_link())
        return report(notes::replace_element_through_link);
    if (at >= array.count)
        return;
    // Insert after the old element first: it may be among the new ones.
    const std::uint64_t needed = std::uint64_t{array.count} + elements.count - 1;
    if (elements.count == 0 || insert_with_room(array, at + 1, elements, needed, report))
        remove_elements(Vector_Storage<Kind>(array), at, 1);
}

/// Replaces the contents with a copy of the elements. A link becomes an owner.
template <class Kind, class Report>
void set_contents(Array_Storage<Kind> array, Elements_Of<Kind> elements, Report report) noexcept
{
    if (array.is_link()) {
        const std::uint64_t wanted = grown_capacity(0, elements.count, array.growth_seed);
        replace_with_copy(Vector_Storage<Kind>(array), elements.source, elements.first, elements.count,
                          wanted, array.capacity, report);
        return;
    }
    if (lies_in_block(array, elements)) [[unlikely]] {
        const Element_Copy<Kind> copy(array.kind, elements.span());
        if (!copy.is_valid())
            return report(notes::allocate_failed);
        return set_contents(array, {copy.elements().data(), elements.count, Source::of_another_array},
                            report);
    }
    if (!grow(array, elements.count, report, notes::allocate_failed))
        return;
    if (elements.count > array.count && !open_up_to(array, elements.count, report, notes::allocate_failed))
        return;
    if (!array.kind.prepare(array.data, elements.first, elements.count))
        return report(notes::allocate_failed);
    assign_from(elements.source, array.kind, array.data, elements.first, elements.count);
    if (elements.count < array.count)
        array.kind.close(array.data, elements.count, array.count);
    array.count = elements.count;
}

/// Replaces the contents with one element.
template <class Kind, class Report>
void copy_element(Array_Storage<Kind> array, typename Kind::Element element, Report report) noexcept
{
    if (array.is_link())
        return report(notes::copy_element_through_link);
    if (!grow(array, 1, report) || (array.count == 0 && !open_up_to(array, 1, report)))
        return;
    if (!array.kind.prepare(array.data, &element, 1))
        return report(notes::reallocate_failed);
    array.kind.assign(array.data, &element, 1);
    if (array.count > 1)
        array.kind.close(array.data, 1, array.count);
    array.count = 1;
}

} // namespace zeb::engine
