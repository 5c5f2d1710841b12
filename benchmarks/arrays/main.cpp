#include "benchmarks/arrays/array_rows.hpp"
#include "benchmarks/common/rows.hpp"

int main(int argc, char **argv)
{
    zeb_bench::add_append_rows();
    zeb_bench::add_scan_rows();
    zeb_bench::add_decimation_rows();
    zeb_bench::add_change_rows();
    zeb_bench::add_sort_rows();
    zeb_bench::add_statistics_rows();
    zeb_bench::add_ordered_find_rows();
    zeb_bench::add_subsequence_rows();
    return zeb_bench::run_rows(argc, argv);
}
