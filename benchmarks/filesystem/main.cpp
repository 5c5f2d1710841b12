#include "benchmarks/filesystem/filesystem_rows.hpp"

#include <cstdlib>
#include <filesystem>

namespace zeb_bench
{
namespace
{

const std::string &folder()
{
    static const std::string made = [] {
        const bool has_memory = std::filesystem::is_directory("/dev/shm");
        std::string name = has_memory ? "/dev/shm/zeb-bench-XXXXXX" : "/tmp/zeb-bench-XXXXXX";
        return std::string(mkdtemp(name.data()));
    }();
    return made;
}

} // namespace

std::string bench_path(const std::string &name) { return folder() + "/" + name; }

void remove_bench_folder() { std::filesystem::remove_all(folder()); }

} // namespace zeb_bench

int main(int argc, char **argv)
{
    zeb_bench::add_contents_rows();
    zeb_bench::add_copying_rows();
    zeb_bench::add_removal_rows();
    const int status = zeb_bench::run_rows(argc, argv);
    zeb_bench::remove_bench_folder();
    return status;
}
