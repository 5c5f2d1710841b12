#import <Korvane_ZEB/ZEB_File_Paths.h>

#import <Korvane_ZEB/ZEB_Error_Stream.h>
#import <Korvane_ZEB/ZEB_NSString_Conversion.h>
#import <Korvane_ZEB/ZEB_String_Text.h>

#import "filesystem/ZEB_File_Private.h"

#include "core/engine/namespace.hpp"
#include "filesystem/engine/entry_creation.hpp"
#include "filesystem/engine/file_messages.hpp"
#include "filesystem/engine/time_name.hpp"

#include <initializer_list>
#include <string_view>

namespace messages = engine::messages;

namespace
{

constexpr ZEB_Char_Span separator = engine::span_of("/");

/// Returns a new string of the pieces, owned by the caller; nil if there is no memory for it.
ZEB_String *new_text(std::initializer_list<ZEB_Char_Span> pieces)
{
    uint64_t length = 0;
    for (const ZEB_Char_Span piece : pieces)
        length += piece.length;
    if (length >= UINT32_MAX)
        return nil;
    ZEB_String *const text = [[ZEB_String alloc] init_with_capacity:static_cast<uint32_t>(length) + 1];
    for (const ZEB_Char_Span piece : pieces)
        [text append_chars:piece.char_c_array count:piece.length];
    if ([text count] == length)
        return text;
    [text release];
    return nil;
}

/// Makes the pieces the path. They may be parts of it.
void compose_path(ZEB_File *file, std::initializer_list<ZEB_Char_Span> pieces)
{
    ZEB_String *const text = new_text(pieces);
    [file set_path:text];
    if (text == nil)
        [file set_last_error:ENOMEM];
    [text release];
}

void set_text(ZEB_String *string, ZEB_Char_Span text)
{
    [string copy_c_string:text.char_c_array length:text.length];
    [string append_null_terminator];
}

std::string_view text_of(ZEB_File *file)
{
    const ZEB_Char_Span text = engine::visible_path(file->path);
    return {text.char_c_array, text.length};
}

/// Returns the path in the form in which Foundation compares paths; nil if it is no UTF-8.
NSString *standard_path(ZEB_File *file)
{
    const ZEB_Char_Span text = engine::visible_path(file->path);
    ZEB_String *const visible =
        [[ZEB_String alloc] init_as_link_to_chars:const_cast<char *>(text.char_c_array) count:text.length];
    NSString *const made = [[visible NSString_path_value] stringByStandardizingPath];
    [visible release];
    return made;
}

/// Tries names until one names nothing; `name` begins with the text before the time, and has room for the
/// rest. Returns 0 or the error of the last try.
int find_unique_name(ZEB_String *name, uint32_t start, ZEB_Char_Span extension)
{
    constexpr int tries = 4096;
    int error = EEXIST;
    for (int i = 0; i < tries && error != 0; ++i) {
        const engine::Time_Name time;
        [name set_count:start];
        [name append_chars:time.text().char_c_array count:time.text().length];
        [name append_chars:extension.char_c_array count:extension.length];
        const engine::Platform_Path candidate(name);
        engine::File_Status status;
        const int found = candidate.cause_of(engine::read_status(candidate.c_string(), status));
        if (found == EINVAL || found == ENOMEM)
            return found;
        error = found == ENOENT ? 0 : found == 0 ? EEXIST : found;
    }
    return error;
}

/// Reports the last name that was tried, and empties the path.
void give_up_unique_path(ZEB_File *file, ZEB_String *name, int error)
{
    engine::write_line([ZEB_Error_Stream shared_error_stream],
                       { messages::error_no_unique_path, engine::visible_path(name) });
    [file clear];
    [file set_last_error:error];
}

} // namespace

@implementation ZEB_File (Paths)

- (void)set_path_in_directory:(ZEB_String *)directory name:(ZEB_String *)name
{
    compose_path(self, {engine::visible_path(directory), separator, engine::visible_path(name)});
}

- (void)append_path_component:(ZEB_String *)name
{
    [self set_path_in_directory:path name:name];
}

- (void)append_path_extension:(ZEB_String *)extension
{
    compose_path(self, {engine::visible_path(path), engine::span_of("."), engine::visible_path(extension)});
}

- (void)append_tilde
{
    compose_path(self, {engine::visible_path(path), engine::span_of("~")});
}

- (void)remove_last_path_component
{
    compose_path(self, {engine::parent_path(engine::visible_path(path))});
}

- (void)parent_path_into:(ZEB_String *)string
{
    set_text(string, engine::parent_path(engine::visible_path(path)));
}

- (void)last_path_component_into:(ZEB_String *)string
{
    set_text(string, engine::last_path_component(engine::visible_path(path)));
}

- (ZEB_String *)copy_path
{
    const ZEB_Char_Span text = engine::visible_path(path);
    ZEB_String *const made = [[ZEB_String alloc] init_with_capacity:text.length + 1];
    [made append_chars:text.char_c_array count:text.length];
    [made append_null_terminator];
    return made;
}

- (void)clear
{
    [path clear];
    [path append_null_terminator];
    exists = 0;
    size = 0;
}

- (uint8_t)is_same_path_as:(ZEB_File *)other
{
    if (other == nil)
        return 0;
    NSString *const own_path = standard_path(self), *const other_path = standard_path(other);
    if (own_path != nil && other_path != nil)
        return [own_path isEqualToString:other_path] ? 1 : 0;
    return text_of(self) == text_of(other) ? 1 : 0;
}

- (void)resolve_symbolic_link
{
    if (kind != ZEB_FILE_KIND_LINK)
        return;
    const engine::Platform_Path link(path);
    char target[engine::max_link_target + 1];
    size_t length = 0;
    last_error = link.cause_of(engine::read_symbolic_link(link.c_string(), target, length));
    if (last_error == 0)
        compose_path(self, {{target, static_cast<uint32_t>(length)}});
}

- (uint32_t)make_unique_path:(ZEB_String *)prefix extension:(ZEB_String *)extension
{
    static constexpr char room_for_time[engine::Time_Name::max_length] = {};
    const ZEB_Char_Span end = engine::visible_path(extension);
    ZEB_String *const name = new_text({engine::visible_path(path),
                                       separator,
                                       engine::visible_path(prefix),
                                       {room_for_time, sizeof room_for_time},
                                       end});
    const uint32_t start = [name count] - end.length - static_cast<uint32_t>(sizeof room_for_time);
    const int error = name != nil ? find_unique_name(name, start, end) : ENOMEM;
    if (error != 0)
        give_up_unique_path(self, name, error);
    else
        [self set_path:name];
    [name release];
    return last_error == 0 ? 1 : 0;
}

@end
