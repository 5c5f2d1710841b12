/// Powers of ten: the small ones whole, all that a double can meet by their leading bits.
#pragma once

#include "numbers/engine/wide_product.hpp"

#include <cstdint>

namespace zeb::engine
{

/// 10^0 to 10^16.
inline constexpr std::uint64_t integer_powers_of_ten[] = {1,
                                                          10,
                                                          100,
                                                          1000,
                                                          10000,
                                                          100000,
                                                          1000000,
                                                          10000000,
                                                          100000000,
                                                          1000000000,
                                                          10000000000,
                                                          100000000000,
                                                          1000000000000,
                                                          10000000000000,
                                                          100000000000000,
                                                          1000000000000000,
                                                          10000000000000000};

inline constexpr int smallest_table_power = -302;
inline constexpr int largest_table_power = 338;

/// From 10^0 up to this power the table is exact.
inline constexpr int largest_exact_table_power = 55;

/// Returns the leading 128 bits of 10^power, highest bit set, truncated: 10^power = (bits + remainder below
/// 1) * 2^(floor_log2_of_power_of_ten(power) - 127). The power must lie between the two bounds above.
Wide_Unsigned power_of_ten_bits(int power) noexcept;

/// Returns floor(log2(10^power)), exact for powers from -1233 to 1233.
constexpr int floor_log2_of_power_of_ten(int power) noexcept { return (power * 1741647) >> 19; }

/// Returns floor(log10(2^power)), exact for powers from -2620 to 2620.
constexpr int floor_log10_of_power_of_two(int power) noexcept { return (power * 315653) >> 20; }

} // namespace zeb::engine
