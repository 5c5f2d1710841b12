/// What the fuzz targets share. Each target defines libFuzzer's entry point and ends the process, by
/// `require`, where the framework breaks its word.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace fuzz
{

inline void require(bool holds)
{
    if (!holds)
        std::abort();
}

} // namespace fuzz
