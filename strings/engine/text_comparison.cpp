#include "strings/engine/text_comparison.hpp"

#include "strings/engine/character_class.hpp"
#include "strings/engine/text_kernels.hpp"

#include <algorithm>
#include <cstring>

namespace zeb::engine
{
namespace
{

using Text = std::span<const char>;

/// From this many bytes on, vectors are worth testing the locale for.
constexpr std::size_t min_vector_length = 32;

const std::uint8_t *bytes_of(Text text) { return reinterpret_cast<const std::uint8_t *>(text.data()); }

/// Returns the index of the first bytes that differ when folded, or the length of the common part.
std::size_t first_folded_difference(Text left, Text right, const Case_Folding &fold)
{
    const std::size_t count = std::min(left.size(), right.size());
    const bool by_vectors = count >= min_vector_length && fold.folds_like_ascii();
    for (std::size_t index = 0; index < count; ++index) {
        if (by_vectors)
            index += kernels::first_difference_ignoring_ascii_case(bytes_of(left) + index,
                                                                   bytes_of(right) + index, count - index);
        // Bytes that differ by ASCII case folding may still fold alike in this locale.
        if (index == count || fold(left[index]) != fold(right[index]))
            return index;
    }
    return count;
}

} // namespace

std::size_t first_difference(const std::uint32_t *left, const std::uint32_t *right,
                             std::size_t count) noexcept
{
    // memcmp is fastest but does not return the position, so it compares a block at a time.
    constexpr std::size_t block = 4096;
    for (std::size_t index = 0; index < count; index += block) {
        const std::size_t length = std::min(block, count - index);
        if (std::memcmp(left + index, right + index, length * sizeof *left) != 0)
            return index + kernels::first_difference(left + index, right + index, length);
    }
    return count;
}

ZEB_Comparison compare_ignoring_case(Text left, Text right) noexcept
{
    const Case_Folding fold;
    const std::size_t index = first_folded_difference(left, right, fold);
    if (index == left.size() || index == right.size())
        return order_of_lengths(left.size(), right.size());
    const auto first = static_cast<signed char>(fold(left[index]));
    return order_of_difference(first < static_cast<signed char>(fold(right[index])));
}

bool is_equal_ignoring_case(Text left, Text right) noexcept
{
    return left.size() == right.size() && first_folded_difference(left, right, Case_Folding()) == left.size();
}

} // namespace zeb::engine
