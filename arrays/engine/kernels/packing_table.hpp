/// For each mask of eight bytes to keep, where the kept ones come from, packed to the front.
#pragma once

#include <array>
#include <cstdint>

namespace zeb::engine::kernels
{

constexpr auto make_packing_table() noexcept
{
    std::array<std::array<std::uint8_t, 8>, 256> table{};
    for (unsigned mask = 0; mask < table.size(); ++mask) {
        unsigned to = 0;
        for (unsigned from = 0; from < 8; ++from)
            if ((mask >> from & 1) != 0)
                table[mask][to++] = static_cast<std::uint8_t>(from);
    }
    return table;
}

alignas(64) inline constexpr auto packed_bytes = make_packing_table();

} // namespace zeb::engine::kernels
