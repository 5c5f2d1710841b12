/*
 * Units of measure by their names.
 */
#import <Korvane_ZEB/Korvane_ZEB.h>

/** Finds the unit that has a text as one of its names or abbreviations; of several the first. Returns false
    if there is none. */
bool find_unit(ZEB_Wide_Char_Vector *name, ZEB_Unit_Identity *unit);

/** Appends a unit's plural name, and its symbol in parentheses if it has one. */
void append_unit(ZEB_Wide_String *text, ZEB_Unit_Identity unit);
