#include "encoding/engine/checked_document.hpp"

#include "encoding/engine/binary_header.hpp"
#include "encoding/engine/byte_order.hpp"
#include "encoding/engine/check_sum.hpp"

#include <cstring>

namespace zeb::engine
{
namespace
{

constexpr std::uint32_t tail_offset = binary_header_size - header_tail_size;

bool has_tail(const char *document, const char *tail) noexcept
{
    return std::memcmp(document + tail_offset, tail, header_tail_size) == 0;
}

} // namespace

void add_check_sum(char *document, std::uint32_t length) noexcept
{
    std::memcpy(document + tail_offset, checked_header_tail, header_tail_size);
    const std::uint32_t sum = check_sum(document, length);
    std::memcpy(document + length, &sum, check_sum_size);
}

bool is_damaged(const char *document, std::uint32_t length, bool needs_swap) noexcept
{
    if (length < binary_header_size + check_sum_size)
        return true;
    if (has_tail(document, plain_header_tail))
        return false;
    const std::uint32_t summed = length - check_sum_size;
    const std::uint32_t stored = read_count(document + summed, needs_swap);
    return !has_tail(document, checked_header_tail) || stored != check_sum(document, summed);
}

} // namespace zeb::engine
