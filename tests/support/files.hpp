/// File entries for tests.
#pragma once

#import <Korvane_ZEB/Korvane_ZEB.h>

#include <string>

namespace support
{

inline ZEB_String *text(const std::string &characters)
{
    return [[[ZEB_String alloc] init_as_copy_of_chars:characters.data()
                                                count:static_cast<uint32_t>(characters.size())] autorelease];
}

inline std::string text_of(ZEB_Char_Vector *string) { return {[string char_data], [string count]}; }

/// An entry for a path, its status refreshed.
inline ZEB_File *entry(const std::string &path)
{
    ZEB_File *const file = [[[ZEB_File alloc] init] autorelease];
    [file set_path:text(path)];
    [file refresh_status];
    return file;
}

} // namespace support
