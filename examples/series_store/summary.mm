#import "summary.h"

#import <Korvane_ZEB/ZEB_Array_Spans.hpp>

#include <algorithm>
#include <cmath>
#include <stdio.h>

namespace
{

void print_date(const char *label, double instant)
{
    char text[ZEB_DATE_TEXT_SIZE];
    ZC_format_iso8601_from_seconds(text, instant);
    printf("%-12s%s\n", label, text);
}

void print_number(const char *label, double value)
{
    char text[ZEB_NUMBER_TEXT_SIZE];
    ZC_pretty_format_double(text, value);
    printf("%-12s%s\n", label, text);
}

/// Returns a link to the values from the first number on: a leading NaN would be both minimum and maximum.
ZEB_Double_Array *from_first_number(ZEB_Double_Array *values)
{
    const auto all = zeb::elements(values);
    const auto first = std::find_if(all.begin(), all.end(), [](double value) { return !std::isnan(value); });
    return [ZEB_Double_Array link_to_doubles:all.data() + (first - all.begin())
                                       count:static_cast<uint32_t>(all.end() - first)];
}

} // namespace

void print_series(Series *series)
{
    printf("%-12s%u\n", "rows", [[series values] count]);
    print_date("first date", [[series instants] first_double]);
    print_date("last date", [[series instants] last_double]);
    double minimum = NAN, maximum = NAN;
    [from_first_number([series values]) get_minimum_double:&minimum maximum:&maximum];
    print_number("minimum", minimum);
    print_number("maximum", maximum);
}
