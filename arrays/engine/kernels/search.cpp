#include "arrays/engine/kernels/search.hpp"

#include "arrays/engine/element_order.hpp"
#include "arrays/engine/kernels/knuth_morris_pratt.hpp"
#include "arrays/engine/kernels/pattern_probes.hpp"
#include "arrays/engine/kernels/plain_loops.hpp"

#include <cstring>
#include <type_traits>

#if ZEB_HAS_HIGHWAY
#include "arrays/engine/kernels/vector_targets.hpp"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arrays/engine/kernels/search.cpp"
#include <hwy/foreach_target.h>

#include "arrays/engine/kernels/vector_lanes.hpp"

HWY_BEFORE_NAMESPACE();
namespace zeb::engine::kernels
{
namespace HWY_NAMESPACE
{
namespace hn = hwy::HWY_NAMESPACE;

template <class D, class Lane>
HWY_INLINE auto matches(D d, const Lane *lanes, hn::Vec<D> wanted)
{
    return hn::Eq(hn::LoadU(d, lanes), wanted);
}

/// Index of the first match in four vectors, of which one is known to hold it.
template <class D, class Lane>
std::size_t first_of_four(D d, const Lane *lanes, hn::Vec<D> wanted)
{
    for (std::size_t index = 0;; index += hn::Lanes(d)) {
        const auto found = matches(d, lanes + index, wanted);
        if (!hn::AllFalse(d, found))
            return index + hn::FindKnownFirstTrue(d, found);
    }
}

template <class Lane>
std::size_t first_equal(const Lane *lanes, std::size_t count, Lane value)
{
    const hn::ScalableTag<Lane> d;
    const std::size_t N = hn::Lanes(d);
    if (count < N)
        return plain::first_equal(lanes, count, value, Own_Equality{});
    const auto wanted = hn::Set(d, value);
    const auto head = matches(d, lanes, wanted);
    if (!hn::AllFalse(d, head))
        return hn::FindKnownFirstTrue(d, head);
    std::size_t index = lanes_to_boundary(d, lanes);
    for (; index + 4 * N <= count; index += 4 * N) {
        const auto a = matches(d, lanes + index, wanted);
        const auto b = matches(d, lanes + index + N, wanted);
        const auto c = matches(d, lanes + index + 2 * N, wanted);
        const auto e = matches(d, lanes + index + 3 * N, wanted);
        if (!hn::AllFalse(d, hn::Or(hn::Or(a, b), hn::Or(c, e))))
            return index + first_of_four(d, lanes + index, wanted);
    }
    for (; index < count; index += N) {
        // The last vector may overlap lanes that are known not to match.
        const std::size_t start = index + N <= count ? index : count - N;
        const auto found = matches(d, lanes + start, wanted);
        if (!hn::AllFalse(d, found))
            return start + hn::FindKnownFirstTrue(d, found);
    }
    return count;
}

/// Index of the last match, known to lie before `end`.
template <class Lane>
std::size_t last_before(const Lane *lanes, std::size_t end, Lane value)
{
    do
        --end;
    while (!(lanes[end] == value));
    return end;
}

template <class Lane>
std::size_t last_equal(const Lane *lanes, std::size_t count, Lane value)
{
    const hn::ScalableTag<Lane> d;
    const std::size_t N = hn::Lanes(d);
    if (count < N)
        return plain::last_equal(lanes, count, value, Own_Equality{});
    const auto wanted = hn::Set(d, value);
    if (!hn::AllFalse(d, matches(d, lanes + count - N, wanted)))
        return last_before(lanes, count, value);
    // From here on `end` stands on a vector boundary, unless the lanes begin right before it.
    std::size_t end = count - (N - lanes_to_boundary(d, lanes + count) % N);
    for (; end >= 4 * N; end -= 4 * N) {
        const auto a = matches(d, lanes + end - N, wanted);
        const auto b = matches(d, lanes + end - 2 * N, wanted);
        const auto c = matches(d, lanes + end - 3 * N, wanted);
        const auto e = matches(d, lanes + end - 4 * N, wanted);
        if (!hn::AllFalse(d, hn::Or(hn::Or(a, b), hn::Or(c, e))))
            return last_before(lanes, end, value);
    }
    for (; end >= N; end -= N)
        if (!hn::AllFalse(d, matches(d, lanes + end - N, wanted)))
            return last_before(lanes, end, value);
    const std::size_t rest = plain::last_equal(lanes, end, value, Own_Equality{});
    return rest == end ? count : rest;
}

/// True when all lanes of a pattern are equal to those at a start.
template <class Lane>
HWY_INLINE bool equal_at(const Lane *lanes, const Lane *pattern, std::size_t length)
{
    if constexpr (std::is_integral_v<Lane>)
        return std::memcmp(lanes, pattern, length * sizeof(Lane)) == 0;
    else
        return plain::all_equal(lanes, pattern, length, Own_Equality{});
}

/// A pattern, and the three of its lanes that a start has to match before the rest is compared.
template <class Lane>
struct Pattern {
    using D = hn::ScalableTag<Lane>;

