/*
 * Steps that the conversions to and from the platform's strings share.
 */
#import <Korvane_ZEB/ZEB_Types.h>

#import <Foundation/Foundation.h>

namespace zeb::engine
{

/// No encoding of the platform has this value.
constexpr NSStringEncoding no_encoding = static_cast<NSStringEncoding>(0);

/// The platform's encoding of a type; none for a type that is not defined.
NSStringEncoding platform_encoding(ZEB_Encoding_Type type);

/// Whether text of the type is UTF-8.
inline bool is_utf8(ZEB_Encoding_Type type)
{
    return type == ZEB_ENCODING_UTF8 || type == ZEB_ENCODING_UTF8_PATH;
}

/// A new platform string of `Made`, NSString or NSMutableString, over a copy of bytes; owned by the caller.
/// Nil where they cannot be decoded.
template <class Made>
Made *new_platform_string(const char *bytes, uint32_t length, ZEB_Encoding_Type type)
{
    const NSStringEncoding encoding = platform_encoding(type);
    if (encoding == no_encoding)
        return nil;
    return [[Made alloc] initWithBytes:(length != 0 ? bytes : "") length:length encoding:encoding];
}

/// The platform string itself; nil for an object of another class.
NSString *string_or_nil(id text);

/// The bytes of a platform string; nil where there are none, or more than a string can hold.
NSData *platform_bytes(NSString *text, ZEB_Encoding_Type type);

} // namespace zeb::engine
