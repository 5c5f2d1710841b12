/// Every vector algorithm in its plainest form, one step at a time, as slow as that is.
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

template <class Element>
using Vector = std::vector<Element>;

using Equal = std::equal_to<>;
/// Characters are signed bytes, whatever plain `char` is here.
struct Less {
    template <class Element>
    bool operator()(const Element &left, const Element &right) const
    {
        return std::less<>()(left, right);
    }
    bool operator()(const char &left, const char &right) const
    {
        return static_cast<signed char>(left) < static_cast<signed char>(right);
    }
};

/// How a key compares to an element.
template <class Element, class Order = Less>
ZEB_Comparison compare(const Element &key, const Element &element, Order less = {})
{
    if (less(key, element))
        return ZEB_COMPARED_LESS;
    return less(element, key) ? ZEB_COMPARED_GREATER : ZEB_COMPARED_EQUAL;
}

template <class Element, class Equality = Equal>
uint32_t first_index_of(const Vector<Element> &elements, Element value, Equality equal = {})
{
    const auto found = std::find_if(elements.begin(), elements.end(),
                                    [&](const Element &element) { return equal(element, value); });
    return found == elements.end() ? ZEB_NOT_FOUND : static_cast<uint32_t>(found - elements.begin());
}

template <class Element, class Equality = Equal>
uint32_t last_index_of(const Vector<Element> &elements, Element value, Equality equal = {})
{
    const Vector<Element> reversed(elements.rbegin(), elements.rend());
    const uint32_t found = first_index_of(reversed, value, equal);
    return found == ZEB_NOT_FOUND ? found : static_cast<uint32_t>(elements.size()) - 1 - found;
}

template <class Element, class Equality = Equal>
uint32_t find_occurrence(const Vector<Element> &elements, const Vector<Element> &pattern, Equality equal = {})
{
    const auto found = std::search(elements.begin(), elements.end(), pattern.begin(), pattern.end(), equal);
    return pattern.empty() || found == elements.end() ? ZEB_NOT_FOUND
                                                      : static_cast<uint32_t>(found - elements.begin());
}

/// The last start is none: an occurrence at the very end is not found.
template <class Element, class Equality = Equal>
uint32_t first_index_of_subsequence(Vector<Element> elements, const Vector<Element> &pattern,
                                    Equality equal = {})
{
    if (!elements.empty())
        elements.pop_back();
    return find_occurrence(elements, pattern, equal);
}

/// What the ordered operations answer: the element equal to a key, the one nearest to it, and the place where
/// it belongs, which is that of an element unless the key is to be inserted.
struct Ordered {
    uint32_t equal = ZEB_NOT_FOUND, nearest = ZEB_NOT_FOUND, place = 0;
    bool inserts = true;
    bool warns = false, warns_of_equal = false; ///< of a comparison that means nothing
};

/// Probes until an answer is neither less nor greater, or the bounds meet.
template <class Element, class Compare>
Ordered ordered(const Vector<Element> &elements, Element key, Compare compare)
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

/// `nothing` is what no element answers.
template <class Element, class Order = Less>
Element minimum(const Vector<Element> &elements, Order less = {}, Element nothing = {})
{
    return elements.empty() ? nothing : *std::min_element(elements.begin(), elements.end(), less);
}

template <class Element, class Order = Less>
Element maximum(const Vector<Element> &elements, Order less = {}, Element nothing = {})
{
    return elements.empty() ? nothing : *std::max_element(elements.begin(), elements.end(), less);
}

template <class Element, class Equality = Equal>
uint32_t replace_equal(Vector<Element> &elements, Element value, Element replacement, Equality equal = {})
{
    const auto is_value = [&](const Element &element) { return equal(element, value); };
    const auto replaced = std::count_if(elements.begin(), elements.end(), is_value);
    std::replace_if(elements.begin(), elements.end(), is_value, replacement);
    return static_cast<uint32_t>(replaced);
}

/// Answers the new count; the elements beyond it are left where they were.
template <class Element, class Equality = Equal>
uint32_t remove_equal(Vector<Element> &elements, Element value, Equality equal = {})
{
    const auto end = std::remove_if(elements.begin(), elements.end(),
                                    [&](const Element &element) { return equal(element, value); });
    return static_cast<uint32_t>(end - elements.begin());
}

template <class Element, class Equality = Equal>
uint32_t replace_occurrences(Vector<Element> &elements, const Vector<Element> &pattern,
                             const Vector<Element> &replacement, Equality equal = {})
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
template <class Element>
void reverse(Vector<Element> &elements)
{
    const size_t count = elements.size();
    for (size_t front = 0; count > 1 && front <= count / 2; ++front)
        std::swap(elements[front], elements[count - 1 - front]);
}

template <class Element>
void move(Vector<Element> &elements, uint32_t from, uint32_t to)
{
    const Element moved = elements[from];
    elements.erase(elements.begin() + from);
    elements.insert(elements.begin() + to, moved);
}

template <class Element>
void permute(Vector<Element> &elements, const Vector<uint32_t> &permutation, bool inverse)
{
    const Vector<Element> copy = elements;
    for (uint32_t i = 0; i < elements.size() && i < permutation.size(); ++i)
        elements[inverse ? permutation[i] : i] = copy[inverse ? i : permutation[i]];
}

template <class Element>
void transpose(Vector<Element> &elements, uint64_t rows, uint64_t columns)
{
    if (rows < 2 || columns < 2 || rows * columns != elements.size())
        return;
    const Vector<Element> copy = elements;
    for (uint64_t i = 0; i < copy.size(); ++i)
        elements[i % columns * rows + i / columns] = copy[i];
}

/// Sorts, every swap applied to the permutation too when there is one. `precedes` is asked with pointers
/// to the later and the earlier element.
template <class Element, class Precedes>
void sort(Vector<Element> &elements, Vector<uint32_t> *permutation, Precedes precedes)
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
