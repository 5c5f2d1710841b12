/// Numbers of any type as elements: with exactly their value, or, as floating-point numbers, the nearest.
#include "arrays/engine/algorithms/any_number.hpp"

#include "core/engine/namespace.hpp"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

using engine::Any_Number;
using engine::Number_Form;

namespace
{

Any_Number integer(std::int64_t value) { return {Number_Form::integer, value, 0, 0}; }
Any_Number natural(std::uint64_t value) { return {Number_Form::natural, 0, value, 0}; }
Any_Number real(double value) { return {Number_Form::real, 0, 0, value}; }
Any_Number decimal(double value) { return {Number_Form::decimal, 0, 0, value}; }

/// What the number became; nothing for one that does not fit.
template <class Element>
std::string as(const Any_Number &number)
{
    Element element{};
    return engine::convert(number, element) ? std::to_string(element) : "-";
}

} // namespace

TEST(Any_Number, fits_in_integers_by_its_value_alone)
{
    constexpr double above_all = 0x1p63;
    const struct {
        Any_Number number;
        const char *bytes, *ints, *uints, *int64s;
    } rows[] = {
        {integer(-1), "-", "-1", "-", "-1"},
        {integer(255), "255", "255", "255", "255"},
        {integer(256), "-", "256", "256", "256"},
        {integer(INT32_MIN - 1LL), "-", "-", "-", "-2147483649"},
        {integer(UINT32_MAX), "-", "-", "4294967295", "4294967295"},
        {integer(INT64_MIN), "-", "-", "-", "-9223372036854775808"},
        {natural(INT64_MAX), "-", "-", "-", "9223372036854775807"},
        {natural(std::uint64_t{1} << 63), "-", "-", "-", "-"},
        {natural(UINT64_MAX), "-", "-", "-", "-"},
        {real(-0.0), "0", "0", "0", "0"},
        {real(3), "3", "3", "3", "3"},
        {real(3.5), "-", "-", "-", "-"},
        {real(256), "-", "256", "256", "256"},
        {real(-2147483648.0), "-", "-2147483648", "-", "-2147483648"},
        {real(2147483648.0), "-", "-", "2147483648", "2147483648"},
        {real(4294967296.0), "-", "-", "-", "4294967296"},
        {real(-above_all), "-", "-", "-", "-9223372036854775808"},
        {real(above_all), "-", "-", "-", "-"},
        {real(std::nextafter(above_all, 0)), "-", "-", "-", "9223372036854774784"},
        {real(std::nan("")), "-", "-", "-", "-"},
        {real(-HUGE_VAL), "-", "-", "-", "-"},
        {decimal(9007199254740991), "-", "-", "-", "9007199254740991"},
        {decimal(9007199254740992), "-", "-", "-", "-"},
        {decimal(-7), "-", "-7", "-", "-7"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(as<double>(row.number));
        EXPECT_EQ(as<std::uint8_t>(row.number), row.bytes);
        EXPECT_EQ(as<std::int32_t>(row.number), row.ints);
        EXPECT_EQ(as<std::uint32_t>(row.number), row.uints);
        EXPECT_EQ(as<std::int64_t>(row.number), row.int64s);
    }
}

TEST(Any_Number, is_rounded_to_the_nearest_floating_point_number_but_never_to_infinity)
{
    float single;
    double twice;
    EXPECT_TRUE(engine::convert(real(0.1), single) && single == 0.1f);
    EXPECT_TRUE(engine::convert(integer(16777217), single) && single == 16777216);
    EXPECT_TRUE(engine::convert(natural(UINT64_MAX), twice) && twice == 0x1p64);
    EXPECT_TRUE(engine::convert(decimal(0.5), twice) && twice == 0.5);
    EXPECT_TRUE(engine::convert(real(HUGE_VAL), single) && std::isinf(single));
    EXPECT_TRUE(engine::convert(real(std::nan("")), single) && std::isnan(single));
    EXPECT_TRUE(engine::convert(real(0x1.ffffffp127 - 0x1p102), single));
    EXPECT_FALSE(engine::convert(real(-0x1p128), single));
    EXPECT_FALSE(engine::convert(real(1e300), single));
}
