#include "calendar/engine/c_locale.hpp"

#include <langinfo.h>

namespace zeb
{

bool decimal_point_is_full_stop() noexcept
{
    const char *point = nl_langinfo(RADIXCHAR);
    return point[0] == '.' && point[1] == '\0';
}

} // namespace zeb
