#import <Korvane_ZEB/ZEB_Directory.h>

#import <Korvane_ZEB/ZEB_Defaults.h>
#import <Korvane_ZEB/ZEB_NSString_Conversion.h>
#import <Korvane_ZEB/ZEB_Standard_Directories.h>
#import <Korvane_ZEB/ZEB_String_Text.h>

#include "core/engine/char_span.hpp"
#include "core/engine/namespace.hpp"

namespace
{

constexpr ZEB_Char_Span resources_key = engine::span_of("ZEB_path_for_resources");
constexpr ZEB_Char_Span default_resources = engine::span_of("/Library/Korvane");

ZEB_String *temporary, *resources, *home, *library, *documents;

/// Returns the path, made and filled on the first call.
template <class Fill>
ZEB_String *shared_path(ZEB_String *&path, Fill fill)
{
    constexpr uint32_t first_capacity = 1024;
    if (path == nil) {
        path = [[ZEB_String alloc] init_with_capacity:first_capacity];
        [path append_null_terminator];
        fill(path);
    }
    return path;
}

void set_to_resources(ZEB_String *path)
{
    ZEB_String *const key = [[ZEB_String alloc] init_as_copy_of_chars:resources_key.char_c_array
                                                                count:resources_key.length];
    [[ZEB_Defaults shared_suite] assign_string_for_key:path key:key];
    [key release];
    if ([path is_empty])
        [path set_chars:default_resources.char_c_array count:default_resources.length];
    [path append_null_terminator];
}

} // namespace

@implementation ZEB_Directory (Standard_Paths)

+ (ZEB_String *)temporary_directory_path
{
    return shared_path(temporary, [](ZEB_String *path) {
        [path set_from_NSString:NSTemporaryDirectory() type:ZEB_ENCODING_UTF8_PATH];
        [path append_null_terminator];
    });
}

+ (ZEB_String *)ZEB_path_for_resources
{
    return shared_path(resources, set_to_resources);
}

+ (ZEB_String *)home_directory_path
{
    return shared_path(home, [](ZEB_String *path) { [ZEB_String set_to_home_directory:path]; });
}

+ (ZEB_String *)library_directory_path
{
    return shared_path(library, [](ZEB_String *path) { [ZEB_String set_to_library_directory:path]; });
}

+ (ZEB_String *)documents_directory_path
{
    return shared_path(documents, [](ZEB_String *path) { [ZEB_String set_to_documents_directory:path]; });
}

@end
