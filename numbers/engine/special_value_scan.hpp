/// Finding the words for infinity and NaN.
#pragma once

#include <cstdint>

namespace zeb::engine
{

/// Returns the number of characters before the first "inf", "infinity" or "nan", in any case, that is
/// followed by white space or the end of the array, whatever precedes it; the length if there is none.
std::uint32_t find_special_value(const char *chars, std::uint32_t length) noexcept;

} // namespace zeb::engine
