#include "calendar/engine/slash_date.hpp"

#include "calendar/engine/unsigned_text.hpp"

namespace zeb
{

char *put_slash_date(char *out, ZEB_Gregorian_Date date) noexcept
{
    out = put_signed(out, date.month);
    *out++ = '/';
    out = put_signed(out, date.day);
    *out++ = '/';
    return put_signed(out, date.year);
}

} // namespace zeb
