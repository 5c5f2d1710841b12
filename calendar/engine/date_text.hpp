/// Writing and reading dates with slashes, and writing time stamps.
#pragma once

#include "calendar/engine/date_time.hpp"

namespace zeb::engine
{

/// Size of a buffer for every slash text.
inline constexpr std::uint32_t slash_text_size = 96;

/// Writes month/day/year; hours:minutes:seconds after a space if the second is not 0; and the nanoseconds, if
/// not 0, as a fraction with at most 12 decimals, right after the seconds (":30.5") or after a space
/// ("1/2/2000 0.5"). Hours exceed 23 if the second is past the end of the day. The decimal point is '.' in
/// every locale. The buffer needs slash_text_size bytes; returns a pointer to the terminating null.
char *write_slash_text(char *buffer, const Date_Time &value) noexcept;

/// Size of a buffer for every text of a time stamp.
inline constexpr std::uint32_t time_stamp_text_size = 48;

/// Writes the seconds, a point and the nanoseconds with at least nine digits; returns a pointer to the
/// terminating null.
char *write_time_stamp(char *buffer, ZEB_Time_Value time) noexcept;

/// Reads "month / day / year hours : minutes : seconds . nanoseconds" from a counted array, with white space
/// allowed around every number; the number after '.' is a count of nanoseconds (".5" is five). The field at
/// which reading stops, and all after it, are 0; then the date is normalised.
Date_Time read_spaced_text(const char *chars, std::uint32_t length) noexcept;

/// Writes month/day/year as plain decimal integers, at most 35 characters and no terminating null. Returns
/// the position after the last character.
char *put_slash_date(char *out, ZEB_Gregorian_Date date) noexcept;

} // namespace zeb::engine
