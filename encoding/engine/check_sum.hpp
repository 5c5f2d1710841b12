/// Check sums of bytes.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine
{

/// Returns the CRC-32 of zlib and PNG.
std::uint32_t check_sum(const char *bytes, std::size_t size) noexcept;

} // namespace zeb::engine
