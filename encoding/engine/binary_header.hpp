/// The 64-byte header of the external binary format.
#pragma once

#include <cstdint>

namespace zeb::engine
{

inline constexpr std::uint32_t binary_header_size = 64;

/// The last four characters of a header: of every plain one, and of one whose records a check sum follows.
inline constexpr std::uint32_t header_tail_size = 4;
inline constexpr char plain_header_tail[] = "1111";
inline constexpr char checked_header_tail[] = "CRC1";

/// Writes the header into the first 64 bytes at `buffer`, in this machine's byte order.
void write_binary_header(char *buffer) noexcept;

/// Whose header a buffer begins with.
enum class Header_Origin { foreign, this_byte_order, other_byte_order };

/// Tells a header by its text and its byte-order marker; any other text, and fewer than 64 bytes, are
/// foreign.
Header_Origin header_origin(const char *buffer, std::uint32_t length) noexcept;

/// Whether the records after a header were written on a machine of the other byte order. Only the header text
/// and the byte-order marker are read; false for fewer than 64 bytes and for any other text.
bool binary_header_needs_swap(const char *buffer, std::uint32_t length) noexcept;

} // namespace zeb::engine
