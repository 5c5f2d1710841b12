/*
 * Collections of TT_PHRASE: the abstract element interface.
 */
#import <Korvane_ZEB/ZEB_Collection.h>

TT_FORWARD_CLASSES

/**
 * The abstract level of the family: what can be asked of any collection of TT_PHRASE. Its vector
 * provides the elements.
 */
ZEB_EXPORT
@interface ZEB_T_Collection : ZEB_Collection {
    ZEB_PROTECTED
    TT_COLLECTION_FIELDS
}

/** The proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** The element at a zero-based index. Abstract: reports that it needs subclassing, and answers 0 or
    nothing. */
- (ZEB_T_Element)ZEB_T_element_at_index:(uint32_t)index;

/** The first element; `count` elements follow one another. Abstract: reports that it needs subclassing,
    and answers null. */
- (ZEB_T_Element *)TT_word_data;

@end
