#include "arrays/engine/storage/block_growth.hpp"

#include "arrays/engine/allocator.hpp"

#include <algorithm>
#include <cstring>

namespace zeb::engine
{
namespace
{

constexpr std::uint64_t raised_to_seed(std::uint64_t capacity, std::uint32_t seed) noexcept
{
    const std::uint64_t least = seed == 0 ? 1 : seed;
    return capacity < least ? least : capacity;
}

} // namespace

std::uint64_t proper_capacity(std::uint32_t count, std::uint32_t seed) noexcept
{
    std::uint64_t capacity = raised_to_seed(0, seed);
    while (capacity < count)
        capacity *= 2;
    return capacity;
}

std::uint64_t grown_capacity(std::uint32_t capacity, std::uint64_t needed, std::uint32_t seed) noexcept
{
    if (capacity > needed)
        return capacity;
    std::uint64_t grown = raised_to_seed(capacity, seed);
    while (grown <= needed)
        grown *= 2;
    // The last doubling may exceed 32 bits; the greatest capacity then suffices.
    return needed < max_capacity ? std::min(grown, max_capacity) : grown;
}

bool resize_block(Block &block, std::uint64_t capacity, Block_Layout layout) noexcept
{
    if (capacity > max_capacity || capacity > SIZE_MAX / layout.element_size)
        return false;
    const std::size_t size = static_cast<std::size_t>(capacity) * layout.element_size;
    void *const data = reallocate(block.data, size);
    if (data == nullptr)
        return false;
    const std::size_t used = block.data == nullptr ? 0 : block.capacity * layout.element_size;
    if (layout.zero_filled && used < size)
        std::memset(static_cast<char *>(data) + used, 0, size - used);
    block = {data, static_cast<std::uint32_t>(capacity)};
    return true;
}

bool grow_block(Block &block, std::uint64_t needed, std::uint32_t seed, Block_Layout layout) noexcept
{
    if (block.capacity > needed)
        return true;
    // The sum of two counts can exceed 32 bits.
    if (needed >= max_capacity)
        return false;
    return resize_block(block, grown_capacity(block.capacity, needed, seed), layout);
}

} // namespace zeb::engine
