/// Bytes as hexadecimal digits, in vectors, one version per processor generation.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine::kernels
{

struct Hex_Kernels {
    /// Writes the lower-case digits of each value, without a leading zero, and ", ", and returns the position
    /// after the last. There must be room for four characters a value, and up to four more are written.
    char *(*put_separated_bytes)(char *out, const std::uint8_t *values, std::size_t count);
};

/// The kernels for the processor in use.
const Hex_Kernels &hex() noexcept;

} // namespace zeb::engine::kernels
