#include "core/engine/namespace.hpp"
#include "units/engine/unit_conversion.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <limits>
#include <set>

namespace
{

const ZEB_Unit_Identity centimeter = ZEB_unit_identity(1, 9), inch = ZEB_unit_identity(1, 33);
const ZEB_Unit_Identity kelvin = ZEB_unit_identity(3, 1), fahrenheit = ZEB_unit_identity(3, 22);

double converted(double value, ZEB_Unit_Identity from, ZEB_Unit_Identity to)
{
    EXPECT_TRUE(engine::convert({&value, 1}, from, to));
    return value;
}

} // namespace

TEST(Unit_Conversion, is_as_exact_as_said_and_between_units_that_measure_alone)
{
    std::set<std::pair<ZEB_Unit_Identity, ZEB_Unit_Identity>> pairs;
    std::ifstream conversions(ZEB_UNIT_TABLES "conversions.tsv"), units(ZEB_UNIT_TABLES "units.tsv");
    std::string heading, texts;
    uint32_t dimension, from, to;
    std::getline(conversions, heading);
    for (double value, result, error; conversions >> dimension >> from >> to >> value >> result >> error;) {
        const auto pair =
            pairs.emplace(ZEB_unit_identity(dimension, from), ZEB_unit_identity(dimension, to)).first;
        EXPECT_NEAR(converted(value, pair->first, pair->second), result, error)
            << dimension << ": " << value << " of " << from << " in " << to;
    }
    std::set<ZEB_Unit_Identity> all{0, ZEB_unit_identity(1, 34)};
    for (std::getline(units, heading); units >> dimension >> from; std::getline(units, texts))
        all.insert(ZEB_unit_identity(dimension, from));
    for (const ZEB_Unit_Identity one : all)
        for (const ZEB_Unit_Identity other : all)
            EXPECT_EQ(engine::conversion_between(one, other).has_value(), pairs.contains({one, other}));
}

TEST(Unit_Conversion, keeps_what_is_no_number_and_overflows_with_its_result_alone)
{
    using Limits = std::numeric_limits<double>;
    EXPECT_TRUE(std::isnan(converted(NAN, fahrenheit, kelvin)));
    EXPECT_EQ(converted(-INFINITY, fahrenheit, kelvin), -INFINITY);
    EXPECT_TRUE(std::signbit(converted(-0.0, inch, centimeter)));
    EXPECT_EQ(converted(1.7e308, centimeter, inch), 1.7e308 / 2.54);
    EXPECT_EQ(converted(1e308, inch, centimeter), INFINITY);
    for (const ZEB_Unit_Identity unit : {inch, fahrenheit})
        for (const double value : {Limits::max(), Limits::denorm_min(), -3 * Limits::denorm_min()})
            EXPECT_EQ(converted(value, unit, unit), value);
}
