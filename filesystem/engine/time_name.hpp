/// Names made from the current time.
#pragma once

#include "core/engine/char_span.hpp"

#include <cstdint>
#include <cstdio>
#include <sys/time.h>

namespace zeb::engine
{

/// "_", the seconds since 1970-01-01 00:00, "_", the microseconds, and "." of the moment it was made.
class Time_Name
{
public:
    static constexpr std::uint32_t max_length = 48;

    Time_Name() noexcept
    {
        struct timeval now;
        gettimeofday(&now, nullptr);
        length = std::snprintf(characters, sizeof characters, "_%lld_%lld.",
                               static_cast<long long>(now.tv_sec), static_cast<long long>(now.tv_usec));
    }

    Char_Span text() const noexcept { return {characters, static_cast<std::uint32_t>(length)}; }

private:
    char characters[max_length + 1];
    int length;
};

} // namespace zeb::engine
