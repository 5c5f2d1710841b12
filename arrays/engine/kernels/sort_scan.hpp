/// What has to be known before a sort may take a faster way than the Shell sort.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine::kernels
{

/// What floating-point lanes hold beside finite numbers.
enum class Float_Order : std::uint8_t {
    Finite,    ///< nothing, and zeros of one sign only
    Infinite,  ///< infinities
    Ambiguous, ///< a not-a-number or zeros of both signs: the order does not fix the result
};

Float_Order float_order(const float *lanes, std::size_t count) noexcept;
Float_Order float_order(const double *lanes, std::size_t count) noexcept;

/// How lanes without a not-a-number are ordered already.
enum class Run_Order : std::uint8_t { Mixed, Ascending, Descending };

Run_Order run_order(const std::uint32_t *lanes, std::size_t count) noexcept;
Run_Order run_order(const std::int32_t *lanes, std::size_t count) noexcept;
Run_Order run_order(const std::uint64_t *lanes, std::size_t count) noexcept;
Run_Order run_order(const float *lanes, std::size_t count) noexcept;
Run_Order run_order(const double *lanes, std::size_t count) noexcept;

/// True when this machine has vectors that the library's sort can use.
bool sorts_in_vectors() noexcept;

} // namespace zeb::engine::kernels
