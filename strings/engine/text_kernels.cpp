#include "strings/engine/text_kernels.hpp"

#include "strings/engine/text_loops.hpp"

#if ZEB_HAS_HIGHWAY
#include "arrays/engine/kernels/vector_targets.hpp"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "strings/engine/text_kernels.cpp"
#include <hwy/foreach_target.h>

#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace zeb::engine::kernels
{
namespace HWY_NAMESPACE
{
namespace hn = hwy::HWY_NAMESPACE;

using Bytes = hn::ScalableTag<std::uint8_t>;
using Units = hn::ScalableTag<std::uint32_t>;

/// Bits by which two vectors of bytes differ, save for the one by which the cases of an ASCII letter do.
HWY_INLINE hn::Vec<Bytes> differences_beside_case(const std::uint8_t *left, const std::uint8_t *right)
{
    const Bytes d;
    const hn::RebindToSigned<Bytes> ds;
    const auto case_bit = hn::Set(d, 0x20);
    const auto first = hn::LoadU(d, left);
    // Letters become the greatest of the signed bytes, and no other byte does.
    const auto moved = hn::Add(hn::Or(first, case_bit), hn::Set(d, 127 - 'z'));
    const auto letter = hn::Gt(hn::BitCast(ds, moved), hn::Set(ds, 127 - 26));
    const auto ignored = hn::BitCast(d, hn::IfThenElseZero(letter, hn::BitCast(ds, case_bit)));
    return hn::AndNot(ignored, hn::Xor(first, hn::LoadU(d, right)));
}

/// Index of the first lane that differs; count if there is none. `differences` returns the differing bits of
/// the vector at an index. The count is at least one vector.
template <class D, class Differences>
HWY_INLINE std::size_t first_differing_lane(D d, std::size_t count, Differences differences)
{
    const std::size_t N = hn::Lanes(d);
    const auto none = hn::Zero(d);
    std::size_t index = 0;
    for (; index + 4 * N <= count; index += 4 * N) {
        const auto low = hn::Or(differences(index), differences(index + N));
        const auto high = hn::Or(differences(index + 2 * N), differences(index + 3 * N));
        if (HWY_UNLIKELY(!hn::AllTrue(d, hn::Eq(hn::Or(low, high), none))))
            break;
    }
    for (; index < count; index += N) {
        // The last vector may overlap lanes that are known not to differ.
        const std::size_t start = index + N <= count ? index : count - N;
        const auto same = hn::Eq(differences(start), none);
        if (HWY_UNLIKELY(!hn::AllTrue(d, same)))
            return start + hn::FindKnownFirstTrue(d, hn::Not(same));
    }
    return count;
}

std::size_t first_difference_ignoring_ascii_case(const std::uint8_t *left, const std::uint8_t *right,
                                                 std::size_t count) noexcept
{
    const Bytes d;
    if (count < hn::Lanes(d))
        return plain::first_difference_ignoring_ascii_case(left, right, count);
    return first_differing_lane(
        d, count, [=](std::size_t at) HWY_ATTR { return differences_beside_case(left + at, right + at); });
}

std::size_t first_difference(const std::uint32_t *left, const std::uint32_t *right,
                             std::size_t count) noexcept
{
    const Units d;
    if (count < hn::Lanes(d))
        return plain::first_difference(left, right, count);
    return first_differing_lane(d, count, [=](std::size_t at) HWY_ATTR {
        return hn::Xor(hn::LoadU(d, left + at), hn::LoadU(d, right + at));
    });
}

void widen_signed(const std::int8_t *bytes, std::size_t count, std::uint32_t *units) noexcept
{
    const hn::RebindToSigned<Units> d;
    const hn::Rebind<std::int8_t, decltype(d)> narrow;
    const std::size_t N = hn::Lanes(d);
    std::int32_t *const widened = reinterpret_cast<std::int32_t *>(units);
    const auto widen = [=](std::size_t at) HWY_ATTR {
        hn::StoreU(hn::PromoteTo(d, hn::LoadU(narrow, bytes + at)), d, widened + at);
    };
    std::size_t index = 0;
    for (; index + 4 * N <= count; index += 4 * N) {
        widen(index);
        widen(index + N);
        widen(index + 2 * N);
        widen(index + 3 * N);
    }
    for (; index + N <= count; index += N)
        widen(index);
    plain::widen_signed(bytes, count, units, index);
}

void widen_in_place(std::uint32_t *units, std::size_t count) noexcept
{
    const Units d;
    const hn::Rebind<std::uint16_t, Units> half;
    const std::size_t N = hn::Lanes(d);
    const std::uint16_t *const halves = reinterpret_cast<const std::uint16_t *>(units);
    const std::size_t whole = count - count % N;
    plain::widen_in_place(units, count, whole);
    for (std::size_t index = whole; index > 0; index -= N)
        hn::StoreU(hn::PromoteTo(d, hn::LoadU(half, halves + index - N)), d, units + index - N);
}

void narrow(const std::uint32_t *units, std::size_t count, std::uint16_t *narrowed) noexcept
{
    const Units d;
    const hn::Rebind<std::uint16_t, Units> half;
    const std::size_t N = hn::Lanes(d);
    std::size_t index = 0;
    for (; index + N <= count; index += N)
        hn::StoreU(hn::TruncateTo(half, hn::LoadU(d, units + index)), half, narrowed + index);
    plain::narrow(units, count, narrowed, index);
}

std::size_t widen_ascii(const std::uint8_t *bytes, std::size_t count, std::uint32_t *units) noexcept
{
    const Bytes d;
    const hn::RebindToSigned<Bytes> ds;
    const Units wide;
    const hn::Rebind<std::uint8_t, Units> quarter;
    const std::size_t N = hn::Lanes(d);
    std::size_t index = 0;
    for (; index + N <= count; index += N) {
        const auto vector = hn::LoadU(d, bytes + index);
        if (HWY_UNLIKELY(!hn::AllFalse(ds, hn::Lt(hn::BitCast(ds, vector), hn::Zero(ds)))))
            return index;
        for (std::size_t at = index; at < index + N; at += hn::Lanes(wide))
            hn::StoreU(hn::PromoteTo(wide, hn::LoadU(quarter, bytes + at)), wide, units + at);
    }
    return plain::widen_ascii(bytes, count, units, index);
}

std::size_t narrow_ascii(const std::uint32_t *units, std::size_t count, std::uint8_t *bytes) noexcept
{
    const Units d;
    const hn::Rebind<std::uint8_t, Units> quarter;
    const std::size_t N = hn::Lanes(d);
    const auto too_high = hn::Set(d, ~std::uint32_t{0x7F});
    std::size_t index = 0;
    for (; index + 4 * N <= count; index += 4 * N) {
        const auto a = hn::LoadU(d, units + index);
        const auto b = hn::LoadU(d, units + index + N);
        const auto c = hn::LoadU(d, units + index + 2 * N);
        const auto e = hn::LoadU(d, units + index + 3 * N);
        const auto all = hn::And(hn::Or(hn::Or(a, b), hn::Or(c, e)), too_high);
        if (HWY_UNLIKELY(!hn::AllTrue(d, hn::Eq(all, hn::Zero(d)))))
            return index;
        hn::StoreU(hn::TruncateTo(quarter, a), quarter, bytes + index);
        hn::StoreU(hn::TruncateTo(quarter, b), quarter, bytes + index + N);
        hn::StoreU(hn::TruncateTo(quarter, c), quarter, bytes + index + 2 * N);
        hn::StoreU(hn::TruncateTo(quarter, e), quarter, bytes + index + 3 * N);
    }
    return plain::narrow_ascii(units, count, bytes, index);
}

Utf8_Starts count_utf8_starts(const std::uint8_t *bytes, std::size_t count) noexcept
{
    const hn::RebindToSigned<Bytes> d;
    const std::size_t N = hn::Lanes(d);
    Utf8_Starts starts{};
    std::size_t index = 0;
    for (; index + N <= count; index += N) {
        // As signed bytes, continuation bytes are the lowest, and the first bytes of four the highest
        // below 0.
        const auto vector = hn::LoadU(d, reinterpret_cast<const std::int8_t *>(bytes + index));
        const auto start = hn::Gt(vector, hn::Set(d, static_cast<std::int8_t>(0xBF)));
        const auto of_four =
            hn::And(hn::Gt(vector, hn::Set(d, static_cast<std::int8_t>(0xEF))), hn::Lt(vector, hn::Zero(d)));
        starts.all += hn::CountTrue(d, start);
        starts.of_four += hn::CountTrue(d, of_four);
    }
    return plain::count_utf8_starts(bytes, count, starts, index);
}

template <bool of_low_halves>
Units_Above count_above(const std::uint32_t *units, std::size_t count) noexcept
{
    const Units d;
    const std::size_t N = hn::Lanes(d);
    Units_Above above{};
    std::size_t index = 0;
    for (; index + N <= count; index += N) {
        auto vector = hn::LoadU(d, units + index);
        if constexpr (of_low_halves)
            vector = hn::And(vector, hn::Set(d, 0xFFFFu));
        const auto reaches = [=](std::uint32_t bound)
                                 HWY_ATTR { return hn::Gt(vector, hn::Set(d, bound - 1)); };
        above.at_0x80 += hn::CountTrue(d, reaches(0x80));
        above.at_0x800 += hn::CountTrue(d, reaches(0x800));
        if constexpr (of_low_halves)
            above.surrogates +=
                hn::CountTrue(d, hn::Eq(hn::And(vector, hn::Set(d, 0xF800u)), hn::Set(d, 0xD800u)));
        else
            above.at_0x10000 += hn::CountTrue(d, reaches(0x10000));
    }
    return of_low_halves ? plain::count_low_halves_above(units, count, above, index)
                         : plain::count_units_above(units, count, above, index);
}

constexpr Text_Kernels text_table{.first_difference_ignoring_ascii_case =
                                      first_difference_ignoring_ascii_case,
                                  .first_difference = first_difference,
                                  .widen_signed = widen_signed,
                                  .widen_in_place = widen_in_place,
                                  .narrow = narrow,
                                  .widen_ascii = widen_ascii,
                                  .narrow_ascii = narrow_ascii,
                                  .count_utf8_starts = count_utf8_starts,
                                  .count_units_above = count_above<false>,
                                  .count_low_halves_above = count_above<true>};

} // namespace HWY_NAMESPACE
} // namespace zeb::engine::kernels
HWY_AFTER_NAMESPACE();
#endif

