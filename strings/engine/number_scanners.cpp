#include "strings/engine/number_scanners.hpp"

#include "core/engine/char_span.hpp"
#include "strings/engine/character_class.hpp"

#include <array>

namespace zeb::engine
{
namespace
{

using Text = std::span<const char>;

constexpr Char_Span inf = span_of("inf");
constexpr Char_Span infinity = span_of("infinity");
constexpr Char_Span nan = span_of("nan");

/// One flag per byte value: whether it belongs to the set.
using Character_Set = std::array<bool, 256>;

constexpr Character_Set set_of(Char_Span characters)
{
    Character_Set set{};
    for (std::uint32_t i = 0; i < characters.length; ++i)
        set[static_cast<unsigned char>(characters.char_c_array[i])] = true;
    return set;
}

constexpr Character_Set number_characters = set_of(span_of("+-.0123456789EFGefg"));
constexpr Character_Set lower_number_characters = set_of(span_of("+-.0123456789efg"));

bool is_in(const Character_Set &set, char character) { return set[static_cast<unsigned char>(character)]; }

/// Maps capitals to lower case; maps nothing else to a letter.
char small(char character) { return static_cast<char>(character | 0x20); }

/// Whether the text has the word, in any case, at the index.
bool has_word(Text text, std::size_t at, Char_Span word)
{
    if (text.size() - at < word.length)
        return false;
    for (std::uint32_t i = 0; i < word.length; ++i)
        if (small(text[at + i]) != word.char_c_array[i])
            return false;
    return true;
}

/// Whether the text ends with the word.
bool ends_with(Text text, Char_Span word)
{
    return text.size() >= word.length && has_word(text, text.size() - word.length, word);
}

std::size_t first_index_in(const Character_Set &set, bool wanted, Text text, std::size_t from)
{
    while (from < text.size() && is_in(set, text[from]) != wanted)
        ++from;
    return from;
}

/// Returns ZEB_NOT_FOUND, which is -1 as an index, if there is none.
std::uint32_t last_index_in(const Character_Set &set, bool wanted, Text text)
{
    std::size_t end = text.size();
    while (end > 0 && is_in(set, text[end - 1]) != wanted)
        --end;
    return static_cast<std::uint32_t>(end) - 1;
}

std::uint32_t found_before(std::size_t end, std::size_t index)
{
    return index == end ? ZEB_NOT_FOUND : static_cast<std::uint32_t>(index);
}

} // namespace

std::uint32_t index_of_number_start(Text text) noexcept
{
    std::size_t start = 0;
    while (start < text.size() && is_space(text[start]))
        ++start;
    if (has_word(text, start, inf) || has_word(text, start, nan))
        return static_cast<std::uint32_t>(start);
    return found_before(text.size(), first_index_in(number_characters, true, text, start));
}

std::uint32_t number_prefix_length(Text text) noexcept
{
    for (const Char_Span word : {infinity, inf, nan})
        if (has_word(text, 0, word))
            return word.length;
    return found_before(text.size(), first_index_in(number_characters, false, text, 0));
}

std::uint32_t index_of_number_end(Text text) noexcept
{
    std::size_t count = text.size();
    while (count > 0 && is_space(text[count - 1]))
        --count;
    const Text trimmed = text.first(count);
    for (const Char_Span word : {inf, nan, infinity})
        if (ends_with(trimmed, word))
            return static_cast<std::uint32_t>(count) - 1;
    return last_index_in(number_characters, true, trimmed);
}

std::uint32_t index_of_last_non_number(Text text) noexcept
{
    return last_index_in(lower_number_characters, false, text);
}

} // namespace zeb::engine
