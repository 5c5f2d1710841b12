#include "core/engine/scan_format.hpp"

#include <gtest/gtest.h>

#include <string>

TEST(Scan_Format, widens_the_first_double_conversion_without_a_length)
{
    const struct {
        const char *given;
        const char *widened;
    } rows[] = {
        {"%g", "%lg"},
        {"%lf", "%lf"},
        {"x %5e y", "x %5le y"},
        {"%d %%g %f", "%d %%g %lf"},
        {"%*g %G", "%*lg %G"},
        {"no conversion", "no conversion"},
        {"%", "%"},
    };
    for (const auto &row : rows) {
        char widened[32];
        ASSERT_TRUE(zeb::widen_double_format(row.given, widened, sizeof widened));
        EXPECT_STREQ(widened, row.widened);
    }
}

TEST(Scan_Format, refuses_what_does_not_fit)
{
    char widened[4];
    EXPECT_TRUE(zeb::widen_double_format("%g", widened, sizeof widened));
    EXPECT_FALSE(zeb::widen_double_format(" %g", widened, sizeof widened));
}
