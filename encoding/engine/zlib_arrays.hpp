/// Compression and decompression into growable arrays.
#pragma once

#include "arrays/engine/storage/insertion.hpp"
#include "arrays/engine/storage/own_source.hpp"
#include "encoding/engine/zlib_loops.hpp"

namespace zeb::engine
{

/// The bytes of an array of 8-bit elements.
struct Byte_Run {
    const char *bytes;
    std::uint32_t length;
};

/// Appends zlib's output to an array.
template <class Element, class Report>
struct Array_Sink {
    using Kind = Plain_Elements<Element>;

    Array_Storage<Kind> array;
    Report report;

    Zlib_Output output() noexcept { return {this, append, room, keep}; }

    static bool append(void *destination, const char *bytes, std::uint32_t length) noexcept
    {
        const Array_Sink &sink = *static_cast<Array_Sink *>(destination);
        const std::uint32_t count = sink.array.count;
        append_elements(sink.array, Elements_Of<Kind>{reinterpret_cast<const Element *>(bytes), length},
                        sink.report);
        return sink.array.count != count;
    }

    // An append grows until the capacity exceeds the count.
    static Output_Room room(void *destination) noexcept
    {
        const Array_Storage<Kind> array = static_cast<Array_Sink *>(destination)->array;
        const std::uint32_t spare = array.capacity > array.count ? array.capacity - array.count - 1 : 0;
        return {reinterpret_cast<char *>(array.data) + array.count, array.data != nullptr ? spare : 0};
    }

    static void keep(void *destination, std::uint32_t length) noexcept
    {
        static_cast<Array_Sink *>(destination)->array.count += length;
    }
};

/// Runs `work` (compress or decompress) on `source`, which must not be empty, and appends the output to
/// `array`. A link reports as an append does and returns -1 before any work. A source within the array's own
/// block is copied first.
template <class Element, class Report, class Work>
std::int32_t run_zlib(Byte_Run source, Array_Storage<Plain_Elements<Element>> array, Report report,
                      Work work) noexcept
{
    if (array.is_link()) {
        report(notes::append_array_through_link);
        return -1;
    }
    const Unaliased_Values<char> bytes({}, {source.bytes, source.length}, array.data, array.capacity);
    if (!bytes.is_valid()) {
        report(notes::reallocate_failed);
        return zlib_out_of_memory;
    }
    Array_Sink<Element, Report> sink{array, report};
    return work(bytes.elements().data(), source.length, sink.output());
}

} // namespace zeb::engine
