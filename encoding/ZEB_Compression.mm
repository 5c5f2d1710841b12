#import <Korvane_ZEB/ZEB_Compression.h>

#import "arrays/ZEB_Byte_Storage_Private.h"
#import "arrays/ZEB_Char_Storage_Private.h"

#include "core/engine/namespace.hpp"
#include "encoding/engine/zlib_arrays.hpp"

#include <stdio.h>

namespace
{

template <class Array>
engine::Byte_Run bytes_from(Array *source, uint32_t offset)
{
    if (source == nil)
        return {nullptr, 0};
    const auto elements = engine::storage_of_array(source).elements();
    if (elements.size() <= offset)
        return {nullptr, 0};
    return {reinterpret_cast<const char *>(elements.data()) + offset,
            static_cast<uint32_t>(elements.size() - offset)};
}

engine::Fix_Report report_for(ZEB_String *destination)
{
    return { destination, @selector(append_chars:count:) };
}

engine::Fix_Report report_for(ZEB_Byte_Array *destination)
{
    return { destination, @selector(append_bytes:count:) };
}

template <class Into, class Work>
int32_t run_zlib(engine::Byte_Run source, Into *destination, Work work)
{
    if (source.length == 0)
        return 0;
    if (destination == nil)
        return -1;
    return engine::run_zlib(source, engine::storage_of_array(destination), report_for(destination), work);
}

template <class From, class Into>
int32_t compress(From *source, Into *destination)
{
    return run_zlib(bytes_from(source, 0), destination, engine::compress);
}

template <class From, class Into>
int32_t decompress(From *source, Into *destination, uint32_t offset, uint64_t bound = engine::unbounded)
{
    return run_zlib(bytes_from(source, offset), destination,
                    [bound](const char *bytes, uint32_t length, engine::Zlib_Output output) {
                        return engine::decompress(bytes, length, output, bound);
                    });
}

} // namespace

int32_t ZC_compress_string_to_string(ZEB_String *source, ZEB_String *destination)
{
    return compress(source, destination);
}

int32_t ZC_compress_bytes_to_bytes(ZEB_Byte_Array *source, ZEB_Byte_Array *destination)
{
    return compress(source, destination);
}

int32_t ZC_compress_string_to_bytes(ZEB_String *source, ZEB_Byte_Array *destination)
{
    return compress(source, destination);
}

int32_t ZC_decompress_string_to_string(ZEB_String *source, ZEB_String *destination, uint32_t offset)
{
    return decompress(source, destination, offset);
}

int32_t ZC_decompress_bytes_to_bytes(ZEB_Byte_Array *source, ZEB_Byte_Array *destination)
{
    return decompress(source, destination, 0);
}

int32_t ZC_decompress_bytes_to_string(ZEB_Byte_Array *source, ZEB_String *destination, uint32_t offset)
{
    return decompress(source, destination, offset);
}

int32_t ZC_decompress_string_to_string_within(ZEB_String *source, ZEB_String *destination, uint32_t offset,
                                              uint32_t most)
{
    return decompress(source, destination, offset, most);
}

int32_t ZC_decompress_bytes_to_bytes_within(ZEB_Byte_Array *source, ZEB_Byte_Array *destination,
                                            uint32_t offset, uint32_t most)
{
    return decompress(source, destination, offset, most);
}

int32_t ZC_decompress_bytes_to_string_within(ZEB_Byte_Array *source, ZEB_String *destination, uint32_t offset,
                                             uint32_t most)
{
    return decompress(source, destination, offset, most);
}

void print_zlib_error(int32_t status)
{
    fputs("zlib error: ", stderr);
    fputs(engine::zlib_status_text(status), stderr);
}
