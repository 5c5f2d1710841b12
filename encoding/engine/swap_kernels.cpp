#include "encoding/engine/swap_kernels.hpp"

#include "arrays/engine/kernels/stores.hpp"
#include "encoding/engine/swap_loop.hpp"

#include <algorithm>

#if ZEB_HAS_HIGHWAY
#include "arrays/engine/kernels/vector_targets.hpp"
#undef HWY_TARGET_INCLUDE
#define HWY_TARGET_INCLUDE "encoding/engine/swap_kernels.cpp"
#include <hwy/foreach_target.h>

#include "arrays/engine/kernels/vector_lanes.hpp"
#include <hwy/cache_control.h>

HWY_BEFORE_NAMESPACE();
namespace zeb::engine::kernels
{
namespace HWY_NAMESPACE
{
namespace hn = hwy::HWY_NAMESPACE;

using Bytes = hn::ScalableTag<std::uint8_t>;

/// Reverses the bytes of each `Word` of a vector.
template <class Word>
HWY_INLINE hn::Vec<Bytes> reversed_words(hn::Vec<Bytes> vector)
{
    HWY_ALIGN static constexpr std::uint8_t of_4[16] = {3, 2, 1, 0, 7, 6, 5, 4, 11, 10, 9, 8, 15, 14, 13, 12};
    HWY_ALIGN static constexpr std::uint8_t of_8[16] = {7, 6, 5, 4, 3, 2, 1, 0, 15, 14, 13, 12, 11, 10, 9, 8};
    return hn::TableLookupBytes(vector, hn::LoadDup128(Bytes(), sizeof(Word) == 4 ? of_4 : of_8));
}

template <class Word>
void copy_swapped(Word *words, const std::uint8_t *bytes, std::size_t count)
{
#if HWY_TARGET == HWY_SCALAR
    plain::copy_swapped(words, bytes, count);
#else
    const Bytes d;
    const std::size_t N = hn::Lanes(d) / sizeof(Word);
    if (reinterpret_cast<std::uintptr_t>(words) % sizeof(Word) != 0)
        return plain::copy_swapped(words, bytes, count);
    std::uint8_t *const out = reinterpret_cast<std::uint8_t *>(words);
    const auto swapped = [=](std::size_t index) HWY_ATTR {
        return reversed_words<Word>(hn::LoadU(d, bytes + index * sizeof(Word)));
    };
    std::size_t index = std::min(count, lanes_to_boundary(hn::ScalableTag<Word>(), words));
    plain::copy_swapped(words, bytes, index);
    // Above this size the caches could not keep the copy anyway.
    if (count * sizeof(Word) > streaming_bytes) {
        for (; index + N <= count; index += N)
            hn::Stream(swapped(index), d, out + index * sizeof(Word));
        hwy::FlushStream();
    }
    for (; index + N <= count; index += N)
        hn::Store(swapped(index), d, out + index * sizeof(Word));
    plain::copy_swapped(words + index, bytes + index * sizeof(Word), count - index);
#endif
}

constexpr Swap_Kernels swap_table{.copy_swapped_32 = copy_swapped<std::uint32_t>,
                                  .copy_swapped_64 = copy_swapped<std::uint64_t>};

} // namespace HWY_NAMESPACE
} // namespace zeb::engine::kernels
HWY_AFTER_NAMESPACE();
#endif

#if !ZEB_HAS_HIGHWAY || HWY_ONCE
#include "arrays/engine/kernels/vector_dispatch.hpp"

namespace zeb::engine::kernels
{

#if !ZEB_HAS_HIGHWAY
constexpr Swap_Kernels swap_table{.copy_swapped_32 = plain::copy_swapped<std::uint32_t>,
                                  .copy_swapped_64 = plain::copy_swapped<std::uint64_t>};
#endif

const Swap_Kernels &swaps() noexcept { return ZEB_CHOSEN(swap_table); }

} // namespace zeb::engine::kernels
#endif