    Pattern(const Lane *lanes, std::size_t count, Telling_Places places)
        : pattern(lanes), length(count), at(places), first(hn::Set(D(), lanes[at.first])),
          second(hn::Set(D(), lanes[at.second])), third(hn::Set(D(), lanes[at.third]))
    {
    }

    /// Which starts of a vector of them match in those lanes.
    HWY_INLINE auto candidates(const Lane *start) const
    {
        const D d;
        const auto two = hn::And(matches(d, start + at.first, first), matches(d, start + at.second, second));
        return hn::And(two, matches(d, start + at.third, third));
    }

    /// The first start that matches wholly, or a whole vector; counts what was compared in vain.
    std::size_t find(const Lane *start, std::size_t &in_vain) const
    {
        const D d;
        for (std::uint64_t rest = bits_of(d, candidates(start)); rest != 0; rest &= rest - 1, ++in_vain) {
            const std::size_t candidate = static_cast<unsigned>(__builtin_ctzll(rest));
            if (equal_at(start + candidate, pattern, length))
                return candidate;
        }
        return hn::Lanes(d);
    }

    const Lane *pattern;
    std::size_t length;
    Telling_Places at;
    hn::Vec<D> first, second, third;
};

/// So far ahead memory is asked for: a search that looks at candidates now and then would else wait for it.
constexpr std::size_t prefetch_bytes = 1024;

/// Tries a few vectors of starts at a time. Without a find it answers where it gave up: `count` at the
/// end, less when too much was spent on comparing in vain.
template <class Lane>
std::size_t find_run(const Lane *lanes, std::size_t count, Pattern<Lane> pattern, bool &found)
{
    const hn::ScalableTag<Lane> d;
    const std::size_t N = hn::Lanes(d);
    const std::size_t length = pattern.length;
    const std::size_t starts = count - length + 1;
    const std::size_t cost = 16 + length * sizeof(Lane) / 16;
    std::size_t in_vain = 0;
    for (std::size_t index = 0; index < starts;) {
        std::size_t end = index + 4 * N;
        if (HWY_LIKELY(end <= starts)) {
            for (std::size_t lane = index; lane < end; lane += N)
                __builtin_prefetch(lanes + lane + prefetch_bytes / sizeof(Lane));
            const auto low = hn::Or(pattern.candidates(lanes + index), pattern.candidates(lanes + index + N));
            const auto high =
                hn::Or(pattern.candidates(lanes + index + 2 * N), pattern.candidates(lanes + index + 3 * N));
            if (HWY_LIKELY(hn::AllFalse(d, hn::Or(low, high)))) {
                index = end;
                continue;
            }
        }
        for (end = HWY_MIN(end, starts); index < end; index += N) {
            // The last vector may look again at starts that do not match.
            const std::size_t start = HWY_MIN(index, starts - N);
            const std::size_t at = pattern.find(lanes + start, in_vain);
            found = at < N;
            if (found)
                return start + at;
        }
        if (in_vain * cost > 4 * index + 4096 && index < starts)
            return index;
    }
    found = false;
    return count;
}

/// The same; once many places were in vain, or too much was spent on a few, the text is looked at for what
/// tells best in it.
template <class Lane>
std::size_t find_run(const Lane *lanes, std::size_t count, const Lane *sought, std::size_t length,
                     bool &found)
{
    const Pattern<Lane> ends(sought, length, ends_and_middle(length));
    const std::size_t head = length - 1 + places_before_sampling;
    if (!std::is_integral_v<Lane> || length < 4 || count < head + places_before_sampling)
        return find_run(lanes, count, ends, found);
    const std::size_t start = find_run(lanes, head, ends, found);
    if (found)
        return start;
    const std::size_t seen = HWY_MIN(start, places_before_sampling);
    const Lane *const rest = lanes + seen;
    const std::size_t left = count - seen;
    const Pattern<Lane> telling(sought, length, rarest_places(rest, left, sought, length));
    return seen + find_run(rest, left, telling, found);
}

template <class Lane>
bool all_equal(const Lane *left, const Lane *right, std::size_t count)
{
    const hn::ScalableTag<Lane> d;
    const std::size_t N = hn::Lanes(d);
    if (count < N)
        return plain::all_equal(left, right, count, Own_Equality{});
    std::size_t index = 0;
    const auto equal_at = [&](std::size_t at)
                              HWY_ATTR { return hn::Eq(hn::LoadU(d, left + at), hn::LoadU(d, right + at)); };
    for (; index + 4 * N <= count; index += 4 * N) {
        const auto low = hn::And(equal_at(index), equal_at(index + N));
        const auto high = hn::And(equal_at(index + 2 * N), equal_at(index + 3 * N));
        if (!hn::AllTrue(d, hn::And(low, high)))
            return false;
    }
    for (; index + N <= count; index += N)
        if (!hn::AllTrue(d, equal_at(index)))
            return false;
    return hn::AllTrue(d, equal_at(count - N));
}

#define ZEB_LANE(Lane)                                                                                       \
    std::size_t first_equal_##Lane(const Lane *lanes, std::size_t count, Lane value)                         \
    {                                                                                                        \
        return first_equal(lanes, count, value);                                                             \
    }                                                                                                        \
    std::size_t last_equal_##Lane(const Lane *lanes, std::size_t count, Lane value)                          \
    {                                                                                                        \
        return last_equal(lanes, count, value);                                                              \
    }                                                                                                        \
    std::size_t find_run_##Lane(const Lane *lanes, std::size_t count, const Lane *pattern,                   \
                                std::size_t length, bool &found)                                             \
    {                                                                                                        \
        const std::size_t starts = count - length + 1;                                                       \
        if (starts >= hn::Lanes(hn::ScalableTag<Lane>()))                                                    \
            return find_run(lanes, count, pattern, length, found);                                           \
        const std::size_t start = plain::find_run(lanes, count, pattern, length, Own_Equality{});            \
        found = start != count;                                                                              \
        return start;                                                                                        \
    }
ZEB_LANE(uint8_t)
ZEB_LANE(uint32_t)
ZEB_LANE(uint64_t)
ZEB_LANE(float)
ZEB_LANE(double)
#undef ZEB_LANE
bool all_equal_float(const float *left, const float *right, std::size_t count)
{
    return all_equal(left, right, count);
}
bool all_equal_double(const double *left, const double *right, std::size_t count)
{
    return all_equal(left, right, count);
}

} // namespace HWY_NAMESPACE
} // namespace zeb::engine::kernels
HWY_AFTER_NAMESPACE();
#endif

