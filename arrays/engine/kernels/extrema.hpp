/// Smallest and largest lane, in vectors. The count is at least 1. Among equal lanes the first one is
/// returned, and NaN only if it is the first lane.
#pragma once

#include <cstddef>

namespace zeb::engine::kernels
{

template <class Lane>
struct Lane_Extrema {
    Lane low, high;
};

template <class Lane>
struct Extrema_Kernels {
    Lane (*minimum)(const Lane *lanes, std::size_t count);
    Lane (*maximum)(const Lane *lanes, std::size_t count);
    Lane_Extrema<Lane> (*minimum_and_maximum)(const Lane *lanes, std::size_t count);
};

/// The kernels for the processor in use; for 8-, 32- and 64-bit integers, float and double.
template <class Lane>
const Extrema_Kernels<Lane> &extrema() noexcept;

} // namespace zeb::engine::kernels
