#include "encoding/engine/check_sum.hpp"

#include <algorithm>
#include <zlib.h>

namespace zeb::engine
{

std::uint32_t check_sum(const char *bytes, std::size_t size) noexcept
{
    constexpr std::size_t most_per_call = std::size_t{1} << 30; // zlib counts in 32 bits
    uLong sum = crc32(0, nullptr, 0);
    while (size != 0) {
        const std::size_t piece = std::min(size, most_per_call);
        sum = crc32(sum, reinterpret_cast<const Bytef *>(bytes), static_cast<uInt>(piece));
        bytes += piece;
        size -= piece;
    }
    return static_cast<std::uint32_t>(sum);
}

} // namespace zeb::engine
