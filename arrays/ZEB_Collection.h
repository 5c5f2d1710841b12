/*
 * What the collections of every element type have in common.
 */
#import <Korvane_ZEB/ZEB_Object.h>

@class ZEB_Stream;

/**
 * The base of the typed arrays and strings. It knows whether the object owns its storage or is a link: a
 * view of storage that belongs to someone else, whose owner the caller keeps alive.
 */
ZEB_EXPORT
@interface ZEB_Collection : ZEB_Object {
    ZEB_PROTECTED
    uint32_t link_marker;
}

/** The proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** 0 for an owner, 10000 for a link, 10001 for a string that a string pool holds. Array operations take
    10000 or more as a link, vector operations any value but 0. Setting the marker moves no storage. */
- (uint32_t)link_marker;
- (void)set_link_marker:(uint32_t)marker;

/** Takes over the settings that both collections have: the link marker, and the ownership mode where both
    are of objects. Nil, and what is no collection, changes nothing. */
- (void)copy_settings_from:(ZEB_Collection *)other;

/** The number of elements. Abstract: reports that it needs overloading, and answers 0. */
- (uint32_t)count;

/** Writes the element at a zero-based index, by the stream's writer for its type. Abstract: reports that
    it needs overloading, and writes nothing. */
- (void)send_element_to_stream:(uint32_t)index stream:(ZEB_Stream *)stream;

/** Write the collection as a delimited list. */
- (void)send_to_stream:(ZEB_Stream *)stream;
- (void)send_text_to_stream:(ZEB_Stream *)stream;
- (void)send_contents_to_stream:(ZEB_Stream *)stream;

/** Write the collection as a plain list: the elements, nothing between or around them. */
- (void)send_list_to_stream:(ZEB_Stream *)stream;
- (void)send_elements_to_stream:(ZEB_Stream *)stream;

/** Prints the elements between braces, numbers in decimal. Abstract: reports that it needs overloading. */
- (void)print_on_stream:(ZEB_Stream *)stream;

/** Prints "List contents:", the list and a line break, on lines of their own, onto the shared error
    stream. */
- (void)print;

/** What `send_to_stream:` writes, as a platform string; for strings, also where they are elements, their
   text: that of 8-bit strings read as UTF-8, or byte by byte where it is not that. */
- (NSString *)description;

@end
