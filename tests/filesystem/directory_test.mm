#include "tests/support/child.hpp"
#include "tests/support/files.hpp"

#include <algorithm>
#include <cstring>
#include <sys/resource.h>
#include <thread>

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

    /// Removes a directory, which answers 1 if there is no error.
    void expect_removal(ZEB_Directory *directory, int error, const std::vector<std::string> &lines)
    {
        EXPECT_EQ(lines_of([=] { EXPECT_EQ([directory remove], error == 0 ? 1u : 0u); }), lines);
        EXPECT_EQ([directory last_error], error);
        EXPECT_EQ(fs::exists(folder / "outside/kept"), [directory links_are_entries] == 1);
        EXPECT_TRUE(fs::exists(folder / "outside"));
    }

    const std::string tree = folder / "tree";
};

} // namespace

TEST_F(Directories, are_removed_with_all_that_is_in_them_and_nothing_else)
{
    fs::create_directory_symlink("outside", folder / "link");
    for (const std::string refused : {"/link", "/link/", "/tree/file"})
        expect_removal(directory_at(folder.path + refused), ENOTDIR,
                       {"Error removing directory: " + refused});
    ZEB_Directory *const directory = directory_at(tree);
    [directory set_log_actions:1];
    const std::string removed = "Removed file: /tree/";
    expect_removal(directory, 0,
                   {"Removed directory: /tree", "Removed directory: /tree/sub",
                    "Removed directory: /tree/sub/deep", removed + "dangling", removed + "file",
                    removed + "loop", removed + "sub/deep/file", removed + "sub/inside",
                    removed + "sub/to_directory", removed + "sub/to_file", removed + "to_itself"});
    EXPECT_FALSE(fs::exists(tree));
    expect_removal(directory, ENOENT, {"Error removing nonexistent directory: /tree"});
}

TEST_F(Directories, are_emptied_through_links_only_when_told)
{
    ZEB_Directory *const directory = directory_at(tree);
    [directory set_links_are_entries:0];
    const std::string error = "Error removing directory: /tree";
    expect_removal(directory, ENOTDIR,
                   {error, error + "/sub", error + "/sub/inside", error + "/sub/to_directory"});
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
    EXPECT_TRUE(fs::exists(folder / "outside/kept"));
}

TEST_F(Directories, are_accessible_if_all_in_them_is)
{
    ZEB_Directory *const directory = directory_at(tree);
    [directory set_log_actions:1];
    const auto test = [=](uint8_t execute, uint8_t write, uint8_t read) {
        return [directory has_access:execute write:write read:read];
    };
    const std::string tested = "Tested accessibility of directory: /tree";
    EXPECT_EQ(lines_of([&] { EXPECT_EQ(test(1, 1, 1), 1); }),
              (std::vector{tested, tested + "/sub", tested + "/sub/deep"}));
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
    expect_removal(directory, EACCES,
                   {"Error removing directory: /tree", "Error removing directory: /tree/sub"});
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
    EXPECT_EQ(end_of_child(start_child([=] {
                  [suite set_string_for_key:text("/else/where") key:key];
                  EXPECT_EQ(resources(), "/else/where");
              })),
              0);
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
