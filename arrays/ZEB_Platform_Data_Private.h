/*
 * Elements as NSData, and back.
 */
#import "core/ZEB_Report_Private.h"

#include "arrays/engine/storage/bridge_notes.hpp"
#include "arrays/engine/storage/insertion.hpp"

namespace zeb::engine
{

/// Returns autoreleased data with a copy of the bytes; nil, after a report, if the platform cannot make it.
NSData *data_with_bytes(const void *bytes, std::size_t size, Fix_Report report);

/// Returns autoreleased data that owns the block, which is from the C allocator; nil if the platform cannot
/// make it, and the block then is the caller's as before.
NSData *data_owning_block(void *block, std::size_t size);

/// Hands the block of an array over and leaves the array empty. Returns nil, after a report and with the
/// array unchanged, for a link, and if the platform cannot make the data.
template <class Element>
NSData *data_taking_block(Array_Storage<Plain_Elements<Element>> array, Fix_Report report)
{
    const bool is_owner = array.owns();
    NSData *const made =
        is_owner ? data_owning_block(array.count != 0 ? array.data : nullptr, array.count * sizeof(Element))
                 : nil;
    if (made == nil)
        report(is_owner ? notes::allocate_failed : notes::block_through_link);
    else if (array.count != 0) {
        array.data = nullptr;
        array.count = 0;
        array.capacity = 0;
    }
    return made;
}

/// What data holds. Bytes that are no elements have no `is_whole`; nil has no bytes.
template <class Element>
struct Data_Elements {
    Element *first = nullptr;
    std::size_t count = 0;
    bool is_whole;

    explicit Data_Elements(NSData *data) : is_whole(data == nil)
    {
        if (![data isKindOfClass:[NSData class]])
            return;
        const void *const bytes = [data bytes];
        first = static_cast<Element *>(const_cast<void *>(bytes));
        count = [data length] / sizeof(Element);
        is_whole = [data length] % sizeof(Element) == 0;
    }

    /// Whether elements may be read and written where they lie.
    bool is_in_place() const
    {
        return is_whole && reinterpret_cast<std::uintptr_t>(first) % alignof(Element) == 0;
    }
};

/// Replaces an array's contents with the elements of data, and returns whether it did.
template <class Element>
bool set_to_data(Array_Storage<Plain_Elements<Element>> array, NSData *data, Fix_Report report)
{
    const Data_Elements<Element> elements(data);
    Char_Span failure{nullptr, 0};
    if (!elements.is_whole)
        failure = notes::no_such_data;
    else if (elements.count > UINT32_MAX)
        failure = notes::allocate_failed;
    else
        set_contents(array, {elements.first, static_cast<uint32_t>(elements.count)},
                     [&](Char_Span note) { failure = note; });
    if (failure.length != 0)
        report(failure);
    return failure.length == 0;
}

/// Returns whether a link may view the elements of data, after a report if not.
template <class Element>
bool may_view(const Data_Elements<Element> &elements, Fix_Report report)
{
    const bool may = elements.is_in_place() && elements.count <= UINT32_MAX;
    if (!may)
        report(notes::no_data_to_view);
    return may;
}

} // namespace zeb::engine
