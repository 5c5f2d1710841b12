#include "runtime/engine/sleeping.hpp"

#include <cerrno>
#include <limits>

#include <time.h>

namespace zeb::engine
{

std::timespec duration_of(std::uint64_t seconds, std::uint64_t nanoseconds) noexcept
{
    constexpr std::uint64_t nanoseconds_per_second = 1'000'000'000;
    constexpr std::uint64_t longest = std::numeric_limits<std::time_t>::max();
    const std::uint64_t carried = nanoseconds / nanoseconds_per_second; // below 2^35
    if (seconds > longest - carried)
        return {std::numeric_limits<std::time_t>::max(), 0};
    return {static_cast<std::time_t>(seconds + carried),
            static_cast<long>(nanoseconds % nanoseconds_per_second)};
}

void sleep_through(std::timespec duration) noexcept
{
    while (::nanosleep(&duration, &duration) != 0 && errno == EINTR)
        ;
}

} // namespace zeb::engine
