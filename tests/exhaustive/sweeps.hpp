#pragma once

// Comparisons of the engine with its plain transcriptions over numbered inputs. Every input is a function of
// its number alone, so that a sweep can be cut into slices in any way.

#include <cstdint>
#include <string>
#include <vector>

namespace sweeps
{

struct Sweep {
    const char *name;
    std::uint64_t inputs;
    // The difference at one input, as text; empty when there is none.
    std::string (*difference)(std::uint64_t index);
};

const std::vector<Sweep> &all_sweeps();

// The first difference among the inputs from `first` to below `last`; empty when there is none.
std::string first_difference(const Sweep &sweep, std::uint64_t first, std::uint64_t last);

} // namespace sweeps
