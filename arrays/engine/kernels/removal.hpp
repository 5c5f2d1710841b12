/// Removal by value, in vectors.
#pragma once

#include <cstddef>

namespace zeb::engine::kernels
{

template <class Lane>
struct Removal_Kernels {
    /// Moves the lanes that are not `==` the value to the front, in order, and returns how many. Nothing is
    /// written before the first match, and at and after the returned index every lane is as it was.
    std::size_t (*remove_equal)(Lane *lanes, std::size_t count, Lane value);
};

/// The kernels for the processor in use; for unsigned integers of 8, 32 and 64 bits, float and double.
template <class Lane>
const Removal_Kernels<Lane> &removal() noexcept;

} // namespace zeb::engine::kernels
