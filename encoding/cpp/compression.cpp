#include <Korvane_ZEB_engine/compression.hpp>

#include "arrays/engine/overlap.hpp"
#include "encoding/engine/check_sum.hpp"
#include "encoding/engine/zlib_loops.hpp"

#include <cstring>

namespace zeb
{
namespace
{

/// Appends zlib's output to an array.
struct Sink {
    Array<std::uint8_t> &array;

    engine::Zlib_Output output() noexcept { return {this, append, room, keep}; }

    static Array<std::uint8_t> &array_of(void *destination) noexcept
    {
        return static_cast<Sink *>(destination)->array;
    }

    static bool append(void *destination, const char *bytes, std::uint32_t length) noexcept
    {
        return array_of(destination).append({reinterpret_cast<const std::uint8_t *>(bytes), length});
    }

    // An array grows when its capacity does not exceed the new count.
    static engine::Output_Room room(void *destination) noexcept
    {
        Array<std::uint8_t> &array = array_of(destination);
        const std::size_t spare = array.capacity() - array.size();
        return {reinterpret_cast<char *>(array.end()),
                static_cast<std::uint32_t>(spare == 0 ? 0 : spare - 1)};
    }

    static void keep(void *destination, std::uint32_t length) noexcept
    {
        Array<std::uint8_t> &array = array_of(destination);
        static_cast<void>(array.resize(array.size() + length)); // which has room
    }
};

Compression_Status as_status(std::int32_t zlib_status) noexcept
{
    switch (zlib_status) {
    case 0:
        return Compression_Status::done;
    case engine::zlib_out_of_memory:
        return Compression_Status::out_of_memory;
    case engine::zlib_out_of_room:
        return Compression_Status::beyond_bound;
    default:
        return Compression_Status::damaged;
    }
}

/// Runs `work` on the source, or on a copy of one that lies in the destination, and takes back what it
/// appended before it failed.
template <class Work>
Compression_Status run(std::span<const std::uint8_t> source, Array<std::uint8_t> &destination,
                       Work work) noexcept
{
    if (source.size() > UINT32_MAX)
        return Compression_Status::out_of_memory;
    Array<std::uint8_t> aside;
    if (engine::overlaps(source, destination.data(), destination.capacity())) {
        if (!aside.copy(source))
            return Compression_Status::out_of_memory;
        source = aside;
    }
    const std::size_t count = destination.size();
    Sink sink{destination};
    const Compression_Status status =
        as_status(work(reinterpret_cast<const char *>(source.data()),
                       static_cast<std::uint32_t>(source.size()), sink.output()));
    if (status != Compression_Status::done)
        destination.remove(count, destination.size());
    return status;
}

} // namespace

Compression_Status compress(std::span<const std::uint8_t> source, Array<std::uint8_t> &destination) noexcept
{
    return run(source, destination, engine::compress);
}

Compression_Status decompress(std::span<const std::uint8_t> source, Array<std::uint8_t> &destination,
                              std::uint64_t bound) noexcept
{
    return run(source, destination,
               [bound](const char *bytes, std::uint32_t length, engine::Zlib_Output output) {
                   return engine::decompress_once(bytes, length, output, bound);
               });
}

std::uint32_t check_sum(std::span<const std::uint8_t> bytes) noexcept
{
    return engine::check_sum(reinterpret_cast<const char *>(bytes.data()), bytes.size());
}

} // namespace zeb
