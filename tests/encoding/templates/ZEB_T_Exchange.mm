/// The record of TT_PHRASE behind a header, in a file.
#include "tests/encoding/exchange.hpp"
#include "tests/encoding/exchanged_contents.hpp"
#include "tests/support/scratch_folder.hpp"

using namespace support;

namespace
{

/// A header and a record, as this machine writes them.
std::string encoded(ZEB_T_Array *array)
{
    ZEB_String *const buffer = text("");
    ZEB_write_binary_header(buffer);
    [array ZEB_encode_binary_contents:buffer];
    return text_of(buffer);
}

std::string own_file()
{
    ZEB_T_Array *const array = [ZEB_T_Array array_with_capacity:0];
    for (uint32_t i = 0; i < exchanged_count<ZEB_T_Element>; ++i)
        [array append_TT_word:Exchanged<ZEB_T_Element>::at(i)];
    return encoded(array);
}

bool write(const std::string &path)
{
    put_file(path, own_file());
    return file_text(path) == own_file();
}

bool reads_the_same(const std::string &path)
{
    ZEB_String *const found = text(file_text(path));
    if ([found count] < ZEB_BINARY_HEADER_SIZE)
        return false;
    uint8_t needs_swap = 0;
    ZEB_read_binary_header(found, &needs_swap);
    ZEB_String *const record = [ZEB_String link_to_chars:[found char_data] + ZEB_BINARY_HEADER_SIZE
                                                   count:[found count] - ZEB_BINARY_HEADER_SIZE];
    ZEB_T_Array *const decoded = [ZEB_T_Array array_with_capacity:0];
    return [decoded ZEB_decode_binary_contents:record needs_swap:needs_swap] == [record count] &&
           encoded(decoded) == own_file();
}

[[maybe_unused]] const bool is_added = add_exchange({"ZEB_T_Array", write, reads_the_same});

} // namespace
