/// Removal by value, in vectors.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine::kernels
{

/// Moves the lanes that are not `==` the value to the front, in order, and answers how many. Nothing is
/// written before the first match, and at and after the answered index every lane is as it was.
std::size_t remove_equal(std::uint8_t *lanes, std::size_t count, std::uint8_t value) noexcept;
std::size_t remove_equal(std::uint32_t *lanes, std::size_t count, std::uint32_t value) noexcept;
std::size_t remove_equal(std::uint64_t *lanes, std::size_t count, std::uint64_t value) noexcept;
std::size_t remove_equal(float *lanes, std::size_t count, float value) noexcept;
std::size_t remove_equal(double *lanes, std::size_t count, double value) noexcept;

} // namespace zeb::engine::kernels
