/// What the operations on ranges are compiled for.
#pragma once

#include <Korvane_ZEB_engine/elements.hpp>

/// Puts `ZEB_INSTANTIATE(type)`, which the including file defines, for each type of elements.
#define ZEB_FOR_EACH_ELEMENT_TYPE                                                                            \
    ZEB_INSTANTIATE(std::uint8_t)                                                                            \
    ZEB_INSTANTIATE(std::int32_t)                                                                            \
    ZEB_INSTANTIATE(std::uint32_t)                                                                           \
    ZEB_INSTANTIATE(std::int64_t)                                                                            \
    ZEB_INSTANTIATE(float)                                                                                   \
    ZEB_INSTANTIATE(double)
