/// The loading of whole documents. The first byte says whether the file is a compressed one and which of the
/// two loads reads it; the file's bytes follow.
#include "fuzz/fuzz.hpp"

#include "tests/support/scratch_folder.hpp"
#include "tests/support/strings.hpp"

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 1)
        return 0;
    [[ZEB_Error_Stream shared_error_stream] set_verbose:0];
    NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
    static const support::Scratch_Folder folder;
    const std::string path = folder / "document", contents(data + 1, data + size);
    support::put_file(path, contents);
    fuzz::require(support::file_text(path) == contents);

    ZEB_File *const file = [[[ZEB_File alloc] init] autorelease];
    [file set_path:support::text(path)];
    [file set_report_errors:0];
    [file set_contents_compressed:data[0] & 1];
    [file set_greatest_contents_size:1 << 20];
    ZEB_Wide_String_Array *const table = [ZEB_Wide_String_Array array_with_capacity:0];
    const auto load = data[0] & 2 ? ZC_load_checked_document : ZC_load_document;
    const uint32_t answer = load(table, file);
    fuzz::require((answer == 1) == ([file last_error] == 0));
    fuzz::require(answer == 1 || [table count] == 0);
    ZEB_Wide_String_Array *const again = [ZEB_Wide_String_Array array_with_capacity:0];
    fuzz::require(answer == 0 || (ZC_save_checked_document(table, file) == 1 &&
                                  ZC_load_checked_document(again, file) == 1 && [again isEqual:table]));
    [pool drain];
    return 0;
}
