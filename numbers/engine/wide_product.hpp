/// 128-bit products.
#pragma once

#include <cstdint>

namespace zeb::engine
{

struct Wide_Unsigned {
    std::uint64_t high;
    std::uint64_t low;
};

/// Returns the 128-bit product of two 64-bit numbers.
constexpr Wide_Unsigned wide_product(std::uint64_t a, std::uint64_t b) noexcept
{
#if defined(__SIZEOF_INT128__)
    __extension__ using Product = unsigned __int128;
    const Product product = Product{a} * b;
    return {static_cast<std::uint64_t>(product >> 64), static_cast<std::uint64_t>(product)};
#else
    const std::uint64_t a_low = a & 0xFFFFFFFF, a_high = a >> 32;
    const std::uint64_t b_low = b & 0xFFFFFFFF, b_high = b >> 32;
    const std::uint64_t low = a_low * b_low;
    const std::uint64_t middle = a_high * b_low + (low >> 32); // cannot carry out
    const std::uint64_t other = a_low * b_high + (middle & 0xFFFFFFFF);
    return {a_high * b_high + (middle >> 32) + (other >> 32), other << 32 | (low & 0xFFFFFFFF)};
#endif
}

} // namespace zeb::engine
