/// Removing characters from the ends of growable strings, in place.
#pragma once

#include "arrays/engine/algorithms/search.hpp"
#include "strings/engine/string_notes.hpp"
#include "strings/engine/string_storage.hpp"

#include <array>
#include <cstring>
#include <span>

namespace zeb::engine
{

/// Which ends of a text are trimmed.
enum class Trimmed_Ends { both, left, right };

/// The white space of ASCII, by one comparison and a table of bits.
struct Is_White_Space {
    bool operator()(std::uint32_t unit) const noexcept
    {
        return unit <= ' ' && ((std::uint64_t{1} << ' ' | std::uint64_t{0x1F} << '\t') >> unit & 1) != 0;
    }
    bool operator()(char character) const noexcept
    {
        return (*this)(std::uint32_t{static_cast<unsigned char>(character)});
    }
};

/// The characters of a text, which the object does not refer to.
class Is_One_Of_Chars
{
public:
    explicit Is_One_Of_Chars(std::span<const char> characters) noexcept
    {
        for (const char character : characters)
            members[static_cast<unsigned char>(character)] = true;
    }
    bool operator()(char character) const noexcept { return members[static_cast<unsigned char>(character)]; }

private:
    std::array<bool, 256> members{};
};

/// The units of a text, which must not change meanwhile.
class Is_One_Of_Units
{
public:
    explicit Is_One_Of_Units(std::span<const std::uint32_t> units) noexcept : members(units) {}
    bool operator()(std::uint32_t unit) const noexcept
    {
        return first_index_of(members, unit) != ZEB_NOT_FOUND;
    }

private:
    std::span<const std::uint32_t> members;
};

inline Is_One_Of_Chars is_one_of(std::span<const char> characters) noexcept
{
    return Is_One_Of_Chars(characters);
}
inline Is_One_Of_Units is_one_of(std::span<const std::uint32_t> units) noexcept
{
    return Is_One_Of_Units(units);
}

/// Removes the characters at the ends that `is_dropped` names. A link refuses.
template <class Character, class Is_Dropped, class Report>
void trim_text(Text_Storage<Character> string, Trimmed_Ends ends, const Is_Dropped &is_dropped,
               Report report) noexcept
{
    if (string.is_link())
        return report(notes::trim_text_through_link);
    Character *const data = string.data;
    std::size_t begin = 0;
    std::size_t end = string.count;
    while (ends != Trimmed_Ends::left && end > 0 && is_dropped(data[end - 1]))
        --end;
    while (ends != Trimmed_Ends::right && begin < end && is_dropped(data[begin]))
        ++begin;
    if (begin != 0)
        std::memmove(data, data + begin, (end - begin) * sizeof(Character));
    string.count = static_cast<std::uint32_t>(end - begin);
}

} // namespace zeb::engine
