/// Counted C characters into a growable 8-bit string.
#pragma once

#include "arrays/engine/editing.hpp"
#include "strings/engine/string_notes.hpp"

namespace zeb
{

using Char_Storage = Array_Storage<Plain_Elements<char>>;

/// Grows for `needed` characters; the first block is allocated, a later one reallocated, and the note
/// tells which it was.
template <class Kind, class Report>
bool grow_text(Array_Storage<Kind> string, std::uint64_t needed, Report report) noexcept
{
    return grow(string, needed, report,
                string.data == nullptr ? notes::allocate_failed : notes::reallocate_failed);
}

/// Makes the text exactly the given bytes, which may be the string's own.
template <class Report>
void copy_c_string(Char_Storage string, const char *bytes, std::uint32_t length, Report report) noexcept
{
    if (string.is_link())
        return report(notes::copy_c_string_through_link);
    const Source_Position source(string, Elements_Of<Plain_Elements<char>>{bytes, length});
    if (!grow_text(string, length, report))
        return;
    source.assign_to_front(string);
    string.count = length;
}

/// Puts the given bytes, which may be the string's own, at the end.
template <class Report>
void append_c_string(Char_Storage string, const char *bytes, std::uint32_t length, Report report) noexcept
{
    if (string.is_link())
        return report(notes::append_c_string_through_link);
    const Source_Position source(string, Elements_Of<Plain_Elements<char>>{bytes, length});
    if (!grow_text(string, std::uint64_t{string.count} + length, report))
        return;
    source.assign_to_gap(string, string.count);
    string.count += length;
}

/// Puts a null behind the last character and leaves the count.
template <class Report>
void append_null_terminator(Char_Storage string, Report report) noexcept
{
    if (string.is_link())
        return report(notes::terminator_through_link);
    if (grow_text(string, string.count, report))
        string.data[string.count] = '\0';
}

} // namespace zeb
