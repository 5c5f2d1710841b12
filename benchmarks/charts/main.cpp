#include "benchmarks/charts/chart_rows.hpp"
#include "benchmarks/common/rows.hpp"

int main(int argc, char **argv)
{
    zeb_bench::add_chart_rows();
    const int status = zeb_bench::run_rows(argc, argv);
    zeb_bench::remove_chart();
    return status;
}
