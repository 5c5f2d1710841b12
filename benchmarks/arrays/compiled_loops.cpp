#include "benchmarks/arrays/compiled_loops.hpp"

#include <algorithm>
#include <cmath>
#include <cstring>
#if defined(__AVX2__)
#include <immintrin.h>
#endif

namespace zeb_bench::compiled
{

template <class Element>
std::size_t first_index(const Element *elements, std::size_t count, Element value)
{
    for (std::size_t i = 0; i < count; ++i)
        if (elements[i] == value)
            return i;
    return count;
}

template <class Element>
std::size_t last_index(const Element *elements, std::size_t count, Element value)
{
    for (std::size_t i = count; i > 0; --i)
        if (elements[i - 1] == value)
            return i - 1;
    return count;
}

template <class Element>
Element minimum(const Element *elements, std::size_t count)
{
    Element least = elements[0];
    for (std::size_t i = 1; i < count; ++i)
        least = elements[i] < least ? elements[i] : least;
    return least;
}

template <class Element>
Element maximum(const Element *elements, std::size_t count)
{
    Element greatest = elements[0];
    for (std::size_t i = 1; i < count; ++i)
        greatest = greatest < elements[i] ? elements[i] : greatest;
    return greatest;
}

template <class Element>
void fill(Element *elements, std::size_t count, Element value)
{
    for (std::size_t i = 0; i < count; ++i)
        elements[i] = value;
}

template <class Element>
void reverse(Element *elements, std::size_t count)
{
    for (std::size_t i = 0; i < count / 2; ++i)
        std::swap(elements[i], elements[count - 1 - i]);
}

template <class Element>
bool equal(const Element *left, const Element *right, std::size_t count)
{
    for (std::size_t i = 0; i < count; ++i)
        if (!(left[i] == right[i]))
            return false;
    return true;
}

template <class Element>
std::size_t replace(Element *elements, std::size_t count, Element value, Element replacement)
{
    std::size_t replaced = 0;
    for (std::size_t i = 0; i < count; ++i) {
        if (elements[i] == value) {
            elements[i] = replacement;
            ++replaced;
        }
    }
    return replaced;
}

#define ZEB_ELEMENT(Element)                                                                                 \
    template std::size_t first_index(const Element *, std::size_t, Element);                                 \
    template std::size_t last_index(const Element *, std::size_t, Element);                                  \
    template Element minimum(const Element *, std::size_t);                                                  \
    template Element maximum(const Element *, std::size_t);                                                  \
    template void fill(Element *, std::size_t, Element);                                                     \
    template void reverse(Element *, std::size_t);                                                           \
    template bool equal(const Element *, const Element *, std::size_t);                                      \
    template std::size_t replace(Element *, std::size_t, Element, Element);
ZEB_ELEMENT(std::uint8_t)
ZEB_ELEMENT(std::int32_t)
ZEB_ELEMENT(std::int64_t)
ZEB_ELEMENT(double)

void decimate(const double *positions, const double *values, std::size_t count, double start, double end,
              ZEB_Chart_Column *columns, std::size_t column_count)
{
    const double scale = static_cast<double>(column_count) / (end - start), infinity = HUGE_VAL;
    std::fill(columns, columns + column_count, ZEB_Chart_Column{0, infinity, -infinity, 0, 0});
    for (std::size_t i = 0; i < count; ++i) {
        if (positions[i] < start || positions[i] > end)
            continue;
        const std::size_t at = static_cast<std::size_t>((positions[i] - start) * scale);
        ZEB_Chart_Column &column = columns[std::min(at, column_count - 1)];
        if (column.count++ == 0)
            column.first = values[i];
        column.last = values[i];
        column.lowest = values[i] < column.lowest ? values[i] : column.lowest;
        column.highest = values[i] > column.highest ? values[i] : column.highest;
    }
}

namespace
{

template <class Combine>
std::uint64_t scan(std::size_t bytes, Combine combine)
{
    std::uint64_t seen[8] = {};
    for (std::size_t i = 0; i + 8 <= bytes / 8; i += 8)
        for (std::size_t k = 0; k < 8; ++k)
            seen[k] |= combine(i + k);
    return seen[0] | seen[1] | seen[2] | seen[3] | seen[4] | seen[5] | seen[6] | seen[7];
}

} // namespace

std::uint64_t read(const void *block, std::size_t bytes)
{
    const std::uint64_t *const words = static_cast<const std::uint64_t *>(block);
    return scan(bytes, [words](std::size_t i) { return words[i]; });
}

std::uint64_t read_both(const void *left, const void *right, std::size_t bytes)
{
    const std::uint64_t *const a = static_cast<const std::uint64_t *>(left);
    const std::uint64_t *const b = static_cast<const std::uint64_t *>(right);
    return scan(bytes, [a, b](std::size_t i) { return a[i] ^ b[i]; });
}

void write(void *block, std::size_t bytes)
{
#if defined(__AVX2__)
    if (bytes > std::size_t{16} << 20) {
        char *to = reinterpret_cast<char *>((reinterpret_cast<std::uintptr_t>(block) + 31) / 32 * 32);
        for (char *const end = static_cast<char *>(block) + bytes - 32; to <= end; to += 32)
            _mm256_stream_si256(reinterpret_cast<__m256i *>(to), _mm256_set1_epi8(1));
        _mm_sfence();
        return;
    }
#endif
    std::memset(block, 1, bytes);
}

void change(void *block, std::size_t bytes)
{
    std::uint64_t *const words = static_cast<std::uint64_t *>(block);
    for (std::size_t i = 0; i < bytes / 8; ++i)
        words[i] ^= 1;
}

} // namespace zeb_bench::compiled
