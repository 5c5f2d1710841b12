/// Joining texts to one.
#pragma once

#include "arrays/engine/overlap.hpp"
#include "strings/engine/c_strings.hpp"
#include "strings/engine/text_prefetch.hpp"

#include <cstring>
#include <span>

namespace zeb::engine
{

namespace joining_detail
{

/// The texts of some strings, and what stands between them.
template <class Element, class Character, class Storage_Of>
struct Joined_Text {
    std::span<Element const> strings;
    std::span<const Character> separator;
    Storage_Of storage_of;

    /// Calls `visit(characters)` for each piece of the joined text.
    template <class Visit>
    void for_each_piece(Visit visit) const noexcept
    {
        for (std::size_t i = 0; i < strings.size(); ++i) {
            prefetch_text(strings.data(), i, strings.size(), storage_of);
            if (i != 0)
                visit(separator);
            if (strings[i] != Element{})
                visit(std::span<const Character>(storage_of(strings[i]).elements()));
        }
    }

    void put(Character *out) const noexcept
    {
        for_each_piece([&out](std::span<const Character> piece) {
            if (piece.size() == 1) // as most separators
                *out = piece[0];
            else if (!piece.empty())
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

/// Sets the string to the texts of the strings with the separator between them. `storage_of` returns
/// the storage of one. A link refuses.
template <class Character, class Element, class Storage_Of, class Report>
void join_texts(Text_Storage<Character> string, std::span<Element const> strings,
                std::span<const Character> separator, Storage_Of storage_of, Report report) noexcept
{
    if (string.is_link())
        return report(notes::join_strings_through_link);
    const joining_detail::Joined_Text<Element, Character, Storage_Of> joined{strings, separator, storage_of};
    const void *const block = string.data;
    const std::size_t block_size = string.block_size();
    std::uint64_t length = 0;
    bool is_own = false;
    joined.for_each_piece([&](std::span<const Character> piece) {
        length += piece.size();
        is_own |= overlaps(piece, block, block_size);
    });
    if (is_own)
        return joining_detail::set_in_new_block(string, joined, length, report);
    if (!grow_text(string, length, report))
        return;
    joined.put(string.data);
    string.count = static_cast<std::uint32_t>(length);
}

} // namespace zeb::engine
