/// Plain loops that the compiler may turn into vectors, built with -O3 for processors with AVX2: what a
/// user gets by turning the compiler up, and the limits of the memory.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <cstddef>
#include <cstdint>

namespace zeb_bench::compiled
{

template <class Element>
std::size_t first_index(const Element *elements, std::size_t count, Element value);
template <class Element>
std::size_t last_index(const Element *elements, std::size_t count, Element value);
template <class Element>
Element minimum(const Element *elements, std::size_t count);
template <class Element>
Element maximum(const Element *elements, std::size_t count);
template <class Element>
void fill(Element *elements, std::size_t count, Element value);
template <class Element>
void reverse(Element *elements, std::size_t count);
template <class Element>
bool equal(const Element *left, const Element *right, std::size_t count);
template <class Element>
std::size_t replace(Element *elements, std::size_t count, Element value, Element replacement);

/// Asks each point for its column.
void decimate(const double *positions, const double *values, std::size_t count, double start, double end,
              ZEB_Chart_Column *columns, std::size_t column_count);

/// Limits: read all of a block, read two, write one past the caches where it is large, change one in place.
std::uint64_t read(const void *block, std::size_t bytes);
std::uint64_t read_both(const void *left, const void *right, std::size_t bytes);
void write(void *block, std::size_t bytes);
void change(void *block, std::size_t bytes);

} // namespace zeb_bench::compiled
