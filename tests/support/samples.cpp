#include <Korvane_ZEB/ZEB_Types.h>

#include <cstring>
#include <functional>
#include <unordered_map>
#include <vector>

namespace support
{

/// Declared in samples.hpp, which is for Objective-C++.
std::function<std::vector<uint32_t>(const void *, size_t)> numbering(const void *samples, size_t sample_count,
                                                                     size_t element_size)
{
    const auto bits_at = [=](const void *elements, size_t index) {
        uint64_t bits = 0;
        std::memcpy(&bits, static_cast<const char *>(elements) + index * element_size, element_size);
        return bits;
    };
    std::unordered_map<uint64_t, uint32_t> numbers;
    for (uint32_t i = 0; i < sample_count; ++i)
        numbers.emplace(bits_at(samples, i), i);
    return [=](const void *elements, size_t count) {
        std::vector<uint32_t> found(count, ZEB_NOT_FOUND);
        for (size_t i = 0; i < count; ++i)
            if (const auto sample = numbers.find(bits_at(elements, i)); sample != numbers.end())
                found[i] = sample->second;
        return found;
    };
}

} // namespace support
