/*
 * A series in memory: instants, and a value at each.
 */
#import <Korvane_ZEB/Korvane_ZEB.h>

@interface Series : ZEB_Object {
    ZEB_Double_Array *instants;
    ZEB_Double_Array *values;
    ZEB_String *value_name;
}

/** Seconds since 1970-01-01 00:00, in the order of the rows. */
- (ZEB_Double_Array *)instants;

/** The values, as many as instants. */
- (ZEB_Double_Array *)values;

/** What the values are called in the header of the file; empty if it has none. */
- (ZEB_String *)value_name;

/** Whether both series hold the same bits, names aside. */
- (BOOL)is_identical_to:(Series *)other;

@end
