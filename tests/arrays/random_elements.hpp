/// Inputs for the kernels: elements of every type at random, and room for them between walls.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <limits>
#include <random>
#include <span>
#include <sys/mman.h>
#include <type_traits>
#include <vector>

namespace zeb_test
{

using Element_Types = testing::Types<uint8_t, char, int32_t, uint32_t, int64_t, float, double, void *>;

template <class Element>
Element odd_value(std::mt19937 &random)
{
    if constexpr (std::is_floating_point_v<Element>) {
        using Limits = std::numeric_limits<Element>;
        const Element odd[] = {Limits::quiet_NaN(), -Limits::quiet_NaN(), Element(0),          -Element(0),
                               Limits::infinity(),  -Limits::infinity(),  Limits::denorm_min()};
        return odd[random() % std::size(odd)];
    } else if constexpr (std::is_pointer_v<Element>) {
        return reinterpret_cast<Element>(uintptr_t{random() % 2 == 0 ? 0 : UINTPTR_MAX});
    } else {
        return random() % 2 == 0 ? std::numeric_limits<Element>::min() : std::numeric_limits<Element>::max();
    }
}

/// One of few values, or of the whole width of the type.
template <class Element>
Element draw_element(std::mt19937 &random, bool few)
{
    const uint64_t bits = uint64_t{random()} << 32 | random();
    if constexpr (std::is_pointer_v<Element>)
        return reinterpret_cast<Element>(static_cast<uintptr_t>(few ? bits % 5 * 8 : bits));
    else if constexpr (std::is_floating_point_v<Element>)
        return few ? (bits % 2 == 0 ? -1 : 1) * static_cast<Element>(bits / 2 % 3)
                   : static_cast<Element>(static_cast<int64_t>(bits)) * Element(1e-3);
    else
        return static_cast<Element>(few ? bits % 5 + 126 : bits);
}

/// Room between pages that cannot be reached. What is put there ends at one of them, begins at the other, or
/// lies at any offset between them; the bytes around are not to be touched.
template <class Element>
class Walled_Room
{
public:
    Walled_Room()
        : block(static_cast<char *>(
              mmap(nullptr, size + 2 * page, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0)))
    {
        EXPECT_EQ(mprotect(block + page, size, PROT_READ | PROT_WRITE), 0);
    }
    ~Walled_Room() { munmap(block, size + 2 * page); }

    Walled_Room(const Walled_Room &) = delete;
    Walled_Room &operator=(const Walled_Room &) = delete;

    std::span<Element> put(const std::vector<Element> &elements, size_t offset)
    {
        const size_t bytes = elements.size() * sizeof(Element), free = size - bytes;
        before = offset % 3 == 0 ? free : offset % 3 == 1 ? 0 : offset * sizeof(Element);
        after = free - before;
        std::memset(first() - wall(before), 0xA5, wall(before));
        std::memset(first() + bytes, 0xA5, wall(after));
        if (bytes != 0)
            std::memcpy(first(), elements.data(), bytes);
        return {reinterpret_cast<Element *>(first()), elements.size()};
    }

    bool walls_stand() const
    {
        const std::vector<char> brick(wall(size), '\xA5');
        return std::memcmp(first() - wall(before), brick.data(), wall(before)) == 0 &&
               std::memcmp(block + page + size - after, brick.data(), wall(after)) == 0;
    }

    /// From now on the bytes from a page on cannot be written.
    void seal(size_t from) { EXPECT_EQ(mprotect(block + page + from, size - from, PROT_READ), 0); }

private:
    static constexpr size_t page = 65536, size = size_t{18} << 20;
    static size_t wall(size_t free) { return std::min<size_t>(free, 64); }
    char *first() const { return block + page + before; }

    char *block;
    size_t before = 0, after = 0;
};

/// True when both are the same, bit for bit.
template <class Element>
bool same_bits(std::span<const Element> left, const std::vector<Element> &right)
{
    return left.size() == right.size() &&
           (left.empty() || std::memcmp(left.data(), right.data(), left.size_bytes()) == 0);
}

} // namespace zeb_test
