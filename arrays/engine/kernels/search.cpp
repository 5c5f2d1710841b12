#include "arrays/engine/kernels/search.hpp"

#include "arrays/engine/kernels/knuth_morris_pratt.hpp"
#include "arrays/engine/kernels/pattern_probes.hpp"
#include "arrays/engine/kernels/plain_loops.hpp"

#include <cstdint>
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
        return plain::last_equal(lanes, count, value);
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
    const std::size_t rest = plain::last_equal(lanes, end, value);
    return rest == end ? count : rest;
}

/// True when all lanes of a pattern are equal to those at a start.
template <class Lane>
HWY_INLINE bool equal_at(const Lane *lanes, const Lane *pattern, std::size_t length)
{
    if constexpr (std::is_integral_v<Lane>)
        return std::memcmp(lanes, pattern, length * sizeof(Lane)) == 0;
    else
        return plain::all_equal(lanes, pattern, length);
}

/// A pattern, and the three of its lanes that have to match before the rest is compared.
template <class Lane>
struct Pattern {
    using D = hn::ScalableTag<Lane>;

    Pattern(const Lane *lanes, std::size_t count, Probe_Positions probes)
        : pattern(lanes), length(count), at(probes), first(hn::Set(D(), lanes[at.first])),
          second(hn::Set(D(), lanes[at.second])), third(hn::Set(D(), lanes[at.third]))
    {
    }

    /// For a vector of starts, which of them match in those lanes.
    HWY_INLINE auto candidates(const Lane *start) const
    {
        const D d;
        const auto two = hn::And(matches(d, start + at.first, first), matches(d, start + at.second, second));
        return hn::And(two, matches(d, start + at.third, third));
    }

    /// The first of a vector of starts that matches wholly, or `Lanes(d)`. Counts failed comparisons.
    std::size_t find(const Lane *start, std::size_t &failures) const
    {
        const D d;
        for (std::uint64_t rest = bits_of(d, candidates(start)); rest != 0; rest &= rest - 1, ++failures) {
            const std::size_t candidate = static_cast<unsigned>(__builtin_ctzll(rest));
            if (equal_at(start + candidate, pattern, length))
                return candidate;
        }
        return hn::Lanes(d);
    }

    const Lane *pattern;
    std::size_t length;
    Probe_Positions at;
    hn::Vec<D> first, second, third;
};

/// Prefetch distance. Without it, verifying a candidate stalls the scan.
constexpr std::size_t prefetch_bytes = 1024;

/// Tests four vectors of starts at a time. If nothing is found, returns where it gave up: `count` at the
/// end, less if failed comparisons took too much time.
template <class Lane>
std::size_t find_run_by_probes(const Lane *lanes, std::size_t count, Pattern<Lane> pattern, bool &found)
{
    const hn::ScalableTag<Lane> d;
    const std::size_t N = hn::Lanes(d);
    const std::size_t length = pattern.length;
    const std::size_t starts = count - length + 1;
    const std::size_t cost = 16 + length * sizeof(Lane) / 16;
    std::size_t failures = 0;
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
            // The last vector may test starts again that are known not to match.
            const std::size_t start = HWY_MIN(index, starts - N);
            const std::size_t at = pattern.find(lanes + start, failures);
            found = at < N;
            if (found)
                return start + at;
        }
        if (failures * cost > 4 * index + 4096 && index < starts)
            return index;
    }
    found = false;
    return count;
}

/// The same; once the ends and the middle of the pattern have rejected too few starts, or many starts were
/// tested, the probes are chosen by a sample of the text.
template <class Lane>
std::size_t find_run_by_best_probes(const Lane *lanes, std::size_t count, const Lane *sought,
                                    std::size_t length, bool &found)
{
    const Pattern<Lane> ends(sought, length, ends_and_middle(length));
    const std::size_t head = length - 1 + positions_before_sampling;
    if (!std::is_integral_v<Lane> || length < 4 || count < head + positions_before_sampling)
        return find_run_by_probes(lanes, count, ends, found);
    const std::size_t start = find_run_by_probes(lanes, head, ends, found);
    if (found)
        return start;
    const std::size_t tested = HWY_MIN(start, positions_before_sampling);
    const Lane *const rest = lanes + tested;
    const std::size_t left = count - tested;
    const Pattern<Lane> rarest(sought, length, rarest_positions(rest, left, sought, length));
    return tested + find_run_by_probes(rest, left, rarest, found);
}

template <class Lane>
std::size_t find_run(const Lane *lanes, std::size_t count, const Lane *pattern, std::size_t length)
{
    if (length == 1)
        return first_equal(lanes, count, pattern[0]);
    if (count - length + 1 < hn::Lanes(hn::ScalableTag<Lane>()))
        return plain::find_run(lanes, count, pattern, length);
    bool found;
    const std::size_t start = find_run_by_best_probes(lanes, count, pattern, length, found);
    if (found || count - start < length)
        return found ? start : count;
    return start + plain::find_run_linearly(lanes + start, count - start, pattern, length);
}

template <class Lane>
bool all_equal(const Lane *left, const Lane *right, std::size_t count)
{
    const hn::ScalableTag<Lane> d;
    const std::size_t N = hn::Lanes(d);
    if (count < N)
        return plain::all_equal(left, right, count);
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

template <class Lane>
constexpr Search_Kernels<Lane> search_table{.first_equal = first_equal<Lane>,
                                            .last_equal = last_equal<Lane>,
                                            .find_run = find_run<Lane>,
                                            .all_equal = all_equal<Lane>};

} // namespace HWY_NAMESPACE
} // namespace zeb::engine::kernels
HWY_AFTER_NAMESPACE();
#endif

#if !ZEB_HAS_HIGHWAY || HWY_ONCE
#include "arrays/engine/kernels/vector_dispatch.hpp"

namespace zeb::engine::kernels
{

#if !ZEB_HAS_HIGHWAY
template <class Lane>
constexpr Search_Kernels<Lane> search_table{.first_equal = ZEB_PLAIN(first_equal),
                                            .last_equal = ZEB_PLAIN(last_equal),
                                            .find_run = ZEB_PLAIN(find_run_linearly),
                                            .all_equal = ZEB_PLAIN(all_equal)};
#endif

template <class Lane>
const Search_Kernels<Lane> &search() noexcept
{
    return ZEB_CHOSEN(search_table<Lane>);
}
template const Search_Kernels<std::uint8_t> &search() noexcept;
template const Search_Kernels<std::uint32_t> &search() noexcept;
template const Search_Kernels<std::uint64_t> &search() noexcept;
template const Search_Kernels<float> &search() noexcept;
template const Search_Kernels<double> &search() noexcept;

} // namespace zeb::engine::kernels
#endif
