#import "curve.h"

#import <Korvane_ZEB/ZEB_Array_Spans.hpp>

#include <array>
#include <cmath>
#include <cstddef>

namespace
{

constexpr uint32_t column_count = 800;
constexpr double dot_radius = 1.5;

/// Joins points by lines, and collects those that nothing is joined to.
class Pen
{
public:
    explicit Pen(Picture *its_picture) : picture(its_picture) { [picture begin_path]; }

    void draw(double x, double y)
    {
        if (run == 0)
            [picture move_to:x y:y];
        else if (x != last_x || y != last_y)
            [picture draw_to:x y:y];
        else
            return;
        ++run;
        last_x = x;
        last_y = y;
    }

    void lift()
    {
        if (run == 1) {
            [dots append_double:last_x];
            [dots append_double:last_y];
            ++dot_count;
        }
        run = 0;
    }

    /// Returns whether all dots could be kept.
    bool finish()
    {
        lift();
        [picture end_path];
        for (uint32_t i = 0; i + 1 < [dots count]; i += 2)
            [picture add_dot:[dots double_at_index:i] y:[dots double_at_index:i + 1] radius:dot_radius];
        return [dots count] == 2 * dot_count;
    }

private:
    Picture *picture;
    ZEB_Double_Array *dots = [ZEB_Double_Array array_with_capacity:0];
    uint32_t dot_count = 0;
    uint32_t run = 0;
    double last_x = 0, last_y = 0;
};

void draw_points(Pen &pen, ZEB_Double_Vector *instants, ZEB_Double_Vector *values, Axis *dates, Axis *numbers)
{
    const auto xs = zeb::elements(instants), ys = zeb::elements(values);
    for (size_t i = 0; i < xs.size(); ++i)
        if (std::isnan(ys[i]))
            pen.lift();
        else
            pen.draw([dates pixel_of:xs[i]], [numbers pixel_of:ys[i]]);
}

void draw_column(Pen &pen, const ZEB_Chart_Column &column, double x, Axis *numbers)
{
    if (std::isnan(column.first))
        pen.lift();
    for (const double value : {column.first, column.lowest, column.highest, column.last})
        if (!std::isnan(value))
            pen.draw(x, [numbers pixel_of:value]);
    if (std::isnan(column.last))
        pen.lift();
}

void draw_columns(Pen &pen, ZEB_Double_Vector *instants, ZEB_Double_Vector *values, Axis *dates,
                  Axis *numbers)
{
    std::array<ZEB_Chart_Column, column_count> columns{};
    ZC_decimate(instants, values, [dates first], [dates last], columns.data(), column_count);
    const double width = ([dates pixel_of:[dates last]] - [dates pixel_of:[dates first]]) / column_count;
    double x = [dates pixel_of:[dates first]] + width / 2;
    for (const ZEB_Chart_Column &column : columns) {
        if (column.count != 0)
            draw_column(pen, column, x, numbers);
        x += width;
    }
}

} // namespace

bool draw_curve(Picture *picture, ZEB_Double_Vector *instants, ZEB_Double_Vector *values, Axis *dates,
                Axis *numbers)
{
    Pen pen(picture);
    if ([instants count] > 2 * column_count)
        draw_columns(pen, instants, values, dates, numbers);
    else
        draw_points(pen, instants, values, dates, numbers);
    return pen.finish();
}
