/*
 * Writes files into a folder, or reads those that another machine wrote into one:
 *     encoding_exchange write|read FOLDER
 * Names the files that are not written, or do not hold what this machine would have written.
 */
#include "tests/encoding/exchange.hpp"
#include "tests/encoding/exchanged_contents.hpp"
#include "tests/support/scratch_folder.hpp"

#include <cstdio>

using namespace support;

namespace
{

ZEB_Wide_String_Array *own_table()
{
    ZEB_Wide_String_Array *const table = [ZEB_Wide_String_Array array_with_capacity:0];
    for (uint32_t i = 0; i < 100; ++i)
        [table append_wide_string:Exchanged<ZEB_Wide_String *>::at(i)];
    return table;
}

ZEB_File *file_at(const std::string &path, uint8_t is_compressed)
{
    ZEB_File *const file = [[[ZEB_File alloc] init] autorelease];
    [file set_path:text(path)];
    [file set_contents_compressed:is_compressed];
    return file;
}

template <uint32_t (*save)(ZEB_Wide_String_Array *, ZEB_File *), uint8_t is_compressed>
bool write_document(const std::string &path)
{
    return save(own_table(), file_at(path, is_compressed)) == 1;
}

template <uint32_t (*load)(ZEB_Wide_String_Array *, ZEB_File *), uint8_t is_compressed>
bool reads_document(const std::string &path)
{
    ZEB_Wide_String_Array *const table = [ZEB_Wide_String_Array array_with_capacity:0];
    return load(table, file_at(path, is_compressed)) == 1 && [table isEqual:own_table()];
}

template <class Number>
bool same_bits(Number left, Number right)
{
    return std::memcmp(&left, &right, sizeof left) == 0;
}

/// The raw values begin with a one that tells the byte order.
bool write_values(const std::string &path)
{
    ZEB_Binary_File_Stream *const stream = [[[ZEB_Binary_File_Stream alloc] init] autorelease];
    [stream open_for_writing:text(path)];
    [stream write_unsigned:1];
    for (uint32_t i = 0; i < 100; ++i) {
        [stream write_double:Exchanged<double>::at(i)];
        [stream write_int:Exchanged<int>::at(i)];
        [stream write_char:Exchanged<char>::at(i)];
    }
    return [stream close] == 1;
}

bool reads_values(const std::string &path)
{
    ZEB_Binary_File_Stream *const stream = [[[ZEB_Binary_File_Stream alloc] init] autorelease];
    [stream open_for_reading:text(path)];
    [stream set_needs_swap:[stream read_unsigned] != 1];
    bool are_the_same = true;
    for (uint32_t i = 0; i < 100; ++i) {
        are_the_same &= same_bits([stream read_double], Exchanged<double>::at(i));
        are_the_same &= same_bits([stream read_int], Exchanged<int>::at(i));
        are_the_same &= same_bits(static_cast<char>([stream read_char]), Exchanged<char>::at(i));
    }
    return [stream close] == 1 && are_the_same;
}

bool write_all(const std::string &folder)
{
    std::filesystem::create_directories(folder);
    bool are_written = true;
    for (const Exchange &exchange : exchanges())
        if (!exchange.write(folder + "/" + exchange.name)) {
            are_written = false;
            std::printf("%s is not written\n", exchange.name.c_str());
        }
    return are_written;
}

bool read_all(const std::string &folder)
{
    bool are_the_same = true;
    for (const Exchange &exchange : exchanges())
        if (!exchange.reads_the_same(folder + "/" + exchange.name)) {
            are_the_same = false;
            std::printf("%s is not what this machine writes\n", exchange.name.c_str());
        }
    return are_the_same;
}

} // namespace

int main(int count, const char **arguments)
{
    NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
    add_exchange({"document", write_document<ZC_save_document, 0>, reads_document<ZC_load_document, 0>});
    add_exchange({"document.z", write_document<ZC_save_document, 1>, reads_document<ZC_load_document, 1>});
    add_exchange({"checked_document", write_document<ZC_save_checked_document, 0>,
                  reads_document<ZC_load_checked_document, 0>});
    add_exchange({"checked_document.z", write_document<ZC_save_checked_document, 1>,
                  reads_document<ZC_load_checked_document, 1>});
    add_exchange({"values", write_values, reads_values});
    const std::string task = count == 3 ? arguments[1] : "";
    const bool is_done = task == "write"  ? write_all(arguments[2])
                         : task == "read" ? read_all(arguments[2])
                                          : false;
    [pool drain];
    return is_done ? 0 : 1;
}
