#import "summary.h"

#include <algorithm>
#include <stdio.h>

namespace
{

void print_date(const char *label, double instant)
{
    char text[ZEB_DATE_TEXT_SIZE];
    ZC_pretty_format_gregorian_date_from_seconds(text, instant);
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
    ZEB_Double_Array *const values = [series values];
    printf("%-12s%u\n", "rows", [values count]);
    if ([values is_empty])
        return;
    print_date("first date", [[series instants] first_double]);
    print_date("last date", [[series instants] last_double]);
    const double *const first = [values double_data];
    const auto extremes = std::minmax_element(first, first + [values count]);
    print_number("minimum", *extremes.first);
    print_number("maximum", *extremes.second);
}
