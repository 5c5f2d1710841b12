#include "arrays/engine/kernels/shell_columns.hpp"

#include "arrays/engine/kernels/shell_sort.hpp"

#include <type_traits>

#if ZEB_HAS_HIGHWAY
#include "arrays/engine/kernels/vector_targets.hpp"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "arrays/engine/kernels/shell_columns.cpp"
#include <hwy/foreach_target.h>

#include <hwy/highway.h>

HWY_BEFORE_NAMESPACE();
namespace zeb::engine::kernels
{
namespace HWY_NAMESPACE
{
namespace hn = hwy::HWY_NAMESPACE;

/// A vector of lanes and the vector of their companions.
template <class D, class Companions>
struct Row {
    using Lane = hn::TFromD<D>;
    using Du = hn::Rebind<std::remove_pointer_t<Companions>, D>;
    using Mask = hn::Mask<D>;

    static std::size_t lanes() { return hn::Lanes(D()); }
    HWY_INLINE static Row load(const Lane *lanes, Companions companions)
    {
        return {hn::LoadU(D(), lanes), hn::LoadU(Du(), companions)};
    }
    HWY_INLINE void store(Lane *lanes, Companions companions) const
    {
        hn::StoreU(keys, D(), lanes);
        hn::StoreU(others, Du(), companions);
    }
    HWY_INLINE static Row choose(Mask mask, const Row &yes, const Row &no)
    {
        return {hn::IfThenElse(mask, yes.keys, no.keys),
                hn::IfThenElse(hn::RebindMask(Du(), mask), yes.others, no.others)};
    }
    HWY_INLINE Mask before(const Row &other) const { return hn::Lt(keys, other.keys); }
    HWY_INLINE static Mask both(Mask left, Mask right) { return hn::And(left, right); }
    HWY_INLINE static bool none(Mask mask) { return hn::AllFalse(D(), mask); }

    hn::Vec<D> keys;
    hn::Vec<Du> others;
};

/// A vector of lanes alone.
template <class D>
struct Row<D, shell::No_Companions> {
    using Lane = hn::TFromD<D>;
    using Mask = hn::Mask<D>;

    static std::size_t lanes() { return hn::Lanes(D()); }
    HWY_INLINE static Row load(const Lane *lanes, shell::No_Companions) { return {hn::LoadU(D(), lanes)}; }
    HWY_INLINE void store(Lane *lanes, shell::No_Companions) const { hn::StoreU(keys, D(), lanes); }
    HWY_INLINE static Row choose(Mask mask, const Row &yes, const Row &no)
    {
        return {hn::IfThenElse(mask, yes.keys, no.keys)};
    }
    HWY_INLINE Mask before(const Row &other) const { return hn::Lt(keys, other.keys); }
    HWY_INLINE static Mask both(Mask left, Mask right) { return hn::And(left, right); }
    HWY_INLINE static bool none(Mask mask) { return hn::AllFalse(D(), mask); }

    hn::Vec<D> keys;
};

/// Two neighbouring vectors as one row: half as many loop ends to predict, and whole cache lines.
template <class D, class Companions>
struct Twin_Row {
    using Half = Row<D, Companions>;
    using Lane = hn::TFromD<D>;
    struct Mask {
        typename Half::Mask low, high;
    };

    static std::size_t lanes() { return 2 * Half::lanes(); }
    HWY_INLINE static Twin_Row load(const Lane *lanes, Companions companions)
    {
        return {Half::load(lanes, companions), Half::load(lanes + Half::lanes(), companions + Half::lanes())};
    }
    HWY_INLINE void store(Lane *lanes, Companions companions) const
    {
        low.store(lanes, companions);
        high.store(lanes + Half::lanes(), companions + Half::lanes());
    }
    HWY_INLINE static Twin_Row choose(const Mask &mask, const Twin_Row &yes, const Twin_Row &no)
    {
        return {Half::choose(mask.low, yes.low, no.low), Half::choose(mask.high, yes.high, no.high)};
    }
    HWY_INLINE Mask before(const Twin_Row &other) const
    {
        return {low.before(other.low), high.before(other.high)};
    }
    HWY_INLINE static Mask both(const Mask &left, const Mask &right)
    {
        return {hn::And(left.low, right.low), hn::And(left.high, right.high)};
    }
    HWY_INLINE static bool none(const Mask &mask) { return hn::AllFalse(D(), hn::Or(mask.low, mask.high)); }

