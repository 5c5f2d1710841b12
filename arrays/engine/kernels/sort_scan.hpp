/// What has to be known before a sort may use a faster method than the Shell sort.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine::kernels
{

/// What floating-point lanes hold beside finite numbers.
enum class Float_Order : std::uint8_t {
    Finite,    ///< nothing, and zeros of one sign only
    Infinite,  ///< infinities
    Ambiguous, ///< NaN or zeros of both signs: the order does not determine the result
};

/// The order that lanes without NaN are in already.
enum class Run_Order : std::uint8_t { Mixed, Ascending, Descending };

template <class Lane>
struct Scan_Kernels {
    /// For integers, always Finite.
    Float_Order (*float_order)(const Lane *lanes, std::size_t count);
    Run_Order (*run_order)(const Lane *lanes, std::size_t count);
    /// Whether this processor has vectors that the vector library's sort can use.
    bool sorts_in_vectors;
};

/// The kernels for the processor in use; for 32- and 64-bit integers, float and double.
template <class Lane>
const Scan_Kernels<Lane> &scans() noexcept;

} // namespace zeb::engine::kernels
