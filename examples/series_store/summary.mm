#import "summary.h"

#import "extremes.h"

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

} // namespace

void print_series(Series *series)
{
    printf("%-12s%u\n", "rows", [[series values] count]);
    print_date("first date", [[series instants] first_double]);
    print_date("last date", [[series instants] last_double]);
    double minimum = NAN, maximum = NAN;
    get_extremes([series values], &minimum, &maximum);
    print_number("minimum", minimum);
    print_number("maximum", maximum);
}