#if !ZEB_HAS_HIGHWAY || HWY_ONCE
#include "arrays/engine/kernels/vector_dispatch.hpp"

namespace zeb::engine::kernels
{

#if !ZEB_HAS_HIGHWAY
constexpr Text_Kernels text_table{.first_difference_ignoring_ascii_case =
                                      ZEB_PLAIN(first_difference_ignoring_ascii_case),
                                  .first_difference = ZEB_PLAIN(first_difference),
                                  .widen_signed = ZEB_PLAIN(widen_signed),
                                  .widen_in_place = ZEB_PLAIN(widen_in_place),
                                  .narrow = ZEB_PLAIN(narrow),
                                  .widen_ascii = ZEB_PLAIN(widen_ascii),
                                  .narrow_ascii = ZEB_PLAIN(narrow_ascii),
                                  .count_utf8_starts = ZEB_PLAIN(count_utf8_starts),
                                  .count_units_above = ZEB_PLAIN(count_units_above),
                                  .count_low_halves_above = ZEB_PLAIN(count_low_halves_above)};
#endif

std::size_t first_difference_ignoring_ascii_case(const std::uint8_t *left, const std::uint8_t *right,
                                                 std::size_t count) noexcept
{
    return ZEB_CHOSEN(text_table).first_difference_ignoring_ascii_case(left, right, count);
}

std::size_t first_difference(const std::uint32_t *left, const std::uint32_t *right,
                             std::size_t count) noexcept
{
    return ZEB_CHOSEN(text_table).first_difference(left, right, count);
}

void widen_signed(const std::int8_t *bytes, std::size_t count, std::uint32_t *units) noexcept
{
    ZEB_CHOSEN(text_table).widen_signed(bytes, count, units);
}

void widen_in_place(std::uint32_t *units, std::size_t count) noexcept
{
    ZEB_CHOSEN(text_table).widen_in_place(units, count);
}

void narrow(const std::uint32_t *units, std::size_t count, std::uint16_t *narrowed) noexcept
{
    ZEB_CHOSEN(text_table).narrow(units, count, narrowed);
}

std::size_t widen_ascii(const std::uint8_t *bytes, std::size_t count, std::uint32_t *units) noexcept
{
    return ZEB_CHOSEN(text_table).widen_ascii(bytes, count, units);
}

std::size_t narrow_ascii(const std::uint32_t *units, std::size_t count, std::uint8_t *bytes) noexcept
{
    return ZEB_CHOSEN(text_table).narrow_ascii(units, count, bytes);
}

Utf8_Starts count_utf8_starts(const std::uint8_t *bytes, std::size_t count) noexcept
{
    return ZEB_CHOSEN(text_table).count_utf8_starts(bytes, count);
}

Units_Above count_units_above(const std::uint32_t *units, std::size_t count) noexcept
{
    return ZEB_CHOSEN(text_table).count_units_above(units, count);
}

Units_Above count_low_halves_above(const std::uint32_t *units, std::size_t count) noexcept
{
    return ZEB_CHOSEN(text_table).count_low_halves_above(units, count);
}

} // namespace zeb::engine::kernels
#endif
