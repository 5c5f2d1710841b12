/// A file of 64 MiB copied over another.
#include "benchmarks/filesystem/entries.hpp"
#include "benchmarks/filesystem/filesystem_rows.hpp"

#include <filesystem>

namespace zeb_bench
{

void add_copying_rows()
{
    constexpr uint32_t size = 64 << 20;
    const std::string from = bench_path("source"), to = bench_path("copy");
    const std::string bytes(size, 'x');
    [entry_at(from) write_contents:bytes.data() length:size];
    ZEB_File *const file = entry_at(from);
    ZEB_String *const destination = string_of(to);
    Row("copy 64 MiB", Measure::Bytes, size)
        .goal_over("std::filesystem::copy_file", 1 / 1.05)
        .framework([=] { return [file copy_to:destination]; })
        .peer("std::filesystem::copy_file", [=] {
            return std::filesystem::copy_file(from, to, std::filesystem::copy_options::overwrite_existing);
        });
}

} // namespace zeb_bench
