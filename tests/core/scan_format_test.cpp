#include "core/engine/namespace.hpp"
#include "core/engine/scan_format.hpp"

#include <gtest/gtest.h>

#include <string>

TEST(Scan_Format, widens_every_double_conversion_that_stores)
{
    const std::string filler(100, 'x');
    const std::pair<std::string, std::string> rows[] = {
        {"%g", "%lg"},
        {"%lf %Lg", "%lf %Lg"},
        {"x %5e y %A", "x %5le y %lA"},
        {"%d %%g %f", "%d %%g %lf"},
        {"%*g %G", "%*g %lG"},
        {"%*5e%2$f", "%*5e%2$lf"},
        {"%*[%g] %[^]%f]%a", "%*[%g] %[^]%f]%la"},
        {"%[]%g", "%[]%g"},
        {filler + "%*g%g%g%g%g", filler + "%*g%lg%lg%lg%lg"},
        {"no conversion", "no conversion"},
        {"%", "%"},
        {"", ""},
    };
    for (const auto &[given, widened] : rows)
        EXPECT_EQ(engine::Double_Scan_Format(given.c_str()).c_string(), widened);
}
