#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

namespace zeb
{

/// Puts month/day/year as plain decimal integers; at most 35 characters and no terminating null. Returns the
/// position after the last character.
char *put_slash_date(char *out, ZEB_Gregorian_Date date) noexcept;

} // namespace zeb
