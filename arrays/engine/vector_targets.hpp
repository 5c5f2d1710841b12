/// Which processor generations the vector kernels are made for, and what they share. Included before the
/// vector library, and once more for each generation.
#ifndef ZEB_VECTOR_TARGETS
#define ZEB_VECTOR_TARGETS

// Kernels keep a mask of lanes in 64 bits, which vectors of open length do not promise.
#define HWY_DISABLED_TARGETS (HWY_SVE | HWY_SVE2 | HWY_SVE_256 | HWY_SVE2_128 | HWY_RVV)

#endif
