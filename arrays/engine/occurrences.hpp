/// Replacing every occurrence of a run of elements in a growable array by another run.
#pragma once

#include "arrays/engine/copied_run.hpp"
#include "arrays/engine/editing.hpp"
#include "arrays/engine/replace.hpp"
#include "arrays/engine/scratch.hpp"

#include <functional>
#include <span>

namespace zeb
{

namespace occurrences_detail
{

/// A run of plain elements that is read while an array changes: copied where it lies in the array's block.
template <class Element>
class Steady_Run
{
public:
    Steady_Run(std::span<const Element> run, const Element *block, std::size_t capacity) noexcept
        : is_own(lies_within(run, block, capacity)), copy(is_own ? run.size() : 0),
          elements(is_own ? std::span<const Element>(copy.get(), run.size()) : run)
    {
        if (is_own && is_had())
            std::copy(run.begin(), run.end(), copy.get());
    }

    bool is_had() const noexcept { return !is_own || copy.get() != nullptr; }
    std::span<const Element> get() const noexcept { return elements; }

private:
    static bool lies_within(std::span<const Element> run, const Element *block, std::size_t capacity) noexcept
    {
        const std::less<> before;
        return !run.empty() && block != nullptr && !before(run.data(), block) &&
               before(run.data(), block + capacity);
    }

    bool is_own;
    Scratch<Element> copy;
    std::span<const Element> elements;
};

/// Builds the longer result in a block of its own, of the smallest seed × 2^k past its count.
template <class Element, class Report>
std::uint32_t replace_by_longer(Array_Storage<Plain_Elements<Element>> array, std::span<const Element> pattern,
                                std::span<const Element> replacement, Report report) noexcept
{
    const std::span<const Element> elements = array.elements();
    const std::uint32_t found = count_occurrences(elements, pattern);
    if (found == 0)
        return 0;
    const std::uint64_t count = array.count + std::uint64_t{found} * (replacement.size() - pattern.size());
    Block block{nullptr, 0};
    if (!grow_block(block, count, array.growth_seed, array.layout())) {
        report(notes::allocate_failed);
        return 0;
    }
    Element *const built = static_cast<Element *>(block.data);
    copy_with_occurrences_replaced(elements, pattern, replacement, std::span<Element>(built, count));
    release(array.data);
    array.data = built;
    array.capacity = block.capacity;
    array.count = static_cast<std::uint32_t>(count);
    return found;
}

template <class Element, class Report>
std::uint32_t replace_plain(Array_Storage<Plain_Elements<Element>> array, std::span<const Element> pattern,
                            std::span<const Element> replacement, Report report) noexcept
{
    const Steady_Run<Element> from(pattern, array.data, array.capacity);
    const Steady_Run<Element> to(replacement, array.data, array.capacity);
    if (!from.is_had() || !to.is_had()) {
        report(notes::allocate_failed);
        return 0;
    }
    if (replacement.size() > pattern.size())
        return replace_by_longer(array, from.get(), to.get(), report);
    const Replaced_Occurrences replaced = replace_occurrences_in_place(array.elements(), from.get(), to.get());
    array.count = replaced.count;
    return replaced.replacements;
}

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
std::uint32_t replace_all_occurrences(Array_Storage<Kind> array,
                                      std::span<typename Kind::Element const> pattern,
                                      std::span<typename Kind::Element const> replacement,
                                      Report report) noexcept
{
    if (array.is_link()) {
        report(notes::replace_occurrences_through_link);
        return 0;
    }
    if (pattern.empty())
        return 0;
    if constexpr (Kind::is_plain)
        return occurrences_detail::replace_plain(array, pattern, replacement, report);
    else
        return occurrences_detail::replace_objects(array, pattern, replacement, report);
}

} // namespace zeb
