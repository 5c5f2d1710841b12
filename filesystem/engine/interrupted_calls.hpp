/// Calls to the platform that signals may interrupt.
#pragma once

#include <cerrno>

namespace zeb::engine
{

/// Repeats a call while a signal interrupts it. Returns its result; a negative one leaves the error in errno.
template <class Call>
auto uninterrupted(Call call) noexcept
{
    auto answer = call();
    while (answer < 0 && errno == EINTR)
        answer = call();
    return answer;
}

/// The same for calls that only succeed or fail: returns 0 or the platform's error.
template <class Call>
int error_of(Call call) noexcept
{
    return uninterrupted(call) < 0 ? errno : 0;
}

} // namespace zeb::engine
