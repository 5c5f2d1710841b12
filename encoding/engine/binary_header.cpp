#include "encoding/engine/binary_header.hpp"

#include "encoding/engine/byte_order.hpp"

#include <cstring>

namespace zeb::engine
{
namespace
{

constexpr char header_text[] = "ZEB_EXTERNAL_BINARY_FORMAT_V1000";
constexpr std::size_t header_text_size = sizeof header_text - 1;
constexpr std::uint32_t byte_order_marker = 0x50AB40CD;

/// The words from the marker on; only the marker is ever read.
constexpr std::uint32_t header_words[] = {byte_order_marker, 0, 2, 4, 2, 1, 1};

static_assert(header_text_size == 32);
static_assert(header_text_size + sizeof header_words + header_tail_size == binary_header_size);

} // namespace

void write_binary_header(char *buffer) noexcept
{
    std::memcpy(buffer, header_text, header_text_size);
    std::memcpy(buffer + header_text_size, header_words, sizeof header_words);
    std::memcpy(buffer + header_text_size + sizeof header_words, plain_header_tail, header_tail_size);
}

Header_Origin header_origin(const char *buffer, std::uint32_t length) noexcept
{
    if (length < binary_header_size || std::memcmp(buffer, header_text, header_text_size) != 0)
        return Header_Origin::foreign;
    const char *const marker = buffer + header_text_size;
    if (read_count(marker, false) == byte_order_marker)
        return Header_Origin::this_byte_order;
    return read_count(marker, true) == byte_order_marker ? Header_Origin::other_byte_order
                                                         : Header_Origin::foreign;
}

bool binary_header_needs_swap(const char *buffer, std::uint32_t length) noexcept
{
    return header_origin(buffer, length) == Header_Origin::other_byte_order;
}

} // namespace zeb::engine
