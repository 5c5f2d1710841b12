#import "encoding/ZEB_Archive_Private.h"

#include "arrays/engine/storage/resizing.hpp"
#include "core/engine/platform_call.hpp"

#include <algorithm>

namespace zeb::engine
{

namespace
{

/// The size in which a coder without keys is given bytes.
constexpr uint32_t piece_size = uint32_t{1} << 16;

uint32_t size_of_piece(uint32_t at, uint32_t count) { return std::min(piece_size, count - at); }

void read_integer(NSCoder *coder, NSString *key, int64_t &value, bool &is_there)
{
    is_there = coder != nil && (![coder allowsKeyedCoding] || [coder containsValueForKey:key]);
    if (!is_there)
        return;
    if ([coder allowsKeyedCoding])
        value = [coder decodeInt64ForKey:key];
    else
        [coder decodeValueOfObjCType:@encode(int64_t) at:&value];
}

} // namespace

void archive_integer(NSCoder *coder, NSString *key, int64_t value)
{
    if ([coder allowsKeyedCoding])
        [coder encodeInt64:value forKey:key];
    else
        [coder encodeValueOfObjCType:@encode(int64_t) at:&value];
}

void archive_bytes(NSCoder *coder, NSString *key, const char *bytes, uint32_t count)
{
    if ([coder allowsKeyedCoding]) {
        const char *const some = bytes != nullptr ? bytes : "";
        return [coder encodeBytes:reinterpret_cast<const uint8_t *>(some) length:count forKey:key];
    }
    archive_integer(coder, key, count);
    for (uint32_t at = 0; at < count; at += size_of_piece(at, count))
        [coder encodeArrayOfObjCType:@encode(char) count:size_of_piece(at, count) at:bytes + at];
}

bool unarchive_integer(NSCoder *coder, NSString *key, int64_t &value) noexcept
{
    bool is_there = false;
    return runs_through([&] { read_integer(coder, key, value, is_there); }) && is_there;
}

bool unarchive_unsigned(NSCoder *coder, NSString *key, uint32_t &value) noexcept
{
    int64_t any = -1;
    if (!unarchive_integer(coder, key, any) || any < 0 || any > int64_t{UINT32_MAX})
        return false;
    value = static_cast<uint32_t>(any);
    return true;
}

Archived_Bytes::Archived_Bytes(NSCoder *coder, NSString *key) noexcept
{
    const bool is_through =
        runs_through([&] { [coder allowsKeyedCoding] ? read_by_key(coder, key) : read_in_order(coder); });
    if (!is_through)
        length = 0;
}

void Archived_Bytes::read_by_key(NSCoder *coder, NSString *key)
{
    NSUInteger size = 0;
    data = reinterpret_cast<const char *>([coder decodeBytesForKey:key returnedLength:&size]);
    length = data != nullptr && size <= UINT32_MAX ? static_cast<uint32_t>(size) : 0;
}

void Archived_Bytes::read_in_order(NSCoder *coder)
{
    uint32_t count = 0;
    if (!unarchive_unsigned(coder, nil, count))
        return;
    const Array_Storage<Plain_Elements<char>> block = copy.storage();
    const auto note_failure = [this](Char_Span) { no_memory = true; };
    for (uint32_t at = 0; at < count; at += size_of_piece(at, count)) {
        const uint32_t size = size_of_piece(at, count);
        if (!grow(block, uint64_t{at} + size, note_failure))
            return;
        [coder decodeArrayOfObjCType:@encode(char) count:size at:block.data + at];
    }
    data = block.data;
    length = count;
}

} // namespace zeb::engine
