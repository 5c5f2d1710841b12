/// The record of TT_PHRASE behind a header, in a file.
#include "tests/encoding/exchange.hpp"

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
    for (uint32_t i = 0; i < 1003 && !std::is_same_v<ZEB_T_Element, id>; ++i)
        [array append_TT_word:exchanged<ZEB_T_Element>(i)];
    return encoded(array);
}

bool write(const std::string &path)
{
    put_file(path, own_file());
    return true;
}

bool reads_the_same(const std::string &path)
{
    std::string found = file_text(path);
    ZEB_String *const file = [ZEB_String link_to_chars:found.data()
                                                 count:static_cast<uint32_t>(found.size())];
    uint8_t needs_swap = 0;
    ZEB_read_binary_header(file, &needs_swap);
    [file relink_to_chars:found.data() + ZEB_BINARY_HEADER_SIZE count:[file count] - ZEB_BINARY_HEADER_SIZE];
    ZEB_T_Array *const decoded = [ZEB_T_Array array_with_capacity:0];
    return [decoded ZEB_decode_binary_contents:file needs_swap:needs_swap] == [file count] &&
           encoded(decoded) == own_file();
}

[[maybe_unused]] const bool is_added = (exchanges().push_back({"ZEB_T_Array", write, reads_the_same}), true);

} // namespace
