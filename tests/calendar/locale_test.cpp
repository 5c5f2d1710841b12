#include "calendar/ZEB_Calendar_Functions.h"
#include "calendar/engine/date_text.hpp"
#include "core/engine/namespace.hpp"
#include "numbers/ZEB_Number_Functions.h"
#include "numbers/engine/number_format.hpp"
#include "tests/support/comma_locale.hpp"
#include "tests/support/random_text.hpp"

namespace
{

/// What every writer writes, and every scanner reads, in the locale that is in force.
std::vector<std::string> all_results()
{
    std::vector<std::string> results;
    // The last but one is a tie, which is left to the C library.
    for (const double x : {0.5, -1234.5678, 1.5e-7, 1.000000000000005e18, 1e300}) {
        char buffer[128] = {};
        engine::Number_Format_Result result{};
        const engine::Date_Time date = engine::make_date_time({2000, 1, 1}, 5, 250000000);
        const auto keep = [&](const char *end) {
            results.emplace_back(static_cast<const char *>(buffer), end);
        };
        keep(ZC_pretty_format_double(buffer, x));
        keep(ZC_pretty_format_float(buffer, static_cast<float>(x)));
        keep(ZC_format_fixed_double(buffer, 3, x));
        keep(ZC_format_scientific_double(buffer, 3, nullptr, nullptr, x, 1.5, 1.0));
        keep(engine::format_fixed(buffer, 5, x, result));
        keep(ZC_pretty_format_gregorian_date_from_seconds(buffer, x));
        keep(engine::write_slash_text(buffer, date));
        keep(ZC_format_iso8601_from_seconds(buffer, x));
    }
    for (const std::string &number : zeb_test::words_of("1.5 1,5 12 .5 1e5.5 1.5e2x -0x1.8p1 0x1,8p1 +2.25 "
                                                        "infinity -nan(7) 1e-400 1234.5e 5.5e1 0x1.8p1 "
                                                        "1.797693134862315708145274237318")) {
        for (const char *const before : {"", " ", "1/1/1970 0:0:", "1970-01-01T00:00:0"}) {
            const std::string text = before + number;
            const auto length = static_cast<std::uint32_t>(text.size());
            double value = -7, pretty = -7, iso = -7;
            float single = -7;
            for (const std::uint32_t count :
                 {ZC_assign_double_from_char_c_array(text.data(), length, &value),
                  ZC_assign_float_from_char_c_array(text.data(), length, &single),
                  ZC_assign_seconds_from_gregorian_date_char_c_array(text.data(), length, &pretty),
                  ZC_assign_seconds_from_iso8601_char_c_array(text.data(), length, &iso)})
                results.push_back(text + " " + std::to_string(count));
            results.push_back(testing::PrintToString(std::vector<double>{
                value, pretty, iso, single,
                static_cast<double>(engine::read_spaced_text(text.data(), length).time.nanosecond)}));
        }
    }
    return results;
}

} // namespace

TEST_F(Comma_Locale, nothing_is_written_or_read_otherwise)
{
    const std::string locale = std::setlocale(LC_NUMERIC, nullptr);
    const std::vector<std::string> with_comma = all_results();
    EXPECT_EQ(std::setlocale(LC_NUMERIC, nullptr), locale);
    std::setlocale(LC_NUMERIC, "C");
    EXPECT_EQ(with_comma, all_results());
}
