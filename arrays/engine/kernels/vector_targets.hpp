/// The processor generations that the vector kernels are compiled for. Included before the vector library.
#pragma once

// Kernels keep a mask of lanes in 64 bits, which vectors of open length do not promise.
#define ZEB_OPEN_LENGTHS (HWY_SVE | HWY_SVE2 | HWY_SVE_256 | HWY_SVE2_128 | HWY_RVV)
#ifndef HWY_DISABLED_TARGETS
#if ZEB_FEW_VECTOR_TARGETS
#define HWY_DISABLED_TARGETS (ZEB_OPEN_LENGTHS | HWY_SSSE3)
#else
#define HWY_DISABLED_TARGETS ZEB_OPEN_LENGTHS
#endif
#endif
