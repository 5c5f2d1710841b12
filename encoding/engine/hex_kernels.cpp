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

/// Values whose characters, four each, are looked up together, and those of them that one vector holds when
/// the characters that do not count are left out.
inline constexpr std::size_t hex_run = 16, hex_group = 4;

/// For each character of a run, its value.
constexpr std::array<std::uint8_t, 4 * hex_run> make_four_times() noexcept
{
    std::array<std::uint8_t, 4 * hex_run> all{};
    for (std::uint8_t place = 0; place < all.size(); ++place)
        all[place] = place / 4;
    return all;
}

alignas(64) inline constexpr std::array<std::uint8_t, 4 *hex_run> four_times = make_four_times();

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
/// The two digits and ", " of each of `hex_run` values.
HWY_INLINE void put_characters(std::uint8_t *characters, const std::uint8_t *values)
{
    const hn::CappedTag<std::uint8_t, 4 * hex_run> d;
    const hn::Repartition<std::uint32_t, decltype(d)> per_value;
    const auto all = hn::LoadDup128(d, values);
    const auto digits = hn::LoadDup128(d, reinterpret_cast<const std::uint8_t *>(plain::hex_digits));
    const auto is_high = hn::MaskFromVec(hn::BitCast(d, hn::Set(per_value, 0x000000FF)));
    const auto is_separator = hn::MaskFromVec(hn::BitCast(d, hn::Set(per_value, 0xFFFF0000)));
    const auto separator = hn::BitCast(d, hn::Set(per_value, 0x202C0000));
    for (std::size_t at = 0; at < 4 * hex_run; at += hn::Lanes(d)) {
        const auto repeated = hn::TableLookupBytes(all, hn::Load(d, four_times.data() + at));
        const auto halves = hn::IfThenElse(is_high, hn::ShiftRight<4>(repeated), repeated);
        const auto written = hn::TableLookupBytes(digits, hn::And(halves, hn::Set(d, 15)));
        hn::Store(hn::IfThenElse(is_separator, separator, written), d, characters + at);
    }
}

char *put_separated_bytes(char *out, const std::uint8_t *values, std::size_t count)
{
    const hn::FixedTag<std::uint8_t, hex_run> d;
    HWY_ALIGN std::uint8_t characters[4 * hex_run];
    std::size_t i = 0;
    for (; i + hex_run <= count; i += hex_run) {
        put_characters(characters, values + i);
        const auto run = hn::LoadU(d, values + i);
        const std::uint64_t two_digits = bits_of(d, hn::Eq(hn::Max(run, hn::Set(d, 16)), run));
        for (std::size_t first = 0; first < hex_run; first += hex_group) {
            const std::size_t chosen = two_digits >> first & 15;
            const auto packed = hn::TableLookupBytes(hn::Load(d, characters + 4 * first),
                                                     hn::Load(d, packed_places[chosen].data()));
            hn::StoreU(packed, d, reinterpret_cast<std::uint8_t *>(out));
            out += 3 * hex_group + static_cast<std::size_t>(std::popcount(chosen));
        }
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
