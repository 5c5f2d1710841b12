#include "tests/support/captured.hpp"
#include "tests/support/files.hpp"

#include <algorithm>
#include <cerrno>
#include <functional>
#include <unistd.h>

using namespace support;
namespace fs = std::filesystem;

namespace
{

/// An operation, on an entry at `path`, and what is to come of it. "@" stands for the folder of the test, in
/// which are the file "file", the empty directory "empty", the full one "full" with "full/inside", and the
/// links "link" to the file and "broken".
struct Row {
    std::string path;
    std::function<uint32_t(ZEB_File *)> work;
    uint32_t answer;
    int last_error;
    std::string output, errors; /* a line break follows what is not empty */
    std::string change;         /* what is there afterwards, or, after "-", no more */
};

uint32_t create_file(ZEB_File *file) { return [file create_file]; }
uint32_t create_directory(ZEB_File *file) { return [file create_directory]; }
uint32_t create_parents(ZEB_File *file) { return [file create_parent_directories]; }
uint32_t remove_entry(ZEB_File *file) { return [file remove]; }

/// Links the entry's path to a target.
auto link_to(const std::string &target)
{
    return [=](ZEB_File *file) { return [file make_symbolic_link:[file path] target_path:text(target)]; };
}

class Entries : public File_Test
{
protected:
    void SetUp() override
    {
        put_file(path, "contents");
        fs::create_directory(folder / "empty");
        fs::create_directory(folder / "full");
        put_file(folder / "full/inside", "");
        fs::create_symlink("file", folder / "link");
        fs::create_symlink("nowhere", folder / "broken");
    }

    void TearDown() override
    {
        for (const auto &found : fs::directory_iterator(folder.path))
            fs::remove_all(found);
    }

    std::string placed(std::string text) const
    {
        for (size_t at = text.find('@'); at != std::string::npos; at = text.find('@'))
            text.replace(at, 1, folder.path);
        return text;
    }

    /// The names in the tree below the folder, with their modes.
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
        ZEB_File *const file = [[[ZEB_File alloc] init] autorelease];
        [file set_path:text(placed(row.path))];
        [file set_log_actions:is_telling];
        [file set_report_errors:is_telling];
        std::vector<std::string> expected = names();
        if (row.change[0] == '-')
            expected.erase(std::find(expected.begin(), expected.end(), row.change.substr(1)));
        else if (!row.change.empty())
            expected.insert(std::upper_bound(expected.begin(), expected.end(), row.change), row.change);
        uint32_t answer = 99;
        std::string errors;
        const std::string output =
            standard_output_of([&] { errors = standard_error_of([&] { answer = row.work(file); }); });
        const auto line = [&](const std::string &text) {
            return text.empty() || !is_telling ? std::string() : placed(text) + "\n";
        };
        EXPECT_EQ(answer, row.answer);
        EXPECT_EQ([file last_error], row.last_error);
        EXPECT_EQ(output, line(row.output));
        EXPECT_EQ(errors, line(row.errors));
        EXPECT_EQ(names(), expected);
        EXPECT_EQ(file_text(path), row.change == "-@/file" ? "" : "contents");
    }
};

const std::string over_file = "Cannot create a symbolic link entry over the regular file: ";

