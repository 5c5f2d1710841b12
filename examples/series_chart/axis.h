/*
 * Axes: a range of numbers on a range of pixels, and its ticks.
 */
#import <Korvane_ZEB/Korvane_ZEB.h>

@interface Axis : ZEB_Object {
    double first, last;
    double first_pixel, last_pixel;
    ZEB_Double_Array *ticks;
    ZEB_Wide_String_Array *labels;
    ZEB_Wide_String_Array *contexts;
    ZEB_UInt_Array *raised;
    ZEB_Wide_String *unit_name;
}

/** Initialises an axis without ticks. */
- (id)init_from:(double)first_number to:(double)last_number;

/** The numbers at the two ends. */
- (double)first;
- (double)last;

/** Sets the pixels at the two ends; the first may be the greater one. */
- (void)set_first_pixel:(double)start last:(double)end;

/** Returns the pixel of a number. */
- (double)pixel_of:(double)number;

/** Appends a tick with its label, whose characters from an index on are raised, and what the label is part
    of: an empty text where that is what it was at the tick before. */
- (void)append_tick:(double)number
              label:(ZEB_Wide_String *)label
        raised_from:(uint32_t)index
            context:(ZEB_Wide_String *)context;

- (uint32_t)tick_count;
- (double)tick_pixel_at_index:(uint32_t)index;
- (ZEB_Wide_String *)label_at_index:(uint32_t)index;
- (uint32_t)raised_from_at_index:(uint32_t)index;
- (ZEB_Wide_String *)context_at_index:(uint32_t)index;

/** Returns the width of the widest label. */
- (double)label_width:(double)font_size;

/** The unit in which the ticks count, and its symbol in parentheses; empty at first. */
- (ZEB_Wide_String *)unit_name;

@end
