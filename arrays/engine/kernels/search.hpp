/// Searches and comparisons in vectors. Lanes compare by their own `==`; pointers to lanes need no alignment
/// beyond the lane's.
#pragma once

#include <cstddef>

namespace zeb::engine::kernels
{

template <class Lane>
struct Search_Kernels {
    /// Index of the first (last) lane equal to the value; count if there is none.
    std::size_t (*first_equal)(const Lane *lanes, std::size_t count, Lane value);
    std::size_t (*last_equal)(const Lane *lanes, std::size_t count, Lane value);

    /// Start of the first run equal to the pattern; count if there is none. The length is at least 1 and at
    /// most count. Takes time linear in count, unless a table of `length` numbers cannot be allocated.
    std::size_t (*find_run)(const Lane *lanes, std::size_t count, const Lane *pattern, std::size_t length);

    /// True if all lanes are equal by value.
    bool (*all_equal)(const Lane *left, const Lane *right, std::size_t count);
};

/// The kernels for the processor in use; for unsigned integers of 8, 32 and 64 bits, float and double.
template <class Lane>
const Search_Kernels<Lane> &search() noexcept;

} // namespace zeb::engine::kernels
