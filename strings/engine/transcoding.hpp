/// Growable strings made from text in another form of Unicode, without a detour over the platform.
#pragma once

#include "arrays/engine/allocator.hpp"
#include "arrays/engine/storage/own_source.hpp"
#include "arrays/engine/storage/resizing.hpp"
#include "strings/engine/string_storage.hpp"
#include "strings/engine/utf.hpp"

namespace zeb::engine
{

/// Room for a string's new contents, before it is known that they can be written: the string's own block
/// where it has the room, else a new one that takes its place when the contents are kept. A link gets a
/// block of its own.
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

    /// Makes what was written the string's contents.
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

/// Makes the string the `length` elements that `write` puts to the place it is given. Answers false where
/// `write` does; the elements past the count are then undefined, and so are those below it, if the block
/// had the room. A failed allocation is reported, changes nothing, and answers true.
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

/// Makes the string what `decode` writes of UTF-8, `length` elements. Answers false, without a look at the
/// string, where memory for a copy of text in the string's own block is short.
template <class Decode, class Report>
bool write_decoded(Wide_Char_Storage string, std::span<const char> utf8, std::uint64_t length, Decode decode,
                   Report report) noexcept
{
    const Own_Values<char> source({}, utf8, string.data, string.capacity * sizeof(std::uint32_t));
    const auto write = [&](std::uint32_t *units) { return decode(source.elements(), units); };
    return source.is_valid() && write_contents(string, length, write, report);
}

/// Makes the string the UTF-16 units of well-formed UTF-8, under the conditions of a new length: a link
/// refuses. Answers false for ill-formed text and for a byte-order mark in front; `write_contents` says
/// what the string then holds.
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

/// Makes the string the UTF-8 of UTF-16 units, of which only the low 16 bits count; a link becomes an
/// owner. Answers false for a surrogate without its partner and for a byte-order mark in front.
template <class Report>
bool set_to_utf8_of_utf16(Char_Storage string, std::span<const std::uint32_t> units, Report report) noexcept
{
    if (begins_with_byte_order_mark(units))
        return false;
    const auto write = [units](char *utf8) { return utf8_from_utf16(units, utf8); };
    return write_contents(string, utf8_length_of_utf16(units), write, report);
}

/// Makes the string the code points of UTF-8. Answers false, and leaves the string, when the text is
/// ill-formed, and on a link, which refuses.
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

/// Makes the string the UTF-8 of code points; a link becomes an owner. Answers false, and leaves the
/// string, where an element is none.
template <class Report>
bool set_to_utf8_of_code_points(Char_Storage string, std::span<const std::uint32_t> code_points,
                                Report report) noexcept
{
    if (!are_code_points(code_points))
        return false;
    const auto write = [code_points](char *utf8) { return utf8_from_code_points(code_points, utf8); };
    return write_contents(string, utf8_length_of_code_points(code_points), write, report);
}

/// Splits each code point past 0xFFFF to a surrogate pair. A link refuses.
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
