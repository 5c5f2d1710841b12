#include "encoding/engine/hex_kernels.hpp"
#include "tests/support/vector_targets.hpp"

#include <cstdio>
#include <random>
#include <string>
#include <vector>

TEST(Hex_Kernels, write_what_the_C_library_does)
{
    std::mt19937 random(11);
    zeb_test::on_each_target([&] {
        for (std::size_t count = 0; count < 70; ++count) {
            std::vector<std::uint8_t> values(count);
            std::string expected, text(4 * count + 4, '#');
            for (std::uint8_t &value : values) {
                char digits[8];
                value =
                    static_cast<std::uint8_t>(random() >> (random() % 2 ? 28 : 24)); // of one and two digits
                std::snprintf(digits, sizeof digits, "%x, ", value);
                expected += digits;
            }
            char *const end =
                zeb::engine::kernels::hex().put_separated_bytes(text.data(), values.data(), count);
            ASSERT_EQ(std::string(text.data(), end), expected);
        }
    });
}
