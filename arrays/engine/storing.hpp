/// Storing elements over those that a vector holds, for every kind of element.
#pragma once

#include "arrays/engine/array_notes.hpp"
#include "arrays/engine/array_storage.hpp"
#include "arrays/engine/copied_run.hpp"
#include "arrays/engine/fill.hpp"
#include "arrays/engine/permutation.hpp"
#include "arrays/engine/replace.hpp"
#include "arrays/engine/set_aside.hpp"

#include <utility>

namespace zeb
{

/// One element that goes into several slots, each of them prepared first. The first takes over the caller's
/// reference, where the kind takes it; the others take references of their own.
template <class Kind>
class Repeated_Element
{
public:
    Repeated_Element(Vector_Storage<Kind> vector, typename Kind::Element element) noexcept
        : vector(vector), element(element)
    {
    }

    bool prepare(std::uint32_t index) const noexcept
    {
        return vector.kind.prepare(vector.data + index, &element, 1);
    }

    void store(std::uint32_t index) noexcept
    {
        assign_from(source, vector.kind, vector.data + index, &element, 1);
        source = Source::of_another_array;
    }

private:
    Vector_Storage<Kind> vector;
    typename Kind::Element element;
    Source source = Source::of_the_caller;
};

/// Stores `element` into the range, both ends included; a range that starts after its end fills nothing,
/// and what of it lies past the last element is left out. Where an object cannot take the contents, that is
/// reported, and nothing changes.
template <class Kind, class Report>
void fill_range_with(Vector_Storage<Kind> vector, ZEB_Index_Range range, typename Kind::Element element,
                     Report report) noexcept
{
    if constexpr (Kind::is_plain) {
        fill_range(vector.elements(), range, element);
    } else {
        Repeated_Element<Kind> repeated(vector, element);
        const std::uint64_t end = std::min(std::uint64_t{range.end} + 1, std::uint64_t{vector.count});
        for (std::uint32_t i = range.start; i < end; ++i)
            if (!repeated.prepare(i))
                return report(notes::allocate_failed);
        for (std::uint32_t i = range.start; i < end; ++i)
            repeated.store(i);
    }
}

/// Stores `element` everywhere, under the same conditions.
template <class Kind, class Report>
void fill_with(Vector_Storage<Kind> vector, typename Kind::Element element, Report report) noexcept
{
    if (vector.count != 0)
        fill_range_with(vector, {0, vector.count - 1}, element, report);
}

/// Stores `replacement` over every element equal to `element`, and answers how many those were. Where an
/// object cannot take the contents, that is reported, nothing changes, and the answer is 0.
template <class Kind, class Report>
std::uint32_t replace_every(Vector_Storage<Kind> vector, typename Kind::Element element,
                            typename Kind::Element replacement, Report report) noexcept
{
    if constexpr (Kind::is_plain) {
        return replace_equal(vector.elements(), element, replacement);
    } else {
        const typename Kind::Equality equal;
        Repeated_Element<Kind> repeated(vector, replacement);
        for (std::uint32_t i = 0; i < vector.count; ++i) {
            if (equal(vector.data[i], element) && !repeated.prepare(i)) {
                report(notes::allocate_failed);
                return 0;
            }
        }
        std::uint32_t replaced = 0;
        std::uint32_t last = vector.count;
        for (std::uint32_t i = 0; i < vector.count; ++i) {
            if (!equal(vector.data[i], element))
                continue;
            ++replaced;
            // The slot that holds `element` itself comes last: until then it tells which ones are meant.
            const std::uint32_t now = vector.data[i] == element ? std::exchange(last, i) : i;
            if (now != vector.count)
                repeated.store(now);
        }
        if (last != vector.count)
            repeated.store(last);
        return replaced;
    }
}

/// Which way a permutation is read: element i becomes element `permutation[i]`, or that becomes element i.
enum class Permutation_Way { forward, inverse };

namespace storing_detail
{

template <class Kind>
Permutation_Outcome permute_plain(Vector_Storage<Kind> vector, std::span<const std::uint32_t> permutation,
                                  Permutation_Way way) noexcept
{
    return way == Permutation_Way::forward ? apply_permutation(vector.elements(), permutation)
                                           : apply_inverse_permutation(vector.elements(), permutation);
}

/// Entries may repeat, so that objects are stored anew rather than moved.
template <class Kind, class Report>
void permute_objects(Vector_Storage<Kind> vector, std::span<const std::uint32_t> permutation,
                     Permutation_Way way, Report report) noexcept
{
    const Copied_Run<Kind> copy(vector.kind, vector.elements(), report);
    if (!copy.is_had())
        return;
    const auto used = static_cast<std::uint32_t>(std::min(copy.get().size(), permutation.size()));
    const auto slot = [&](std::uint32_t i) {
        return vector.data + (way == Permutation_Way::forward ? i : permutation[i]);
    };
    const auto source = [&](std::uint32_t i) {
        return copy.get().data() + (way == Permutation_Way::forward ? permutation[i] : i);
    };
    for (std::uint32_t i = 0; i < used; ++i)
        if (!vector.kind.prepare(slot(i), source(i), 1))
            return report(notes::allocate_failed);
    for (std::uint32_t i = 0; i < used; ++i)
        vector.kind.assign_shared(slot(i), source(i), 1);
}

} // namespace storing_detail

/// Rearranges as many elements as the shorter of both has. An entry outside the vector is reported, and
/// nothing changes; neither does it if allocation fails. The permutation may lie among the elements.
template <class Kind, class Report>
void permute(Vector_Storage<Kind> vector, std::span<const std::uint32_t> entries, Permutation_Way way,
             Report report) noexcept
{
    const Set_Aside<std::uint32_t> aside(entries, vector.data, vector.elements().size_bytes());
    if (aside.failed())
        return report(notes::allocate_failed);
    const std::span<const std::uint32_t> permutation = aside.elements();
    const std::size_t used = std::min<std::size_t>(vector.count, permutation.size());
    if (!permutation_detail::names_elements(permutation, used, vector.count))
        return report(notes::permutation_out_of_range);
    if constexpr (Kind::is_plain) {
        if (storing_detail::permute_plain(vector, permutation, way) == Permutation_Outcome::No_Memory)
            report(notes::allocate_failed);
    } else {
        storing_detail::permute_objects(vector, permutation, way, report);
    }
}

} // namespace zeb
