#import "axis.h"

#import "texts.h"

#include <algorithm>

@implementation Axis

- (id)init_from:(double)first_number to:(double)last_number
{
    self = [super init];
    if (self != nil) {
        first = first_number;
        last = last_number;
        ticks = [[ZEB_Double_Array alloc] init];
        labels = [[ZEB_Wide_String_Array alloc] init];
        contexts = [[ZEB_Wide_String_Array alloc] init];
        raised = [[ZEB_UInt_Array alloc] init];
        unit_name = [[ZEB_Wide_String alloc] init];
    }
    return self;
}

- (void)dealloc
{
    [ticks release];
    [labels release];
    [contexts release];
    [raised release];
    [unit_name release];
    [super dealloc];
}

- (double)first
{
    return first;
}

- (double)last
{
    return last;
}

- (void)set_first_pixel:(double)start last:(double)end
{
    first_pixel = start;
    last_pixel = end;
}

- (double)pixel_of:(double)number
{
    // Halves, because the whole difference of two numbers may be infinite.
    const double share = (number / 2 - first / 2) / (last / 2 - first / 2);
    return first_pixel + share * (last_pixel - first_pixel);
}

- (void)append_tick:(double)number
              label:(ZEB_Wide_String *)label
        raised_from:(uint32_t)index
            context:(ZEB_Wide_String *)context
{
    [labels append_wide_string:label];
    [raised append_uint:index];
    [contexts append_wide_string:context];
    [ticks append_double:number];
}

- (uint32_t)tick_count
{
    // An array that could not grow is shorter.
    return std::min({[ticks count], [labels count], [contexts count], [raised count]});
}

- (double)tick_pixel_at_index:(uint32_t)index
{
    return [self pixel_of:[ticks double_at_index:index]];
}

- (ZEB_Wide_String *)label_at_index:(uint32_t)index
{
    return [labels wide_string_at_index:index];
}

- (uint32_t)raised_from_at_index:(uint32_t)index
{
    return [raised uint_at_index:index];
}

- (ZEB_Wide_String *)context_at_index:(uint32_t)index
{
    return [contexts wide_string_at_index:index];
}

- (double)label_width:(double)font_size
{
    double width = 0;
    for (uint32_t i = 0; i < [labels count]; ++i)
        width = std::max(width, text_width([labels wide_string_at_index:i], font_size));
    return width;
}

- (ZEB_Wide_String *)unit_name
{
    return unit_name;
}

@end
