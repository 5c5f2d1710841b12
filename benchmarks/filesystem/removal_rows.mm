/// A tree of 20,000 files removed.
#include "benchmarks/filesystem/entries.hpp"
#include "benchmarks/filesystem/filesystem_rows.hpp"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace zeb_bench
{
namespace
{

constexpr int directory_count = 200, files_of_each = 100;

void make_tree(const std::string &path)
{
    for (int directory = 0; directory < directory_count; ++directory) {
        const std::string place = path + "/" + std::to_string(directory);
        std::filesystem::create_directories(place);
        for (int file = 0; file < files_of_each; ++file)
            std::ofstream(place + "/" + std::to_string(file));
    }
}

} // namespace

void add_removal_rows()
{
    const std::string path = bench_path("tree"), command = "rm -rf " + path;
    ZEB_Directory *const directory = [[ZEB_Directory alloc] init];
    [directory set_path:string_of(path)];
    Row("remove a tree", Measure::Items, directory_count * files_of_each, [=] { make_tree(path); })
        .goal(1)
        .framework([=] { return [directory remove]; })
        .peer("std::filesystem::remove_all", [=] { return std::filesystem::remove_all(path); })
        .peer("rm -rf", [=] { return std::system(command.c_str()); });
}

} // namespace zeb_bench
