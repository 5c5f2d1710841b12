#include "numbers/engine/powers_of_ten.hpp"

#include <cstddef>

namespace zeb::engine
{
namespace
{

/// A natural number of up to 1152 bits, lowest limb first, with the operations that the table needs at
/// compile time.
struct Big_Natural {
    static constexpr int limb_count = 36;
    std::uint32_t limbs[limb_count] = {};

    constexpr void multiply_by_5() noexcept
    {
        std::uint64_t carry = 0;
        for (std::uint32_t &limb : limbs) {
            carry += std::uint64_t{limb} * 5;
            limb = static_cast<std::uint32_t>(carry);
            carry >>= 32;
        }
    }

    /// Truncating after every division by 5 gives the same as one division by the whole power.
    constexpr void divide_by_5() noexcept
    {
        std::uint64_t rest = 0;
        for (int i = limb_count - 1; i >= 0; --i) {
            rest = rest << 32 | limbs[i];
            limbs[i] = static_cast<std::uint32_t>(rest / 5);
            rest %= 5;
        }
    }

    constexpr std::uint32_t limb_or_zero(int index) const noexcept { return index < 0 ? 0 : limbs[index]; }

    /// Returns the highest 128 bits, starting with a one; the number must not be 0.
    constexpr Wide_Unsigned leading_bits() const noexcept
    {
        int top = limb_count - 1;
        while (limbs[top] == 0)
            --top;
        std::uint32_t words[5] = {};
        for (int i = 0; i < 5; ++i)
            words[i] = limb_or_zero(top - i);
        int shift = 0;
        while ((words[0] << shift & 0x80000000U) == 0)
            ++shift;
        std::uint32_t shifted[4] = {};
        for (int i = 0; i < 4; ++i)
            shifted[i] =
                static_cast<std::uint32_t>((std::uint64_t{words[i]} << 32 | words[i + 1]) >> (32 - shift));
        return {std::uint64_t{shifted[0]} << 32 | shifted[1], std::uint64_t{shifted[2]} << 32 | shifted[3]};
    }
};

constexpr int table_size = largest_table_power - smallest_table_power + 1;

struct Power_Table {
    Wide_Unsigned entries[static_cast<std::size_t>(table_size)] = {};
};

/// Holds powers of 5, which have the same leading bits as powers of 10. A negative power n holds the leading
/// bits of 2^1151 / 5^-n.
constexpr Power_Table make_power_table() noexcept
{
    Power_Table table;
    Big_Natural number;
    number.limbs[0] = 1;
    for (int power = 0; power <= largest_table_power; ++power) {
        table.entries[power - smallest_table_power] = number.leading_bits();
        number.multiply_by_5();
    }
    number = Big_Natural{};
    number.limbs[Big_Natural::limb_count - 1] = 0x80000000U;
    for (int power = -1; power >= smallest_table_power; --power) {
        number.divide_by_5();
        table.entries[power - smallest_table_power] = number.leading_bits();
    }
    return table;
}

constexpr Power_Table power_table = make_power_table();

} // namespace

Wide_Unsigned power_of_ten_bits(int power) noexcept
{
    return power_table.entries[power - smallest_table_power];
}

} // namespace zeb::engine
