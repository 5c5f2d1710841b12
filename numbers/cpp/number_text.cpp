#include <Korvane_ZEB_engine/number_text.hpp>

#include "numbers/engine/fixed_text.hpp"
#include "numbers/engine/pretty_number.hpp"
#include "numbers/engine/shortest_text.hpp"
#include "numbers/engine/unsigned_text.hpp"

namespace zeb
{

Number_Text shortest_text(double number) noexcept
{
    return Number_Text::made_by([=](char *out) { return engine::put_shortest(out, number); });
}

Number_Text shortest_text(float number) noexcept
{
    return Number_Text::made_by([=](char *out) { return engine::put_shortest(out, number); });
}

Number_Text pretty_text(double number) noexcept
{
    return Number_Text::made_by([=](char *out) { return engine::write_pretty_double(out, number); });
}

Number_Text pretty_text(float number) noexcept
{
    return Number_Text::made_by([=](char *out) { return engine::write_pretty_float(out, number); });
}

Number_Text fixed_text(double number, std::uint32_t decimals) noexcept
{
    return Number_Text::made_by([=](char *out) { return engine::write_fixed(out, decimals, number); });
}

Number_Text decimal_text(std::int64_t number) noexcept
{
    return Number_Text::made_by([=](char *out) { return engine::put_signed_64(out, number); });
}

Number_Text decimal_text(std::uint64_t number) noexcept
{
    return Number_Text::made_by([=](char *out) { return engine::put_unsigned_64(out, number); });
}

} // namespace zeb
