/// Hashes that agree with the equality of dates and times, for hash tables in memory.
#pragma once

#include "core/engine/hash.hpp"
#include "calendar/engine/date_time.hpp"

namespace zeb
{

inline std::uint64_t hash_of(const ZEB_Time_Value &time) noexcept
{
    return stir(stir(0, time.second), time.nanosecond);
}

inline std::uint64_t hash_of(const Date_Time &value) noexcept
{
    return stir(hash_of(value.time), static_cast<std::uint32_t>(value.julian_day));
}

} // namespace zeb
