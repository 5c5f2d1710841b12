/// The checked decoding of every family's records. The first byte chooses the family, the second the byte
/// order; the record follows.
#include "fuzz/fuzz.hpp"

#include "tests/support/framework_classes.hpp"

#include <cstring>

namespace
{

/// Every class that decodes records, by name; the classes that inherit it are left out.
std::vector<id> find_families()
{
    const SEL decode = @selector(ZEB_decode_binary_contents:needs_swap:);
    std::vector<id> classes = support::framework_classes();
    std::erase_if(classes, [=](id named) {
        const Class one = static_cast<Class>(named);
        return class_getInstanceMethod(one, decode) == nullptr ||
               class_getInstanceMethod(class_getSuperclass(one), decode) != nullptr ||
               one == [ZEB_Object_Array class];
    });
    return classes;
}

/// What was decoded is encoded, in this machine's byte order, and decoded again: the same record of the same
/// size.
void check_round_trip(ZEB_Byte_Array *decoded, uint32_t consumed, const char *record, bool was_swapped)
{
    ZEB_String *const buffer = [ZEB_String array_with_capacity:0];
    [decoded ZEB_encode_binary_contents:buffer];
    fuzz::require([buffer count] == consumed);
    fuzz::require(was_swapped || std::memcmp([buffer char_data], record, consumed) == 0);
    ZEB_Byte_Array *const again = [[[[decoded class] alloc] init] autorelease];
    fuzz::require([again ZEB_decode_binary_contents:buffer needs_swap:0] == consumed);
    ZEB_String *const second = [ZEB_String array_with_capacity:0];
    [again ZEB_encode_binary_contents:second];
    fuzz::require([second isEqual:buffer]);
}

} // namespace

int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static const std::vector<id> families = find_families();
    [[ZEB_Error_Stream shared_error_stream] set_verbose:0];
    if (size < 2)
        return 0;
    NSAutoreleasePool *const pool = [[NSAutoreleasePool alloc] init];
    const bool is_swapped = data[1] & 1;
    // A block of its own size, so that the sanitizer sees what is read behind it.
    std::vector<char> record(data + 2, data + size);
    ZEB_String *const source = [ZEB_String link_to_chars:record.data() count:static_cast<uint32_t>(size - 2)];
    // Of any family: its messages are those of bytes.
    ZEB_Byte_Array *const array = [[[(Class)families[data[0] % families.size()] alloc] init] autorelease];
    const uint32_t consumed = [array ZEB_decode_binary_contents:source needs_swap:is_swapped];
    fuzz::require(consumed <= size - 2);
    if (consumed != 0)
        check_round_trip(array, consumed, record.data(), is_swapped);
    else
        fuzz::require([array count] == 0);
    [pool drain];
    return 0;
}
