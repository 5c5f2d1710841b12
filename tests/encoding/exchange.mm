/*
 * Writes files into a folder, or reads those that another machine wrote into one:
 *     encoding_exchange write|read FOLDER
 * Names the files that are not written, or do not hold what this machine would have written.
 */
#include "tests/encoding/exchange.hpp"

#include <cstdio>

using namespace support;

namespace
{

ZEB_Wide_String_Array *own_table()
{
    ZEB_Wide_String_Array *const table = [ZEB_Wide_String_Array array_with_capacity:0];
    for (uint32_t i = 0; i < 100; ++i)
        [table append_wide_string:exchanged<ZEB_Wide_String *>(i)];
    return table;
}

/// The entry at a path whose name ends in "z" for compressed contents.
ZEB_File *file_at(const std::string &path)
{
    ZEB_File *const file = [[[ZEB_File alloc] init] autorelease];
    [file set_path:text(path)];
    [file set_contents_compressed:path.back() == 'z'];
    return file;
}

template <uint32_t (*save)(ZEB_Wide_String_Array *, ZEB_File *)>
bool write_document(const std::string &path)
{
    return save(own_table(), file_at(path)) == 1;
}

template <uint32_t (*load)(ZEB_Wide_String_Array *, ZEB_File *)>
bool reads_document(const std::string &path)
{
    ZEB_Wide_String_Array *const table = [ZEB_Wide_String_Array array_with_capacity:0];
    return load(table, file_at(path)) == 1 && [table isEqual:own_table()];
}

} // namespace

int main(int count, const char **arguments)
{
    const std::string task = count == 3 ? arguments[1] : "";
    if (task != "write" && task != "read")
        return 1;
    NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
    for (const char *const suffix : {"", ".z"}) {
        exchanges().push_back({std::string("document") + suffix, write_document<ZC_save_document>,
                               reads_document<ZC_load_document>});
        exchanges().push_back({std::string("checked_document") + suffix,
                               write_document<ZC_save_checked_document>,
                               reads_document<ZC_load_checked_document>});
    }
    std::filesystem::create_directories(arguments[2]);
    int status = 0;
    for (const Exchange &exchange : exchanges()) {
        const auto act = task == "write" ? exchange.write : exchange.reads_the_same;
        if (!act(std::string(arguments[2]) + "/" + exchange.name)) {
            std::printf("%s: cannot %s the same\n", exchange.name.c_str(), task.c_str());
            status = 1;
        }
    }
    [pool drain];
    return status;
}
