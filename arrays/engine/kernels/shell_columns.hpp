/// The exact Shell sort of plain lanes, its passes in vectors across the chains of a gap, which do not
/// touch each other.
#pragma once

#include "arrays/engine/kernels/element_lanes.hpp"

#include <cstddef>

namespace zeb::engine::kernels
{

template <class Lane>
struct Column_Kernels {
    /// Sorts ascending by the lane's own `<`, NaN and zeros of both signs included.
    void (*sort)(Lane *lanes, std::size_t count);

    /// The same with every exchange applied to `companions` too.
    void (*sort_pairs)(Lane *lanes, Bits_Lane<Lane> *companions, std::size_t count);
};

/// The kernels for the processor in use; for 32- and 64-bit integers, float and double.
template <class Lane>
const Column_Kernels<Lane> &columns() noexcept;

} // namespace zeb::engine::kernels
