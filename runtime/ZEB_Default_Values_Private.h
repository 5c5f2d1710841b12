/*
 * What is checked and made of keys and values before the platform's user defaults are called, which throw.
 */
#import <Foundation/Foundation.h>

namespace zeb::engine
{

/// Returns the object itself if it is a property list that the platform can keep; nil otherwise. Containers
/// are followed to a depth that no file needs, so that one inside itself ends.
id property_list_or_nil(id object);

/// Returns the platform's text of a number, as in the "C" locale.
NSString *text_of_number(NSNumber *number);

} // namespace zeb::engine
