/*
 * Archiving TT_PHRASE.
 */
#import <Korvane_ZEB/ZEB_T_Array.h>

ZEB_ASSUME_NONNULL_BEGIN

/**
 * Archives of NSKeyedArchiver and of NSArchiver. A link is archived as the elements that it shows, and comes
 * back as an owner, of the archived class; growth seeds, room beyond the elements and the position in a pool
 * are not archived.
 *
 * Values, strings, arrays of strings and arrays of byte arrays are one run of bytes, the header of the binary
 * format and the record (ZEB_Binary_Header.h), which machines of both byte orders read. What exceeds 4 GiB,
 * and what there is no memory for, is reported as by `ZEB_encode_binary_contents:` and left out.
 *
 * Object references are archived as objects, with the ownership mode and nil where it is. All elements have
 * to adopt NSCoding, or "An element does not adopt NSCoding, none archived." is reported and none is. They
 * are retained by the array that comes back, which has mode 2 where the archived one had 0: nobody else would
 * own them. Their classes are any, so that object arrays support no secure coding, as all others do.
 *
 * Pointers are refused: "Addresses mean nothing in an archive, none archived.", and "..., no object made."
 */
@interface ZEB_T_Vector (Coding) <NSSecureCoding>

/** Whether an archive of such elements names no class but their array's. */
+ (BOOL)supportsSecureCoding;

/** Writes the elements. What could not be archived is refused when it is read; it is reported twice where the
    archiver goes through its objects twice, as GNUstep's NSArchiver does. An exception that an element's own
    coding raises passes through. */
- (void)encodeWithCoder:(NSCoder *)coder;

/** Initialises an owner with archived elements. Returns nil, the receiver being released, after one line of
    report: if the archive lacks a value, or has one of another kind in its place, or an object that cannot be
    read ("Archive lacks a value or has another kind of value in its place, no object made."); if its bytes do
    not begin with the binary header ("Archived contents do not begin with the binary header, no object
    made."), end before the record does ("Binary contents are truncated, no decode performed.") or after it
    ("Archived contents go on after their end, no object made."); and if allocation fails. */
- (instancetype ZEB_NULLABLE)initWithCoder:(NSCoder *)coder;

@end

/** The same, with the room that growth gives. */
@interface ZEB_T_Array (Coding)
- (instancetype ZEB_NULLABLE)initWithCoder:(NSCoder *)coder;
@end

ZEB_ASSUME_NONNULL_END
