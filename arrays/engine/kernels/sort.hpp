/// Sorts by the lane's own order, faster than the Shell sort and with its exact results.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine::kernels
{

/// Sorts ascending; for 8-, 32- and 64-bit integers, float and double. Floating-point lanes end
/// where the Shell sort leaves them, which shows if zeros of both signs or NaN are among them.
template <class Lane>
void sort(Lane *lanes, std::size_t count) noexcept;

/// The same, every exchange applied to `indexes`, which has at least `count` entries, too.
template <class Lane>
void sort(Lane *lanes, std::uint32_t *indexes, std::size_t count) noexcept;

} // namespace zeb::engine::kernels
