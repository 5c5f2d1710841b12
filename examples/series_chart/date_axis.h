/*
 * Axes of dates.
 */
#import "axis.h"

/** Returns an axis from one instant to another, in seconds since 1970-01-01 00:00, which is drawn so many
    pixels wide, with ticks at boundaries of a unit of time whose labels do not overlap. Two instants less
   than 10 ms apart are moved apart, equal ones by a day. Autoreleased. */
Axis *date_axis(double first, double last, double pixels, double font_size);
