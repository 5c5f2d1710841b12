#include "tests/support/memory.hpp"

#include "arrays/engine/allocator.hpp"

#include <cstdlib>

using support::memory;

namespace zeb::engine
{

void *reallocate(void *block, std::size_t size) noexcept
{
    if (memory.fails())
        return nullptr;
    void *const moved = std::realloc(block, size);
    memory.blocks += block == nullptr && moved != nullptr;
    return moved;
}

void release(void *block) noexcept
{
    memory.blocks -= block != nullptr;
    std::free(block);
}

} // namespace zeb::engine
