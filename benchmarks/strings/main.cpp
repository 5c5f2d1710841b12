#include "benchmarks/strings/string_rows.hpp"

int main(int argc, char **argv)
{
    zeb_bench::add_comparison_rows();
    zeb_bench::add_replacement_rows();
    zeb_bench::add_conversion_rows();
    zeb_bench::add_text_rows();
    return zeb_bench::run_rows(argc, argv);
}
