/*
 * Helpers shared by the conversions to and from NSString.
 */
#import <Korvane_ZEB/ZEB_Types.h>

#import <Foundation/Foundation.h>

namespace zeb::engine
{

/// Not the value of any NSString encoding.
constexpr NSStringEncoding no_encoding = static_cast<NSStringEncoding>(0);

/// Returns the NSString encoding of a type; no_encoding for an undefined type.
NSStringEncoding platform_encoding(ZEB_Encoding_Type type);

/// Whether text of the type is UTF-8.
inline bool is_utf8(ZEB_Encoding_Type type)
{
    return type == ZEB_ENCODING_UTF8 || type == ZEB_ENCODING_UTF8_PATH;
}

/// Returns a new NSString or NSMutableString (`Made`) with a copy of the bytes, owned by the caller; nil if
/// they cannot be decoded.
template <class Made>
Made *new_platform_string(const char *bytes, uint32_t length, ZEB_Encoding_Type type)
{
    const NSStringEncoding encoding = platform_encoding(type);
    if (encoding == no_encoding)
        return nil;
    return [[Made alloc] initWithBytes:(length != 0 ? bytes : "") length:length encoding:encoding];
}

/// Returns the NSString itself; nil for an object of another class.
NSString *string_or_nil(id text);

/// Returns the encoded bytes of an NSString; nil if there are none, or more than a string can hold.
NSData *platform_bytes(NSString *text, ZEB_Encoding_Type type);

} // namespace zeb::engine
