/// Replacing the occurrences of a run of elements by another run, in a growable array.
#pragma once

#include "arrays/engine/allocator.hpp"
#include "arrays/engine/array_notes.hpp"
#include "arrays/engine/array_storage.hpp"
#include "arrays/engine/element_kinds.hpp"
#include "arrays/engine/replace.hpp"
#include "arrays/engine/scratch.hpp"
#include "arrays/engine/set_aside.hpp"

#include <algorithm>
#include <span>

namespace zeb
{

/// A pattern, and what comes in the place of each of its occurrences. Neither is owned.
template <class Element>
struct Replacement_Of {
    std::span<const Element> pattern;
    std::span<const Element> replacement;
};

namespace replace_detail
{

/// The case of a replacement that is not longer: the block stays.
template <class Element, class Report>
std::uint32_t replace_within_block(Array_Storage<Plain_Elements<Element>> array, Replacement_Of<Element> runs,
                                   Report report) noexcept
{
    const std::size_t size = array.elements().size_bytes();
    const Set_Aside<Element> pattern(runs.pattern, array.data, size);
    const Set_Aside<Element> replacement(runs.replacement, array.data, size);
    if (pattern.failed() || replacement.failed()) {
        report(notes::allocate_failed);
        return 0;
    }
    const Replaced_Occurrences replaced =
        replace_occurrences_in_place<Element>(array.elements(), pattern.elements(), replacement.elements());
    array.count = replaced.count;
    return replaced.replacements;
}

/// So many starts of occurrences are remembered from counting; those past them are looked for again.
inline constexpr std::size_t most_remembered = std::size_t{1} << 20;

/// Copies the elements to `made`, which has exactly the room of the result, with each occurrence replaced.
/// The first occurrences start at `known`; those behind them are looked for.
template <class Element>
void copy_replaced(std::span<const Element> elements, Replacement_Of<Element> runs,
                   std::span<const std::uint32_t> known, std::span<Element> made) noexcept
{
    std::size_t read = 0;
    std::size_t written = 0;
    const auto copy = [&](std::span<const Element> run) {
        std::copy(run.begin(), run.end(), made.data() + written);
        written += run.size();
    };
    for (const std::uint32_t start : known) {
        copy(elements.subspan(read, start - read));
        copy(runs.replacement);
        read = start + runs.pattern.size();
    }
    copy_with_occurrences_replaced<Element>(elements.subspan(read), runs.pattern, runs.replacement,
                                            made.subspan(written));
}

/// The case of a longer replacement: the result is built into a block of its own, and the old block, in
/// which the two runs may lie, is freed last.
template <class Element, class Report>
std::uint32_t replace_into_new_block(Array_Storage<Plain_Elements<Element>> array,
                                     Replacement_Of<Element> runs, Report report) noexcept
{
    const std::span<const Element> elements = array.elements();
    const Scratch<std::uint32_t> starts(std::min(elements.size() / runs.pattern.size(), most_remembered));
    const std::size_t room = starts.get() != nullptr ? most_remembered : 0;
    std::size_t known = 0;
    const std::uint64_t found =
        for_each_occurrence<Element>(elements, runs.pattern, [&](std::uint32_t start) {
            if (known < room)
                starts.get()[known++] = start;
        });
    if (found == 0)
        return 0;
    const std::uint64_t count = elements.size() + found * (runs.replacement.size() - runs.pattern.size());
    Block block{nullptr, 0};
    if (!resize_block(block, grown_capacity(0, count, array.growth_seed), array.layout())) {
        report(notes::allocate_failed);
        return 0;
    }
    Element *const made = static_cast<Element *>(block.data);
    copy_replaced<Element>(elements, runs, {starts.get(), known}, {made, static_cast<std::size_t>(count)});
    release(array.data);
    array.data = made;
    array.count = static_cast<std::uint32_t>(count);
    array.capacity = block.capacity;
    return static_cast<std::uint32_t>(found);
}

} // namespace replace_detail

/// Replaces each occurrence of the pattern, from the front and without overlap, one that ends with the last
/// element included, and answers how many. An empty pattern never occurs. A replacement that is not longer
/// leaves the block and its capacity; a longer one moves the elements into a block of the smallest
/// seed × 2^k past the new count. A link refuses and answers 0. Where memory is short, that is reported,
/// the answer is 0, and the array stays as it was.
template <class Element, class Report>
std::uint32_t replace_occurrences(Array_Storage<Plain_Elements<Element>> array,
                                  Replacement_Of<std::type_identity_t<Element>> runs, Report report) noexcept
{
    if (array.is_link()) {
        report(notes::replace_occurrences_through_link);
        return 0;
    }
    if (runs.pattern.empty() || array.count < runs.pattern.size())
        return 0;
    return runs.replacement.size() <= runs.pattern.size()
               ? replace_detail::replace_within_block(array, runs, report)
               : replace_detail::replace_into_new_block(array, runs, report);
}

} // namespace zeb
