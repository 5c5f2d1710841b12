/// Replacing the occurrences of a run of elements in an array of any kind.
#pragma once

#include "arrays/engine/copied_run.hpp"
#include "arrays/engine/editing.hpp"
#include "arrays/engine/replace_occurrences.hpp"

#include <span>

namespace zeb
{

namespace occurrences_detail
{

/// Puts the replacement in the place of one occurrence, of `length` elements at `at`; the block has room.
template <class Kind, class Report>
void replace_one(Array_Storage<Kind> array, std::uint32_t at, std::uint32_t length,
                 std::span<typename Kind::Element const> replacement, Report report) noexcept
{
    const auto r = static_cast<std::uint32_t>(replacement.size());
    const std::uint32_t shared = std::min(length, r);
    array.kind.assign_shared(array.data + at, replacement.data(), shared);
    if (r > length)
        insert_with_room(array, at + shared,
                         Elements_Of<Kind>{replacement.data() + shared, r - shared, Source::of_another_array},
                         array.count, report);
    else if (r < length)
        take_out(Vector_Storage<Kind>(array), at + shared, length - shared);
}

/// Objects are replaced one occurrence after the other. Both runs are copied first: what they name may be
/// among the elements that change.
template <class Kind, class Report>
std::uint32_t replace_objects(Array_Storage<Kind> array, std::span<typename Kind::Element const> pattern,
                              std::span<typename Kind::Element const> replacement, Report report) noexcept
{
    const typename Kind::Equality equal;
    const std::span<typename Kind::Element const> elements = array.elements();
    const std::uint32_t found = count_occurrences(elements, pattern, equal);
    if (found == 0)
        return 0;
    const Copied_Run<Kind> from(array.kind, pattern, report);
    const Copied_Run<Kind> to(array.kind, replacement, report);
    const std::uint64_t count =
        std::uint64_t{array.count} - found * pattern.size() + std::uint64_t{found} * replacement.size();
    const auto larger = std::max<std::uint64_t>(count, array.count);
    if (!from.is_had() || !to.is_had() || !grow(array, larger, report, notes::allocate_failed) ||
        !open_up_to(array, static_cast<std::uint32_t>(larger), report, notes::allocate_failed))
        return 0;
    std::uint32_t at = 0;
    for (std::uint32_t left = found; left != 0; --left) {
        const std::span<typename Kind::Element const> now = array.elements();
        at = find_occurrence(now, from.get(), at, equal);
        replace_one(array, at, static_cast<std::uint32_t>(pattern.size()), to.get(), report);
        at += static_cast<std::uint32_t>(replacement.size());
    }
    return found;
}

} // namespace occurrences_detail

/// Replaces every occurrence of `pattern`, from the front and without overlap, and answers how many there
/// were. A link refuses; an empty pattern has no occurrence. Where memory is short, that is reported and
/// nothing changes. Both runs may be the array's own elements.
template <class Kind, class Report>
std::uint32_t
replace_all_occurrences(Array_Storage<Kind> array, std::span<typename Kind::Element const> pattern,
                        std::span<typename Kind::Element const> replacement, Report report) noexcept
{
    if constexpr (Kind::is_plain) {
        return replace_occurrences(array, {pattern, replacement}, report);
    } else {
        if (!array.is_link() && !pattern.empty())
            return occurrences_detail::replace_objects(array, pattern, replacement, report);
        if (array.is_link())
            report(notes::replace_occurrences_through_link);
        return 0;
    }
}

} // namespace zeb
