/// The rows of the typed arrays.
#pragma once

namespace zeb_bench
{

void add_append_rows();
void add_scan_rows();
void add_decimation_rows();
void add_change_rows();
void add_sort_rows();
void add_statistics_rows();
void add_ordered_find_rows();
void add_subsequence_rows();

} // namespace zeb_bench
