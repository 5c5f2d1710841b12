/// Archives of both kinds: with keys, and in order.
#pragma once

#import <Foundation/Foundation.h>

#include <functional>

namespace support
{

/// An archive of what `encode` writes, without an object around it.
inline NSKeyedUnarchiver *archive_of(const std::function<void(NSCoder *)> &encode)
{
    NSMutableData *const data = [NSMutableData data];
    NSKeyedArchiver *const archiver = [[NSKeyedArchiver alloc] initForWritingWithMutableData:data];
    encode(archiver);
    [archiver finishEncoding];
    [archiver release];
    return [[[NSKeyedUnarchiver alloc] initForReadingWithData:data] autorelease];
}

inline NSData *archive(id object, bool keyed)
{
    return keyed ? [NSKeyedArchiver archivedDataWithRootObject:object]
                 : [NSArchiver archivedDataWithRootObject:object];
}

inline id unarchived(NSData *data, bool keyed)
{
    return keyed ? [NSKeyedUnarchiver unarchiveObjectWithData:data]
                 : [NSUnarchiver unarchiveObjectWithData:data];
}

/// Comes back from an archive as itself.
inline id archived(id object, bool keyed) { return unarchived(archive(object, keyed), keyed); }

} // namespace support
