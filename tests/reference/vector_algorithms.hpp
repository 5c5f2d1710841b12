/// Every vector algorithm in its plainest form, one step at a time, as slow as that is.
///
/// The framework's own versions may take any faster way; these say what the result has to be.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <algorithm>
#include <functional>
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

/// How the families order their elements where no function is given.
template <class Element>
ZEB_Comparison own_comparison(const Element *key, const Element *element)
{
    if (Less()(*key, *element))
        return 2;
    if (Less()(*element, *key))
        return 3;
    return 1;
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

/// The last start is none: an occurrence at the very end is not found.
template <class Element, class Equality = Equal>
uint32_t first_index_of_subsequence(const Vector<Element> &elements, const Vector<Element> &pattern,
                                    Equality equal = {})
{
    if (pattern.empty() || pattern.size() > elements.size())
        return ZEB_NOT_FOUND;
    const auto found =
        std::search(elements.begin(), elements.end() - 1, pattern.begin(), pattern.end(), equal);
    return found == elements.end() - 1 ? ZEB_NOT_FOUND : static_cast<uint32_t>(found - elements.begin());
}

/// What an ordered search answers, whether it warned, and whether it would insert at the index.
struct Ordered {
    uint32_t index = ZEB_NOT_FOUND;
    bool warned = false;
    bool inserts = false;
};

/// Where a search ended: the last probe, the bounds that were left, and the last answer.
struct Search_End {
    uint32_t probe, low, high;
    ZEB_Comparison compared;
};

/// Probes until an answer is neither less nor greater, or the bounds meet.
template <class Element, class Compare>
Search_End search(const Vector<Element> &elements, Element key, Compare compare)
{
    const auto count = static_cast<uint32_t>(elements.size());
    Search_End end{count / 2, 0, count - 1, 0};
    for (;; end.probe = end.low + (end.high - end.low + 1) / 2) {
        end.compared = compare(&key, &elements[end.probe]);
        if (end.compared == ZEB_COMPARED_GREATER && end.probe != end.high)
            end.low = end.probe + 1;
        else if (end.compared == ZEB_COMPARED_LESS && end.probe != end.low)
            end.high = end.probe - 1;
        else
            return end;
    }
}

template <class Element, class Compare>
Ordered ordered_find(const Vector<Element> &elements, Element key, Compare compare)
{
    if (elements.empty())
        return {};
    const Search_End end = search(elements, key, compare);
    if (end.compared == ZEB_COMPARED_GREATER || end.compared == ZEB_COMPARED_LESS)
        return {};
    // A lone element has to be equal; of several, any that ends the search is the answer.
    if (elements.size() == 1 && end.compared != ZEB_COMPARED_EQUAL)
        return {ZEB_NOT_FOUND, end.compared == 0, false};
    return {end.probe, false, false};
}

template <class Element, class Compare>
Ordered ordered_find_nearest(const Vector<Element> &elements, Element key, Compare compare)
{
    if (elements.empty())
        return {};
    const Search_End end = search(elements, key, compare);
    return {end.probe, elements.size() == 1 && (end.compared < 1 || end.compared > 3), false};
}

template <class Element, class Compare>
Ordered ordered_insert(const Vector<Element> &elements, Element key, Compare compare)
{
    if (elements.empty())
        return {0, false, true};
    const Search_End end = search(elements, key, compare);
    if (end.compared == ZEB_COMPARED_GREATER)
        return {end.high + 1, false, true};
    if (end.compared == ZEB_COMPARED_LESS)
        return {end.low, false, true};
    return {end.probe, elements.size() == 1 && end.compared != ZEB_COMPARED_EQUAL, false};
}

template <class Element, class Order = Less>
Element minimum(const Vector<Element> &elements, Order less = {})
{
    return elements.empty() ? Element{} : *std::min_element(elements.begin(), elements.end(), less);
}

template <class Element, class Order = Less>
Element maximum(const Vector<Element> &elements, Order less = {})
{
    return elements.empty() ? Element{} : *std::max_element(elements.begin(), elements.end(), less);
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

template <class Element>
void swap(Vector<Element> &elements, uint32_t i, uint32_t j)
{
    std::swap(elements[i], elements[j]);
}

template <class Element>
void reverse(Vector<Element> &elements)
{
    const uint32_t count = static_cast<uint32_t>(elements.size());
    if (count < 2)
        return;
    for (uint32_t front = 0, back = count - 1; front <= count / 2; ++front, --back)
        swap(elements, front, back);
}

template <class Element>
void move(Vector<Element> &elements, uint32_t from, uint32_t to)
{
    const Element moved = elements[from];
    elements.erase(elements.begin() + from);
    elements.insert(elements.begin() + to, moved);
}

template <class Element>
void apply_permutation(Vector<Element> &elements, const Vector<uint32_t> &permutation)
{
    const Vector<Element> copy = elements;
    for (uint32_t i = 0; i < elements.size() && i < permutation.size(); ++i)
        elements[i] = copy[permutation[i]];
}

template <class Element>
void apply_inverse_permutation(Vector<Element> &elements, const Vector<uint32_t> &permutation)
{
    const Vector<Element> copy = elements;
    for (uint32_t i = 0; i < elements.size() && i < permutation.size(); ++i)
        elements[permutation[i]] = copy[i];
}

template <class Element>
void transpose(Vector<Element> &elements, uint64_t rows, uint64_t columns)
{
    if (rows < 2 || columns < 2 || rows * columns != elements.size())
        return;
    Vector<Element> result;
    for (uint64_t column = 0; column < columns; ++column)
        for (uint64_t i = column; i < elements.size(); i += columns)
            result.push_back(elements[i]);
    elements = result;
}

/// Sorts, every swap applied to the permutation too when there is one. `precedes` is asked with pointers
/// to the later and the earlier element.
template <class Element, class Precedes>
void sort(Vector<Element> &elements, Vector<uint32_t> *permutation, Precedes precedes)
{
    const int64_t count = static_cast<int64_t>(elements.size());
    if (count < 2)
        return;
    int64_t gap = 1;
    while (3 * gap < count)
        gap = 3 * gap + 1;
    for (; gap >= 1; gap /= 3) {
        for (int64_t i = gap; i < count; ++i) {
            for (int64_t j = i; j >= gap; j -= gap) {
                if (!precedes(&elements[static_cast<size_t>(j)], &elements[static_cast<size_t>(j - gap)]))
                    break;
                swap(elements, static_cast<uint32_t>(j), static_cast<uint32_t>(j - gap));
                if (permutation != nullptr)
                    swap(*permutation, static_cast<uint32_t>(j), static_cast<uint32_t>(j - gap));
            }
        }
    }
}

template <class Element, class Equality = Equal>
bool same_values(const Vector<Element> &left, const Vector<Element> &right, Equality equal = {})
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(), equal);
}

} // namespace reference
