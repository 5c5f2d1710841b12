#import "chart.h"

#import "curve.h"
#import "date_axis.h"
#import "extremes.h"
#import "picture.h"
#import "texts.h"
#import "value_axis.h"

#import <Korvane_ZEB/ZEB_Array_Spans.hpp>

#include <algorithm>
#include <stdio.h>
#include <string.h>

namespace
{

constexpr double width = 960, height = 480;
constexpr double top = 56, bottom = 384, right = 908;
constexpr double title_size = 18, label_size = 12, caption_size = 11;
constexpr double greatest_left = 300;
constexpr uint32_t greatest_tick_count = 8;
constexpr const char *title_color = "#111", *label_color = "#333", *caption_color = "#666";
constexpr const char *grid_attributes = "stroke=\"#ddd\"";
constexpr const char *frame_attributes = "fill=\"none\" stroke=\"#888\"";
constexpr const char *curve_attributes = "fill=\"#1f5fa8\" stroke=\"#1f5fa8\" stroke-linejoin=\"round\"";

void draw_date_ticks(Picture *picture, Axis *dates)
{
    [picture begin_group:"date-grid" attributes:grid_attributes];
    for (uint32_t i = 0; i < [dates tick_count]; ++i)
        [picture add_line_from:[dates tick_pixel_at_index:i] y:top to:[dates tick_pixel_at_index:i] y:bottom];
    [picture end_group];
    [picture begin_texts:"dates" color:label_color font_size:label_size];
    for (uint32_t i = 0; i < [dates tick_count]; ++i) {
        const double x = [dates tick_pixel_at_index:i];
        [picture add_text:[dates label_at_index:i] x:x y:bottom + 21 anchor:TEXT_IS_CENTERED];
        if ([[dates context_at_index:i] is_not_empty])
            [picture add_text:[dates context_at_index:i] x:x y:bottom + 37 anchor:TEXT_IS_CENTERED];
    }
    [picture end_group];
}

void draw_value_ticks(Picture *picture, Axis *numbers, double left)
{
    [picture begin_group:"value-grid" attributes:grid_attributes];
    for (uint32_t i = 0; i < [numbers tick_count]; ++i)
        [picture add_line_from:left
                             y:[numbers tick_pixel_at_index:i]
                            to:right
                             y:[numbers tick_pixel_at_index:i]];
    [picture end_group];
    [picture begin_texts:"values" color:label_color font_size:label_size];
    for (uint32_t i = 0; i < [numbers tick_count]; ++i)
        [picture add_text:[numbers label_at_index:i]
              raised_from:[numbers raised_from_at_index:i]
                        x:left - 8
                        y:[numbers tick_pixel_at_index:i] + 4
                   anchor:TEXT_ENDS];
    [picture end_group];
}

/// Writes an instant by ISO 8601, a midnight as its date alone.
void print_instant(char *buffer, double instant)
{
    const char midnight[] = "T00:00:00";
    const auto length = ZC_format_iso8601_from_seconds(buffer, instant) - buffer;
    const auto date_length = length - static_cast<ptrdiff_t>(strlen(midnight));
    if (date_length > 0 && strcmp(buffer + date_length, midnight) == 0)
        buffer[date_length] = '\0';
}

/// Writes the dates and the values between which the series lies.
void print_ranges(char *buffer, size_t size, Series *series)
{
    char first[ZEB_DATE_TEXT_SIZE], last[ZEB_DATE_TEXT_SIZE];
    char low[ZEB_NUMBER_TEXT_SIZE], high[ZEB_NUMBER_TEXT_SIZE];
    print_instant(first, [[series instants] first_double]);
    print_instant(last, [[series instants] last_double]);
    double lowest, highest;
    if (!get_extremes([series values], &lowest, &highest)) {
        snprintf(buffer, size, ", %s to %s", first, last);
        return;
    }
    ZC_pretty_format_double(low, lowest);
    ZC_pretty_format_double(high, highest);
    snprintf(buffer, size, ", %s to %s, values from %s to %s", first, last, low, high);
}

ZEB_Wide_String *caption_of(Series *series)
{
    char ranges[400] = "", gaps[40] = "", text[500];
    const auto values = zeb::elements([series values]);
    const auto count = static_cast<uint32_t>(values.size());
    const auto gap_count =
        std::count_if(values.begin(), values.end(), [](double value) { return value != value; });
    if (count != 0)
        print_ranges(ranges, sizeof ranges, series);
    if (gap_count != 0)
        snprintf(gaps, sizeof gaps, ", %ld without a value", static_cast<long>(gap_count));
    snprintf(text, sizeof text, "%u %s%s%s", count, count == 1 ? "point" : "points", ranges, gaps);
    return wide_text(text);
}

/// Draws the text around the axes.
void draw_titles(Picture *picture, ZEB_Wide_String *title, ZEB_Wide_String *values_title, Axis *dates,
                 ZEB_Wide_String *caption, double left)
{
    const double middle = (left + right) / 2;
    const bool has_contexts = [dates tick_count] != 0 && [[dates context_at_index:0] is_not_empty];
    [picture begin_texts:"titles" color:title_color font_size:title_size];
    [picture add_text:title x:middle y:32 anchor:TEXT_IS_CENTERED];
    [picture end_group];
    [picture begin_texts:"axis-titles" color:label_color font_size:label_size];
    [picture add_text:[dates unit_name] x:middle y:bottom + (has_contexts ? 58 : 44)anchor:TEXT_IS_CENTERED];
    [picture add_upright_text:values_title x:20 y:(top + bottom) / 2];
    [picture end_group];
    [picture begin_texts:"caption" color:caption_color font_size:caption_size];
    [picture add_text:caption x:right y:bottom + 82 anchor:TEXT_ENDS];
    [picture end_group];
}

/// Returns a copy that fits into so many pixels.
ZEB_Wide_String *fitted(ZEB_Wide_String *text, double font_size, double room)
{
    ZEB_Wide_String *const copy = [text duplicate];
    cut_to_width(copy, font_size, room);
    return copy;
}

} // namespace

ZEB_String *chart_of_series(Series *series, ZEB_Wide_String *title, ZEB_Wide_String *values_title)
{
    ZEB_Double_Array *const instants = [series instants], *const values = [series values];
    Axis *const numbers = value_axis(values, greatest_tick_count);
    const double left = std::min(44 + [numbers label_width:label_size], greatest_left);
    const bool is_empty = [instants is_empty];
    Axis *const dates = date_axis(is_empty ? 0 : [instants first_double],
                                  is_empty ? 0 : [instants last_double], right - left, label_size);
    [numbers set_first_pixel:bottom last:top];
    [dates set_first_pixel:left last:right];

    ZEB_Wide_String *const head =
        fitted(title, title_size, std::min(left + right, 2 * width - left - right) - 20);
    Picture *const picture = [[[Picture alloc] init_with_title:title width:width height:height] autorelease];
    draw_date_ticks(picture, dates);
    draw_value_ticks(picture, numbers, left);
    [picture begin_group:"frame" attributes:frame_attributes];
    [picture add_frame:left y:top width:right - left height:bottom - top];
    [picture end_group];
    [picture begin_group:"curve" attributes:curve_attributes];
    const bool is_whole = draw_curve(picture, instants, values, dates, numbers);
    [picture end_group];
    draw_titles(picture, head, fitted(values_title, label_size, bottom - top), dates,
                fitted(caption_of(series), caption_size, right - 20), left);
    return is_whole ? [picture finished_text] : nil;
}
