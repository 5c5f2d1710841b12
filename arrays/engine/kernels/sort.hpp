/// Sorts by the lane's own order, faster than the Shell sort and with its exact results.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine::kernels
{

/// Sorts ascending. Floating-point lanes end where the Shell sort leaves them, which shows where zeros
/// of both signs or a not-a-number are among them.
void sort(std::uint8_t *lanes, std::size_t count) noexcept;
void sort(std::int8_t *lanes, std::size_t count) noexcept;
void sort(std::uint32_t *lanes, std::size_t count) noexcept;
void sort(std::int32_t *lanes, std::size_t count) noexcept;
void sort(std::uint64_t *lanes, std::size_t count) noexcept;
void sort(float *lanes, std::size_t count) noexcept;
void sort(double *lanes, std::size_t count) noexcept;

/// The same, every exchange applied to `indexes`, which has at least `count` entries, too.
void sort(std::uint8_t *lanes, std::uint32_t *indexes, std::size_t count) noexcept;
void sort(std::int8_t *lanes, std::uint32_t *indexes, std::size_t count) noexcept;
void sort(std::uint32_t *lanes, std::uint32_t *indexes, std::size_t count) noexcept;
void sort(std::int32_t *lanes, std::uint32_t *indexes, std::size_t count) noexcept;
void sort(std::uint64_t *lanes, std::uint32_t *indexes, std::size_t count) noexcept;
void sort(float *lanes, std::uint32_t *indexes, std::size_t count) noexcept;
void sort(double *lanes, std::uint32_t *indexes, std::size_t count) noexcept;

} // namespace zeb::engine::kernels
