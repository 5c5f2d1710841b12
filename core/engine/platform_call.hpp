/// Calls into the platform that may throw.
#pragma once

namespace zeb::engine
{

/// Returns the result of `make`, or null if it throws. Implemented in plain C++, because Objective-C++ cannot
/// catch exceptions on every runtime.
void *result_or_null(void *(*make)()) noexcept;

} // namespace zeb::engine
