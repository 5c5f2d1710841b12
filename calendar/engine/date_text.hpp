#pragma once

#include "calendar/engine/date_time.hpp"

namespace zeb::engine
{

/// Room for every slash text.
inline constexpr std::uint32_t slash_text_size = 96;

/// Writes month/day/year; hours:minutes:seconds after a space when the second is not 0; and the nanoseconds,
/// when they are not 0, as a fraction with at most 12 decimals, right after the seconds (":30.5") or after a
/// space ("1/2/2000 0.5"). Hours count past 24 where the second is past the day's end. The decimal point is
/// '.' in every locale. The buffer needs slash_text_size bytes; returns a pointer to the terminating null.
char *write_slash_text(char *buffer, const Date_Time &value) noexcept;

/// Room for every text of a time stamp.
inline constexpr std::uint32_t time_stamp_text_size = 48;

/// Writes the seconds, a point and the nanoseconds with nine digits at least; returns a pointer to the
/// terminating null.
char *write_time_stamp(char *buffer, ZEB_Time_Value time) noexcept;

/// Reads "month / day / year hours : minutes : seconds . nanoseconds" from a counted array, with white space
/// allowed around every number; what stands after '.' is a count of nanoseconds (".5" is five of them). Every
/// field where the reading stopped, and all after it, is 0; then every date field is brought into its range.
Date_Time read_spaced_text(const char *chars, std::uint32_t length) noexcept;

/// Puts month/day/year as plain decimal integers; at most 35 characters and no terminating null. Returns the
/// position after the last character.
char *put_slash_date(char *out, ZEB_Gregorian_Date date) noexcept;

} // namespace zeb::engine
