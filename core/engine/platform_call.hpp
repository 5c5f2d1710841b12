/// Calls into the platform that may throw.
#pragma once

namespace zeb::engine
{

/// Returns the result of `make`, or null if it throws. Implemented in plain C++, because Objective-C++ cannot
/// catch exceptions on every runtime.
void *result_or_null(void *(*make)()) noexcept;

/// Runs `work` with `context`. Returns whether it returned; false if it threw.
bool runs_through(void (*work)(void *), void *context) noexcept;

/// The same for a callable, whose frame must hold nothing with a destructor.
template <class Work>
bool runs_through(Work work) noexcept
{
    return runs_through([](void *context) { (*static_cast<Work *>(context))(); }, &work);
}

} // namespace zeb::engine
