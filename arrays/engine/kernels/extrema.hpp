/// Smallest and largest lane, in vectors. The count is at least 1. Of equal lanes the first is answered,
/// and a not-a-number only when it is the first lane.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine::kernels
{

std::uint8_t minimum(const std::uint8_t *lanes, std::size_t count) noexcept;
std::int8_t minimum(const std::int8_t *lanes, std::size_t count) noexcept;
std::uint32_t minimum(const std::uint32_t *lanes, std::size_t count) noexcept;
std::int32_t minimum(const std::int32_t *lanes, std::size_t count) noexcept;
std::uint64_t minimum(const std::uint64_t *lanes, std::size_t count) noexcept;
float minimum(const float *lanes, std::size_t count) noexcept;
double minimum(const double *lanes, std::size_t count) noexcept;

std::uint8_t maximum(const std::uint8_t *lanes, std::size_t count) noexcept;
std::int8_t maximum(const std::int8_t *lanes, std::size_t count) noexcept;
std::uint32_t maximum(const std::uint32_t *lanes, std::size_t count) noexcept;
std::int32_t maximum(const std::int32_t *lanes, std::size_t count) noexcept;
std::uint64_t maximum(const std::uint64_t *lanes, std::size_t count) noexcept;
float maximum(const float *lanes, std::size_t count) noexcept;
double maximum(const double *lanes, std::size_t count) noexcept;

void minimum_and_maximum(const std::uint8_t *lanes, std::size_t count, std::uint8_t &low,
                         std::uint8_t &high) noexcept;
void minimum_and_maximum(const std::int8_t *lanes, std::size_t count, std::int8_t &low,
                         std::int8_t &high) noexcept;
void minimum_and_maximum(const std::uint32_t *lanes, std::size_t count, std::uint32_t &low,
                         std::uint32_t &high) noexcept;
void minimum_and_maximum(const std::int32_t *lanes, std::size_t count, std::int32_t &low,
                         std::int32_t &high) noexcept;
void minimum_and_maximum(const std::uint64_t *lanes, std::size_t count, std::uint64_t &low,
                         std::uint64_t &high) noexcept;
void minimum_and_maximum(const float *lanes, std::size_t count, float &low, float &high) noexcept;
void minimum_and_maximum(const double *lanes, std::size_t count, double &low, double &high) noexcept;

} // namespace zeb::engine::kernels
