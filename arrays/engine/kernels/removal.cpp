#include "arrays/engine/kernels/removal.hpp"

#include "arrays/engine/element_order.hpp"
#include "arrays/engine/kernels/plain_loops.hpp"
#include "arrays/engine/kernels/search.hpp"

#include <array>
#include <cstring>

#if defined(__x86_64__) && defined(__GNUC__)
#define ZEB_REMOVES_WITH_AVX2 1
#include <immintrin.h>
#endif

namespace zeb::engine::kernels
{
namespace
{

#if ZEB_REMOVES_WITH_AVX2

#define ZEB_AVX2 __attribute__((target("avx2,popcnt")))

/// For each mask of lanes to keep, where the kept ones come from, packed to the front. `Parts` indexes
/// belong to one lane.
template <unsigned Lanes, unsigned Parts, class Index>
constexpr auto packing_table()
{
    std::array<std::array<Index, Lanes * Parts>, 1u << Lanes> table{};
    for (unsigned mask = 0; mask < table.size(); ++mask) {
        unsigned to = 0;
        for (unsigned from = 0; from < Lanes; ++from)
            for (unsigned part = 0; (mask >> from & 1) != 0 && part < Parts; ++part)
                table[mask][to++] = static_cast<Index>(from * Parts + part);
    }
    return table;
}

alignas(64) constexpr auto packed_bytes = packing_table<8, 1, std::uint8_t>();
alignas(64) constexpr auto packed_words = packing_table<8, 1, std::uint32_t>();
alignas(64) constexpr auto packed_pairs = packing_table<4, 2, std::uint32_t>();

/// One vector of lanes: which of them equal a value, and how those to keep are stored side by side.
/// `store` writes up to a whole vector, of which only the kept lanes are meant.
struct Byte_Vector {
    using Lane = std::uint8_t;
    static constexpr std::size_t lanes = 32;
    static constexpr std::uint32_t all = 0xFFFFFFFF;
    static constexpr bool stores_all_faster = true;

    ZEB_AVX2 static __m256i load(const Lane *from)
    {
        return _mm256_loadu_si256(reinterpret_cast<const __m256i *>(from));
    }
    ZEB_AVX2 static std::uint32_t equal(__m256i vector, Lane value)
    {
        const __m256i same = _mm256_cmpeq_epi8(vector, _mm256_set1_epi8(static_cast<char>(value)));
        return static_cast<std::uint32_t>(_mm256_movemask_epi8(same));
    }
    ZEB_AVX2 static void store_all(__m256i vector, Lane *to)
    {
        _mm256_storeu_si256(reinterpret_cast<__m256i *>(to), vector);
    }
    ZEB_AVX2 static std::size_t store(__m256i vector, std::uint32_t kept, Lane *to)
    {
        const __m128i low = _mm256_castsi256_si128(vector);
        const __m128i high = _mm256_extracti128_si256(vector, 1);
        // Where each eight bytes go is counted from the whole mask: no step waits for the one before.
        store_eight(low, kept, to);
        store_eight(_mm_unpackhi_epi64(low, low), kept >> 8, to + count(kept & 0xFF));
        store_eight(high, kept >> 16, to + count(kept & 0xFFFF));
        store_eight(_mm_unpackhi_epi64(high, high), kept >> 24, to + count(kept & 0xFFFFFF));
        return count(kept);
    }

private:
    ZEB_AVX2 static std::size_t count(std::uint32_t mask)
    {
        return static_cast<std::size_t>(__builtin_popcount(mask));
    }
    ZEB_AVX2 static void store_eight(__m128i eight, std::uint32_t kept, Lane *to)
    {
        const __m128i order =
            _mm_loadl_epi64(reinterpret_cast<const __m128i *>(packed_bytes[kept & 0xFF].data()));
        _mm_storel_epi64(reinterpret_cast<__m128i *>(to), _mm_shuffle_epi8(eight, order));
    }
};

/// What 32- and 64-bit lanes share: lanes move as pairs of, or single, 32-bit words.
template <class Lane_Type>
struct Word_Vector {
    using Lane = Lane_Type;
    static constexpr std::size_t lanes = 32 / sizeof(Lane);
    static constexpr std::uint32_t all = (1u << lanes) - 1;
    static constexpr bool stores_all_faster = false;

