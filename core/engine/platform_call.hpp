/// Calls into the platform, which may throw where the framework never does.
#pragma once

namespace zeb::engine
{

/// The result of `make`, or null where it throws. In a source of plain C++, since Objective-C++ cannot catch
/// on every runtime.
void *result_or_null(void *(*make)()) noexcept;

} // namespace zeb::engine
