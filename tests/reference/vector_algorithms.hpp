/// Every vector algorithm in its plainest form, one step at a time, as slow as that is. Elements are numbers
/// of samples, which a relation compares.
///
/// The framework's own versions may take any faster way; these say what the result has to be.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <algorithm>
#include <functional>
#include <utility>
#include <vector>

namespace reference
{

using Numbers = std::vector<uint32_t>;
using Relation = std::function<bool(uint32_t, uint32_t)>;

inline auto is(uint32_t value, const Relation &equal)
{
    return [=](uint32_t element) { return equal(element, value); };
}

/// How a key compares to an element.
inline ZEB_Comparison compare(uint32_t key, uint32_t element, const Relation &precedes)
{
    if (precedes(key, element))
        return ZEB_COMPARED_LESS;
    return precedes(element, key) ? ZEB_COMPARED_GREATER : ZEB_COMPARED_EQUAL;
}

inline uint32_t first_index_of(const Numbers &elements, uint32_t value, const Relation &equal)
{
    const auto found = std::find_if(elements.begin(), elements.end(), is(value, equal));
    return found == elements.end() ? ZEB_NOT_FOUND : static_cast<uint32_t>(found - elements.begin());
}

inline uint32_t last_index_of(const Numbers &elements, uint32_t value, const Relation &equal)
{
    const uint32_t found = first_index_of({elements.rbegin(), elements.rend()}, value, equal);
    return found == ZEB_NOT_FOUND ? found : static_cast<uint32_t>(elements.size()) - 1 - found;
}

/// The last start is none: an occurrence at the very end is not found.
inline uint32_t first_index_of_subsequence(const Numbers &elements, const Numbers &pattern,
                                           const Relation &equal)
{
    const auto end = elements.end() - !elements.empty();
    const auto found = std::search(elements.begin(), end, pattern.begin(), pattern.end(), equal);
    return pattern.empty() || found == end ? ZEB_NOT_FOUND : static_cast<uint32_t>(found - elements.begin());
}

/// What the ordered operations answer: the element equal to a key, the one nearest to it, and the place where
/// it belongs, which is that of an element unless the key is to be inserted.
struct Ordered {
    uint32_t equal = ZEB_NOT_FOUND, nearest = ZEB_NOT_FOUND, place = 0;
    bool inserts = true;
    bool warns = false, warns_of_equal = false; ///< of a comparison that means nothing
};

/// Probes until an answer is neither less nor greater, or the bounds meet.
template <class Compare>
Ordered ordered(const Numbers &elements, uint32_t key, Compare compare)
{
    if (elements.empty())
        return {};
    uint32_t low = 0, high = static_cast<uint32_t>(elements.size()) - 1;
    for (;;) {
        const uint32_t probe = low + (high - low + 1) / 2;
        const ZEB_Comparison answer = compare(&key, &elements[probe]);
        if (answer == ZEB_COMPARED_GREATER && probe != high)
            low = probe + 1;
        else if (answer == ZEB_COMPARED_LESS && probe != low)
            high = probe - 1;
        else if (answer == ZEB_COMPARED_GREATER || answer == ZEB_COMPARED_LESS)
            return {ZEB_NOT_FOUND, probe, answer == ZEB_COMPARED_LESS ? low : high + 1};
        // A lone element has to be equal; of several, any that ends the search is the answer.
        else if (elements.size() == 1 && answer != ZEB_COMPARED_EQUAL)
            return {ZEB_NOT_FOUND, probe, probe, false, true, answer == 0};
        else
            return {probe, probe, probe, false};
    }
}

inline uint32_t replace_equal(Numbers &elements, uint32_t value, uint32_t replacement, const Relation &equal)
{
    const auto replaced = std::count_if(elements.begin(), elements.end(), is(value, equal));
    std::replace_if(elements.begin(), elements.end(), is(value, equal), replacement);
    return static_cast<uint32_t>(replaced);
}

/// Answers the new count; the elements beyond it are left where they were.
inline uint32_t remove_equal(Numbers &elements, uint32_t value, const Relation &equal)
{
    const auto end = std::remove_if(elements.begin(), elements.end(), is(value, equal));
    return static_cast<uint32_t>(end - elements.begin());
}

inline uint32_t replace_occurrences(Numbers &elements, const Numbers &pattern, const Numbers &replacement,
                                    const Relation &equal)
{
    uint32_t replaced = 0;
    for (auto at = elements.begin(); !pattern.empty(); ++replaced) {
        at = std::search(at, elements.end(), pattern.begin(), pattern.end(), equal);
        if (at == elements.end())
            break;
        at = elements.erase(at, at + static_cast<std::ptrdiff_t>(pattern.size()));
        at = elements.insert(at, replacement.begin(), replacement.end()) +
             static_cast<std::ptrdiff_t>(replacement.size());
    }
    return replaced;
}

/// Of an even count the middle two are swapped twice.
inline void reverse(Numbers &elements)
{
    const size_t count = elements.size();
    for (size_t front = 0; count > 1 && front <= count / 2; ++front)
        std::swap(elements[front], elements[count - 1 - front]);
}

inline void move(Numbers &elements, uint32_t from, uint32_t to)
{
    const uint32_t moved = elements[from];
    elements.erase(elements.begin() + from);
    elements.insert(elements.begin() + to, moved);
}

inline void permute(Numbers &elements, const Numbers &permutation, bool inverse)
{
    const Numbers copy = elements;
    for (uint32_t i = 0; i < elements.size() && i < permutation.size(); ++i)
        elements[inverse ? permutation[i] : i] = copy[inverse ? i : permutation[i]];
}

inline void transpose(Numbers &elements, uint64_t rows, uint64_t columns)
{
    if (rows < 2 || columns < 2 || rows * columns != elements.size())
        return;
    const Numbers copy = elements;
    for (uint64_t i = 0; i < copy.size(); ++i)
        elements[i % columns * rows + i / columns] = copy[i];
}

/// Sorts, every swap applied to the permutation too when there is one. `precedes` is asked with pointers
/// to the later and the earlier element.
template <class Precedes>
void sort(Numbers &elements, Numbers *permutation, Precedes precedes)
{
    const size_t count = elements.size();
    size_t gap = 1;
    while (3 * gap < count)
        gap = 3 * gap + 1;
    for (; gap >= 1; gap /= 3) {
        for (size_t i = gap; i < count; ++i) {
            for (size_t j = i; j >= gap && precedes(&elements[j], &elements[j - gap]); j -= gap) {
                std::swap(elements[j], elements[j - gap]);
                if (permutation != nullptr)
                    std::swap((*permutation)[j], (*permutation)[j - gap]);
            }
        }
    }
}

} // namespace reference
