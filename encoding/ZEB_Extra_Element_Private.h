/*
 * The element that a binary string stream writes after a list.
 */
#import <Korvane_ZEB/ZEB_Collection.h>

@class ZEB_Stream;

@interface ZEB_Collection (Extra_Element)

/** Writes what the slot after the last element holds, where an owner's block has one; else 0, or nothing for
    objects. Collections that are no arrays of the framework write nothing. */
- (void)send_element_past_end_to_stream:(ZEB_Stream *)stream;

@end
