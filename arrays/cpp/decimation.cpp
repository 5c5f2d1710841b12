#include <Korvane_ZEB_engine/decimation.hpp>

#include "arrays/engine/algorithms/decimation.hpp"

namespace zeb
{

bool decimate(std::span<const double> positions, std::span<const double> values, double start, double end,
              std::span<Chart_Column> columns) noexcept
{
    return positions.size() == values.size() && positions.size() <= UINT32_MAX &&
           columns.size() <= UINT32_MAX && engine::decimate(positions, values, start, end, columns);
}

} // namespace zeb
