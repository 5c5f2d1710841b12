/// Formats of scanf that take a double.
#pragma once

#include <cstddef>

namespace zeb
{

/// Writes `format` into `widened` (of `size` bytes), putting an `l` before the letter of its first
/// floating-point conversion without a length modifier, so that it scans a double. Answers false when it
/// does not fit; `widened` is then not usable.
bool widen_double_format(const char *format, char *widened, std::size_t size) noexcept;

} // namespace zeb
