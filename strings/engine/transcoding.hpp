/// Conversions of growable strings between forms of Unicode, without NSString.
#pragma once

#include "arrays/engine/allocator.hpp"
#include "arrays/engine/storage/own_source.hpp"
#include "arrays/engine/storage/resizing.hpp"
#include "strings/engine/c_strings.hpp"
#include "strings/engine/string_storage.hpp"
#include "strings/engine/utf.hpp"

namespace zeb::engine
{

/// Storage for a string's new contents until they are known to be valid: the string's own block if it is
/// large enough, else a new one that replaces it on `keep`. A link always gets a new block.
template <class Character>
class Contents_Draft
{
public:
    Contents_Draft(Text_Storage<Character> text, std::uint64_t length) noexcept
        : string(text), count(length), block{nullptr, 0}
    {
        if (string.is_link() || string.capacity <= count)
            failure = !resize_block(
                block, grown_capacity(string.is_link() ? 0 : string.capacity, count, string.growth_seed),
                string.layout());
    }
    Contents_Draft(const Contents_Draft &) = delete;
    Contents_Draft &operator=(const Contents_Draft &) = delete;
    ~Contents_Draft() { release(block.data); }

    bool failed() const noexcept { return failure; }

    Character *elements() const noexcept
    {
        return block.data != nullptr ? static_cast<Character *>(block.data) : string.data;
    }

    /// Makes the elements written the string's contents.
    void keep() noexcept
    {
        string.count = static_cast<std::uint32_t>(count);
        if (block.data == nullptr)
            return;
        if (string.is_link())
            string.link_marker = 0;
        else
            release(string.data);
        string.data = static_cast<Character *>(block.data);
        string.capacity = block.capacity;
        block.data = nullptr;
    }

private:
    Text_Storage<Character> string;
    std::uint64_t count;
    Block block;
    bool failure = false;
};

/// Sets the string to the `length` elements that `write` stores at the address passed to it. Returns false if
/// `write` does; the string's elements are then undefined if its own block was used. If allocation fails,
/// reports it, changes nothing and returns true.
template <class Character, class Write, class Report>
bool write_contents(Text_Storage<Character> string, std::uint64_t length, Write write, Report report) noexcept
{
    Contents_Draft<Character> draft(string, length);
    if (draft.failed()) {
        report(notes::allocate_failed);
        return true;
    }
    if (!write(draft.elements()))
        return false;
    draft.keep();
    return true;
}

/// Sets the string to the `length` elements that `decode` writes. Returns false if `decode` does, or, with
/// the string unchanged, if text in the string's own block cannot be copied.
template <class Decode, class Report>
bool write_decoded(Wide_Char_Storage string, std::span<const char> utf8, std::uint64_t length, Decode decode,
                   Report report) noexcept
{
    const Unaliased_Values<char> source({}, utf8, string.data, string.capacity * sizeof(std::uint32_t));
    const auto write = [&](std::uint32_t *units) { return decode(source.elements(), units); };
    return source.is_valid() && write_contents(string, length, write, report);
}

/// Sets the string to the UTF-16 units of well-formed UTF-8. A link refuses as it does a new length. Returns
/// false for ill-formed text and for a leading byte-order mark; the string is then as `write_contents` leaves
/// it.
template <class Report>
bool set_to_utf16_of_utf8(Wide_Char_Storage string, std::span<const char> utf8, Report report) noexcept
{
    if (begins_with_byte_order_mark(utf8))
        return false;
    if (string.is_link()) {
        report(notes::length_through_link);
        return true;
    }
    return write_decoded(string, utf8, utf16_length_of_utf8(utf8), utf16_from_utf8, report);
}

/// Stores each byte as an unsigned number.
inline bool units_from_bytes(std::span<const char> bytes, std::uint32_t *units) noexcept
{
    for (const char byte : bytes)
        *units++ = static_cast<unsigned char>(byte);
    return true;
}

/// Sets the string to the UTF-16 units of UTF-8 or, for text that is not UTF-8, to its bytes as unsigned
/// numbers. A link refuses as it does a new length.
template <class Report>
void set_to_utf16_or_bytes(Wide_Char_Storage string, std::span<const char> text, Report report) noexcept
{
    if (string.is_link())
        report(notes::length_through_link);
    else if (is_valid_utf8(text))
        write_decoded(string, text, utf16_length_of_utf8(text), utf16_from_utf8, report);
    else
        write_decoded(string, text, text.size(), units_from_bytes, report);
}

/// Appends the UTF-16 units of UTF-8 or, of text that is not UTF-8, its bytes as unsigned numbers. A link
/// refuses with the note given.
template <class Report>
void append_utf16_or_bytes(Wide_Char_Storage string, std::span<const char> text, Report report,
                           Char_Span refusal) noexcept
{
    if (string.is_link())
        return report(refusal);
    const Unaliased_Values<char> source({}, text, string.data, string.block_size());
    if (!source.is_valid())
        return report(notes::reallocate_failed);
    const bool is_utf8 = is_valid_utf8(text);
    const std::size_t length = is_utf8 ? utf16_length_of_utf8(text) : text.size();
    if (!grow_text(string, std::uint64_t{string.count} + length, report))
        return;
    (is_utf8 ? utf16_from_utf8 : units_from_bytes)(source.elements(), string.data + string.count);
    string.count += static_cast<std::uint32_t>(length);
}

/// Sets the string to the UTF-8 of UTF-16 units, of which only the low 16 bits count; a link becomes an
/// owner. Returns false for an unpaired surrogate and for a leading byte-order mark.
template <class Report>
bool set_to_utf8_of_utf16(Char_Storage string, std::span<const std::uint32_t> units, Report report) noexcept
{
    if (begins_with_byte_order_mark(units))
        return false;
    const auto write = [units](char *utf8) { return utf8_from_utf16(units, utf8); };
    return write_contents(string, utf8_length_of_utf16(units), write, report);
}

/// Sets the string to the code points of UTF-8. Returns false, with the string unchanged, for ill-formed
/// text, and on a link, which refuses.
template <class Report>
bool set_to_code_points_of_utf8(Wide_Char_Storage string, std::span<const char> utf8, Report report) noexcept
{
    if (string.is_link()) {
        report(notes::length_through_link);
        return false;
    }
    return is_valid_utf8(utf8) &&
           write_decoded(string, utf8, code_point_count_of_utf8(utf8), code_points_from_utf8, report);
}

/// Sets the string to the UTF-8 of code points; a link becomes an owner. Returns false, with the string
/// unchanged, if an element is not a code point.
template <class Report>
bool set_to_utf8_of_code_points(Char_Storage string, std::span<const std::uint32_t> code_points,
                                Report report) noexcept
{
    if (!are_code_points(code_points))
        return false;
    const auto write = [code_points](char *utf8) { return utf8_from_code_points(code_points, utf8); };
    return write_contents(string, utf8_length_of_code_points(code_points), write, report);
}

/// Splits each code point above 0xFFFF into a surrogate pair. A link refuses.
template <class Report>
void split_to_surrogate_pairs(Wide_Char_Storage string, Report report) noexcept
{
    if (string.is_link())
        return report(notes::room_through_link);
    const std::size_t pairs = count_of_pairs(string.elements());
    if (pairs == 0 || !grow(string, std::uint64_t{string.count} + pairs, report))
        return;
    split_to_surrogate_pairs(string.data, string.count, pairs);
    string.count += static_cast<std::uint32_t>(pairs);
}

} // namespace zeb::engine
