/// Numbers as text, without allocation. The decimal point is '.' in every locale.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace zeb
{

/// A short text, held by value; a view of it lives as long as it does.
class Number_Text
{
public:
    static constexpr std::size_t room = 96;

    std::string_view view() const noexcept { return {characters, length}; }
    operator std::string_view() const noexcept { return view(); } // NOLINT: a text may be used as its view
    const char *c_str() const noexcept { return characters; }
    std::size_t size() const noexcept { return length; }

    /// Makes the text of what `write` writes to the room that it is given; it returns where the text ends.
    template <class Write>
    static Number_Text made_by(Write write) noexcept
    {
        Number_Text text;
        text.length = static_cast<std::size_t>(write(text.characters) - text.characters);
        text.characters[text.length] = '\0';
        return text;
    }

private:
    char characters[room];
    std::size_t length = 0;
};

/// Returns the shortest text that reads back as the same number, fixed from 0.0001 to below 10^16, else with
/// an exponent: "0.1", "1e+22". "Inf", "-Inf", "NaN", "-0".
Number_Text shortest_text(double number) noexcept;
Number_Text shortest_text(float number) noexcept;

/// Returns a text for people: fixed from 0.0001 to below 1000000 with at most 12 decimals below 1 and 10
/// above (4 for a float), else with an exponent and 15 significant digits (6). 0 is "0", infinity of either
/// sign "Inf", NaN "NaN".
Number_Text pretty_text(double number) noexcept;
Number_Text pretty_text(float number) noexcept;

/// Returns the number with at most `decimals` decimals (13 at most), without trailing zeros. A number that is
/// too large for 64-bit digits has the exponent form; infinity of either sign is "Inf", NaN "NaN".
Number_Text fixed_text(double number, std::uint32_t decimals) noexcept;

/// Return the decimal digits.
Number_Text decimal_text(std::int64_t number) noexcept;
Number_Text decimal_text(std::uint64_t number) noexcept;
inline Number_Text decimal_text(std::int32_t number) noexcept { return decimal_text(std::int64_t{number}); }
inline Number_Text decimal_text(std::uint32_t number) noexcept { return decimal_text(std::uint64_t{number}); }

} // namespace zeb
