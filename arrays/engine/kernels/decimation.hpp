/// The range of numbers among which NaN may be, in vectors.
#pragma once

#include "arrays/engine/kernels/plain_loops.hpp"

#include <cstddef>

namespace zeb::engine::kernels
{

struct Decimation_Kernels {
    /// The lowest and the highest number: of zeros the first one; low above high where there is no number.
    plain::Number_Range (*number_range)(const double *lanes, std::size_t count);
};

/// The kernel for the processor in use.
const Decimation_Kernels &decimation() noexcept;

} // namespace zeb::engine::kernels
