/// Storing counted 8-bit characters in growable strings of 8-bit or 32-bit characters.
#pragma once

#include "arrays/engine/storage/own_source.hpp"
#include "arrays/engine/storage/resizing.hpp"
#include "strings/engine/string_notes.hpp"
#include "strings/engine/string_storage.hpp"
#include "strings/engine/text_kernels.hpp"

#include <cstring>

namespace zeb::engine
{

/// Grows for `needed` characters. A failure is reported as one of allocation for the first block, and of
/// reallocation for a later one.
template <class Kind, class Report>
bool grow_text(Array_Storage<Kind> string, std::uint64_t needed, Report report) noexcept
{
    return grow(string, needed, report,
                string.data == nullptr ? notes::allocate_failed : notes::reallocate_failed);
}

/// Copies characters to 8-bit elements, or sign-extends them to 32-bit ones.
inline void put_characters(std::span<const char> characters, char *elements) noexcept
{
    if (!characters.empty())
        std::memcpy(elements, characters.data(), characters.size());
}

inline void put_characters(std::span<const char> characters, std::uint32_t *elements) noexcept
{
    kernels::widen_signed(reinterpret_cast<const std::int8_t *>(characters.data()), characters.size(),
                          elements);
}

/// Replaces the text from index `at` (at most the count) to the end with the given bytes, which may lie in
/// the string's own block.
template <class Element, class Report>
void end_with_characters(Text_Storage<Element> string, std::uint32_t at, const char *bytes,
                         std::uint32_t length, Report report) noexcept
{
    const Unaliased_Values<char> source({}, {bytes, length}, string.data, string.capacity * sizeof(Element));
    if (!source.is_valid())
        return report(notes::reallocate_failed);
    if (!grow_text(string, std::uint64_t{at} + length, report))
        return;
    put_characters(source.elements(), string.data + at);
    string.count = at + length;
}

/// Replaces the contents with the given bytes.
template <class Element, class Report>
void copy_c_string(Text_Storage<Element> string, const char *bytes, std::uint32_t length,
                   Report report) noexcept
{
    if (string.is_link())
        return report(notes::copy_c_string_through_link);
    end_with_characters(string, 0, bytes, length, report);
}

/// Appends the given bytes. A link refuses with the note given.
template <class Element, class Report>
void append_c_string(Text_Storage<Element> string, const char *bytes, std::uint32_t length, Report report,
                     Char_Span refusal = notes::append_c_string_through_link) noexcept
{
    if (string.is_link())
        return report(refusal);
    end_with_characters(string, string.count, bytes, length, report);
}

/// Stores a null after the last character; the count does not change.
template <class Report>
void append_null_terminator(Char_Storage string, Report report) noexcept
{
    if (string.is_link())
        return report(notes::terminator_through_link);
    if (grow_text(string, string.count, report))
        string.data[string.count] = '\0';
}

} // namespace zeb::engine
