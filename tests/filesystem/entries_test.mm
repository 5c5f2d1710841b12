#include "tests/support/files.hpp"

#include <algorithm>
#include <unistd.h>

namespace fs = std::filesystem;
using namespace std::string_literals;

namespace
{

using Work = uint32_t (*)(ZEB_File *, ZEB_String *other);

/// An operation, on an entry at `path`, and what is to come of it. "@" stands for the folder of the test, "#"
/// for the path, "%" for the other one. In the folder are the file "file" with another name "hard", the empty
/// directory "empty", the full one "full" with "full/inside", the "fifo", and the links "link" to the file,
/// "broken" and "loop".
struct Row {
    std::string path;
    Work work;
    uint32_t answer;
    int last_error;
    std::string errors = {}, output = {}; /* a line break follows what is not empty */
    std::string change = {};              /* what is there afterwards, or, after "-", no more */
    std::string other = {};               /* for what has two paths */
};

#define WORK(call) [](ZEB_File *file, [[maybe_unused]] ZEB_String *other) { return call; }

const Work create_file = WORK([file create_file]), create_directory = WORK([file create_directory]),
           create_parents = WORK([file create_parent_directories]), remove_entry = WORK([file remove]),
           write_x = WORK([file write_contents:"x" length:1]),
           write_nothing = WORK([file write_contents:nullptr length:9]),
           replace = WORK([file replace_contents:"x" length:1]), copy = WORK([file copy_to:other]),
           move = WORK([file move_to:other]), backstore = WORK([file backstore]),
           restore = WORK([file restore]),
           link_to = WORK([file make_symbolic_link:[file path] target_path:other]);

class Entries : public File_Test
{
protected:
    void SetUp() override
    {
        put_file(path, "contents");
        fs::create_hard_link(path, folder / "hard");
        fs::create_directory(folder / "empty");
        fs::create_directory(folder / "full");
        put_file(folder / "full/inside", "");
        mkfifo((folder / "fifo").c_str(), 0600);
        for (const auto &[name, target] :
             {std::pair("link", "file"), {"broken", "nowhere"}, {"loop", "loop"}})
            fs::create_symlink(target, folder / name);
    }

    void TearDown() override
    {
        for (const auto &found : fs::directory_iterator(folder.path))
            fs::remove_all(found);
    }

    /// The names in the tree below the folder.
    std::vector<std::string> names() const
    {
        std::vector<std::string> all;
        for (const auto &found : fs::recursive_directory_iterator(folder.path))
            all.push_back("@" + found.path().string().substr(folder.path.size()));
        std::sort(all.begin(), all.end());
        return all;
    }

