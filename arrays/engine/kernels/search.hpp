/// Searches and comparisons in vectors, one version per processor generation, chosen at run time. Lanes
/// compare with their own `==`; pointers to lanes need no alignment beyond the lane's.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine::kernels
{

/// Index of the first (last) lane equal to the value; count when there is none.
std::size_t first_equal(const std::uint8_t *lanes, std::size_t count, std::uint8_t value) noexcept;
std::size_t first_equal(const std::uint32_t *lanes, std::size_t count, std::uint32_t value) noexcept;
std::size_t first_equal(const std::uint64_t *lanes, std::size_t count, std::uint64_t value) noexcept;
std::size_t first_equal(const float *lanes, std::size_t count, float value) noexcept;
std::size_t first_equal(const double *lanes, std::size_t count, double value) noexcept;

std::size_t last_equal(const std::uint8_t *lanes, std::size_t count, std::uint8_t value) noexcept;
std::size_t last_equal(const std::uint32_t *lanes, std::size_t count, std::uint32_t value) noexcept;
std::size_t last_equal(const std::uint64_t *lanes, std::size_t count, std::uint64_t value) noexcept;
std::size_t last_equal(const float *lanes, std::size_t count, float value) noexcept;
std::size_t last_equal(const double *lanes, std::size_t count, double value) noexcept;

/// Start of the first run equal to the pattern; count when there is none. The length is at least 1 and at
/// most count. Linear in count whatever the pattern, as long as memory for a table of `length` numbers
/// can be had.
std::size_t find_run(const std::uint8_t *lanes, std::size_t count, const std::uint8_t *pattern,
                     std::size_t length) noexcept;
std::size_t find_run(const std::uint32_t *lanes, std::size_t count, const std::uint32_t *pattern,
                     std::size_t length) noexcept;
std::size_t find_run(const std::uint64_t *lanes, std::size_t count, const std::uint64_t *pattern,
                     std::size_t length) noexcept;
std::size_t find_run(const float *lanes, std::size_t count, const float *pattern,
                     std::size_t length) noexcept;
std::size_t find_run(const double *lanes, std::size_t count, const double *pattern,
                     std::size_t length) noexcept;

/// True when all lanes are equal by value. Integers need no kernel: memory decides.
bool all_equal(const float *left, const float *right, std::size_t count) noexcept;
bool all_equal(const double *left, const double *right, std::size_t count) noexcept;

} // namespace zeb::engine::kernels
