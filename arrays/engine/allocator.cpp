#include "arrays/engine/allocator.hpp"

#include <cstdlib>

namespace zeb::engine
{

void *reallocate(void *block, std::size_t size) noexcept { return std::realloc(block, size); }

void release(void *block) noexcept { std::free(block); }

} // namespace zeb::engine
