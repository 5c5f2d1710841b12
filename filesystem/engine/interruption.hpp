/// Calls that a signal may interrupt.
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

} // namespace zeb::engine
