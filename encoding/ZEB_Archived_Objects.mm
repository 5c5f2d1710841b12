#import "encoding/ZEB_Archived_Records_Private.h"

#import <objc/runtime.h>

#include "core/engine/platform_call.hpp"

#include <algorithm>

namespace zeb::engine
{

namespace
{

NSString *const count_key = @"ZEB_object_count";
NSString *const nil_count_key = @"ZEB_nil_count";
NSString *const mode_key = @"ZEB_ownership_mode";

/// The count of an array that could not be archived.
constexpr int64_t no_objects = -1;

NSString *key_of_object(uint32_t index) { return [NSString stringWithFormat:@"ZEB_object_%u", index]; }

/// The platform would archive an object of any class, and drop its state without a word.
bool can_be_archived(id object)
{
    // By its name: on gcc's runtime nothing conforms to a protocol as clang names it.
    Protocol *const coding = objc_getProtocol("NSCoding");
    return object == nil || [object conformsToProtocol:coding];
}

void archive_object(NSCoder *coder, uint32_t index, id object)
{
    if ([coder allowsKeyedCoding])
        [coder encodeObject:object forKey:key_of_object(index)];
    else
        [coder encodeObject:object];
}

/// What is read of an archive's objects.
struct Reading {
    NSCoder *coder;
    Array_Storage<Objects> array;
    Fix_Report report;
    uint32_t count;
    uint32_t nil_count;
    bool lacks_memory;
};

/// Appends an archived object; false if there is none.
bool take_object(Reading &reading, uint32_t index)
{
    const bool is_keyed = [reading.coder allowsKeyedCoding];
    NSString *const key = is_keyed ? key_of_object(index) : nil;
    if (is_keyed && ![reading.coder containsValueForKey:key])
        return false;
    const id object = is_keyed ? [reading.coder decodeObjectForKey:key] : [reading.coder decodeObject];
    reading.nil_count += object == nil;
    append_elements(reading.array, {&object, 1, Source::of_another_array}, reading.report);
    reading.lacks_memory = reading.array.count == index;
    return !reading.lacks_memory;
}

void take_objects(Reading &reading)
{
    uint32_t index = 0;
    while (index < reading.count && take_object(reading, index))
        ++index;
}

} // namespace

void archive_objects(Vector_Storage<Objects> vector, NSCoder *coder, Fix_Report report)
{
    const std::span<id> objects = vector.elements();
    if (!std::all_of(objects.begin(), objects.end(), can_be_archived)) {
        report(notes::object_without_coding);
        return archive_integer(coder, count_key, no_objects);
    }
    archive_integer(coder, count_key, vector.count);
    archive_integer(coder, nil_count_key, std::count(objects.begin(), objects.end(), id{nil}));
    for (uint32_t i = 0; i < vector.count; ++i)
        archive_object(coder, i, objects[i]);
    archive_integer(coder, mode_key, vector.kind.mode);
}

bool unarchive_objects(Array_Storage<Objects> array, NSCoder *coder, Fix_Report report)
{
    Reading reading{coder, array, report, 0, 0, false};
    uint32_t nil_count = 0;
    const bool is_complete = unarchive_unsigned(coder, count_key, reading.count) &&
                             unarchive_unsigned(coder, nil_count_key, nil_count) &&
                             runs_through([&] { take_objects(reading); }) && array.count == reading.count &&
                             // An object that refused its part of the archive comes back as nil.
                             reading.nil_count == nil_count;
    if (!is_complete && !reading.lacks_memory)
        report(notes::archive_incomplete);
    return is_complete;
}

bool unarchive_ownership(uint32_t &mode, NSCoder *coder, Fix_Report report)
{
    uint32_t archived = 0;
    const bool is_there = unarchive_unsigned(coder, mode_key, archived);
    if (!is_there)
        report(notes::archive_incomplete);
    else if (archived != borrows) // whose objects nobody else owns here
        mode = archived;
    return is_there;
}

} // namespace zeb::engine
