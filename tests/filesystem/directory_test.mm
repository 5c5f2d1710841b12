#include "tests/support/captured.hpp"
#include "tests/support/files.hpp"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <sys/resource.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

using namespace support;
namespace fs = std::filesystem;

namespace
{

ZEB_Directory *directory_at(const std::string &path)
{
    ZEB_Directory *const directory = [[[ZEB_Directory alloc] init] autorelease];
    [directory set_path:text(path)];
    [directory refresh_status];
    return directory;
}

/// A tree in `folder / "tree"`, and beside it what links in the tree lead to.
class Directories : public File_Test
{
protected:
    Directories()
    {
        fs::create_directories(folder / "tree/sub/deep");
        fs::create_directories(folder / "outside/more");
        put_file(folder / "outside/kept", "kept");
        put_file(folder / "tree/file", "");
        put_file(folder / "tree/sub/deep/file", "");
        for (const auto &[name, target] :
             {std::pair("sub/to_file", "../../outside/kept"), std::pair("sub/to_directory", "../../outside"),
              std::pair("sub/inside", "deep"), std::pair("to_itself", "."), std::pair("loop", "loop"),
              std::pair("dangling", "nowhere")})
            fs::create_symlink(target, tree + "/" + name);
    }

    bool outside_is_whole() const
    {
        return file_text(folder / "outside/kept") == "kept" && fs::exists(folder / "outside/more");
    }

    /// The lines that a work writes onto both standard streams, without the folder, in order.
    template <class Work>
    std::vector<std::string> lines_of(Work work)
    {
        std::string errors, output = standard_output_of([&] { errors = standard_error_of(work); });
        std::vector<std::string> lines;
        std::istringstream all(output + errors);
        for (std::string line; std::getline(all, line);) {
            const size_t at = line.find(folder.path);
            lines.push_back(at == std::string::npos ? line : line.erase(at, folder.path.size()));
        }
        std::sort(lines.begin(), lines.end());
        return lines;
    }

    const std::string tree = folder / "tree";
};

using Lines = std::vector<std::string>;

} // namespace

TEST_F(Directories, are_removed_with_all_that_is_in_them_and_nothing_else)
{
    for (const std::string &refused : {folder / "link", folder / "link/", tree + "/file"}) {
        fs::create_directory_symlink("outside", folder / "link");
        ZEB_Directory *const directory = directory_at(refused);
        EXPECT_EQ(lines_of([=] { EXPECT_EQ([directory remove], 0u); }),
                  Lines({"Error removing directory: " + refused.substr(folder.path.size())}));
        EXPECT_EQ([directory last_error], ENOTDIR);
        EXPECT_TRUE(outside_is_whole());
        fs::remove(folder / "link");
    }
    ZEB_Directory *const directory = directory_at(tree);
    [directory set_log_actions:1];
    EXPECT_EQ(
        lines_of([=] { EXPECT_EQ([directory remove], 1u); }),
        Lines({"Removed directory: /tree", "Removed directory: /tree/sub",
               "Removed directory: /tree/sub/deep", "Removed file: /tree/dangling",
               "Removed file: /tree/file", "Removed file: /tree/loop", "Removed file: /tree/sub/deep/file",
               "Removed file: /tree/sub/inside", "Removed file: /tree/sub/to_directory",
               "Removed file: /tree/sub/to_file", "Removed file: /tree/to_itself"}));
    EXPECT_EQ([directory last_error], 0);
    EXPECT_FALSE(fs::exists(tree));
    EXPECT_TRUE(outside_is_whole());
    EXPECT_EQ(lines_of([=] { EXPECT_EQ([directory remove], 0u); }),
              Lines({"Error removing nonexistent directory: /tree"}));
    EXPECT_EQ([directory last_error], ENOENT);
}

TEST_F(Directories, are_emptied_through_links_only_when_told)
{
    ZEB_Directory *const directory = directory_at(tree);
    [directory set_links_are_entries:0];
    EXPECT_EQ(lines_of([=] { EXPECT_EQ([directory remove], 0u); }),
              Lines({"Error removing directory: /tree", "Error removing directory: /tree/sub",
                     "Error removing directory: /tree/sub/inside",
                     "Error removing directory: /tree/sub/to_directory"}));
    EXPECT_EQ([directory last_error], ENOTDIR);
    EXPECT_TRUE(fs::is_empty(folder / "outside"));
    EXPECT_FALSE(fs::exists(fs::symlink_status(tree + "/to_itself")));
}

TEST_F(Directories, may_be_deep_or_full_or_have_any_names)
{
    std::string names;
    for (int c = 1; c < 256; ++c)
        if (c != '/')
            names.push_back(static_cast<char>(c));
    for (const std::string &name : {names, std::string(255, '\n'), std::string(" "), std::string("...")})
        put_file(tree + "/" + name, "");
    for (int i = 0; i < 20000; ++i)
        put_file(tree + "/sub/" + std::to_string(i), "");
    std::string deep = tree;
    for (int level = 0; level < 500; ++level)
        mkdir((deep += "/d").c_str(), 0700);
    put_file(deep + "/file", "");
    rlimit before, few;
    getrlimit(RLIMIT_NOFILE, &before);
    few = before;
    few.rlim_cur = 64;
    setrlimit(RLIMIT_NOFILE, &few);
    ZEB_Directory *const directory = directory_at(tree);
    EXPECT_EQ([directory has_access:0 write:1 read:1], 1);
    EXPECT_EQ([directory remove], 1u);
    setrlimit(RLIMIT_NOFILE, &before);
    EXPECT_FALSE(fs::exists(tree));
    EXPECT_TRUE(outside_is_whole());
}

