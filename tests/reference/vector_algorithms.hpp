/// Every vector algorithm in its plainest form, one step at a time, as slow as that is.
///
/// The framework's own versions may take any faster way; these say what the result has to be.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <cstring>
#include <vector>

namespace reference
{

template <class Element>
using Vector = std::vector<Element>;

struct Equal {
    template <class Element>
    bool operator()(Element left, Element right) const
    {
        return left == right;
    }
};

struct Less {
    template <class Element>
    bool operator()(Element left, Element right) const
    {
        return left < right;
    }
};

/// How the families order their elements where no function is given.
template <class Element>
ZEB_Comparison own_comparison(const Element *key, const Element *element)
{
    if (*element > *key)
        return 2;
    if (*key > *element)
        return 3;
    return 1;
}

template <class Element, class Equality = Equal>
uint32_t first_index_of(const Vector<Element> &elements, Element value, Equality equal = {})
{
    for (uint32_t i = 0; i < elements.size(); ++i)
        if (equal(elements[i], value))
            return i;
    return ZEB_NOT_FOUND;
}

template <class Element, class Equality = Equal>
uint32_t last_index_of(const Vector<Element> &elements, Element value, Equality equal = {})
{
    for (uint32_t i = static_cast<uint32_t>(elements.size()); i > 0; --i)
        if (equal(elements[i - 1], value))
            return i - 1;
    return ZEB_NOT_FOUND;
}

template <class Element, class Equality = Equal>
bool matches_at(const Vector<Element> &elements, uint32_t start, const Vector<Element> &pattern,
                Equality equal = {})
{
    for (uint32_t i = 0; i < pattern.size(); ++i)
        if (!equal(elements[start + i], pattern[i]))
            return false;
    return true;
}

template <class Element, class Equality = Equal>
uint32_t first_index_of_subsequence(const Vector<Element> &elements, const Vector<Element> &pattern,
                                    Equality equal = {})
{
    const uint32_t count = static_cast<uint32_t>(elements.size());
    const uint32_t m = static_cast<uint32_t>(pattern.size());
    if (m > count || m == 0)
        return ZEB_NOT_FOUND;
    for (uint32_t start = 0; start < count - m; ++start)
        if (matches_at(elements, start, pattern, equal))
            return start;
    return ZEB_NOT_FOUND;
}

/// What an ordered search answers, whether it warned, and whether it would insert at the index.
struct Ordered {
    uint32_t index = ZEB_NOT_FOUND;
    bool warned = false;
    bool inserts = false;
};

template <class Element, class Compare>
Ordered ordered_find(const Vector<Element> &elements, Element key, Compare compare)
{
    Ordered answer;
    const uint32_t count = static_cast<uint32_t>(elements.size());
    if (count == 0)
        return answer;
    uint32_t probe = count / 2;
    if (count == 1) {
        const ZEB_Comparison compared = compare(&key, &elements[0]);
        if (compared == 1)
            answer.index = 0;
        else if (compared == 0)
            answer.warned = true;
        return answer;
    }
    uint32_t low = 0, high = count - 1;
    for (;;) {
        const ZEB_Comparison compared = compare(&key, &elements[probe]);
        if (compared == 3) {
            if (probe == high)
                return answer;
            low = probe + 1;
        } else if (compared == 2) {
            if (probe == low)
                return answer;
            high = probe - 1;
        } else {
            answer.index = probe;
            return answer;
        }
        probe = low + (high - low + 1) / 2;
    }
}

template <class Element, class Compare>
Ordered ordered_find_nearest(const Vector<Element> &elements, Element key, Compare compare)
{
    Ordered answer;
    const uint32_t count = static_cast<uint32_t>(elements.size());
    if (count == 0)
        return answer;
    uint32_t probe = count / 2;
    if (count == 1) {
        const ZEB_Comparison compared = compare(&key, &elements[0]);
        answer.index = 0;
        answer.warned = compared != 1 && compared != 2 && compared != 3;
        return answer;
    }
    uint32_t low = 0, high = count - 1;
    for (;;) {
        const ZEB_Comparison compared = compare(&key, &elements[probe]);
        if (compared == 3) {
            if (probe == high) {
                answer.index = high;
                return answer;
            }
            low = probe + 1;
        } else if (compared == 2) {
            if (probe == low) {
                answer.index = low;
                return answer;
            }
            high = probe - 1;
        } else {
            answer.index = probe;
            return answer;
        }
        probe = low + (high - low + 1) / 2;
    }
}

template <class Element, class Compare>
Ordered ordered_insert(const Vector<Element> &elements, Element key, Compare compare)
{
    Ordered answer;
    const uint32_t count = static_cast<uint32_t>(elements.size());
    answer.inserts = true;
    answer.index = 0;
    if (count == 0)
        return answer;
    uint32_t low = 0, high = count - 1, probe = count / 2;
    for (;;) {
        const ZEB_Comparison compared = compare(&key, &elements[probe]);
        if (compared == 3) {
            answer.index = high + 1;
            if (probe == high)
                return answer;
            low = probe + 1;
        } else if (compared == 2) {
            answer.index = low;
            if (probe == low)
                return answer;
            high = probe - 1;
        } else {
            answer.index = probe;
            answer.inserts = false;
            answer.warned = count == 1 && compared != 1;
            return answer;
        }
        probe = low + (high - low + 1) / 2;
    }
}

template <class Element, class Order = Less>
Element minimum(const Vector<Element> &elements, Order less = {})
{
    if (elements.empty())
        return Element{};
    Element least = elements[0];
    for (Element element : elements)
        if (less(element, least))
            least = element;
    return least;
}

template <class Element, class Order = Less>
Element maximum(const Vector<Element> &elements, Order less = {})
{
    if (elements.empty())
        return Element{};
    Element greatest = elements[0];
    for (Element element : elements)
        if (less(greatest, element))
            greatest = element;
    return greatest;
}

template <class Element, class Equality = Equal>
uint32_t replace_equal(Vector<Element> &elements, Element value, Element replacement, Equality equal = {})
{
    uint32_t replaced = 0;
    for (Element &element : elements) {
        if (equal(element, value)) {
            element = replacement;
            ++replaced;
        }
    }
    return replaced;
}

/// Answers the new count; the elements beyond it are left where they were.
template <class Element, class Equality = Equal>
uint32_t remove_equal(Vector<Element> &elements, Element value, Equality equal = {})
{
    uint32_t kept = 0;
    for (uint32_t i = 0; i < elements.size(); ++i)
        if (!equal(elements[i], value))
            elements[kept++] = elements[i];
    return kept;
}

template <class Element, class Equality = Equal>
uint32_t replace_occurrences(Vector<Element> &elements, const Vector<Element> &pattern,
                             const Vector<Element> &replacement, Equality equal = {})
{
    Vector<Element> result;
    uint32_t replaced = 0;
    uint32_t i = 0;
    while (i < elements.size()) {
        const bool fits = !pattern.empty() && pattern.size() <= elements.size() - i;
        if (fits && matches_at(elements, i, pattern, equal)) {
            result.insert(result.end(), replacement.begin(), replacement.end());
            i += static_cast<uint32_t>(pattern.size());
            ++replaced;
        } else {
            result.push_back(elements[i++]);
        }
    }
    elements = result;
    return replaced;
}

template <class Element>
void swap(Vector<Element> &elements, uint32_t i, uint32_t j)
{
    const Element kept = elements[i];
    elements[i] = elements[j];
    elements[j] = kept;
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

template <class Element>
bool same_memory(const Vector<Element> &left, const Vector<Element> &right)
{
    return left.size() == right.size() &&
           (left.empty() || std::memcmp(left.data(), right.data(), left.size() * sizeof(Element)) == 0);
}

template <class Element, class Equality = Equal>
bool same_values(const Vector<Element> &left, const Vector<Element> &right, Equality equal = {})
{
    if (left.size() != right.size())
        return false;
    for (size_t i = 0; i < left.size(); ++i)
        if (!equal(left[i], right[i]))
            return false;
    return true;
}

} // namespace reference
