/*
 * The binary record of each element kind.
 */
#import "arrays/ZEB_Byte_Storage_Private.h"
#import "arrays/ZEB_Char_Storage_Private.h"
#import "arrays/ZEB_Wide_Char_Storage_Private.h"

#include "encoding/engine/binary_record.hpp"

#include <stdio.h>

namespace zeb::engine
{

/// Returns the storage of an object that an array made.
struct Storage_Of_Object {
    auto operator()(ZEB_String *string) const { return storage_of_array(string); }
    auto operator()(ZEB_Wide_String *string) const { return storage_of_array(string); }
    auto operator()(ZEB_Byte_Array *bytes) const { return storage_of_array(bytes); }
};

inline void report_references()
{
    fputs("decode binary ontents from string not done for id type.\n", stderr);
}

template <class Element>
void encode(Vector_Storage<Plain_Elements<Element>> vector, Record_Buffer buffer, Fix_Report report)
{
    encode_plain(vector, buffer, report);
}

template <class Policy>
void encode(Vector_Storage<Held_Objects<Policy>> vector, Record_Buffer buffer, Fix_Report report)
{
    encode_held(vector, buffer, Storage_Of_Object(), report);
}

template <class Policy>
void encode(Vector_Storage<Counted_References<Policy>> vector, Record_Buffer buffer, Fix_Report report)
{
    encode_references(vector, buffer, report);
}

/// Returns the size of the record of an array of objects.
template <class Policy>
uint64_t size_of_record(Vector_Storage<Held_Objects<Policy>> vector)
{
    return extent_of_record(vector, {}, Storage_Of_Object()).size;
}

template <class Element>
uint32_t decode(Array_Storage<Plain_Elements<Element>> array, Record_Source source, Fix_Report report)
{
    return decode_plain(array, source, report);
}

template <class Policy>
uint32_t decode(Array_Storage<Held_Objects<Policy>> array, Record_Source source, Fix_Report report)
{
    return decode_held(array, source, Storage_Of_Object(), report);
}

template <class Policy>
uint32_t decode(Array_Storage<Counted_References<Policy>> array, Record_Source source, Fix_Report report)
{
    return decode_references(array, source, report, report_references);
}

} // namespace zeb::engine
