/// Replacing the occurrences of a run of elements in an array of any kind.
#pragma once

#include "arrays/engine/copied_run.hpp"
#include "arrays/engine/editing.hpp"
#include "arrays/engine/replace_occurrences.hpp"
#include "arrays/engine/scratch.hpp"

#include <span>
#include <utility>

namespace zeb
{

namespace occurrences_detail
{

/// Where the occurrences of a run start, the length of that run, and of what comes in its place.
struct Occurrences {
    std::span<const std::uint32_t> starts;
    std::uint32_t pattern_length;
    std::uint32_t replacement_length;
};

/// Exchanges each occurrence for the next elements of `fresh`, which are not longer, and closes the gaps.
/// The slots past the new count are left with what was dropped.
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

/// The same for longer replacements: the slots up to `new_count` are open.
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

/// Exchanges the occurrences for `fresh`, which holds what comes in their place; false, after a report, where
/// the array cannot grow.
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

/// Objects that stay keep their identity; what is dropped ends with the copies that were made of the
/// replacement. Both runs may be among the elements that change.
template <class Kind, class Report>
std::uint32_t replace_objects(Array_Storage<Kind> array, std::span<typename Kind::Element const> pattern,
                              std::span<typename Kind::Element const> replacement, Report report) noexcept
{
    const std::span<typename Kind::Element const> elements = array.elements();
    if (elements.size() < pattern.size())
        return 0;
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
    Copied_Run<Kind> fresh(array.kind, replacement, report, found);
    const bool exchanged = fresh.is_had() && exchange(array, static_cast<std::uint32_t>(count), occurrences,
                                                      fresh.slots(), report);
    return exchanged ? found : 0;
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