const Row rows[] = {
    {"@/new", create_file, 1, 0, "Created file with name: @/new", "", "@/new"},
    {"@/file", create_file, 2, 0, "", "", ""},
    {"@/empty", create_file, 2, 0, "", "", ""},
    {"@/broken", create_file, 1, 0, "Created file with name: @/broken", "", "@/nowhere"},
    {"new", create_file, 0, EINVAL, "", "Cannot make relative file: new", ""},
    {"", create_file, 0, EINVAL, "", "Cannot make relative file: ", ""},
    {"@/none/new", create_file, 0, ENOENT, "", "Error creating file with name: @/none/new", ""},
    {std::string("@/a\0b", 5), create_file, 0, EINVAL, "",
     "Error creating file with name: " + std::string("@/a\0b", 5), ""},

    {"@/new", create_directory, 1, 0, "Created directory with name: @/new", "", "@/new"},
    {"@/file", create_directory, 2, 0, "", "", ""},
    {"@/link", create_directory, 2, 0, "", "", ""},
    {"new", create_directory, 0, EINVAL, "", "Cannot make relative directory: new", ""},
    {"@/none/new", create_directory, 0, ENOENT, "",
     "Error creating directory with name: @/none/new; because: A component of the path prefix does not "
     "exist.",
     ""},
    {"@/file/new", create_directory, 0, ENOTDIR, "",
     "Error creating directory with name: @/file/new; because: A component of the path prefix is not a "
     "directory.",
     ""},
    {"@/broken", create_directory, 0, EEXIST, "",
     "Error creating directory with name: @/broken; because: The named file exists.", ""},
    {"@/" + std::string(256, 'n'), create_directory, 0, ENAMETOOLONG, "",
     "Error creating directory with name: @/" + std::string(256, 'n') + "; because: File name too long.", ""},

    {"@/x/new", create_parents, 1, 0, "Created level 1 partial path: @/x", "", "@/x"},
    {"@/empty/new", create_parents, 2, 0, "", "", ""},
    {"@/file/new", create_parents, 2, 0, "", "", ""},
    {"/name", create_parents, 2, 0, "", "", ""},
    {"@//x//new", create_parents, 1, 0, "Created level 1 partial path: @//x", "", "@/x"},
    {"name", create_parents, 0, EINVAL, "", "Cannot make relative directory: name", ""},
    {"none/below/name", create_parents, 0, EINVAL, "", "Cannot make relative directory: none/below", ""},
    {"@/file/x/y/new", create_parents, 0, ENOTDIR, "", "Error creating level 1 partial path: @/file/x", ""},
    {"@/broken/x/new", create_parents, 0, EEXIST, "", "Error creating level 1 partial path: @/broken", ""},
    {std::string("@/a\0/b", 6), create_parents, 0, EINVAL, "",
     "Error creating level 1 partial path: " + std::string("@/a\0", 4), ""},

    {"@/new", link_to("any where"), 1, 0, "Made symbolic link: @/new -> any where", "", "@/new"},
    {"@/link", link_to("new"), 1, 0, "Removed symbolic link entry: @/link\nMade symbolic link: @/link -> new",
     "", ""},
    {"@/file", link_to("new"), 0, EEXIST, over_file + "@/file", "", ""},
    {"@/empty", link_to("new"), 0, EEXIST, over_file + "@/empty", "", ""},
    {"@/none/new", link_to("new"), 1, ENOENT, "", "Error making symbolic link: @/none/new -> new", ""},
    {"@/new", link_to(""), 1, ENOENT, "", "Error making symbolic link: @/new -> ", ""},
    {"@/new", link_to(std::string("a\0b", 3)), 1, EINVAL, "",
     "Error making symbolic link: @/new -> " + std::string("a\0b", 3), ""},

    {"@/file", remove_entry, 1, 0, "Removed file: @/file", "", "-@/file"},
    {"@/link", remove_entry, 1, 0, "Removed file: @/link", "", "-@/link"},
    {"@/empty", remove_entry, 1, 0, "Removed file: @/empty", "", "-@/empty"},
    {"@/full", remove_entry, 0, ENOTEMPTY, "", "Error removing file: @/full", ""},
    {"@/none", remove_entry, 0, ENOENT, "", "Error removing file: @/none", ""},
    {std::string("@/file\0", 7), remove_entry, 1, 0, "Removed file: @/file", "", "-@/file"},
    {std::string("@/file\0x", 8), remove_entry, 0, EINVAL, "",
     "Error removing file: " + std::string("@/file\0x", 8), ""},
};

/// What only root may do.
const Row denied_rows[] = {
    {"@/full/new", create_file, 0, EACCES, "", "Error creating file with name: @/full/new", ""},
    {"@/full/new", create_directory, 0, EACCES, "",
     "Error creating directory with name: @/full/new; because: Permission denied.", ""},
    {"@/full/x/y/new", create_parents, 0, EACCES, "", "Error creating level 1 partial path: @/full/x", ""},
    {"@/full/new", link_to("new"), 1, EACCES, "", "Error making symbolic link: @/full/new -> new", ""},
    {"@/full/link", link_to("new"), 0, EACCES, "", "Error removing symbolic link entry: @/full/link", ""},
    {"@/full/inside", remove_entry, 0, EACCES, "", "Error removing file: @/full/inside", ""},
};

} // namespace

TEST_F(Entries, are_created_linked_and_removed_with_their_messages)
{
    for (const bool is_telling : {true, false})
        for (const Row &row : rows) {
            expect(row, is_telling);
            TearDown();
            SetUp();
        }
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
    // What cannot be given is told by the error alone.
    if (geteuid() != 0) {
        [file set_uid:0];
        [file append_tilde];
        EXPECT_EQ([file create_file], 1u);
        EXPECT_EQ([file last_error], EPERM);
    }
}

TEST_F(Entries, a_unique_path_names_nothing_yet)
{
    std::vector<std::string> made;
    for (int i = 0; i < 20; ++i) {
        ZEB_File *const file = entry(folder.path);
        EXPECT_EQ([file make_unique_path:text("pre") extension:text("ext")], 1u);
        made.push_back(text_of([file path]));
        const std::string name = made.back().substr(folder.path.size());
        uint64_t second = 0;
        unsigned microsecond = 0;
        int length = 0;
        std::sscanf(name.c_str(), "/pre_%lu_%u.ext%n", &second, &microsecond, &length);
        EXPECT_EQ(static_cast<size_t>(length), name.size()) << name;
        EXPECT_NEAR(static_cast<double>(second), static_cast<double>(time(nullptr)), 5);
        EXPECT_EQ([file create_file], 1u);
    }
    std::sort(made.begin(), made.end());
    EXPECT_EQ(std::unique(made.begin(), made.end()), made.end());

    ZEB_File *const file = entry(folder / std::string("a\0b", 3));
    [file set_report_errors:0];
    const std::string said =
        standard_error_of([&] { EXPECT_EQ([file make_unique_path:text("p") extension:text("e")], 0u); });
    EXPECT_EQ(said.rfind(placed("Maximum tries exceeded, the file name is not be unique. The last path name "
                                "tried is:@/a"),
                         0),
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
    [file clear];
    EXPECT_EQ([[file path] count], 0u);
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
