#include "encoding/engine/hex_kernels.hpp"

#include "encoding/engine/hex_loop.hpp"

#include <array>
#include <bit>
#include <cstring>

#if ZEB_HAS_HIGHWAY
#include "arrays/engine/kernels/vector_targets.hpp"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "encoding/engine/hex_kernels.cpp"
#include <hwy/foreach_target.h>

#include "arrays/engine/kernels/vector_lanes.hpp"

#ifndef ZEB_HEX_GROUPS
#define ZEB_HEX_GROUPS
namespace zeb::engine::kernels
{

/// Values that are written at once, four characters each.
inline constexpr std::size_t hex_group = 4;

/// For each choice of values of a group that have two digits (bit i for value i), where the characters that
/// count come from.
using Packed_Places = std::array<std::array<std::uint8_t, 4 * hex_group>, 1 << hex_group>;

constexpr Packed_Places make_packed_places() noexcept
{
    Packed_Places all{};
    for (unsigned two_digits = 0; two_digits < all.size(); ++two_digits) {
        std::size_t length = 0;
        for (std::uint8_t place = 0; place < 4 * hex_group; ++place)
            if (place % 4 != 0 || (two_digits >> place / 4 & 1) != 0)
                all[two_digits][length++] = place;
    }
    return all;
}

alignas(16) inline constexpr Packed_Places packed_places = make_packed_places();

} // namespace zeb::engine::kernels
#endif

HWY_BEFORE_NAMESPACE();
namespace zeb::engine::kernels
{
namespace HWY_NAMESPACE
{
namespace hn = hwy::HWY_NAMESPACE;

#if HWY_TARGET == HWY_SCALAR || __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
constexpr auto put_separated_bytes = plain::put_separated_bytes;
#else
using Characters = hn::FixedTag<std::uint8_t, 4 * hex_group>;

/// The two digits and ", " of each value of a group.
HWY_INLINE hn::Vec<Characters> characters_of(std::uint32_t group)
{
    HWY_ALIGN static constexpr std::uint8_t four_times[16] = {0, 0, 0, 0, 1, 1, 1, 1, 2, 2, 2, 2, 3, 3, 3, 3};
    HWY_ALIGN static constexpr std::uint8_t separators[16] = {0, 0, ',', ' ', 0, 0, ',', ' ',
                                                              0, 0, ',', ' ', 0, 0, ',', ' '};
    HWY_ALIGN static constexpr std::uint8_t highs[16] = {255, 0, 0, 0, 255, 0, 0, 0,
                                                         255, 0, 0, 0, 255, 0, 0, 0};
    const Characters d;
    const auto bytes = hn::BitCast(d, hn::Set(hn::FixedTag<std::uint32_t, hex_group>(), group));
    const auto repeated = hn::TableLookupBytes(bytes, hn::Load(d, four_times));
    const auto is_high = hn::MaskFromVec(hn::Load(d, highs));
    const auto nibbles =
        hn::And(hn::IfThenElse(is_high, hn::ShiftRight<4>(repeated), repeated), hn::Set(d, 15));
    const auto digits = hn::TableLookupBytes(
        hn::LoadU(d, reinterpret_cast<const std::uint8_t *>(plain::hex_digits)), nibbles);
    const auto separator = hn::Load(d, separators);
    return hn::IfThenElse(hn::Eq(separator, hn::Zero(d)), digits, separator);
}

char *put_separated_bytes(char *out, const std::uint8_t *values, std::size_t count)
{
    const Characters d;
    std::size_t i = 0;
    for (; i + hex_group <= count; i += hex_group) {
        std::uint32_t group;
        std::memcpy(&group, values + i, sizeof group);
        // Bit 4 of each byte is set by one to fifteen sixteens; the product has the four of them side by
        // side.
        const std::uint32_t sixteens = (group >> 4 & 0x0F0F0F0F) + 0x0F0F0F0F;
        const std::uint32_t two_digits = (sixteens >> 4 & 0x01010101) * 0x01020408 >> 24 & 15;
        const auto packed =
            hn::TableLookupBytes(characters_of(group), hn::Load(d, packed_places[two_digits].data()));
        hn::StoreU(packed, d, reinterpret_cast<std::uint8_t *>(out));
        out += 3 * hex_group + static_cast<std::size_t>(std::popcount(two_digits));
    }
    return plain::put_separated_bytes(out, values + i, count - i);
}
#endif

constexpr Hex_Kernels hex_table{.put_separated_bytes = put_separated_bytes};

} // namespace HWY_NAMESPACE
} // namespace zeb::engine::kernels
HWY_AFTER_NAMESPACE();
#endif

#if !ZEB_HAS_HIGHWAY || HWY_ONCE
#include "arrays/engine/kernels/vector_dispatch.hpp"

namespace zeb::engine::kernels
{

#if !ZEB_HAS_HIGHWAY
constexpr Hex_Kernels hex_table{.put_separated_bytes = plain::put_separated_bytes};
#endif

const Hex_Kernels &hex() noexcept { return ZEB_CHOSEN(hex_table); }

} // namespace zeb::engine::kernels
#endif