    void expect(const Row &row, bool is_telling)
    {
        SCOPED_TRACE(row.path + ": " + row.output + row.errors);
        ZEB_File *const file = entry(placed(row.path));
        [file set_log_actions:is_telling];
        [file set_report_errors:is_telling];
        std::vector<std::string> expected = names();
        if (row.change[0] == '-')
            expected.erase(std::find(expected.begin(), expected.end(), row.change.substr(1)));
        else if (!row.change.empty())
            expected.insert(std::upper_bound(expected.begin(), expected.end(), row.change), row.change);
        uint32_t answer = 99;
        std::string errors;
        const std::string output = standard_output_of(
            [&] { errors = standard_error_of([&] { answer = row.work(file, text(placed(row.other))); }); });
        const auto line = [&](const std::string &text) {
            return text.empty() || !is_telling ? std::string() : placed(text, row.path, row.other) + "\n";
        };
        EXPECT_EQ(answer, row.answer);
        EXPECT_EQ([file last_error], row.last_error);
        EXPECT_EQ(output, line(row.output));
        EXPECT_EQ(errors, line(row.errors));
        EXPECT_EQ(names(), expected);
        EXPECT_EQ(file_text(path), row.change == "-@/file" ? "" : "contents");
    }
};

const std::string over_file = "Cannot create a symbolic link entry over the regular file: #";
const std::string because = "Error creating directory with name: #; because: ";
const std::string opening = "Error opening file: #", level_1 = "Error creating level 1 partial path: ";
const std::string long_name = "@/" + std::string(256, 'n');

const Row rows[] = {
    {"@/new", create_file, 1, 0, "", "Created file with name: #", "@/new"},
    {"@/file", create_file, 2, 0},
    {"@/empty", create_file, 2, 0},
    {"@/broken", create_file, 1, 0, "", "Created file with name: #", "@/nowhere"},
    {"new", create_file, 0, EINVAL, "Cannot make relative file: #"},
    {"", create_file, 0, EINVAL, "Cannot make relative file: #"},
    {"@/none/new", create_file, 0, ENOENT, "Error creating file with name: #"},
    {"@/a\0b"s, create_file, 0, EINVAL, "Error creating file with name: #"},

    {"@/new", create_directory, 1, 0, "", "Created directory with name: #", "@/new"},
    {"@/file", create_directory, 2, 0},
    {"@/link", create_directory, 2, 0},
    {"new", create_directory, 0, EINVAL, "Cannot make relative directory: #"},
    {"@/none/x", create_directory, 0, ENOENT, because + "A component of the path prefix does not exist."},
    {"@/file/x", create_directory, 0, ENOTDIR,
     because + "A component of the path prefix is not a directory."},
    {"@/broken", create_directory, 0, EEXIST, because + "The named file exists."},
    {long_name, create_directory, 0, ENAMETOOLONG, because + "File name too long."},

    {"@/x/new", create_parents, 1, 0, "", "Created level 1 partial path: @/x", "@/x"},
    {"@/empty/new", create_parents, 2, 0},
    {"@/file/new", create_parents, 2, 0},
    {"/name", create_parents, 2, 0},
    {"@//x//new", create_parents, 1, 0, "", "Created level 1 partial path: @//x", "@/x"},
    {"name", create_parents, 0, EINVAL, "Cannot make relative directory: name"},
    {"none/below/name", create_parents, 0, EINVAL, "Cannot make relative directory: none/below"},
    {"@/file/x/y/new", create_parents, 0, ENOTDIR, level_1 + "@/file/x"},
    {"@/broken/x/new", create_parents, 0, EEXIST, level_1 + "@/broken"},
    {"@/a\0/b"s, create_parents, 0, EINVAL, level_1 + "@/a\0"s},

    {"@/new", link_to, 1, 0, "", "Made symbolic link: # -> any where", "@/new", "any where"},
    {"@/link", link_to, 1, 0, "", "Removed symbolic link entry: #\nMade symbolic link: # -> new", "", "new"},
    {"@/file", link_to, 0, EEXIST, "", over_file, "", "new"},
    {"@/empty", link_to, 0, EEXIST, "", over_file, "", "new"},
    {"@/none/new", link_to, 1, ENOENT, "Error making symbolic link: # -> new", "", "", "new"},
    {"@/new", link_to, 1, ENOENT, "Error making symbolic link: # -> "},
    {"@/new", link_to, 1, EINVAL, "Error making symbolic link: # -> %", "", "", "a\0b"s},

    {"@/file", remove_entry, 1, 0, "", "Removed file: #", "-@/file"},
    {"@/link", remove_entry, 1, 0, "", "Removed file: #", "-@/link"},
    {"@/empty", remove_entry, 1, 0, "", "Removed file: #", "-@/empty"},
    {"@/full", remove_entry, 0, ENOTEMPTY, "Error removing file: #"},
    {"@/none", remove_entry, 0, ENOENT, "Error removing file: #"},
    {"@/file\0"s, remove_entry, 1, 0, "", "Removed file: @/file", "-@/file"},
    {"@/file\0x"s, remove_entry, 0, EINVAL, "Error removing file: #"},

    {"@/new", write_x, 1, 0, "", "", "@/new"},
    {"@/none/new", write_x, 0, ENOENT, opening},
    {"@/empty", write_x, 0, EISDIR, opening},
    {"@/fifo", write_x, 0, ENXIO, opening},
    {"/dev/null", write_x, 1, 0},
    {"@/file\0x"s, write_x, 0, EINVAL, opening},
    {"@/file", write_nothing, 0, EFAULT, "Error writing contents to file: #"},

    {"@/new", replace, 1, 0, "", "", "@/new"},
    {"", replace, 0, ENOENT, opening},
    {"@/new/", replace, 0, EISDIR, opening},
    {"@/none/new", replace, 0, ENOENT, opening},
    {"@/empty", replace, 0, EISDIR, opening},
    {"@/fifo", replace, 0, EINVAL, opening},
    {"/dev/null", replace, 0, EINVAL, opening},
    {"@/broken", replace, 0, ENOENT, opening},
    {"@/loop", replace, 0, ELOOP, opening},
    {long_name, replace, 0, ENAMETOOLONG, opening},
    {"@/file\0x"s, replace, 0, EINVAL, opening},

    {"@/file", copy, 1, 0, "", "Copied file: # to %", "@/new", "@/new"},
    {"@/fifo", copy, 1, 0, "", "Copied file: # to %", "@/new", "@/new"}, // of no size
    {"@/none", copy, 0, ENOENT, "Error opening source file for copying: # -> %", "", "", "@/new"},
    {"@/empty", copy, 0, EISDIR, "Error copying contents from file: #", "", "@/new", "@/new"},
    {"@/file", copy, 0, EISDIR, "Error copying to file: %", "", "", "@/empty"},
    {"@/file", copy, 0, ENXIO, "Error copying to file: %", "", "", "@/fifo"},
    {"@/file", copy, 0, ENOENT, "Error copying to file: "},
    {"@/file", copy, 0, EINVAL, "Error copying to file: %", "", "", "@/file"},
    {"@/file", copy, 0, EINVAL, "Error copying to file: %", "", "", "@/link"},
    {"@/file", copy, 0, EINVAL, "Error copying to file: %", "", "", "@/hard"},
    {"@/file", copy, 0, EINVAL, "Error copying to file: %", "", "", "@/full/../file"},

    {"@/file", move, 1, 0, "", "Moved file: # to %", "-@/file", "@/full/inside"},
    {"@/file", move, 0, ENOENT, "Error moving file: # to %", "", "", "@/none/new"},
    {"@/file", move, 0, ENOENT, "Error moving file: # to "},
    {"@/none", backstore, 0, ENOENT, "Error backstoring file: #"},
    {"@/file", restore, 0, ENOENT, "Error restoring file: #"},
};

/// What only root may do.
const Row denied_rows[] = {
    {"@/full/new", create_file, 0, EACCES, "Error creating file with name: #"},
    {"@/full/new", create_directory, 0, EACCES, because + "Permission denied."},
    {"@/full/x/y/new", create_parents, 0, EACCES, level_1 + "@/full/x"},
    {"@/full/new", link_to, 1, EACCES, "Error making symbolic link: # -> new", "", "", "new"},
    {"@/full/link", link_to, 0, EACCES, "Error removing symbolic link entry: #", "", "", "new"},
    {"@/full/inside", remove_entry, 0, EACCES, "Error removing file: #"},
};

} // namespace

