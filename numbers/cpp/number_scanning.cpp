#include <Korvane_ZEB_engine/number_scanning.hpp>

#include "numbers/engine/number_scanning.hpp"

#include <algorithm>

namespace zeb
{
namespace
{

/// The scanners read 31 characters at most.
std::uint32_t length_of(std::string_view text) noexcept
{
    return static_cast<std::uint32_t>(std::min<std::size_t>(text.size(), UINT32_MAX));
}

} // namespace

std::size_t scan_number(std::string_view text, double &result) noexcept
{
    return engine::scan_double(text.data(), length_of(text), result);
}

std::size_t scan_number(std::string_view text, float &result) noexcept
{
    return engine::scan_float(text.data(), length_of(text), result);
}

std::size_t scan_number(std::string_view text, std::int32_t &result, int base) noexcept
{
    return engine::scan_int(text.data(), length_of(text), base, result);
}

std::size_t scan_number(std::string_view text, std::uint32_t &result, int base) noexcept
{
    return engine::scan_unsigned(text.data(), length_of(text), base, result);
}

std::size_t scan_number(std::string_view text, std::int64_t &result, int base) noexcept
{
    return engine::scan_int_64(text.data(), length_of(text), base, result);
}

std::size_t scan_number(std::string_view text, std::uint64_t &result, int base) noexcept
{
    return engine::scan_unsigned_64(text.data(), length_of(text), base, result);
}

} // namespace zeb
