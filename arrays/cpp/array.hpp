/// A growable array of numbers that owns its elements.
#pragma once

#include <Korvane_ZEB_engine/elements.hpp>

#include <utility>

namespace zeb
{

namespace detail
{
struct Array_Access;
} // namespace detail

/// Elements in one block from the C allocator, which grows by doubling. An array is moved, and copied by
/// `copy` alone, since that may fail; one that was moved from is empty.
///
/// Operations that need memory return false, with the array unchanged, if allocation fails or more than
/// greatest_count - 1 elements would be needed. What they are given may be the array's own elements.
/// Pointers, iterators and spans into an array are valid until it grows, is trimmed or ends.
template <Element Type>
class Array
{
public:
    using value_type = Type;

    /// The capacity of the first block is this number times a power of two.
    static constexpr std::uint32_t default_growth_seed = 8;

    /// Makes an empty array, without a block.
    Array() noexcept = default;

    /// The same with another growth seed; 0 counts as 1.
    explicit Array(std::uint32_t growth_seed) noexcept : seed(growth_seed) {}

    Array(Array &&other) noexcept { swap(other); }
    Array &operator=(Array &&other) noexcept
    {
        Array former(std::move(other));
        swap(former);
        return *this;
    }
    Array(const Array &) = delete;
    Array &operator=(const Array &) = delete;
    ~Array();

    /// Replaces the elements with those of another range.
    [[nodiscard]] bool copy(std::span<const Type> values) noexcept;

    Type *data() noexcept { return block; }
    const Type *data() const noexcept { return block; }
    std::size_t size() const noexcept { return count; }
    std::size_t capacity() const noexcept { return room; }
    bool empty() const noexcept { return count == 0; }

    Type *begin() noexcept { return block; }
    Type *end() noexcept { return block + count; }
    const Type *begin() const noexcept { return block; }
    const Type *end() const noexcept { return block + count; }

    /// An element; the index must be below the count.
    Type &operator[](std::size_t index) noexcept { return block[index]; }
    const Type &operator[](std::size_t index) const noexcept { return block[index]; }

    /// Appends a value. A full block grows.
    [[nodiscard]] bool append(Type value) noexcept
    {
        if (count == room) [[unlikely]]
            return append_with_growth(value);
        block[count++] = value;
        return true;
    }

    /// Append a run of elements, or insert it before an index; an index past the count appends.
    [[nodiscard]] bool append(std::span<const Type> values) noexcept;
    [[nodiscard]] bool insert(std::size_t index, std::span<const Type> values) noexcept;

    /// Removes elements from an index on, as far as there are any.
    void remove(std::size_t index, std::size_t number = 1) noexcept;

    /// Sets the count. New elements are not initialised.
    [[nodiscard]] bool resize(std::size_t new_count) noexcept;

    /// Makes the capacity exceed a count.
    [[nodiscard]] bool reserve(std::size_t wanted) noexcept;

    /// Removes the elements and keeps the block.
    void clear() noexcept { count = 0; }

    /// Gives back what the block has beyond the least capacity for its elements.
    void trim() noexcept;

    void swap(Array &other) noexcept
    {
        std::swap(block, other.block);
        std::swap(count, other.count);
        std::swap(room, other.room);
        std::swap(seed, other.seed);
    }

private:
    friend struct detail::Array_Access;

    bool append_with_growth(Type value) noexcept;

    Type *block = nullptr;
    std::uint32_t count = 0;
    std::uint32_t room = 0;
    std::uint32_t seed = default_growth_seed;
};

} // namespace zeb
