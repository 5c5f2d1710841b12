/// The rows of charts.
#pragma once

namespace zeb_bench
{

void add_chart_rows();

/// Removes the file that they wrote.
void remove_chart();

} // namespace zeb_bench
