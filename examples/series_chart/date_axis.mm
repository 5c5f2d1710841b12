#import "date_axis.h"

#import "date_steps.h"
#import "texts.h"
#import "unit_names.h"

#include <algorithm>
#include <stdio.h>

namespace
{

constexpr double least_span = 0.01;
constexpr double least_tick_gap = 60, gap_between_labels = 12;
constexpr uint32_t greatest_tick_count = 64;
constexpr const char *month_names[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                                       "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};

constexpr Date_Step steps_below_years[] = {
    {ZEB_UNIT_MILLISECOND, 1},   {ZEB_UNIT_MILLISECOND, 2},   {ZEB_UNIT_MILLISECOND, 5},
    {ZEB_UNIT_MILLISECOND, 10},  {ZEB_UNIT_MILLISECOND, 20},  {ZEB_UNIT_MILLISECOND, 50},
    {ZEB_UNIT_MILLISECOND, 100}, {ZEB_UNIT_MILLISECOND, 200}, {ZEB_UNIT_MILLISECOND, 500},
    {ZEB_UNIT_SECOND, 1},        {ZEB_UNIT_SECOND, 2},        {ZEB_UNIT_SECOND, 5},
    {ZEB_UNIT_SECOND, 10},       {ZEB_UNIT_SECOND, 15},       {ZEB_UNIT_SECOND, 30},
    {ZEB_UNIT_MINUTE, 1},        {ZEB_UNIT_MINUTE, 2},        {ZEB_UNIT_MINUTE, 5},
    {ZEB_UNIT_MINUTE, 10},       {ZEB_UNIT_MINUTE, 15},       {ZEB_UNIT_MINUTE, 30},
    {ZEB_UNIT_HOUR, 1},          {ZEB_UNIT_HOUR, 2},          {ZEB_UNIT_HOUR, 3},
    {ZEB_UNIT_HOUR, 6},          {ZEB_UNIT_HOUR, 12},         {ZEB_UNIT_DAY, 1},
    {ZEB_UNIT_DAY, 2},           {ZEB_UNIT_DAY, 7},           {ZEB_UNIT_DAY, 14},
    {ZEB_UNIT_MONTH, 1},         {ZEB_UNIT_MONTH, 2},         {ZEB_UNIT_MONTH, 3},
    {ZEB_UNIT_MONTH, 6}};

constexpr uint32_t greatest_years = 100000000;

/// The month of a date in English, in every locale.
const char *month_name_of(ZEB_Date *date)
{
    const int32_t month = [date month];
    return month_names[month - 1];
}

/// What is written at a tick: the time, day, month or year.
ZEB_Wide_String *label_of(ZEB_Date *date, ZEB_Time_Unit unit)
{
    char text[ZEB_DATE_TEXT_SIZE];
    const unsigned second = static_cast<unsigned>([date second]), minute = second / 60 % 60,
                   millisecond = static_cast<unsigned>([date nanosecond] / 1000000);
    if (unit == ZEB_UNIT_YEAR)
        snprintf(text, sizeof text, "%d", [date year]);
    else if (unit == ZEB_UNIT_MONTH)
        snprintf(text, sizeof text, "%s", month_name_of(date));
    else if (unit == ZEB_UNIT_DAY)
        snprintf(text, sizeof text, "%d", [date day]);
    else if (unit == ZEB_UNIT_HOUR || unit == ZEB_UNIT_MINUTE)
        snprintf(text, sizeof text, "%02u:%02u", second / 3600, minute);
    else if (unit == ZEB_UNIT_SECOND)
        snprintf(text, sizeof text, "%02u:%02u:%02u", second / 3600, minute, second % 60);
    else
        snprintf(text, sizeof text, "%02u:%02u:%02u.%03u", second / 3600, minute, second % 60, millisecond);
    return wide_text(text);
}

/// What a tick's label is part of: the date of a time, the month of a day, the year of a month.
ZEB_Wide_String *context_of(ZEB_Date *date, ZEB_Time_Unit unit)
{
    char text[ZEB_DATE_TEXT_SIZE] = "";
    if (unit == ZEB_UNIT_MONTH)
        snprintf(text, sizeof text, "%d", [date year]);
    else if (unit == ZEB_UNIT_DAY)
        snprintf(text, sizeof text, "%s %d", month_name_of(date), [date year]);
    else if (unit != ZEB_UNIT_YEAR)
        ZC_format_iso8601_date(text, {[date year], [date month], [date day]});
    return wide_text(text);
}

class Step_Choice
{
public:
    Step_Choice(double first, double last, double pixels, double size)
        : pixels_per_second(pixels / (last - first)), font_size(size), dates{date_at(first), date_at(last)}
    {
    }

    /// Returns the least step whose labels have room.
    Date_Step best() const
    {
        for (const Date_Step step : steps_below_years)
            if (has_room(step))
                return step;
        for (uint32_t power = 1; power < greatest_years; power *= 10)
            for (const uint32_t digit : {1, 2, 5})
                if (has_room({ZEB_UNIT_YEAR, digit * power}))
                    return {ZEB_UNIT_YEAR, digit * power};
        return {ZEB_UNIT_YEAR, greatest_years};
    }

private:
    static ZEB_Date *date_at(double instant)
    {
        ZEB_Date *const date = [[[ZEB_Date alloc] init] autorelease];
        set_instant(date, instant);
        return date;
    }

    bool has_room(Date_Step step) const
    {
        double width = least_tick_gap;
        for (ZEB_Date *date : dates)
            for (ZEB_Wide_String *text : {label_of(date, step.unit), context_of(date, step.unit)})
                width = std::max(width, text_width(text, font_size) + gap_between_labels);
        return least_seconds(step) * pixels_per_second >= width;
    }

    double pixels_per_second;
    double font_size;
    ZEB_Date *dates[2];
};

void append_ticks(Axis *axis, Date_Step step)
{
    ZEB_Date *const date = [[[ZEB_Date alloc] init] autorelease];
    ZEB_Wide_String *const none = [ZEB_Wide_String array_with_capacity:1];
    ZEB_Wide_String *last_context = none;
    set_instant(date, [axis first]);
    advance_to_step(date, step);
    for (uint32_t i = 0; i < greatest_tick_count && instant_of(date) <= [axis last]; ++i) {
        ZEB_Wide_String *const label = label_of(date, step.unit), *const context =
                                                                      context_of(date, step.unit);
        [axis append_tick:instant_of(date)
                    label:label
              raised_from:[label count]
                  context:[context is_equal:last_context] ? none : context];
        last_context = context;
        add_step(date, step);
    }
}

} // namespace

Axis *date_axis(double first, double last, double pixels, double font_size)
{
    const double margin = first == last ? 43200 : std::max(0.0, (least_span - (last - first)) / 2);
    Axis *const axis = [[[Axis alloc] init_from:first - margin to:last + margin] autorelease];
    const Date_Step step = Step_Choice([axis first], [axis last], pixels, font_size).best();
    append_ticks(axis, step);
    append_unit([axis unit_name], ZEB_unit_identity(ZEB_DIMENSION_TIME, static_cast<uint32_t>(step.unit)));
    return axis;
}
