#import <Korvane_ZEB/ZEB_Document.h>

#import <Korvane_ZEB/ZEB_Binary_Header.h>
#import <Korvane_ZEB/ZEB_Byte_Array.h>
#import <Korvane_ZEB/ZEB_File_Contents.h>
#import <Korvane_ZEB/ZEB_Pool_Index.h>
#import <Korvane_ZEB/ZEB_Wide_String_Array.h>
#import <Korvane_ZEB/ZEB_Wide_String_Binary_Contents.h>

#import "arrays/ZEB_Wide_String_Storage_Private.h"
#import "encoding/ZEB_Records_Private.h"
#import "filesystem/ZEB_File_Private.h"

#include "core/engine/namespace.hpp"
#include "encoding/engine/checked_document.hpp"
#include "filesystem/engine/file_messages.hpp"

#include <algorithm>

namespace messages = engine::messages;

namespace
{

enum class Form { plain, checked };

/// Appends the check sum. Returns false, after a report, if there is no memory for it.
bool append_check_sum(ZEB_String *document)
{
    const uint32_t length = [document count];
    [document extend_length_by:engine::check_sum_size];
    if ([document count] == length)
        return false;
    engine::add_check_sum([document char_data], length);
    return true;
}

/// Returns a new document, owned by the caller; nil, after a report, if there is no memory for it.
ZEB_String *new_document(ZEB_Wide_String_Array *table, Form form)
{
    constexpr uint64_t allowance = 192; // the header, and more
    const uint64_t size = engine::size_of_record(engine::storage_of_array(table));
    ZEB_String *const document = [[ZEB_String alloc]
        init_with_capacity:static_cast<uint32_t>(std::min<uint64_t>(size + allowance, UINT32_MAX))];
    ZEB_write_binary_header(document);
    [table ZEB_encode_binary_contents:document];
    const bool is_whole = [document count] == ZEB_BINARY_HEADER_SIZE + size &&
                          (form == Form::plain || append_check_sum(document));
    if (is_whole)
        return document;
    [document release];
    return nil;
}

uint32_t save(ZEB_Wide_String_Array *table, ZEB_File *file, Form form)
{
    if (file == nil)
        return 0;
    ZEB_String *const document =
        new_document(table != nil ? table : [ZEB_Wide_String_Array array_with_capacity:0], form);
    if (document == nil) {
        [file set_last_error:ENOMEM];
        return 0;
    }
    const uint32_t answer = [file write_contents:[document char_data] length:[document count]];
    [document release];
    return answer == 1 && [file last_error] == 0 ? 1 : 0;
}

/// Whether the contents of a file may be decoded. Reports if not.
bool is_document(ZEB_File *file, ZEB_Char_Vector *contents, uint8_t needs_swap, Form form)
{
    if ([contents count] <= ZEB_BINARY_HEADER_SIZE) {
        engine::report_failure(file, messages::error_no_document, EILSEQ);
        return false;
    }
    if (form == Form::plain || !engine::is_damaged([contents char_data], [contents count], needs_swap != 0))
        return true;
    engine::report_failure(file, messages::error_check_sum, EILSEQ);
    return false;
}

void number_elements(ZEB_Wide_String_Array *table)
{
    int32_t position = 0;
    for (ZEB_Wide_String *const string : engine::storage_of_array(table).elements())
        [string set_pool_index:position++];
}

bool load_from(ZEB_Char_Vector *contents, ZEB_Wide_String_Array *table, ZEB_File *file, Form form)
{
    uint8_t needs_swap;
    ZEB_read_binary_header(contents, &needs_swap);
    if (!is_document(file, contents, needs_swap, form))
        return false;
    ZEB_String *const records =
        [[ZEB_String alloc] init_as_link_to_chars:[contents char_data] + ZEB_BINARY_HEADER_SIZE
                                            count:[contents count] - ZEB_BINARY_HEADER_SIZE];
    const bool is_decoded = [table ZEB_decode_binary_contents:records needs_swap:needs_swap] != 0;
    [records release];
    if (is_decoded)
        number_elements(table);
    else
        [file set_last_error:EILSEQ];
    return is_decoded;
}

uint32_t load(ZEB_Wide_String_Array *table, ZEB_File *file, Form form)
{
    if (table == nil || file == nil)
        return 0;
    ZEB_Byte_Array *const bytes = [[ZEB_Byte_Array alloc] init];
    [file refresh_status];
    [file read_contents:bytes];
    bool is_loaded = false;
    if ([file last_error] == 0) {
        ZEB_String *const contents =
            [[ZEB_String alloc] init_as_link_to_chars:reinterpret_cast<char *>([bytes byte_data])
                                                count:[bytes count]];
        is_loaded = load_from(contents, table, file, form);
        [contents release];
    }
    [bytes release];
    return is_loaded ? 1 : 0;
}

} // namespace

uint32_t ZC_save_document(ZEB_Wide_String_Array *table, ZEB_File *file)
{
    return save(table, file, Form::plain);
}

uint32_t ZC_load_document(ZEB_Wide_String_Array *table, ZEB_File *file)
{
    return load(table, file, Form::plain);
}

uint32_t ZC_save_checked_document(ZEB_Wide_String_Array *table, ZEB_File *file)
{
    return save(table, file, Form::checked);
}

uint32_t ZC_load_checked_document(ZEB_Wide_String_Array *table, ZEB_File *file)
{
    return load(table, file, Form::checked);
}
