/// An allocator in the place of the engine's, for programs that are made of the engine's own objects.
#pragma once

namespace support
{

struct Memory {
    int calls_until_failure = -1; ///< one call fails after so many; negative: none does
    bool is_out = false;          ///< every call fails
    long blocks = 0;              ///< how many are in use

    /// Whether the call fails that is made now.
    bool fails() { return (calls_until_failure >= 0 && calls_until_failure-- == 0) || is_out; }
};

inline Memory memory;

} // namespace support
