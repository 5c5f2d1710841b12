/// The rows of files, a function for each file.
#pragma once

#include "benchmarks/common/rows.hpp"

#include <string>

namespace zeb_bench
{

/// Returns the path of a name in a folder of this run's own, in memory where the system has such a file
/// system.
std::string bench_path(const std::string &name);

/// Removes that folder.
void remove_bench_folder();

void add_contents_rows();
void add_copying_rows();
void add_removal_rows();

} // namespace zeb_bench
