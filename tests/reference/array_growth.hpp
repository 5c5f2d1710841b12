/// The growth of an array, step by step, on a plain vector of values.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace reference
{

/// What an array should hold, and the capacity that it should have, when the allocator never fails.
struct Grown_Array {
    std::vector<int> elements;
    std::uint32_t capacity = 0;
    std::uint32_t seed = 16;

    void make_room_for(std::uint32_t needed)
    {
        if (capacity > needed)
            return;
        if (capacity < seed)
            capacity = seed;
        while (capacity <= needed)
            capacity *= 2;
    }

    void trim()
    {
        std::uint32_t proper = seed;
        while (proper < elements.size())
            proper *= 2;
        if (proper < capacity)
            capacity = proper;
    }

    void resize(std::uint32_t count)
    {
        make_room_for(count);
        elements.resize(count);
    }

    /// A single element grows by one step only.
    void insert_one(std::uint32_t at, int element)
    {
        if (capacity <= elements.size())
            capacity = capacity < seed ? seed : 2 * capacity;
        elements.insert(elements.begin() + at, element);
    }

    void insert_many(std::uint32_t at, const std::vector<int> &others)
    {
        if (others.empty())
            return;
        make_room_for(static_cast<std::uint32_t>(elements.size() + others.size()));
        elements.insert(elements.begin() + at, others.begin(), others.end());
    }

    void replace(std::uint32_t at, const std::vector<int> &others)
    {
        const auto count = static_cast<std::uint32_t>(elements.size());
        if (!others.empty())
            make_room_for(count + static_cast<std::uint32_t>(others.size()) - 1);
        elements.erase(elements.begin() + at);
        elements.insert(elements.begin() + at, others.begin(), others.end());
    }

    void assign(const std::vector<int> &others)
    {
        make_room_for(static_cast<std::uint32_t>(others.size()));
        elements = others;
    }
};

} // namespace reference
