/// Splitting a text into the strings that an array holds.
#pragma once

#include "arrays/engine/algorithms/search.hpp"
#include "arrays/engine/overlap.hpp"
#include "arrays/engine/storage/insertion.hpp"
#include "strings/engine/string_notes.hpp"
#include "strings/engine/string_storage.hpp"

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

/// Calls `visit(string, characters)` for each piece and the string that takes it. Stops where that returns
/// false, and returns false then.
template <class Element, class Character, class Visit>
bool for_each_piece(Element *strings, std::span<const Character> text, std::span<const std::uint32_t> ends,
                    std::size_t separator_size, Visit visit) noexcept
{
    std::size_t begin = 0;
    for (const std::uint32_t end : ends) {
        if (!visit(*strings++, text.subspan(begin, end - begin)))
            return false;
        begin = end + separator_size;
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

/// A text, copied if it lies in a string of the array.
template <class Character>
class Foreign_Text
{
public:
    template <class Kind, class Storage_Of>
    Foreign_Text(std::span<const Character> text, Array_Storage<Kind> array, Storage_Of storage_of) noexcept
        : lies_in_array(is_in(text, array, storage_of)), given(text),
          copy({}, lies_in_array ? text : std::span<const Character>())
    {
    }
    bool is_valid() const noexcept { return copy.is_valid(); }
    std::span<const Character> characters() const noexcept { return lies_in_array ? copy.elements() : given; }

private:
    template <class Kind, class Storage_Of>
    static bool is_in(std::span<const Character> text, Array_Storage<Kind> array, Storage_Of storage_of)
    {
        const std::uint32_t slots = std::max(array.count, array.kind.made());
        return std::any_of(array.data, array.data + slots, [&](const auto &string) {
            return string != typename Kind::Element{} &&
                   overlaps(text, storage_of(string).data, storage_of(string).block_size());
        });
    }

    bool lies_in_array;
    std::span<const Character> given;
    Element_Copy<Plain_Elements<Character>> copy;
};

} // namespace splitting_detail

/// Sets the strings of an array to the pieces of a text and returns their number. `storage_of` returns the
/// storage of a string. A link refuses; then, and if allocation fails, returns 0 and changes nothing.
template <class Kind, class Character, class Storage_Of, class Report>
std::uint32_t split_text(std::span<const Character> given, std::span<const Character> given_separator,
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
    const Foreign_Text<Character> text(given, array, storage_of),
        separator(given_separator, array, storage_of);
    if (!text.is_valid() || !separator.is_valid())
        return failed();
    const Piece_Ends ends(text.characters(), separator.characters());
    if (!ends.is_valid())
        return failed();
    const auto count = static_cast<std::uint32_t>(ends.elements().size());
    if (!grow(array, count, report) || !open_up_to(array, count, report))
        return 0;
    const auto each_piece = [&](auto visit) {
        return for_each_piece(array.data, text.characters(), ends.elements(), separator.characters().size(),
                              visit);
    };
    using String = typename Kind::Element;
    using Piece = std::span<const Character>;
    const auto make_room = [&](String string, Piece piece) { // in storage set by the caller it may be nil
        return string != String{} && has_room(storage_of(string), static_cast<std::uint32_t>(piece.size()));
    };
    if (!each_piece(make_room))
        return failed();
    each_piece([&](String string, Piece piece) {
        set_characters(storage_of(string), piece);
        return true;
    });
    array.count = count;
    return count;
}

} // namespace zeb::engine
