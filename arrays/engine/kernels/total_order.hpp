/// Sorts by a total order: by value, -0.0 before 0.0, and NaN, of either sign, behind all numbers. Equal
/// lanes keep their order.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine::kernels
{

/// For 8-, 32- and 64-bit integers, float and double.
template <class Lane>
void sort_totally(Lane *lanes, std::size_t count) noexcept;

/// The same, the indexes moved with the lanes; there are at least `count` of them, in other memory. Returns
/// false, nothing changed, if allocation fails.
template <class Lane>
bool sort_totally(Lane *lanes, std::uint32_t *indexes, std::size_t count) noexcept;

} // namespace zeb::engine::kernels
