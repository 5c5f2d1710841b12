/// The processor generations that the vector kernels are compiled for. Included before the vector library.
#pragma once

// Kernels keep a mask of lanes in 64 bits, which vectors of open length do not promise.
#ifndef HWY_DISABLED_TARGETS
#define HWY_DISABLED_TARGETS (HWY_SVE | HWY_SVE2 | HWY_SVE_256 | HWY_SVE2_128 | HWY_RVV)
#endif
