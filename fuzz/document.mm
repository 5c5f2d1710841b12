/// The loading of whole documents. The first byte says whether the file is a compressed one and which of the
/// two loads reads it; the file's bytes follow.
#include "fuzz/fuzz.hpp"

#import <Korvane_ZEB/Korvane_ZEB.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <unistd.h>

namespace
{

/// A file of this process's own, removed at its end.
const std::string &path()
{
    static const std::string made = [] {
        const char *const folder = std::getenv("TMPDIR");
        const std::string name =
            std::string(folder != nullptr ? folder : "/tmp") + "/zeb-fuzz-" + std::to_string(getpid());
        return name;
    }();
    static const int is_registered = std::atexit([] { unlink(path().c_str()); });
    (void)is_registered;
    return made;
}

ZEB_File *new_file(bool is_compressed)
{
    ZEB_File *const file = [[ZEB_File alloc] init];
    ZEB_String *const name = [[ZEB_String alloc] init_as_copy_of_chars:path().data()
                                                                 count:static_cast<uint32_t>(path().size())];
    [file set_path:name];
    [file set_report_errors:0];
    [file set_contents_compressed:is_compressed];
    [file set_greatest_contents_size:1 << 20];
    [name release];
    return file;
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size < 1)
        return 0;
    [[ZEB_Error_Stream shared_error_stream] set_verbose:0];
    NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
    FILE *const out = std::fopen(path().c_str(), "wb");
    fuzz::require(out != nullptr && std::fwrite(data + 1, 1, size - 1, out) == size - 1);
    std::fclose(out);

    ZEB_File *const file = new_file(data[0] & 1);
    ZEB_Wide_String_Array *const table = [[ZEB_Wide_String_Array alloc] init];
    const auto load = data[0] & 2 ? ZC_load_checked_document : ZC_load_document;
    const uint32_t answer = load(table, file);
    fuzz::require((answer == 1) == ([file last_error] == 0));
    fuzz::require(answer == 1 || [table count] == 0);
    ZEB_Wide_String_Array *const again = [[ZEB_Wide_String_Array alloc] init];
    fuzz::require(answer == 0 || (ZC_save_checked_document(table, file) == 1 &&
                                  ZC_load_checked_document(again, file) == 1 && [again isEqual:table]));
    [again release];
    [table release];
    [file release];
    [pool drain];
    return 0;
}
