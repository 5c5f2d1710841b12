/// Changes in place, in vectors: fill, reverse, replace.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine::kernels
{

/// Stores the value into every lane.
void fill(std::uint8_t *lanes, std::size_t count, std::uint8_t value) noexcept;
void fill(std::uint32_t *lanes, std::size_t count, std::uint32_t value) noexcept;
void fill(std::uint64_t *lanes, std::size_t count, std::uint64_t value) noexcept;

/// Reverses the order of all lanes.
void reverse(std::uint8_t *lanes, std::size_t count) noexcept;
void reverse(std::uint32_t *lanes, std::size_t count) noexcept;
void reverse(std::uint64_t *lanes, std::size_t count) noexcept;

/// Writes the replacement over every lane that is `==` the value, and over nothing else; answers how
/// many. Lanes that do not match are not written, so they may lie in memory that cannot be.
std::size_t replace_equal(std::uint8_t *lanes, std::size_t count, std::uint8_t value,
                          std::uint8_t replacement) noexcept;
std::size_t replace_equal(std::uint32_t *lanes, std::size_t count, std::uint32_t value,
                          std::uint32_t replacement) noexcept;
std::size_t replace_equal(std::uint64_t *lanes, std::size_t count, std::uint64_t value,
                          std::uint64_t replacement) noexcept;
std::size_t replace_equal(float *lanes, std::size_t count, float value, float replacement) noexcept;
std::size_t replace_equal(double *lanes, std::size_t count, double value, double replacement) noexcept;

} // namespace zeb::engine::kernels