    Half low, high;
};

/// Carries a row of neighbouring lanes down their chains. Each lane stops at its own position; `moving` holds
/// those that have not stopped yet.
template <class Row_Of, class Lane, class Companions>
HWY_INLINE void carry_row_down(Lane *lanes, Companions companions, std::size_t start, std::size_t gap)
{
    const Row_Of carried = Row_Of::load(lanes + start, companions + start);
    Row_Of earlier = Row_Of::load(lanes + start - gap, companions + (start - gap));
    auto moving = carried.before(earlier);
    if (Row_Of::none(moving))
        return;
    Row_Of::choose(moving, earlier, carried).store(lanes + start, companions + start);
    std::size_t later = start - gap;
    // Here `earlier` is what the row at `later` held; the moving lanes belong there or further down.
    for (; later >= gap; later -= gap) {
        const Row_Of below = Row_Of::load(lanes + later - gap, companions + (later - gap));
        const auto still = Row_Of::both(moving, carried.before(below));
        if (Row_Of::none(still))
            break;
        const Row_Of placed = Row_Of::choose(moving, carried, earlier);
        Row_Of::choose(still, below, placed).store(lanes + later, companions + later);
        earlier = below;
        moving = still;
    }
    Row_Of::choose(moving, carried, earlier).store(lanes + later, companions + later);
}

/// Sorts neighbouring chains, the first of which begins at `column`, as many as a row has lanes.
template <class Row_Of, class Lane, class Companions>
void sort_chains(Lane *lanes, Companions companions, std::size_t count, std::size_t gap, std::size_t column)
{
    std::size_t start = column + gap;
    for (; start + Row_Of::lanes() <= count; start += gap)
        carry_row_down<Row_Of>(lanes, companions, start, gap);
    for (; start < count; ++start)
        shell::carry_down(lanes, companions, start, gap);
}

/// One pass with a gap of at least a row. The last columns may be sorted already: a sorted chain,
/// whatever its elements, stays as it is.
template <class Row_Of, class Lane, class Companions>
void sort_pass(Lane *lanes, Companions companions, std::size_t count, std::size_t gap)
{
    const std::size_t N = Row_Of::lanes();
    std::size_t column = 0;
    for (; column + N <= gap; column += N)
        sort_chains<Row_Of>(lanes, companions, count, gap, column);
    if (column < gap)
        sort_chains<Row_Of>(lanes, companions, count, gap, gap - N);
}

template <class Lane, class Companions>
void sort_by_columns(Lane *lanes, Companions companions, std::size_t count)
{
    using Whole = Row<hn::ScalableTag<Lane>, Companions>;
    using Twin = Twin_Row<hn::ScalableTag<Lane>, Companions>;
    using Four = Row<hn::CappedTag<Lane, 4>, Companions>;
    for (std::size_t gap = shell::first_gap(count); gap > 0; gap /= 3) {
        if (Twin::lanes() * sizeof(Lane) <= 64 && gap >= Twin::lanes())
            sort_pass<Twin>(lanes, companions, count, gap);
        else if (gap >= Whole::lanes())
            sort_pass<Whole>(lanes, companions, count, gap);
        else if (gap >= Four::lanes())
            sort_pass<Four>(lanes, companions, count, gap);
        else
            shell::pass(lanes, companions, count, gap);
    }
}

template <class Lane>
void sort_lanes(Lane *lanes, std::size_t count)
{
    sort_by_columns(lanes, shell::No_Companions(), count);
}

template <class Lane>
constexpr Column_Kernels<Lane> column_table{.sort = sort_lanes<Lane>,
                                            .sort_pairs = sort_by_columns<Lane, Bits_Lane<Lane> *>};

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
constexpr Column_Kernels<Lane> column_table{
    .sort = [](Lane *lanes, std::size_t count) { shell::sort_lanes(lanes, shell::No_Companions(), count); },
    .sort_pairs = shell::sort_lanes<Lane, Bits_Lane<Lane> *>};
#endif

template <class Lane>
const Column_Kernels<Lane> &columns() noexcept
{
    return ZEB_CHOSEN(column_table<Lane>);
}
template const Column_Kernels<std::uint32_t> &columns() noexcept;
template const Column_Kernels<std::int32_t> &columns() noexcept;
template const Column_Kernels<std::uint64_t> &columns() noexcept;
template const Column_Kernels<std::int64_t> &columns() noexcept;
template const Column_Kernels<float> &columns() noexcept;
template const Column_Kernels<double> &columns() noexcept;

} // namespace zeb::engine::kernels
#endif
