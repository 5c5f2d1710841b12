/// Comparing, searching, trimming, splitting and joining texts of 8-bit characters.
///
/// Texts are views of up to 4294967295 characters; a longer one counts as empty. What an operation returns as
/// a view lies in the text that it was given. White space is that of ASCII. An empty part is found nowhere,
/// and as a separator leaves a text whole.
#pragma once

#include <compare>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

namespace zeb
{

/// Compares bytes as unsigned numbers; a proper prefix is less.
std::strong_ordering compare(std::string_view left, std::string_view right) noexcept;

/// Compares bytes as signed numbers, with upper case as lower case by the C library's locale.
std::weak_ordering compare_ignoring_case(std::string_view left, std::string_view right) noexcept;

/// Whether two texts are equal but for upper and lower case by the C library's locale.
bool is_equal_ignoring_case(std::string_view left, std::string_view right) noexcept;

/// Returns the first occurrence of a part at or after `from`.
std::optional<std::size_t> find(std::string_view text, std::string_view part, std::size_t from = 0) noexcept;

/// Returns the last occurrence of a part.
std::optional<std::size_t> find_last(std::string_view text, std::string_view part) noexcept;

/// Return the text without white space at both ends, at its beginning, and at its end.
std::string_view trim(std::string_view text) noexcept;
std::string_view trim_left(std::string_view text) noexcept;
std::string_view trim_right(std::string_view text) noexcept;

/// The pieces of a text between the occurrences of a separator, found one by one as the range is walked:
///
///     for (std::string_view field : zeb::Pieces(line, ","))
///
/// A text with n separators has n + 1 pieces, empty ones included; an empty text is one empty piece. The text
/// and the separator must outlive the walk.
class Pieces
{
public:
    Pieces(std::string_view text, std::string_view separator) noexcept : whole(text), between(separator) {}

    class iterator
    {
    public:
        using value_type = std::string_view;
        using difference_type = std::ptrdiff_t;

        iterator() noexcept = default;
        std::string_view operator*() const noexcept { return piece; }
        iterator &operator++() noexcept
        {
            advance();
            return *this;
        }
        iterator operator++(int) noexcept
        {
            const iterator former = *this;
            advance();
            return former;
        }
        bool operator==(const iterator &other) const noexcept
        {
            return has_ended == other.has_ended && (has_ended || piece.data() == other.piece.data());
        }
        bool operator==(std::default_sentinel_t) const noexcept { return has_ended; }

    private:
        friend class Pieces;
        explicit iterator(std::string_view text, std::string_view separator) noexcept
            : rest(text), between(separator), is_last(false), has_ended(false)
        {
            advance();
        }
        void advance() noexcept;

        std::string_view piece, rest, between;
        bool is_last = true;   ///< nothing follows the piece
        bool has_ended = true; ///< nor is there a piece
    };

    iterator begin() const noexcept { return iterator(whole, between); }
    std::default_sentinel_t end() const noexcept { return {}; }

private:
    std::string_view whole, between;
};

/// Returns the texts of a range one after the other, with the separator between any two. Throws nothing but
/// what std::string does without memory.
template <class Texts>
std::string join(const Texts &texts, std::string_view separator)
{
    std::size_t length = 0, number = 0;
    for (const std::string_view text : texts) {
        length += text.size();
        ++number;
    }
    std::string joined;
    joined.reserve(length + (number < 2 ? 0 : (number - 1) * separator.size()));
    for (const std::string_view text : texts) {
        joined.append(text);
        if (--number != 0)
            joined.append(separator);
    }
    return joined;
}

/// Where the number at the start of a text ends: the length of "inf", "infinity" or "nan" in any case, else
/// of the leading digits, signs, full stops and letters of exponents (E, F, G, e, f, g). None for an empty
/// text and for one of such characters only.
std::optional<std::size_t> number_prefix_length(std::string_view text) noexcept;

/// Where the first number begins, and the last character of the last one.
std::optional<std::size_t> number_start(std::string_view text) noexcept;
std::optional<std::size_t> number_end(std::string_view text) noexcept;

} // namespace zeb
