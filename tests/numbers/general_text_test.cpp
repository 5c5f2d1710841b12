#include "core/engine/namespace.hpp"
#include "numbers/engine/general_text.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>
#include <string>

namespace
{

std::string general(double x)
{
    char text[engine::longest_general_text];
    return {text, engine::put_general(text, x)};
}

std::string printed(double x)
{
    char text[64];
    std::snprintf(text, sizeof text, "%g", x);
    return text;
}

} // namespace

TEST(General_Text, is_what_printf_prints)
{
    for (const double x : {0.0,      -0.0,         1.0,          0.1,
                           1e-4,     9.9999949e-5, 9.99999e-5,   999999.0,
                           999999.5, 1e6,          123456.5,     1234565.0,
                           0.5,      1e22,         5e-324,       1.7976931348623157e308,
                           HUGE_VAL, -HUGE_VAL,    std::nan(""), -std::nan("")})
        EXPECT_EQ(general(x), printed(x));
    std::mt19937_64 random(5);
    for (int i = 0; i < 100000; ++i) {
        const std::uint64_t bits = random();
        double any;
        std::memcpy(&any, &bits, sizeof any);
        // Of any size; of seven digits, the last of which may be a tie; and of few digits.
        const double seven =
            static_cast<double>(bits % 20000000) * std::pow(10.0, static_cast<int>(bits >> 60) - 8);
        const double few = static_cast<double>(static_cast<std::int16_t>(bits)) / 8;
        for (const double x : {any, seven, few})
            ASSERT_EQ(general(x), printed(x));
    }
}
