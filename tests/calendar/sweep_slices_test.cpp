#include "tests/exhaustive/sweeps.hpp"

#include <gtest/gtest.h>

// Some of the inputs of every exhaustive sweep, spread over all of them.

class Sweep_Slice : public testing::TestWithParam<sweeps::Sweep>
{
};

TEST_P(Sweep_Slice, agrees_with_the_transcription)
{
    const sweeps::Sweep &sweep = GetParam();
    const std::uint64_t step = sweep.inputs / 400000 | 1; // odd, so that no kind of input is passed over
    for (std::uint64_t index = 0; index < sweep.inputs; index += step)
        ASSERT_EQ(sweeps::first_difference(sweep, index, index + 1), "") << "input " << index;
    for (std::uint64_t index = sweep.inputs - 1000; index < sweep.inputs; ++index)
        ASSERT_EQ(sweeps::first_difference(sweep, index, index + 1), "") << "input " << index;
}

INSTANTIATE_TEST_SUITE_P(All, Sweep_Slice, testing::ValuesIn(sweeps::all_sweeps()),
                         [](const auto &row) { return row.param.name; });
