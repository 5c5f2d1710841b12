#include "filesystem/engine/file_copying.hpp"

#include <gtest/gtest.h>

using namespace zeb;

TEST(Large_Copy, is_counted_in_64_bits)
{
    const std::uint64_t size = (std::uint64_t{4} << 30) + 5;
    const engine::Copy_Result result = engine::copy_file({"/dev/zero", "/dev/null", size, {0666, 0, 0}, false});
    EXPECT_EQ(result.step, engine::Copying_Step::setting_attributes);
    EXPECT_EQ(result.read, size);
    EXPECT_EQ(result.written, size);
}
