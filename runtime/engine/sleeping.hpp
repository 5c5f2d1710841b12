/// Sleeping for a duration.
#pragma once

#include <cstdint>
#include <ctime>

namespace zeb::engine
{

/// Returns the duration with its nanoseconds below a second: further ones are carried into the seconds, which
/// end at the greatest that the platform has.
std::timespec duration_of(std::uint64_t seconds, std::uint64_t nanoseconds) noexcept;

/// Sleeps for the duration; a signal that is handled meanwhile does not shorten it.
void sleep_through(std::timespec duration) noexcept;

} // namespace zeb::engine
