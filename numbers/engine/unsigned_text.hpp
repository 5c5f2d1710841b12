/// Decimal digits of integers. The `put` functions write no terminating null and return the position after
/// the last digit.
#pragma once

#include <cstdint>

namespace zeb::engine
{

/// Writes at most 10 characters.
char *put_unsigned(char *out, std::uint32_t value) noexcept;

/// Writes at most 20 characters.
char *put_unsigned_64(char *out, std::uint64_t value) noexcept;

/// Writes '-' before a negative value; at most 11 characters.
char *put_signed(char *out, std::int32_t value) noexcept;

/// Writes '-' before a negative value; at most 20 characters.
char *put_signed_64(char *out, std::int64_t value) noexcept;

/// Writes at least two digits, with a '0' before a value below 10; at most 20 characters.
char *put_two_digits_at_least(char *out, std::uint64_t value) noexcept;

/// Writes at least `digits` digits (1 to 20), with leading zeros; at most 20 characters.
char *put_zero_padded(char *out, std::uint64_t value, std::uint32_t digits) noexcept;

/// Writes the decimal digits and a terminating null, a pointer to which is returned. The buffer needs 11
/// bytes.
char *write_unsigned(char *buffer, std::uint32_t value) noexcept;

} // namespace zeb::engine
