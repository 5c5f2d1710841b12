/// The exact Shell sort of plain lanes, its passes in vectors across the chains of a gap, which do not
/// touch each other.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine::kernels
{

/// Sorts ascending by the lane's own `<`, not-a-numbers and zeros of both signs included.
void shell_sort(float *lanes, std::size_t count) noexcept;
void shell_sort(double *lanes, std::size_t count) noexcept;
void shell_sort(std::int32_t *lanes, std::size_t count) noexcept;
void shell_sort(std::uint32_t *lanes, std::size_t count) noexcept;
void shell_sort(std::uint64_t *lanes, std::size_t count) noexcept;

/// The same with every exchange applied to `companions` too; both have lanes of one width.
void shell_sort(float *lanes, std::uint32_t *companions, std::size_t count) noexcept;
void shell_sort(double *lanes, std::uint64_t *companions, std::size_t count) noexcept;
void shell_sort(std::int32_t *lanes, std::uint32_t *companions, std::size_t count) noexcept;
void shell_sort(std::uint32_t *lanes, std::uint32_t *companions, std::size_t count) noexcept;
void shell_sort(std::uint64_t *lanes, std::uint64_t *companions, std::size_t count) noexcept;

} // namespace zeb::engine::kernels
