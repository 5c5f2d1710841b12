#include "tests/support/numbering.hpp"

#include <Korvane_ZEB/ZEB_Types.h>

#include <cstring>

namespace support
{

Numbering::Numbering(const void *samples, size_t count, size_t element_size) : element_size(element_size)
{
    for (uint32_t i = 0; i < count; ++i)
        numbers.emplace(bits_at(samples, i), i);
}

std::vector<uint32_t> Numbering::numbers_of(const void *elements, size_t count) const
{
    std::vector<uint32_t> found(count, ZEB_NOT_FOUND);
    for (size_t i = 0; i < count; ++i)
        if (const auto sample = numbers.find(bits_at(elements, i)); sample != numbers.end())
            found[i] = sample->second;
    return found;
}

uint64_t Numbering::bits_at(const void *elements, size_t index) const
{
    uint64_t bits = 0;
    std::memcpy(&bits, static_cast<const char *>(elements) + index * element_size, element_size);
    return bits;
}

} // namespace support
