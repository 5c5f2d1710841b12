/// Character classes and case of 8-bit characters, by the C library's current locale.
#pragma once

#include <cctype>
#include <cstdint>
#include <cstdio>
#include <cstring>

namespace zeb::engine
{

/// Returns the C library's code of a character, taken as signed: byte 255 is EOF, which is in no class; other
/// negative values are the same bytes plus 256.
inline int class_code(char character) noexcept
{
    const int code = static_cast<signed char>(character);
    return code == EOF ? EOF : static_cast<unsigned char>(character);
}

inline bool is_space(char character) noexcept { return std::isspace(class_code(character)) != 0; }

/// Converts upper case to lower case, by the locale that is current when the object is made. Meant for one
/// operation.
class Case_Folding
{
public:
    char operator()(char character) const noexcept
    {
        const int code = class_code(character);
        return is_upper(code) ? static_cast<char>(to_lower(code)) : character;
    }

    /// Whether the 26 letters fold among themselves as in ASCII.
    bool folds_like_ascii() const noexcept
    {
        return are_upper('A') && lower_to_a_to_z('A') && lower_to_a_to_z('a');
    }

private:
#if defined(__GLIBC__)
    // Reads the tables behind the library's functions, because comparisons need them for every character.
    bool is_upper(int code) const noexcept { return (classes[code] & _ISupper) != 0; }
    int to_lower(int code) const noexcept { return lower_table[code]; }
    bool are_upper(int first) const noexcept
    {
        std::uint64_t common = ~std::uint64_t{0};
        for (int i = 0; i < 26; i += 4) {
            std::uint64_t four; // the last group overlaps by two
            std::memcpy(&four, classes + first + (i < 24 ? i : 22), sizeof four);
            common &= four;
        }
        constexpr std::uint64_t wanted = std::uint64_t{_ISupper} * 0x0001000100010001;
        return (common & wanted) == wanted;
    }
    bool lower_to_a_to_z(int first) const noexcept
    {
        static constexpr __int32_t letters[] = {'a', 'b', 'c', 'd', 'e', 'f', 'g', 'h', 'i',
                                                'j', 'k', 'l', 'm', 'n', 'o', 'p', 'q', 'r',
                                                's', 't', 'u', 'v', 'w', 'x', 'y', 'z'};
        return std::memcmp(lower_table + first, letters, sizeof letters) == 0;
    }

    const unsigned short *classes = *__ctype_b_loc();
    const __int32_t *lower_table = *__ctype_tolower_loc();
#else
    bool is_upper(int code) const noexcept { return std::isupper(code) != 0; }
    int to_lower(int code) const noexcept { return std::tolower(code); }
    /// Whether the 26 characters from `first` on are upper case, and whether their lower-case letters are a
    /// to z.
    bool are_upper(int first) const noexcept
    {
        for (int i = 0; i < 26; ++i)
            if (!is_upper(first + i))
                return false;
        return true;
    }
    bool lower_to_a_to_z(int first) const noexcept
    {
        for (int i = 0; i < 26; ++i)
            if (to_lower(first + i) != 'a' + i)
                return false;
        return true;
    }
#endif
};

} // namespace zeb::engine
