/// Charts of long series, drawn and saved, beside their points formatted and written one by one.
#include "benchmarks/charts/chart_rows.hpp"

#include "benchmarks/common/rows.hpp"

#import "chart.h"
#import "preparing.h"

#include <cmath>
#include <cstdio>

const char *const program_name = "charts_benchmarks";

namespace zeb_bench
{
namespace
{

constexpr const char *path = "/dev/shm/zeb-bench-chart.svg";

Series *made_series(uint32_t count)
{
    Series *const series = [[Series alloc] init];
    for (uint32_t i = 0; i < count; ++i) {
        [[series instants] append_double:i * 60.0];
        [[series values] append_double:std::sin(i * 1e-4) + i % 17 * 0.01];
    }
    return series;
}

uint32_t draw(Series *series)
{
    NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
    ZEB_Wide_String *const title = [ZEB_Wide_String array_with_capacity:1];
    ZEB_String *const picture = prepare_series(series) ? chart_of_series(series, title, title) : nil;
    ZEB_File *const file = [[[ZEB_File alloc] init] autorelease];
    ZEB_String *const name = [ZEB_String array_with_capacity:64];
    [name append_c_string:path length:static_cast<uint32_t>(std::string(path).size())];
    [file set_path:name];
    const uint32_t result = [file replace_contents:[picture char_data] length:[picture count]];
    [pool drain];
    return result;
}

size_t write_points(Series *series)
{
    std::FILE *const file = std::fopen(path, "w");
    const double *const xs = [[series instants] double_data], *const ys = [[series values] double_data];
    size_t written = 0;
    char line[64];
    for (uint32_t i = 0; i < [[series values] count]; ++i) {
        const int length = std::snprintf(line, sizeof line, "%.2f %.2f\n", xs[i], ys[i]);
        written += std::fwrite(line, 1, static_cast<size_t>(length), file);
    }
    std::fclose(file);
    return written;
}

void add_row(const char *name, uint32_t count)
{
    Series *const series = made_series(count);
    Row(name, Measure::Items, count)
        .goal_over("snprintf and fwrite", 0.5)
        .framework([=] { return draw(series); })
        .peer("snprintf and fwrite", [=] { return write_points(series); });
}

} // namespace

void add_chart_rows()
{
    add_row("chart of 10^6 points", 1000000);
    add_row("chart of 10^7 points", 10000000);
}

void remove_chart() { std::remove(path); }

} // namespace zeb_bench
