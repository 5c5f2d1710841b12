/// The rows of encoding, a function for each file.
#pragma once

#include "benchmarks/common/rows.hpp"

namespace zeb_bench
{

void add_record_rows();
void add_compression_rows();
void add_stream_rows();

} // namespace zeb_bench
