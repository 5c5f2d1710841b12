#include "encoding/engine/hexadecimal.hpp"

#include "encoding/engine/hex_kernels.hpp"
#include "encoding/engine/hex_loop.hpp"

#include <bit>
#include <cstring>

namespace zeb::engine
{
namespace
{

/// Writes a list whose values `put_all` writes, each with the separator after it, the last of which becomes "}".
template <class Value, class Put_All>
char *put_list(char *out, const Value *values, std::size_t n, Put_All put_all) noexcept
{
    *out++ = '{';
    if (n != 0) {
        out = put_all(out, values, n - 1);
        // The room may end with the list.
        char last[24];
        const std::size_t length = static_cast<std::size_t>(put_all(last, values + n - 1, 1) - last) - 2;
        std::memcpy(out, last, length);
        out += length;
    }
    *out = '}';
    return out + 1;
}

char *put_separated(char *out, std::uint64_t value) noexcept
{
    out = put_hex_digits(out, value);
    *out++ = ',';
    *out++ = ' ';
    return out;
}

template <class Value>
char *put_each(char *out, const Value *values, std::size_t n) noexcept
{
    for (std::size_t i = 0; i < n; ++i)
        out = put_separated(out, values[i]);
    return out;
}

} // namespace

char *put_hex_digits(char *out, std::uint64_t value) noexcept
{
    const int digits = (static_cast<int>(std::bit_width(value | 1)) + 3) / 4;
    for (int at = digits; at-- > 0; value >>= 4)
        out[at] = plain::hex_digits[value & 15];
    return out + digits;
}

char *put_hex_list(char *out, const std::uint8_t *values, std::size_t n) noexcept
{
    return put_list(out, values, n, kernels::hex().put_separated_bytes);
}

char *put_hex_list(char *out, const std::uint32_t *values, std::size_t n) noexcept
{
    return put_list(out, values, n, put_each<std::uint32_t>);
}

char *put_hex_list(char *out, void *const *values, std::size_t n) noexcept
{
    return put_list(out, reinterpret_cast<const std::uintptr_t *>(values), n, put_each<std::uintptr_t>);
}

} // namespace zeb::engine
