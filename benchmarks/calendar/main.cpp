#include "benchmarks/calendar/calendar_rows.hpp"
#include "benchmarks/common/rows.hpp"

int main(int argc, char **argv)
{
    zeb_bench::add_number_text_rows();
    zeb_bench::add_number_scanning_rows();
    zeb_bench::add_date_rows();
    zeb_bench::add_message_rows();
    return zeb_bench::run_rows(argc, argv);
}
