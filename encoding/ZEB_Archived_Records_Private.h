/*
 * Elements in archives: values as their record behind the header of the binary format, references as objects.
 */
#import "core/ZEB_Report_Private.h"
#import "encoding/ZEB_Archive_Private.h"
#import "encoding/ZEB_Records_Private.h"

#include "core/engine/archive_notes.hpp"
#include "encoding/engine/binary_header.hpp"

namespace zeb::engine
{

/// Writes the header and the record of a vector. If allocation fails, that is reported, and the archive gets
/// no byte in their place, which is refused when it is read.
template <class Kind>
void archive_record(Vector_Storage<Kind> vector, NSCoder *coder, NSString *key, Fix_Report report)
{
    Byte_Block block;
    const Record_Buffer buffer = block.storage();
    set_length(buffer, binary_header_size, report);
    if (buffer.count != 0) {
        write_binary_header(buffer.data);
        encode(vector, buffer, report);
    }
    archive_bytes(coder, key, buffer.data, buffer.count > binary_header_size ? buffer.count : 0);
}

/// Reads what `archive_record` wrote, on a machine of either byte order, into an owner. Reports and returns
/// false if the archive does not hold that, and nothing but that.
template <class Kind>
bool unarchive_record(Array_Storage<Kind> array, NSCoder *coder, NSString *key, Fix_Report report)
{
    const Archived_Bytes archived(coder, key);
    const auto refuse = [=](Char_Span note) {
        report(note);
        return false;
    };
    if (archived.lacks_memory())
        return refuse(notes::allocate_failed);
    if (archived.count() == 0)
        return refuse(notes::archive_incomplete);
    const Header_Origin origin = header_origin(archived.bytes(), archived.count());
    if (origin == Header_Origin::foreign)
        return refuse(notes::archive_foreign);
    const Record_Source source{archived.bytes() + binary_header_size, archived.count() - binary_header_size,
                               origin == Header_Origin::other_byte_order};
    const uint32_t size = decode(array, source, report);
    if (size != 0 && size != source.length)
        return refuse(notes::archive_has_tail);
    return size != 0;
}

/// The storage of object arrays.
using Objects = Counted_References<Object_Policy>;

/// Write and read object references and the mode of ownership.
void archive_objects(Vector_Storage<Objects> vector, NSCoder *coder, Fix_Report report);
bool unarchive_objects(Array_Storage<Objects> array, NSCoder *coder, Fix_Report report);
bool unarchive_ownership(uint32_t &mode, NSCoder *coder, Fix_Report report);

inline NSString *const record_key = @"ZEB_record";

template <class Kind>
void archive_elements(Vector_Storage<Kind> vector, NSCoder *coder, Fix_Report report)
{
    archive_record(vector, coder, record_key, report);
}

template <class Kind>
bool unarchive_elements(Array_Storage<Kind> array, NSCoder *coder, Fix_Report report)
{
    return unarchive_record(array, coder, record_key, report);
}

/// Addresses are refused, in both directions.
inline void archive_elements(Vector_Storage<Plain_Elements<void *>>, NSCoder *coder, Fix_Report report)
{
    report(notes::addresses_not_archived);
    archive_bytes(coder, record_key, nullptr, 0);
}

inline bool unarchive_elements(Array_Storage<Plain_Elements<void *>>, NSCoder *coder, Fix_Report report)
{
    // Read all the same: what follows in a coder without keys stays in its place.
    const Archived_Bytes archived(coder, record_key);
    report(notes::addresses_not_unarchived);
    return false;
}

inline void archive_elements(Vector_Storage<Objects> vector, NSCoder *coder, Fix_Report report)
{
    archive_objects(vector, coder, report);
}

inline bool unarchive_elements(Array_Storage<Objects> array, NSCoder *coder, Fix_Report report)
{
    return unarchive_objects(array, coder, report);
}

/// Sets what single families keep beside their elements.
inline bool unarchive_settings(ZEB_Collection *, NSCoder *, Fix_Report) { return true; }
inline bool unarchive_settings(ZEB_Object_Collection *objects, NSCoder *coder, Fix_Report report)
{
    return unarchive_ownership(objects->ownership_mode, coder, report);
}

/// Whether an archive of such elements names no class that the reader has to know.
template <class Kind>
inline constexpr bool is_archived_as_record = true;
template <>
inline constexpr bool is_archived_as_record<Objects> = false;

} // namespace zeb::engine
