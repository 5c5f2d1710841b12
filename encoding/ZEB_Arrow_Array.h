/*
 * Arrays and tables that came from another library through the Arrow C data interface.
 */
#import <Korvane_ZEB/ZEB_Arrow_Structs.h>
#import <Korvane_ZEB/ZEB_Object.h>

ZEB_ASSUME_NONNULL_BEGIN

/**
 * Owns an array, or shows a column of a table that it keeps alive. What it received is released when the
 * object and all columns taken from it are deallocated; so is what `link_to_doubles` and its like show.
 *
 * Different objects may be used on different threads, where the other library allows that.
 */
ZEB_EXPORT
@interface ZEB_Arrow_Array : ZEB_Object {
    ZEB_PROTECTED
    struct ArrowArray array;
    struct ArrowSchema schema;
    ZEB_UNRETAINED ZEB_Arrow_Array *ZEB_NULLABLE table;
    uint64_t start;
    uint64_t count;
}

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** Initialises with an array and its schema, and takes both over: they are left as released, with a null
    `release`. Returns nil, with both structs as they are, for null, for structs that were released, and where
    their counts make no sense. */
- (instancetype ZEB_NULLABLE)init_with_arrow_array:(struct ArrowArray *ZEB_NULLABLE)given_array
                                            schema:(struct ArrowSchema *ZEB_NULLABLE)given_schema;

/** The same, autoreleased. */
+ (ZEB_INSTANCE_OF(ZEB_Arrow_Array *) ZEB_NULLABLE)arrow_array_with:(struct ArrowArray *ZEB_NULLABLE)given_array
                                                             schema:(struct ArrowSchema *ZEB_NULLABLE)given_schema;

/** Returns the number of elements, or of a table's rows. */
- (uint64_t)count;

/** Returns how many elements are null, that is, have no value. */
- (uint64_t)null_count;

/** Returns the text of the elements' type, as the interface has it, and the name; "" if there is none. Both
    live as long as the receiver. */
- (const char *)format ZEB_INNER_POINTER;
- (const char *)name ZEB_INNER_POINTER;

/** Returns the number of a table's columns; 0 for an array of elements. */
- (uint32_t)column_count;

/** Returns a column of a table, autoreleased, which keeps the table; nil for an index that is not below
    their number, where the table has rows that are null, and for a column that has fewer elements than the
    table rows. */
- (ZEB_Arrow_Array *ZEB_NULLABLE)column_at_index:(uint32_t)index;

@end

ZEB_ASSUME_NONNULL_END
