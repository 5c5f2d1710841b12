/// Numbers into text and out of it, against the standard library's ways.
#include "benchmarks/calendar/calendar_rows.hpp"
#include "benchmarks/calendar/samples.hpp"
#include "benchmarks/common/rows.hpp"

#include "numbers/ZEB_Number_Functions.h"

#include <charconv>
#include <cstdio>
#include <cstdlib>
#include <string>

#if ZEB_HAS_FMT
#include <fmt/format.h>
#endif

namespace zeb_bench
{
namespace
{

char text[64];

template <double (*make)(std::mt19937_64 &)>
const std::vector<double> &numbers()
{
    static const std::vector<double> made = samples(make);
    return made;
}

void add_double_row(const char *name, const std::vector<double> &values, double goal)
{
    Row(name, Measure::Items, sample_count)
        .framework(for_each(values, [](double x) { return ZC_pretty_format_double(text, x) - text; }))
        .peer(
            "std::to_chars",
            for_each(values, [](double x) { return std::to_chars(text, text + sizeof text, x).ptr - text; }))
        .peer("snprintf %.15g",
              for_each(values, [](double x) { return std::snprintf(text, sizeof text, "%.15g", x); }))
        .goal(goal);
}

std::vector<std::string> texts(const std::vector<double> &values, const char *format)
{
    std::vector<std::string> made;
    for (const double x : values) {
        if (format)
            std::snprintf(text, sizeof text, format, x);
        else
            ZC_pretty_format_double(text, x);
        made.emplace_back(text);
    }
    return made;
}

void add_scan_row(const char *name, const std::vector<std::string> &all)
{
    Row(name, Measure::Items, sample_count)
        .framework(for_each(all,
                            [](const std::string &chars) {
                                double x = 0;
                                const uint32_t length = static_cast<uint32_t>(chars.size());
                                const uint32_t count =
                                    ZC_assign_double_from_char_c_array(chars.data(), length, &x);
                                benchmark::DoNotOptimize(x);
                                return count;
                            }))
        .peer("std::from_chars", for_each(all,
                                          [](const std::string &chars) {
                                              double x = 0;
                                              const char *end = chars.data() + chars.size();
                                              const auto answer = std::from_chars(chars.data(), end, x);
                                              benchmark::DoNotOptimize(x);
                                              return answer.ptr - chars.data();
                                          }))
        .peer("strtod", for_each(all,
                                 [](const std::string &chars) {
                                     char *end = nullptr;
                                     benchmark::DoNotOptimize(std::strtod(chars.c_str(), &end));
                                     return end - chars.c_str();
                                 }))
        .goal(1 / 1.25);
}

} // namespace

void add_number_text_rows()
{
    add_double_row("double text, fixed range", numbers<fixed_range_number>(), 1 / 0.55);
    add_double_row("double text, outside", numbers<outside_number>(), 1 / 1.15);
    add_double_row("double text, few decimals", numbers<short_number>(), 1 / 0.8);

    static const std::vector<uint32_t> all =
        samples([](std::mt19937_64 &random) { return static_cast<uint32_t>(random()) >> random() % 32; });
    Row row("unsigned text", Measure::Items, sample_count);
    row.framework(for_each(all, [](uint32_t x) { return ZC_pretty_format_unsigned(text, x) - text; }))
        .peer("std::to_chars", for_each(all,
                                        [](uint32_t x) {
                                            char *end = std::to_chars(text, text + sizeof text, x).ptr;
                                            *end = '\0';
                                            return end - text;
                                        }))
        .goal(1 / 1.1);
#if ZEB_HAS_FMT
    row.peer("fmt::format_to", for_each(all, [](uint32_t x) {
                 char *end = fmt::format_to(text, "{}", x);
                 *end = '\0';
                 return end - text;
             }));
#endif
}

void add_number_scanning_rows()
{
    static const std::vector<std::string> pretty = texts(numbers<fixed_range_number>(), nullptr);
    static const std::vector<std::string> seventeen = texts(numbers<fixed_range_number>(), "%.17g");
    static const std::vector<std::string> exponents = texts(numbers<outside_number>(), nullptr);
    add_scan_row("scan double, pretty text", pretty);
    add_scan_row("scan double, 17 digits", seventeen);
    add_scan_row("scan double, exponents", exponents);
}

} // namespace zeb_bench
