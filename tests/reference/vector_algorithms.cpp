#include "tests/reference/vector_algorithms.hpp"

#include <algorithm>

namespace reference
{

namespace
{

auto is(uint32_t value, const Relation &equal)
{
    return [=](uint32_t element) { return equal(element, value); };
}

} // namespace

ZEB_Comparison compare(uint32_t key, uint32_t element, const Relation &precedes)
{
    if (precedes(key, element))
        return ZEB_COMPARED_LESS;
    return precedes(element, key) ? ZEB_COMPARED_GREATER : ZEB_COMPARED_EQUAL;
}

uint32_t first_index_of(const Numbers &elements, uint32_t value, const Relation &equal)
{
    const auto found = std::find_if(elements.begin(), elements.end(), is(value, equal));
    return found == elements.end() ? ZEB_NOT_FOUND : static_cast<uint32_t>(found - elements.begin());
}

uint32_t last_index_of(const Numbers &elements, uint32_t value, const Relation &equal)
{
    const uint32_t found = first_index_of({elements.rbegin(), elements.rend()}, value, equal);
    return found == ZEB_NOT_FOUND ? found : static_cast<uint32_t>(elements.size()) - 1 - found;
}

uint32_t first_index_of_subsequence(const Numbers &elements, const Numbers &pattern, const Relation &equal)
{
    const auto end = elements.end() - !elements.empty();
    const auto found = std::search(elements.begin(), end, pattern.begin(), pattern.end(), equal);
    return pattern.empty() || found == end ? ZEB_NOT_FOUND : static_cast<uint32_t>(found - elements.begin());
}

Ordered ordered(const Numbers &elements, uint32_t key, const Comparing &compare)
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

uint32_t replace_equal(Numbers &elements, uint32_t value, uint32_t replacement, const Relation &equal)
{
    const auto replaced = std::count_if(elements.begin(), elements.end(), is(value, equal));
    std::replace_if(elements.begin(), elements.end(), is(value, equal), replacement);
    return static_cast<uint32_t>(replaced);
}

uint32_t remove_equal(Numbers &elements, uint32_t value, const Relation &equal)
{
    const auto end = std::remove_if(elements.begin(), elements.end(), is(value, equal));
    return static_cast<uint32_t>(end - elements.begin());
}

uint32_t replace_occurrences(Numbers &elements, const Numbers &pattern, const Numbers &replacement,
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

void reverse(Numbers &elements)
{
    const size_t count = elements.size();
    for (size_t front = 0; count > 1 && front <= count / 2; ++front)
        std::swap(elements[front], elements[count - 1 - front]);
}

void move(Numbers &elements, uint32_t from, uint32_t to)
{
    const uint32_t moved = elements[from];
    elements.erase(elements.begin() + from);
    elements.insert(elements.begin() + to, moved);
}

void permute(Numbers &elements, const Numbers &permutation, bool inverse)
{
    const Numbers copy = elements;
    for (uint32_t i = 0; i < elements.size() && i < permutation.size(); ++i)
        elements[inverse ? permutation[i] : i] = copy[inverse ? i : permutation[i]];
}

void transpose(Numbers &elements, uint64_t rows, uint64_t columns)
{
    if (rows < 2 || columns < 2 || rows * columns != elements.size())
        return;
    const Numbers copy = elements;
    for (uint64_t i = 0; i < copy.size(); ++i)
        elements[i % columns * rows + i / columns] = copy[i];
}

void sort(Numbers &elements, Numbers *permutation, const Preceding &precedes)
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
