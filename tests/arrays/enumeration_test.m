/*
 * `for in`, which Objective-C++ on this runtime does not have.
 */
#import <Korvane_ZEB/Korvane_ZEB.h>

/* How many elements a loop over the array meets, each of which must be the array's own in its order. */
unsigned count_met_in_order(ZEB_String_Array *strings);

unsigned count_met_in_order(ZEB_String_Array *strings)
{
    uint32_t met = 0;
    for (ZEB_String *string in strings) {
        if (string != [strings string_at_index:met])
            return 0;
        ++met;
    }
    return met;
}
