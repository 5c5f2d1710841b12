/// Conversions between UTF-8 and code points.
///
/// Ill-formed are, in UTF-8, all sequences that Unicode forbids (overlong forms, surrogates, values above
/// U+10FFFF, incomplete characters); among code points, surrogates and values above U+10FFFF. The functions
/// throw nothing but what std::string does without memory.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zeb
{

bool is_valid_utf8(std::string_view text) noexcept;

/// Returns the code points of UTF-8; none if it is ill-formed.
std::optional<std::u32string> code_points_of_utf8(std::string_view utf8);

/// Returns the UTF-8 of code points; none if one of them cannot be encoded.
std::optional<std::string> utf8_of_code_points(std::u32string_view code_points);

} // namespace zeb