#if !ZEB_HAS_HIGHWAY || HWY_ONCE
namespace zeb::engine::kernels
{
namespace
{

/// Finishes a search from where the vectors gave up.
template <class Lane>
std::size_t find_run_linearly(const Lane *lanes, std::size_t count, const Lane *pattern, std::size_t length)
{
    const Scratch<std::uint32_t> borders(length);
    if (borders.get() == nullptr)
        return plain::find_run(lanes, count, pattern, length, Own_Equality{});
    plain::find_borders(pattern, length, borders.get());
    return plain::find_run_by_borders(lanes, count, pattern, length, borders.get());
}

} // namespace

#if ZEB_HAS_HIGHWAY
#define ZEB_LANE(Lane)                                                                                       \
    HWY_EXPORT(first_equal_##Lane);                                                                          \
    HWY_EXPORT(last_equal_##Lane);                                                                           \
    HWY_EXPORT(find_run_##Lane);                                                                             \
    std::size_t first_equal(const Lane *lanes, std::size_t count, Lane value) noexcept                       \
    {                                                                                                        \
        return HWY_DYNAMIC_DISPATCH(first_equal_##Lane)(lanes, count, value);                                \
    }                                                                                                        \
    std::size_t last_equal(const Lane *lanes, std::size_t count, Lane value) noexcept                        \
    {                                                                                                        \
        return HWY_DYNAMIC_DISPATCH(last_equal_##Lane)(lanes, count, value);                                 \
    }                                                                                                        \
    std::size_t find_run(const Lane *lanes, std::size_t count, const Lane *pattern,                          \
                         std::size_t length) noexcept                                                        \
    {                                                                                                        \
        if (length == 1)                                                                                     \
            return first_equal(lanes, count, pattern[0]);                                                    \
        bool found;                                                                                          \
        const std::size_t start =                                                                            \
            HWY_DYNAMIC_DISPATCH(find_run_##Lane)(lanes, count, pattern, length, found);                     \
        if (found || count - start < length)                                                                 \
            return found ? start : count;                                                                    \
        const std::size_t rest = find_run_linearly(lanes + start, count - start, pattern, length);           \
        return start + rest;                                                                                 \
    }
#else
#define ZEB_LANE(Lane)                                                                                       \
    std::size_t first_equal(const Lane *lanes, std::size_t count, Lane value) noexcept                       \
    {                                                                                                        \
        return plain::first_equal(lanes, count, value, Own_Equality{});                                      \
    }                                                                                                        \
    std::size_t last_equal(const Lane *lanes, std::size_t count, Lane value) noexcept                        \
    {                                                                                                        \
        return plain::last_equal(lanes, count, value, Own_Equality{});                                       \
    }                                                                                                        \
    std::size_t find_run(const Lane *lanes, std::size_t count, const Lane *pattern,                          \
                         std::size_t length) noexcept                                                        \
    {                                                                                                        \
        return find_run_linearly(lanes, count, pattern, length);                                             \
    }
#endif
ZEB_LANE(uint8_t)
ZEB_LANE(uint32_t)
ZEB_LANE(uint64_t)
ZEB_LANE(float)
ZEB_LANE(double)
#undef ZEB_LANE

#if ZEB_HAS_HIGHWAY
HWY_EXPORT(all_equal_float);
HWY_EXPORT(all_equal_double);
#endif

bool all_equal(const float *left, const float *right, std::size_t count) noexcept
{
#if ZEB_HAS_HIGHWAY
    return HWY_DYNAMIC_DISPATCH(all_equal_float)(left, right, count);
#else
    return plain::all_equal(left, right, count, Own_Equality{});
#endif
}

bool all_equal(const double *left, const double *right, std::size_t count) noexcept
{
#if ZEB_HAS_HIGHWAY
    return HWY_DYNAMIC_DISPATCH(all_equal_double)(left, right, count);
#else
    return plain::all_equal(left, right, count, Own_Equality{});
#endif
}

} // namespace zeb::engine::kernels
#endif
