#pragma once

#include <cstdint>

namespace zeb::engine
{

/// The writers of this header put the plain decimal digits, and nothing after them: no terminating null.
/// Each returns the position after the last digit.

/// At most 10 characters.
char *put_unsigned(char *out, std::uint32_t value) noexcept;

/// At most 20 characters.
char *put_unsigned_64(char *out, std::uint64_t value) noexcept;

/// With a '-' in front of a negative value; at most 11 characters.
char *put_signed(char *out, std::int32_t value) noexcept;

/// With a '-' in front of a negative value; at most 20 characters.
char *put_signed_64(char *out, std::int64_t value) noexcept;

/// At least two digits, with a '0' in front of a value below 10; at most 20 characters.
char *put_two_digits_at_least(char *out, std::uint64_t value) noexcept;

/// At least `digits` digits (1 to 20), with leading zeros; at most 20 characters.
char *put_zero_padded(char *out, std::uint64_t value, std::uint32_t digits) noexcept;

/// The decimal digits and a terminating null, a pointer to which is returned. The buffer needs 11 bytes.
char *write_unsigned(char *buffer, std::uint32_t value) noexcept;

} // namespace zeb::engine