TEST_F(Entries, change_what_they_tell_and_no_more)
{
    alarm(120); // opening the fifo waits for nobody
    for (const bool is_telling : {true, false})
        for (const Row &row : rows) {
            expect(row, is_telling);
            TearDown();
            SetUp();
        }
    alarm(0);
    if (geteuid() == 0)
        return;
    symlink("inside", (folder / "full/link").c_str());
    fs::permissions(folder / "full", fs::perms(0500));
    for (const Row &row : denied_rows)
        expect(row, true);
    fs::permissions(folder / "full", fs::perms(0700));
}

TEST_F(Entries, levels_are_numbered_and_receive_the_entry_s_rights)
{
    ZEB_File *const file = entry(folder / "a/b/c/file");
    [file set_log_actions:1];
    [file set_group_read:1];
    [file set_other_execute:1];
    [file set_owner_execute:0];
    const mode_t mask = umask(0);
    EXPECT_EQ(standard_output_of([&] { EXPECT_EQ([file create_parent_directories], 1u); }),
              placed("Created level 1 partial path: @/a\nCreated level 2 partial path: @/a/b\n"
                     "Created level 3 partial path: @/a/b/c\n"));
    EXPECT_EQ([file create_file], 1u);
    umask(mask);
    EXPECT_EQ(fs::status(folder / "a/b/c").permissions(), fs::perms(0741));
    EXPECT_EQ(fs::status(folder / "a/b/c/file").permissions(), fs::perms(0641));
}

TEST_F(Entries, a_unique_path_names_nothing_yet)
{
    for (int i = 0; i < 20; ++i) {
        ZEB_File *const file = entry(folder.path);
        EXPECT_EQ([file make_unique_path:text("pre") extension:text("ext")], 1u);
        const std::string name = text_of([file path]).substr(folder.path.size());
        uint64_t second = 0;
        unsigned microsecond = 0;
        int length = 0;
        std::sscanf(name.c_str(), "/pre_%lu_%u.ext%n", &second, &microsecond, &length);
        EXPECT_EQ(static_cast<size_t>(length), name.size()) << name;
        EXPECT_NEAR(static_cast<double>(second), static_cast<double>(time(nullptr)), 5);
        EXPECT_EQ([file create_file], 1u); // it was new
    }
    ZEB_File *const file = entry(folder / std::string("a\0b", 3));
    [file set_report_errors:0];
    const std::string line =
        placed("Maximum tries exceeded, the file name is not be unique. The last path name tried is:@/a");
    EXPECT_EQ(standard_error_of([&] {
                  EXPECT_EQ([file make_unique_path:text("p") extension:text("e")], 0u);
              }).rfind(line, 0),
              0u);
    EXPECT_EQ(text_of([file path]), "");
}