TEST_F(Directories, exchanged_for_links_do_not_lead_out_of_the_tree)
{
    const std::string name = tree + "/sub", aside = folder / "aside";
    std::atomic_bool is_over = false;
    std::thread remover([&] {
        NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
        ZEB_Directory *const directory = directory_at(tree);
        [directory set_report_errors:0];
        while (!is_over) {
            mkdir(tree.c_str(), 0700);
            [directory remove];
        }
        [pool drain];
    });
    for (int i = 0; i < 100000; ++i) {
        mkdir(name.c_str(), 0700);
        rename(name.c_str(), aside.c_str());
        symlink("../outside", name.c_str());
        unlink(name.c_str());
        rename(aside.c_str(), name.c_str());
    }
    is_over = true;
    remover.join();
    EXPECT_TRUE(outside_is_whole());
}

TEST_F(Directories, are_accessible_if_all_in_them_is)
{
    ZEB_Directory *const directory = directory_at(tree);
    [directory set_log_actions:1];
    const auto test = [=](uint8_t execute, uint8_t write, uint8_t read) {
        return [directory has_access:execute write:write read:read];
    };
    EXPECT_EQ(
        lines_of([&] { EXPECT_EQ(test(1, 1, 1), 1); }),
        Lines({"Tested accessibility of directory: /tree", "Tested accessibility of directory: /tree/sub",
               "Tested accessibility of directory: /tree/sub/deep"}));
    [directory set_log_actions:0];
    const std::string below = tree + "/sub/deep/file";
    fs::permissions(below, fs::perms(0400));
    EXPECT_EQ(test(1, 0, 1), 1);
    EXPECT_EQ(test(1, 1, 1), 0);
    ZEB_Directory *const deep = [[directory sub_directory] sub_directory];
    EXPECT_EQ(text_of([[deep child] path]), below);
    EXPECT_EQ([deep parent_directory], [directory sub_directory]);
    [directory set_recursive:0];
    EXPECT_EQ(test(1, 1, 1), 1);
    [directory set_recursive:1];
    fs::permissions(below, fs::perms(0600));
    fs::permissions(tree + "/sub", fs::perms(0600));
    EXPECT_EQ(test(1, 0, 0), 0);
    fs::permissions(tree + "/sub", fs::perms(0700));
    EXPECT_EQ(test(1, 1, 1), 1);
    // Through links: the loop has no status, and no rights.
    [directory set_links_are_entries:0];
    EXPECT_EQ(test(1, 1, 1), 0);
    fs::permissions(tree, fs::perms(0500));
    [directory refresh_status];
    EXPECT_EQ(test(0, 1, 0), 0);
    fs::permissions(tree, fs::perms(0700));
    ZEB_Directory *const copied = [[directory copy] autorelease];
    EXPECT_EQ([copied links_are_entries], 0);
    EXPECT_NE([copied child], [directory child]);
}

TEST_F(Directories, that_may_not_be_read_are_told)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "root may read them";
    fs::permissions(tree + "/sub", fs::perms(0));
    ZEB_Directory *const directory = directory_at(tree);
    EXPECT_EQ(lines_of([=] { EXPECT_EQ([directory remove], 0u); }),
              Lines({"Error removing directory: /tree", "Error removing directory: /tree/sub"}));
    EXPECT_FALSE(fs::exists(tree + "/file"));
    fs::permissions(tree + "/sub", fs::perms(0700));
    EXPECT_TRUE(fs::exists(tree + "/sub/deep/file"));
}

TEST(Standard_Paths, are_made_once)
{
    const auto resources = [] { return text_of([ZEB_Directory ZEB_path_for_resources]); };
    ZEB_Defaults *const suite = [ZEB_Defaults shared_suite];
    ZEB_String *const key = text("ZEB_path_for_resources");
    [suite remove_object_for_key:key];
    const pid_t child = fork();
    if (child == 0) {
        [suite set_string_for_key:text("/else/where") key:key];
        _exit(resources() == "/else/where" ? 0 : 1);
    }
    int status = -1;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(resources(), "/Library/Korvane");
    [suite set_string_for_key:text("/later") key:key];
    EXPECT_EQ(resources(), "/Library/Korvane");
    [suite remove_object_for_key:key];
    for (ZEB_String *const path : {[ZEB_Directory temporary_directory_path],
                                   [ZEB_Directory home_directory_path],
                                   [ZEB_Directory library_directory_path],
                                   [ZEB_Directory documents_directory_path]})
        EXPECT_EQ(std::strlen([path char_data]), [path count]);
    EXPECT_EQ([entry(text_of([ZEB_Directory temporary_directory_path])) kind],
              ZEB_File_Kind { ZEB_FILE_KIND_DIRECTORY });
    EXPECT_EQ([ZEB_Directory home_directory_path], [ZEB_Directory home_directory_path]);
}
