/*
 * An object's stream text as an NSString.
 */
#import <Foundation/Foundation.h>

namespace zeb::engine
{

/// Returns what the object's `send_to_stream:` writes, decoded as UTF-8, or as ISO Latin 1 if it is not valid
/// UTF-8; for a string, its text. Autoreleased.
NSString *description_of(id object);

} // namespace zeb::engine
