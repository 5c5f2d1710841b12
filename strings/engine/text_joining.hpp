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
    using Text = std::span<const Character>;

    std::span<Element const> strings;
    Text separator;
    Storage_Of storage_of;

    /// Calls `visit(characters)` for the text of each string, which is empty for nil.
    template <class Visit>
    void for_each_text(Visit visit) const noexcept
    {
        for (std::size_t i = 0; i < strings.size(); ++i) {
            prefetch_text(strings.data(), i, strings.size(), storage_of);
            visit(strings[i] != Element{} ? Text(storage_of(strings[i]).elements()) : Text());
        }
    }

    /// Returns the length, and sets `overlaps_block` if a part lies in the block.
    std::uint64_t length(const void *block, std::size_t block_size, bool &overlaps_block) const noexcept
    {
        std::uint64_t length = strings.empty() ? 0 : separator.size() * (strings.size() - 1);
        overlaps_block = overlaps(separator, block, block_size);
        for_each_text([&](Text text) {
            length += text.size();
            overlaps_block |= overlaps(text, block, block_size);
        });
        return length;
    }

    void put(Character *out) const noexcept
    {
        Text before;
        for_each_text([&](Text text) {
            if (before.size() == 1) // as most separators
                *out = before[0];
            else
                copy(before, out);
            out += before.size();
            copy(text, out);
            out += text.size();
            before = separator;
        });
    }

private:
    static void copy(Text text, Character *out) noexcept
    {
        if (!text.empty())
            std::memcpy(out, text.data(), text.size_bytes());
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
    bool is_own = false;
    const std::uint64_t length = joined.length(string.data, string.block_size(), is_own);
    if (is_own)
        return joining_detail::set_in_new_block(string, joined, length, report);
    if (!grow_text(string, length, report))
        return;
    joined.put(string.data);
    string.count = static_cast<std::uint32_t>(length);
}

} // namespace zeb::engine