    ZEB_AVX2 static __m256i load(const Lane *from)
    {
        return _mm256_loadu_si256(reinterpret_cast<const __m256i *>(from));
    }
    ZEB_AVX2 static std::uint32_t equal(__m256i vector, Lane value);
    ZEB_AVX2 static void store_all(__m256i vector, Lane *to)
    {
        _mm256_storeu_si256(reinterpret_cast<__m256i *>(to), vector);
    }
    ZEB_AVX2 static std::size_t store(__m256i vector, std::uint32_t kept, Lane *to)
    {
        const std::uint32_t *order;
        if constexpr (lanes == 8)
            order = packed_words[kept].data();
        else
            order = packed_pairs[kept].data();
        const __m256i from = _mm256_load_si256(reinterpret_cast<const __m256i *>(order));
        store_all(_mm256_permutevar8x32_epi32(vector, from), to);
        return static_cast<std::size_t>(__builtin_popcount(kept));
    }
};

template <>
ZEB_AVX2 std::uint32_t Word_Vector<std::uint32_t>::equal(__m256i vector, std::uint32_t value)
{
    const __m256i same = _mm256_cmpeq_epi32(vector, _mm256_set1_epi32(static_cast<int>(value)));
    return static_cast<std::uint32_t>(_mm256_movemask_ps(_mm256_castsi256_ps(same)));
}
template <>
ZEB_AVX2 std::uint32_t Word_Vector<std::uint64_t>::equal(__m256i vector, std::uint64_t value)
{
    const __m256i same = _mm256_cmpeq_epi64(vector, _mm256_set1_epi64x(static_cast<long long>(value)));
    return static_cast<std::uint32_t>(_mm256_movemask_pd(_mm256_castsi256_pd(same)));
}
template <>
ZEB_AVX2 std::uint32_t Word_Vector<float>::equal(__m256i vector, float value)
{
    const __m256 same = _mm256_cmp_ps(_mm256_castsi256_ps(vector), _mm256_set1_ps(value), _CMP_EQ_OQ);
    return static_cast<std::uint32_t>(_mm256_movemask_ps(same));
}
template <>
ZEB_AVX2 std::uint32_t Word_Vector<double>::equal(__m256i vector, double value)
{
    const __m256d same = _mm256_cmp_pd(_mm256_castsi256_pd(vector), _mm256_set1_pd(value), _CMP_EQ_OQ);
    return static_cast<std::uint32_t>(_mm256_movemask_pd(same));
}

/// Packs whole vectors from index `from` up to `end`, onto `kept` and up; answers the new `kept`. The lanes
/// of one vector after the answered index end undefined.
template <class Vector, class Lane>
ZEB_AVX2 std::size_t pack(Lane *lanes, std::size_t kept, std::size_t from, std::size_t end, Lane value)
{
    for (; from < end; from += Vector::lanes) {
        const __m256i vector = Vector::load(lanes + from);
        const std::uint32_t equal = Vector::equal(vector, value);
        if (Vector::stores_all_faster && equal == 0) {
            Vector::store_all(vector, lanes + kept);
            kept += Vector::lanes;
        } else {
            kept += Vector::store(vector, ~equal & Vector::all, lanes + kept);
        }
    }
    return kept;
}

/// Copies the last lanes that stay, up to one vector of them, to the end of `tail`; answers the index of
/// the first lane looked at and lowers `free` by how many were copied.
template <class Vector, class Lane>
ZEB_AVX2 std::size_t copy_tail(const Lane *lanes, std::size_t begin, std::size_t end, Lane value, Lane *tail,
                               std::size_t &free)
{
    while (end > begin && free > 0) {
        while (end - begin >= Vector::lanes &&
               Vector::equal(Vector::load(lanes + end - Vector::lanes), value) == Vector::all)
            end -= Vector::lanes;
        if (end == begin)
            break;
        if (!(lanes[--end] == value))
            tail[--free] = lanes[end];
    }
    return end;
}

/// Whole vectors are stored past what is kept, so the last lanes that stay are set aside first, and put
/// where the last store ended: they cover what it spoilt.
template <class Vector, class Lane>
std::size_t remove_equal_avx2(Lane *lanes, std::size_t count, Lane value)
{
    constexpr std::size_t N = Vector::lanes;
    std::size_t kept = first_equal(lanes, count, value);
    if (count - kept < 2 * N)
        return kept + plain::remove_equal(lanes + kept, count - kept, value, Own_Equality{});
    Lane tail[N];
    std::size_t free = N;
    std::size_t end = copy_tail<Vector>(lanes, kept, count, value, tail, free);
    const std::size_t whole = kept + (end - kept) / N * N;
    // What does not fill a vector goes first into a buffer of its own.
    Lane rest[N];
    std::size_t in_rest = 0;
    for (std::size_t index = whole; index < end; ++index)
        if (!(lanes[index] == value))
            rest[in_rest++] = lanes[index];
    kept = pack<Vector>(lanes, kept, kept, whole, value);
    std::memcpy(lanes + kept, rest, in_rest * sizeof(Lane));
    kept += in_rest;
    std::memcpy(lanes + kept, tail + free, (N - free) * sizeof(Lane));
    return kept + N - free;
}

#endif

} // namespace

#if ZEB_REMOVES_WITH_AVX2
#define ZEB_LANE(Lane, Vector)                                                                               \
    std::size_t remove_equal(Lane *lanes, std::size_t count, Lane value) noexcept                            \
    {                                                                                                        \
        if (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("popcnt"))                              \
            return remove_equal_avx2<Vector>(lanes, count, value);                                           \
        return plain::remove_equal(lanes, count, value, Own_Equality{});                                     \
    }
#else
#define ZEB_LANE(Lane, Vector)                                                                               \
    std::size_t remove_equal(Lane *lanes, std::size_t count, Lane value) noexcept                            \
    {                                                                                                        \
        return plain::remove_equal(lanes, count, value, Own_Equality{});                                     \
    }
#endif
ZEB_LANE(std::uint8_t, Byte_Vector)
ZEB_LANE(std::uint32_t, Word_Vector<std::uint32_t>)
ZEB_LANE(std::uint64_t, Word_Vector<std::uint64_t>)
ZEB_LANE(float, Word_Vector<float>)
ZEB_LANE(double, Word_Vector<double>)
#undef ZEB_LANE

} // namespace zeb::engine::kernels
