/// Replacing the occurrences of a run of elements with another run, in arrays of every element kind.
#pragma once

#include "arrays/engine/algorithms/occurrences.hpp"
#include "arrays/engine/scratch.hpp"
#include "arrays/engine/storage/insertion.hpp"
#include "arrays/engine/storage/own_source.hpp"

#include <algorithm>
#include <span>
#include <utility>

namespace zeb::engine
{

namespace occurrences_detail
{

/// A pattern, and the replacement of each of its occurrences. Neither is owned.
template <class Element>
struct Replacement_Of {
    std::span<const Element> pattern;
    std::span<const Element> replacement;
};

/// Replaces with a run that is not longer than the pattern: the block stays.
template <class Element, class Report>
std::uint32_t replace_within_block(Array_Storage<Plain_Elements<Element>> array, Replacement_Of<Element> runs,
                                   Report report) noexcept
{
    const std::size_t size = array.elements().size_bytes();
    const Unaliased_Values<Element> pattern({}, runs.pattern, array.data, size);
    const Unaliased_Values<Element> replacement({}, runs.replacement, array.data, size);
    if (!pattern.is_valid() || !replacement.is_valid()) {
        report(notes::allocate_failed);
        return 0;
    }
    const Replaced_Occurrences replaced =
        replace_occurrences_in_place<Element>(array.elements(), pattern.elements(), replacement.elements());
    array.count = replaced.count;
    return replaced.replacements;
}

/// The number of occurrence starts remembered while counting; later ones are searched for again.
inline constexpr std::size_t max_remembered_starts = std::size_t{1} << 20;

/// Copies the elements to `made`, which has exactly the room of the result, with each occurrence replaced.
/// The first occurrences start at `known`; later ones are searched for.
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

/// Replaces with a longer run: builds the result in a new block and frees the old one last, because both runs
/// may lie in it.
template <class Element, class Report>
std::uint32_t replace_into_new_block(Array_Storage<Plain_Elements<Element>> array,
                                     Replacement_Of<Element> runs, Report report) noexcept
{
    const std::span<const Element> elements = array.elements();
    const Scratch<std::uint32_t> starts(
        std::min(elements.size() / runs.pattern.size(), max_remembered_starts));
    const std::size_t room = starts.get() != nullptr ? max_remembered_starts : 0;
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

/// The starts of a run's occurrences, its length, and the length of its replacement.
struct Occurrences {
    std::span<const std::uint32_t> starts;
    std::uint32_t pattern_length;
    std::uint32_t replacement_length;
};

/// Exchanges each occurrence for the next elements of `fresh`, which are not longer, and closes the gaps. The
/// slots above the new count receive the elements removed.
template <class Element>
void exchange_from_front(Element *data, std::uint32_t count, Occurrences found, Element *fresh) noexcept
{
    std::uint32_t read = 0;
    std::uint32_t written = 0;
    const auto keep_until = [&](std::uint32_t end) {
        while (read < end)
            std::swap(data[written++], data[read++]);
    };
    for (const std::uint32_t start : found.starts) {
        keep_until(start);
        for (std::uint32_t i = 0; i < found.replacement_length; ++i)
            std::swap(data[written++], *fresh++);
        read += found.pattern_length;
    }
    keep_until(count);
}

/// The same for longer replacements. The slots up to `new_count` are open.
template <class Element>
void exchange_from_back(Element *data, std::uint32_t count, std::uint32_t new_count, Occurrences found,
                        Element *fresh) noexcept
{
    std::uint32_t read = count;
    std::uint32_t written = new_count;
    fresh += found.starts.size() * found.replacement_length;
    for (std::size_t left = found.starts.size(); left != 0; --left) {
        const std::uint32_t end = found.starts[left - 1] + found.pattern_length;
        while (read > end)
            std::swap(data[--written], data[--read]);
        for (std::uint32_t i = 0; i < found.replacement_length; ++i)
            std::swap(data[--written], *--fresh);
        read -= found.pattern_length;
    }
}

/// Exchanges the occurrences for the replacements in `fresh`. Reports and returns false if the array cannot
/// grow.
template <class Kind, class Report>
bool exchange(Array_Storage<Kind> array, std::uint32_t new_count, Occurrences found,
              typename Kind::Element *fresh, Report report) noexcept
{
    if (new_count <= array.count) {
        exchange_from_front(array.data, array.count, found, fresh);
        array.kind.close(array.data, new_count, array.count);
    } else {
        if (!grow(array, new_count, report, notes::allocate_failed) ||
            !open_up_to(array, new_count, report, notes::allocate_failed))
            return false;
        exchange_from_back(array.data, array.count, new_count, found, fresh);
    }
    array.count = new_count;
    return true;
}

/// Objects that stay keep their identity; those removed are released with the copies of the replacement. Both
/// runs may be among the elements that change.
template <class Kind, class Report>
std::uint32_t replace_objects(Array_Storage<Kind> array, std::span<typename Kind::Element const> pattern,
                              std::span<typename Kind::Element const> replacement, Report report) noexcept
{
    const std::span<typename Kind::Element const> elements = array.elements();
    const Scratch<std::uint32_t> starts(elements.size() / pattern.size());
    std::uint32_t found = 0;
    if (starts.get() != nullptr)
        for_each_occurrence(
            elements, pattern, [&](std::uint32_t start) { starts.get()[found++] = start; },
            typename Kind::Equality());
    const std::uint64_t count =
        elements.size() - std::uint64_t{found} * pattern.size() + std::uint64_t{found} * replacement.size();
    if (starts.get() == nullptr || count > UINT32_MAX)
        report(notes::allocate_failed);
    if (found == 0 || count > UINT32_MAX)
        return 0;
    const Occurrences occurrences{{starts.get(), found},
                                  static_cast<std::uint32_t>(pattern.size()),
                                  static_cast<std::uint32_t>(replacement.size())};
    Element_Copy<Kind> fresh(array.kind, replacement, found);
    if (!fresh.is_valid()) {
        report(notes::allocate_failed);
        return 0;
    }
    return exchange(array, static_cast<std::uint32_t>(count), occurrences, fresh.slots(), report) ? found : 0;
}

} // namespace occurrences_detail

/// Replaces every occurrence of `pattern`, from the front and without overlap, including one that ends with
/// the last element, and returns their number. An empty pattern has none. For plain elements, a replacement
/// that is not longer keeps the block and its capacity; a longer one moves the elements to a block of the
/// smallest seed × 2^k above the new count. A link is refused and 0 returned. A failed allocation is
/// reported, 0 is returned and nothing changes. Both runs may be the array's own elements.
template <class Kind, class Report>
std::uint32_t replace_occurrences(Array_Storage<Kind> array, std::span<typename Kind::Element const> pattern,
                                  std::span<typename Kind::Element const> replacement, Report report) noexcept
{
    if (array.is_link()) {
        report(notes::replace_occurrences_through_link);
        return 0;
    }
    if (pattern.empty() || array.count < pattern.size())
        return 0;
    using namespace occurrences_detail;
    if constexpr (!Kind::is_plain)
        return replace_objects(array, pattern, replacement, report);
    else if (replacement.size() <= pattern.size())
        return replace_within_block(array, {pattern, replacement}, report);
    else
        return replace_into_new_block(array, {pattern, replacement}, report);
}

} // namespace zeb::engine
