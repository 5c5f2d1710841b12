#pragma once

#include <cstdint>

namespace zeb::engine
{

/// How many characters of a counted array stand before the first "inf", "infinity" or "nan", in any case,
/// that white space or the end of the array follows; what stands before the word does not matter. The length
/// when there is none.
std::uint32_t find_special_value(const char *chars, std::uint32_t length) noexcept;

} // namespace zeb::engine
