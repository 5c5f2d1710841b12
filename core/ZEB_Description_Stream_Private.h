/*
 * The text that an object writes onto a stream, as a platform string.
 */
#import <Foundation/Foundation.h>

namespace zeb::engine
{

/// What the object's `send_to_stream:` writes, decoded as UTF-8, or as ISO Latin 1 where it is not that; the
/// text of a string. Autoreleased.
NSString *description_of(id object);

} // namespace zeb::engine
