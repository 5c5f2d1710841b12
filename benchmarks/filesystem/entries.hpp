/// File entries for rows.
#pragma once

#import <Korvane_ZEB/Korvane_ZEB.h>

#include <string>

namespace zeb_bench
{

inline ZEB_String *string_of(const std::string &text)
{
    return [[ZEB_String alloc] init_as_copy_of_chars:text.data() count:static_cast<uint32_t>(text.size())];
}

/// Returns an entry, its status refreshed, as an application would keep one.
inline ZEB_File *entry_at(const std::string &path)
{
    ZEB_File *const file = [[ZEB_File alloc] init];
    [file set_path:string_of(path)];
    [file refresh_status];
    return file;
}

} // namespace zeb_bench
