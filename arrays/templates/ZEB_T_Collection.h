/*
 * Collections of TT_PHRASE: the abstract interface to elements.
 */
#import <Korvane_ZEB/ZEB_Collection.h>

TT_FORWARD_CLASSES

ZEB_ASSUME_NONNULL_BEGIN

/**
 * The abstract base class of the family. Its vector class provides the elements.
 */
ZEB_EXPORT
@interface ZEB_T_Collection : ZEB_Collection {
    ZEB_PROTECTED
    TT_COLLECTION_FIELDS
}

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** Returns the element at a zero-based index. Abstract: reports that it needs subclassing, and returns 0 or
    nil. */
- (TT_VALUE)ZEB_T_element_at_index:(uint32_t)index;

/** Returns a pointer to the first element; the others follow it. Abstract: reports that it needs subclassing,
    and returns null. */
- (TT_SLOT *ZEB_NULLABLE)TT_word_data ZEB_INNER_POINTER;

@end

ZEB_ASSUME_NONNULL_END
