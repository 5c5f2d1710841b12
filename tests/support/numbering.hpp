/// Tells plain elements by their bits: which of some samples each is. Asked for more than all else, so
/// optimised where tests are not.
#pragma once

#include <cstddef>
#include <cstdint>
#include <unordered_map>
#include <vector>

namespace support
{

class Numbering
{
public:
    Numbering(const void *samples, size_t count, size_t element_size);

    /// The number of the sample that each element is; ZEB_NOT_FOUND for what is none.
    std::vector<uint32_t> numbers_of(const void *elements, size_t count) const;

private:
    uint64_t bits_at(const void *elements, size_t index) const;

    size_t element_size;
    std::unordered_map<uint64_t, uint32_t> numbers;
};

} // namespace support
