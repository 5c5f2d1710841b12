/*
 * The base of the collections of every element type.
 */
#import <Korvane_ZEB/ZEB_Object.h>

@class ZEB_Stream;

ZEB_ASSUME_NONNULL_BEGIN

/**
 * The base class of the typed arrays and strings. A collection either owns its storage or is a link: a view
 * of storage that belongs to another object or to the caller, who must keep it alive.
 *
 * Different collections may be used on different threads, a link and its owner on the same one; growth seeds
 * are set before. ZEB_Object.h says what else may not.
 */
ZEB_EXPORT
@interface ZEB_Collection : ZEB_Object {
    ZEB_PROTECTED
    uint32_t link_marker;
}

/** Returns the proprietary notice. */
+ (const char *)get_KVX_proprietary_software_notice;

/** 0 for an owner, 10000 for a link, 10001 for a string held by a string pool. Array operations treat 10000
    and above as a link, vector operations any value other than 0. Setting the marker does not move or free
    storage. */
- (uint32_t)link_marker;
- (void)set_link_marker:(uint32_t)marker;

/** Copies the settings that both collections have: the link marker and, between object collections, the
    ownership mode. Nil and objects that are not collections change nothing. */
- (void)copy_settings_from:(ZEB_Collection *ZEB_NULLABLE)other;

/** Returns the number of elements. Abstract: reports that it needs overloading, and returns 0. */
- (uint32_t)count;

/** Writes the element at a zero-based index with the stream's writer for its type. Abstract: reports that it
    needs overloading, and writes nothing. */
- (void)send_element_to_stream:(uint32_t)index stream:(ZEB_Stream *ZEB_NULLABLE)stream;

/** Write the collection as a delimited list. */
- (void)send_to_stream:(ZEB_Stream *ZEB_NULLABLE)stream;
- (void)send_text_to_stream:(ZEB_Stream *ZEB_NULLABLE)stream;
- (void)send_contents_to_stream:(ZEB_Stream *ZEB_NULLABLE)stream;

/** Write the elements with nothing between or around them. */
- (void)send_list_to_stream:(ZEB_Stream *ZEB_NULLABLE)stream;
- (void)send_elements_to_stream:(ZEB_Stream *ZEB_NULLABLE)stream;

/** Prints the elements between braces, numbers in decimal. Abstract: reports that it needs overloading. */
- (void)print_on_stream:(ZEB_Stream *ZEB_NULLABLE)stream;

/** Prints "List contents:" and a line break, the list, and a line break to the shared error stream. */
- (void)print;

/** Returns the text that `send_to_stream:` writes. Strings, including those that are elements, appear as
    their text: 8-bit strings are decoded as UTF-8, or as ISO Latin 1 if they are not valid UTF-8. */
- (NSString *)description;

@end

ZEB_ASSUME_NONNULL_END
