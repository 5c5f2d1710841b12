/// Appending C strings, printf formats and numbers to growable strings. To a string of 32-bit characters text
/// goes as UTF-16 or, where it is not UTF-8, byte by byte.
#pragma once

#include "core/engine/formatted_text.hpp"
#include "numbers/engine/pretty_number.hpp"
#include "numbers/engine/shortest_text.hpp"
#include "numbers/engine/unsigned_text.hpp"
#include "strings/engine/c_strings.hpp"
#include "strings/engine/transcoding.hpp"

#include <cstdarg>
#include <cstring>

namespace zeb::engine
{

template <class Report>
void append_text(Char_Storage string, std::span<const char> text, Report report, Char_Span refusal) noexcept
{
    append_c_string(string, text.data(), static_cast<std::uint32_t>(text.size()), report, refusal);
}

template <class Report>
void append_text(Wide_Char_Storage string, std::span<const char> text, Report report,
                 Char_Span refusal) noexcept
{
    append_utf16_or_bytes(string, text, report, refusal);
}

/// Appends the characters before the first null; none for a null pointer.
template <class Character, class Report>
void append_null_terminated(Text_Storage<Character> string, const char *text, Report report) noexcept
{
    const std::size_t length = text != nullptr ? std::strlen(text) : 0;
    if (length > UINT32_MAX && !string.is_link())
        return report(notes::reallocate_failed);
    append_text(string, {text, length}, report, notes::append_c_string_through_link);
}

/// Appends what printf would print in the "C" locale; nothing where it fails, and for a null format.
template <class Character, class Report>
void append_formatted(Text_Storage<Character> string, const char *format, va_list arguments,
                      Report report) noexcept
{
    if (string.is_link())
        return report(notes::append_format_through_link);
    char buffer[512];
    if (format == nullptr)
        return;
    const Formatted_Text text(buffer, format, arguments);
    if (text.lacks_memory())
        return report(notes::reallocate_failed);
    append_text(string, {text.characters(), text.count()}, report, notes::append_format_through_link);
}

namespace number_detail
{

/// Appends what `put` writes to a buffer; `put` returns the end of it.
template <class Character, class Put, class Report>
void append_number(Text_Storage<Character> string, Put put, Report report) noexcept
{
    char text[longest_shortest_text];
    const auto length = static_cast<std::uint32_t>(put(text) - text);
    append_c_string(string, text, length, report, notes::append_number_through_link);
}

} // namespace number_detail

/// Appends a number in the form of the pretty writers.
template <class Character, class Report>
void append_pretty(Text_Storage<Character> string, double x, Report report) noexcept
{
    number_detail::append_number(
        string, [x](char *text) { return write_pretty_double(text, x); }, report);
}

template <class Character, class Report>
void append_pretty(Text_Storage<Character> string, float x, Report report) noexcept
{
    number_detail::append_number(
        string, [x](char *text) { return write_pretty_float(text, x); }, report);
}

/// Appends the shortest text that reads back as the same double or float.
template <class Character, class Number, class Report>
void append_shortest(Text_Storage<Character> string, Number x, Report report) noexcept
{
    number_detail::append_number(
        string, [x](char *text) { return put_shortest(text, x); }, report);
}

template <class Character, class Report>
void append_integer(Text_Storage<Character> string, std::int64_t x, Report report) noexcept
{
    number_detail::append_number(
        string, [x](char *text) { return put_signed_64(text, x); }, report);
}

template <class Character, class Report>
void append_integer(Text_Storage<Character> string, std::uint64_t x, Report report) noexcept
{
    number_detail::append_number(
        string, [x](char *text) { return put_unsigned_64(text, x); }, report);
}

} // namespace zeb::engine
