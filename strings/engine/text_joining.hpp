/// Joining texts to one.
#pragma once

#include "arrays/engine/overlap.hpp"
#include "strings/engine/c_strings.hpp"

#include <cstring>
#include <span>

namespace zeb::engine
{

namespace joining_detail
{

/// The texts of some strings, and what stands between them.
template <class Element, class Character, class Text_Of>
struct Joined_Text {
    std::span<Element const> strings;
    std::span<const Character> separator;
    Text_Of text_of;

    /// Calls `visit(characters)` for each piece of the joined text.
    template <class Visit>
    void for_each_piece(Visit visit) const noexcept
    {
        bool is_first = true;
        for (const Element &string : strings) {
            if (!is_first)
                visit(separator);
            visit(text_of(string));
            is_first = false;
        }
    }

    void put(Character *out) const noexcept
    {
        for_each_piece([&out](std::span<const Character> piece) {
            if (!piece.empty())
                std::memcpy(out, piece.data(), piece.size_bytes());
            out += piece.size();
        });
    }
};

/// Sets the string in a new block, for texts that lie in its own.
template <class Character, class Joined, class Report>
void set_in_new_block(Text_Storage<Character> string, const Joined &joined, std::uint64_t length,
                      Report report) noexcept
{
    Block block{nullptr, 0};
    if (!grow_block(block, length, string.growth_seed, string.layout()))
        return report(notes::reallocate_failed);
    joined.put(static_cast<Character *>(block.data));
    release(string.data);
    string.data = static_cast<Character *>(block.data);
    string.capacity = block.capacity;
    string.count = static_cast<std::uint32_t>(length);
}

} // namespace joining_detail

/// Sets the string to the texts of the strings with the separator between them. `text_of` returns the
/// characters of one. A link refuses.
template <class Character, class Element, class Text_Of, class Report>
void join_texts(Text_Storage<Character> string, std::span<Element const> strings,
                std::span<const Character> separator, Text_Of text_of, Report report) noexcept
{
    if (string.is_link())
        return report(notes::join_strings_through_link);
    const joining_detail::Joined_Text<Element, Character, Text_Of> joined{strings, separator, text_of};
    std::uint64_t length = 0;
    bool is_own = false;
    joined.for_each_piece([&](std::span<const Character> piece) {
        length += piece.size();
        is_own |= overlaps(piece, string.data, string.block_size());
    });
    if (is_own)
        return joining_detail::set_in_new_block(string, joined, length, report);
    if (!grow_text(string, length, report))
        return;
    joined.put(string.data);
    string.count = static_cast<std::uint32_t>(length);
}

} // namespace zeb::engine
