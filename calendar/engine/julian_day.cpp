#include "calendar/engine/julian_day.hpp"

#include "calendar/engine/wrapping.hpp"

namespace zeb::engine
{

std::int32_t julian_day_from_any_fields(ZEB_Gregorian_Date date) noexcept
{
    const std::int32_t a = wrapping_subtract(date.month, 14) / 12;
    const std::int32_t year = wrapping_add(date.year, a);
    const std::int32_t month = wrapping_subtract(wrapping_subtract(date.month, 2), wrapping_multiply(12, a));
    const std::int32_t year_days = wrapping_multiply(1461, wrapping_add(year, 4800)) / 4;
    const std::int32_t month_days = wrapping_multiply(367, month) / 12;
    const std::int32_t century_days = 3 * (wrapping_add(year, 4900) / 100) / 4; // the product fits
    return wrapping_add(wrapping_subtract(wrapping_add(year_days, month_days), century_days),
                        wrapping_subtract(date.day, 32075));
}

} // namespace zeb::engine
