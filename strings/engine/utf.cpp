#include "strings/engine/utf.hpp"

#include "strings/engine/text_kernels.hpp"

#include <algorithm>
#include <cstring>

namespace zeb::engine
{
namespace
{

constexpr std::uint32_t last_code_point = 0x10FFFF;
constexpr std::uint32_t first_past_16_bits = 0x10000;

constexpr bool is_high_surrogate(std::uint32_t unit) { return unit >> 10 == 0xD800 >> 10; }
constexpr bool is_low_surrogate(std::uint32_t unit) { return unit >> 10 == 0xDC00 >> 10; }
constexpr bool is_surrogate(std::uint32_t unit) { return unit >> 11 == 0xD800 >> 11; }
constexpr bool needs_surrogate_pair(std::uint32_t unit)
{
    return unit >= first_past_16_bits && unit <= last_code_point;
}

constexpr std::uint32_t joined(std::uint32_t high, std::uint32_t low)
{
    return first_past_16_bits + ((high & 0x3FF) << 10 | (low & 0x3FF));
}

void put_pair(std::uint32_t code_point, std::uint32_t *units)
{
    units[0] = 0xD800 + ((code_point - first_past_16_bits) >> 10);
    units[1] = 0xDC00 + (code_point & 0x3FF);
}

/// A code point decoded from UTF-8 and its length in bytes; 0 bytes if ill-formed.
struct Decoded {
    std::uint32_t code_point;
    unsigned length;
};

constexpr Decoded ill_formed{0, 0};

constexpr bool is_continuation(std::uint8_t byte) { return (byte & 0xC0) == 0x80; }

/// Decodes the non-ASCII character at `at`, where `left` bytes remain.
inline Decoded decode(const std::uint8_t *at, std::size_t left)
{
    const std::uint32_t lead = at[0];
    if (left < 2 || !is_continuation(at[1]))
        return ill_formed;
    std::uint32_t code = at[1] & 0x3F;
    if (lead < 0xE0)
        return lead < 0xC2 ? ill_formed : Decoded{(lead & 0x1F) << 6 | code, 2};
    if (left < 3 || !is_continuation(at[2]))
        return ill_formed;
    code = code << 6 | (at[2] & 0x3F);
    if (lead < 0xF0) {
        code |= (lead & 0x0F) << 12;
        return code < 0x800 || is_surrogate(code) ? ill_formed : Decoded{code, 3};
    }
    if (left < 4 || !is_continuation(at[3]))
        return ill_formed;
    code = (lead & 0x07) << 18 | code << 6 | (at[3] & 0x3F);
    return lead > 0xF4 || !needs_surrogate_pair(code) ? ill_formed : Decoded{code, 4};
}

constexpr std::size_t word = sizeof(std::uint64_t);
constexpr unsigned words_before_vectors = 4;

bool is_ascii_word(const std::uint8_t *at)
{
    std::uint64_t bytes;
    std::memcpy(&bytes, at, sizeof bytes);
    return (bytes & 0x8080808080808080) == 0;
}

/// Widens ASCII a word at a time, and long runs with vectors. Returns the number of bytes widened, which may
/// be fewer than the run has.
std::size_t widen_ascii(const std::uint8_t *at, std::size_t left, std::uint32_t *units)
{
    std::size_t done = 0;
    for (unsigned words = 0; left - done >= word && is_ascii_word(at + done); done += word) {
        if (words++ == words_before_vectors)
            return done + kernels::widen_ascii(at + done, left - done, units + done);
        for (std::size_t k = 0; k < word; ++k)
            units[done + k] = at[done + k];
    }
    return done;
}

/// Stores a code point as one element, and returns the address after it.
struct Put_Code_Point {
    std::uint32_t *operator()(std::uint32_t code_point, std::uint32_t *units) const
    {
        *units = code_point;
        return units + 1;
    }
};

/// Stores a code point as one or two UTF-16 units.
struct Put_Utf16 {
    std::uint32_t *operator()(std::uint32_t code_point, std::uint32_t *units) const
    {
        if (code_point < first_past_16_bits)
            return Put_Code_Point()(code_point, units);
        put_pair(code_point, units);
        return units + 2;
    }
};

const std::uint8_t *bytes_of(std::span<const char> text)
{
    return reinterpret_cast<const std::uint8_t *>(text.data());
}

template <class Put>
bool decode_all(std::span<const char> utf8, std::uint32_t *units, Put put)
{
    const std::uint8_t *at = bytes_of(utf8);
    const std::uint8_t *const end = at + utf8.size();
    while (at != end) {
        if (*at < 0x80) {
            const std::size_t ascii = widen_ascii(at, static_cast<std::size_t>(end - at), units);
            at += ascii;
            units += ascii;
            for (; at != end && *at < 0x80; ++at)
                *units++ = *at;
            continue;
        }
        // Text tends to stay within one alphabet, so runs of two-byte characters have a loop of their own.
        for (; end - at >= 2 && at[0] >= 0xC2 && at[0] < 0xE0 && is_continuation(at[1]); at += 2)
            *units++ = static_cast<std::uint32_t>((at[0] & 0x1F) << 6 | (at[1] & 0x3F));
        if (at == end || *at < 0x80)
            continue;
        const Decoded next = decode(at, static_cast<std::size_t>(end - at));
        if (next.length == 0)
            return false;
        units = put(next.code_point, units);
        at += next.length;
    }
    return true;
}

/// Writes a code point that UTF-8 can encode, and returns the address after it.
inline std::uint8_t *put_utf8(std::uint32_t code_point, std::uint8_t *bytes)
{
    const auto continuation = [code_point](unsigned shift) {
        return static_cast<std::uint8_t>(0x80 | (code_point >> shift & 0x3F));
    };
    if (code_point < 0x80) {
        *bytes++ = static_cast<std::uint8_t>(code_point);
        return bytes;
    }
    if (code_point < 0x800) {
        *bytes++ = static_cast<std::uint8_t>(0xC0 | code_point >> 6);
    } else {
        if (code_point < first_past_16_bits) {
            *bytes++ = static_cast<std::uint8_t>(0xE0 | code_point >> 12);
        } else {
            *bytes++ = static_cast<std::uint8_t>(0xF0 | code_point >> 18);
            *bytes++ = continuation(12);
        }
        *bytes++ = continuation(6);
    }
    *bytes++ = continuation(0);
    return bytes;
}

/// A code point read from 32-bit elements and the number of elements; 0 if ill-formed.
using Taken = Decoded;

struct Take_Code_Point {
    Taken operator()(const std::uint32_t *at, std::size_t) const
    {
        return *at > last_code_point || is_surrogate(*at) ? ill_formed : Taken{*at, 1};
    }
};

struct Take_Utf16 {
    Taken operator()(const std::uint32_t *at, std::size_t left) const
    {
        const std::uint32_t unit = *at & 0xFFFF;
        if (!is_surrogate(unit))
            return {unit, 1};
        const bool paired = is_high_surrogate(unit) && left > 1 && is_low_surrogate(at[1] & 0xFFFF);
        return paired ? Taken{joined(unit, at[1]), 2} : ill_formed;
    }
};

template <class Take>
bool encode_all(std::span<const std::uint32_t> units, char *utf8, Take take)
{
    const std::uint32_t *at = units.data();
    const std::uint32_t *const end = at + units.size();
    std::uint8_t *bytes = reinterpret_cast<std::uint8_t *>(utf8);
    for (unsigned ascii = 0; at != end;) {
        const std::size_t left = static_cast<std::size_t>(end - at);
        const Taken next = take(at, left);
        if (next.length == 0)
            return false;
        bytes = put_utf8(next.code_point, bytes);
        at += next.length;
        ascii = next.code_point < 0x80 ? ascii + 1 : 0;
        if (ascii == word) {
            const std::size_t more = kernels::narrow_ascii(at, left - next.length, bytes);
            at += more;
            bytes += more;
            ascii = 0;
        }
    }
    return true;
}

} // namespace

bool is_valid_utf8(std::span<const char> text) noexcept
{
    const std::uint8_t *at = bytes_of(text);
    const std::uint8_t *const end = at + text.size();
    while (at != end) {
        const std::size_t left = static_cast<std::size_t>(end - at);
        if (left >= word && is_ascii_word(at)) {
            at += word;
            continue;
        }
        const Decoded next = *at < 0x80 ? Decoded{*at, 1} : decode(at, left);
        if (next.length == 0)
            return false;
        at += next.length;
    }
    return true;
}

bool begins_with_byte_order_mark(std::span<const char> utf8) noexcept
{
    return utf8.size() >= 3 && std::memcmp(utf8.data(), "\xEF\xBB\xBF", 3) == 0;
}

bool begins_with_byte_order_mark(std::span<const std::uint32_t> utf16) noexcept
{
    const std::uint32_t first = utf16.empty() ? 0 : utf16[0] & 0xFFFF;
    return first == 0xFEFF || first == 0xFFFE;
}

std::size_t utf16_length_of_utf8(std::span<const char> utf8) noexcept
{
    const kernels::Utf8_Starts starts = kernels::count_utf8_starts(bytes_of(utf8), utf8.size());
    return starts.all + starts.of_four;
}

bool utf16_from_utf8(std::span<const char> utf8, std::uint32_t *units) noexcept
{
    return decode_all(utf8, units, Put_Utf16());
}

std::size_t utf8_length_of_utf16(std::span<const std::uint32_t> units) noexcept
{
    const kernels::Units_Above above = kernels::count_low_halves_above(units.data(), units.size());
    return units.size() + above.at_0x80 + above.at_0x800 - above.surrogates;
}

bool utf8_from_utf16(std::span<const std::uint32_t> units, char *utf8) noexcept
{
    return encode_all(units, utf8, Take_Utf16());
}

std::size_t code_point_count_of_utf8(std::span<const char> utf8) noexcept
{
    return kernels::count_utf8_starts(bytes_of(utf8), utf8.size()).all;
}

bool code_points_from_utf8(std::span<const char> utf8, std::uint32_t *code_points) noexcept
{
    return decode_all(utf8, code_points, Put_Code_Point());
}

std::size_t utf8_length_of_code_points(std::span<const std::uint32_t> code_points) noexcept
{
    const kernels::Units_Above above = kernels::count_units_above(code_points.data(), code_points.size());
    return code_points.size() + above.at_0x80 + above.at_0x800 + above.at_0x10000;
}

bool utf8_from_code_points(std::span<const std::uint32_t> code_points, char *utf8) noexcept
{
    return encode_all(code_points, utf8, Take_Code_Point());
}

bool are_code_points(std::span<const std::uint32_t> elements) noexcept
{
    const auto is_one = [](std::uint32_t unit) { return unit <= last_code_point && !is_surrogate(unit); };
    return std::all_of(elements.begin(), elements.end(), is_one);
}

std::size_t join_surrogate_pairs(std::span<std::uint32_t> units) noexcept
{
    std::size_t written = 0;
    for (std::size_t at = 0; at < units.size(); ++at) {
        std::uint32_t unit = units[at];
        if (is_high_surrogate(unit) && at + 1 < units.size() && is_low_surrogate(units[at + 1]))
            unit = joined(unit, units[++at]);
        units[written++] = unit;
    }
    return written;
}

std::size_t count_of_pairs(std::span<const std::uint32_t> code_points) noexcept
{
    const auto counted = std::count_if(code_points.begin(), code_points.end(), needs_surrogate_pair);
    return static_cast<std::size_t>(counted);
}

void split_to_surrogate_pairs(std::uint32_t *units, std::size_t count, std::size_t pairs) noexcept
{
    // From the end, so that no code point is overwritten before it is read.
    for (std::size_t at = count; pairs != 0; --at) {
        const std::uint32_t unit = units[at - 1];
        if (needs_surrogate_pair(unit))
            put_pair(unit, units + at - 1 + --pairs);
        else
            units[at - 1 + pairs] = unit;
    }
}

} // namespace zeb::engine
