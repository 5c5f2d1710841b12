#include "core/engine/c_locale.hpp"

namespace zeb::engine
{

locale_t c_locale() noexcept
{
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

} // namespace zeb::engine
