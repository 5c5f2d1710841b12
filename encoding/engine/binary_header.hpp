/// The 64-byte header of the external binary format.
#pragma once

#include <cstdint>

namespace zeb::engine
{

inline constexpr std::uint32_t binary_header_size = 64;

/// Writes the header into the first 64 bytes at `buffer`, in this machine's byte order.
void write_binary_header(char *buffer) noexcept;

/// Whether the records after a header were written on a machine of the other byte order. Only the header text
/// and the byte-order marker are read; false for fewer than 64 bytes and for any other text.
bool binary_header_needs_swap(const char *buffer, std::uint32_t length) noexcept;

} // namespace zeb::engine