TEST_F(Entries, paths_are_taken_apart_and_put_together)
{
    const struct {
        std::string path, parent, last;
    } parts[] = {
        {"/a/b", "/a", "b"}, {"/a", "", "a"}, {"name", "/", "name"}, {"/a/b/", "/a/b", ""},
        {"", "/", ""},       {"/", "", ""},   {"a//b", "a/", "b"},   {std::string("/a/b\0", 5), "/a", "b"}};
    ZEB_File *const file = [[[ZEB_File alloc] init] autorelease];
    ZEB_String *const found = text("before");
    for (const auto &part : parts) {
        [file set_path:text(part.path)];
        [file parent_path_into:found];
        EXPECT_EQ(text_of(found), part.parent) << part.path;
        [file last_path_component_into:found];
        EXPECT_EQ(text_of(found), part.last) << part.path;
        [file remove_last_path_component];
        EXPECT_STREQ([[file path] char_data], part.parent.c_str());
        EXPECT_EQ(text_of([file path]), part.parent);
    }
    [file set_path:text(std::string("/a\0", 3))];
    [file append_path_component:[file path]];
    [file append_path_extension:[ZEB_String link_to_chars:[[file path] char_data] + 1 count:1]];
    [file append_tilde];
    EXPECT_STREQ([[file path] char_data], "/a//a.a~");
    [file set_path_in_directory:[file path] name:nil];
    EXPECT_EQ(text_of([file path]), "/a//a.a~/");
    ZEB_String *const copied = [file copy_path];
    EXPECT_EQ(text_of(copied), "/a//a.a~/");
    EXPECT_EQ([copied capacity], [copied count] + 1);
    [copied release];
    EXPECT_EQ([file is_same_path_as:entry("/a/a.a~")], 1);
    EXPECT_EQ([file is_same_path_as:entry("/a/a.a")], 0);
    EXPECT_EQ([file is_same_path_as:nil], 0);
    EXPECT_EQ([entry("/\xE9") is_same_path_as:entry("/\xE9")], 1);
    EXPECT_EQ([entry("/\xE9") is_same_path_as:entry("/\xE8")], 0);
}

TEST_F(Entries, a_link_is_resolved_by_one_step)
{
    ZEB_File *const file = entry(folder / "link");
    [file resolve_symbolic_link];
    EXPECT_EQ(text_of([file path]), folder / "link"); // its status was that of the file
    EXPECT_EQ([file refresh_link_status], 1u);
    EXPECT_EQ([file kind], ZEB_File_Kind { ZEB_FILE_KIND_LINK });
    [file resolve_symbolic_link];
    EXPECT_EQ(text_of([file path]), "file");
    for (const size_t length : {1024u, 1025u}) {
        const std::string far = folder / "far" + std::to_string(length), target(length, 't');
        ASSERT_EQ(symlink(target.c_str(), far.c_str()), 0);
        [file set_path:text(far)];
        [file refresh_link_status];
        [file resolve_symbolic_link];
        EXPECT_EQ(text_of([file path]), length == 1024 ? target : far);
        EXPECT_EQ([file last_error], length == 1024 ? 0 : ENAMETOOLONG);
    }
    EXPECT_EQ([entry(folder / "broken") exists_now], 0);
    EXPECT_EQ([entry(path) exists_now], 1);
}

TEST_F(Entries, rights_are_asked_for_in_the_order_execute_write_read)
{
    fs::permissions(path, fs::perms(0500));
    ZEB_File *const file = entry(path);
    for (int wanted = 0; wanted < 8; ++wanted) {
        const uint8_t execute = wanted >> 2 & 1, write = wanted >> 1 & 1, read = wanted & 1;
        EXPECT_EQ([file has_access:execute write:write read:read], write ? 0 : 1);
        EXPECT_EQ([file has_access:write read:read], write ? 0 : 1);
    }
    fs::permissions(path, fs::perms(0600));
    EXPECT_EQ([entry(path) has_access:1 write:1 read:1], 0);
    EXPECT_EQ([entry(path) has_access:1 read:1], 1);
}
