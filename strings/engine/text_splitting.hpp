/// Splitting a text into the strings that an array holds.
#pragma once

#include "arrays/engine/algorithms/search.hpp"
#include "arrays/engine/overlap.hpp"
#include "arrays/engine/storage/insertion.hpp"
#include "strings/engine/string_notes.hpp"
#include "strings/engine/string_storage.hpp"
#include "strings/engine/text_prefetch.hpp"

#include <algorithm>
#include <cstring>
#include <span>

namespace zeb::engine
{

/// Where the pieces of a text end, in the order of the text. Without a separator the text is one piece.
class Piece_Ends
{
public:
    template <class Character>
    Piece_Ends(std::span<const Character> text, std::span<const Character> separator) noexcept
    {
        std::uint32_t at = find_occurrence<Character>(text, separator);
        while (at != ZEB_NOT_FOUND && append(at))
            at = find_occurrence<Character>(text, separator,
                                            at + static_cast<std::uint32_t>(separator.size()));
        append(static_cast<std::uint32_t>(text.size()));
    }
    Piece_Ends(const Piece_Ends &) = delete;
    Piece_Ends &operator=(const Piece_Ends &) = delete;
    ~Piece_Ends() { release(data); }

    /// False if there was no memory for the ends.
    bool is_valid() const noexcept { return !failed; }

    std::span<const std::uint32_t> elements() const noexcept { return {data, count}; }

private:
    bool append(std::uint32_t end) noexcept
    {
        constexpr std::uint32_t growth_seed = 64;
        const Array_Storage<Plain_Elements<std::uint32_t>> ends{
            {data, count, marker, {}}, capacity, growth_seed};
        append_element(ends, end, [this](Char_Span) { failed = true; });
        return !failed;
    }

    std::uint32_t *data = nullptr;
    std::uint32_t count = 0, capacity = 0, marker = 0;
    bool failed = false;
};

namespace splitting_detail
{

/// Calls `visit(storage, characters)` for each piece and the string that takes it. Stops where that returns
/// false or a string is nil, as it may be in storage set by the caller, and returns false then.
template <class Element, class Character, class Storage_Of, class Visit>
bool for_each_piece(Element *strings, std::span<const Character> text, std::span<const std::uint32_t> ends,
                    std::size_t separator_size, Storage_Of storage_of, Visit visit) noexcept
{
    std::size_t begin = 0;
    for (std::size_t i = 0; i < ends.size(); begin = ends[i++] + separator_size) {
        prefetch_text(strings, i, ends.size(), storage_of);
        if (strings[i] == Element{} || !visit(storage_of(strings[i]), text.subspan(begin, ends[i] - begin)))
            return false;
    }
    return true;
}

/// Grows a string for new contents and keeps the old ones, also those that a link views.
template <class Character>
bool has_room(Text_Storage<Character> string, std::uint32_t length) noexcept
{
    const auto silent = [](Char_Span) {};
    if (!string.is_link())
        return grow(string, length, silent);
    const std::uint64_t wanted = grown_capacity(0, std::max(length, string.count), string.growth_seed);
    return replace_with_copy(Vector_Storage<Plain_Elements<Character>>(string), Source::of_another_array,
                             string.data, string.count, wanted, string.capacity, silent);
}

template <class Character>
void set_characters(Text_Storage<Character> string, std::span<const Character> characters) noexcept
{
    if (!characters.empty())
        std::memcpy(string.data, characters.data(), characters.size_bytes());
    string.count = static_cast<std::uint32_t>(characters.size());
}

} // namespace splitting_detail

/// Sets the strings of an array to the pieces of a text and returns their number. `storage_of` returns the
/// storage of a string. A link refuses; then, and if allocation fails, returns 0 and changes nothing.
template <class Kind, class Character, class Storage_Of, class Report>
std::uint32_t split_text(std::span<const Character> text, std::span<const Character> separator,
                         Array_Storage<Kind> array, Storage_Of storage_of, Report report) noexcept
{
    using namespace splitting_detail;
    if (array.is_link()) {
        report(notes::split_into_link);
        return 0;
    }
    const auto failed = [&] {
        report(notes::reallocate_failed);
        return std::uint32_t{0};
    };
    const Piece_Ends ends(text, separator);
    if (!ends.is_valid())
        return failed();
    const auto count = static_cast<std::uint32_t>(ends.elements().size());
    if (!grow(array, count, report) || !open_up_to(array, count, report))
        return 0;
    const auto each_piece = [&](auto visit) {
        return for_each_piece(array.data, text, ends.elements(), separator.size(), storage_of, visit);
    };
    using Storage = Text_Storage<Character>;
    using Piece = std::span<const Character>;
    bool is_own = false; // whether the text lies in a string that takes a piece
    const auto make_room = [&](Storage string, Piece piece) {
        is_own = overlaps(text, string.data, string.block_size());
        return !is_own && has_room(string, static_cast<std::uint32_t>(piece.size()));
    };
    bool is_ready = each_piece(make_room);
    const Element_Copy<Plain_Elements<Character>> copy({}, is_own ? text : Piece());
    if (is_own && copy.is_valid()) {
        text = copy.elements();
        is_ready = each_piece(make_room);
    }
    if (!is_ready)
        return failed();
    each_piece([](Storage string, Piece piece) {
        set_characters(string, piece);
        return true;
    });
    array.count = count;
    return count;
}

} // namespace zeb::engine
