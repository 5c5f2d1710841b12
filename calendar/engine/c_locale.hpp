#pragma once

namespace zeb
{

/// Whether the decimal point of the locale in force is '.', so that the C library reads and writes numbers as
/// this engine does.
bool decimal_point_is_full_stop() noexcept;

} // namespace zeb
