/// The one line that a diagnostic writes.
#pragma once

#include <string>

namespace support
{

inline std::string diagnostic(const std::string &lead, const std::string &selector, const std::string &named,
                              const std::string &note)
{
    return lead + selector + " for object of class: " + named + "." + (note.empty() ? "" : " " + note) + "\n";
}

/// The line of a refusal or failure.
inline std::string fix_line(const std::string &selector, const std::string &named, const std::string &note)
{
    return diagnostic("Need to fix algorithm in selector: ", selector, named, note);
}

} // namespace support
