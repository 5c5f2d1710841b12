/// Long series cut down to what the pixel columns of a chart show.
#pragma once

#include <Korvane_ZEB/ZEB_Types.h>

#include <span>

namespace zeb
{

/// The first, lowest, highest and last value of the points in a column, and their count. First and last may
/// be NaN; lowest and highest are so only where the column has no number. Without points all four are NaN.
using Chart_Column = ZEB_Chart_Column;

/// Sets the columns, which divide the positions from `start` to `end` among them, to what each shows of the
/// points: point i is at positions[i], which ascend, and has values[i]. A point's column is
/// floor((position - start) * (columns / (end - start))), each operation in double, and the last one for
/// `end`; points before `start` and after `end` are in none. Returns false, with nothing changed, without
/// columns, for counts that differ or exceed 4294967295, and for bounds that are not finite, not in order,
/// too far apart or too close together. The columns may not lie in the points. The time is that of reading
/// the values once; nothing is allocated.
bool decimate(std::span<const double> positions, std::span<const double> values, double start, double end,
              std::span<Chart_Column> columns) noexcept;

} // namespace zeb
