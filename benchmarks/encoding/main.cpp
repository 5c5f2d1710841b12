#include "benchmarks/encoding/encoding_rows.hpp"

int main(int argc, char **argv)
{
    zeb_bench::add_record_rows();
    zeb_bench::add_compression_rows();
    zeb_bench::add_stream_rows();
    return zeb_bench::run_rows(argc, argv);
}
