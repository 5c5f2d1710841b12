/// A temporary block of elements.
#pragma once

#include "arrays/engine/allocator.hpp"

#include <cstddef>
#include <cstdint>

namespace zeb::engine
{

/// Owns room for `count` undefined elements. `get` returns null if allocation fails or `count` is 0.
template <class Element>
class Scratch
{
public:
    explicit Scratch(std::size_t count) noexcept : block(make(count)) {}
    Scratch(const Scratch &) = delete;
    Scratch &operator=(const Scratch &) = delete;
    ~Scratch() { release(block); }

    Element *get() const noexcept { return block; }

private:
    static Element *make(std::size_t count) noexcept
    {
        if (count == 0 || count > SIZE_MAX / sizeof(Element))
            return nullptr;
        return static_cast<Element *>(reallocate(nullptr, count * sizeof(Element)));
    }

    Element *block;
};

} // namespace zeb::engine
