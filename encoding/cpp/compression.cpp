#include <Korvane_ZEB_engine/compression.hpp>

#include "arrays/cpp/array_access.hpp"
#include "encoding/engine/check_sum.hpp"
#include "encoding/engine/zlib_arrays.hpp"

namespace zeb
{
namespace
{

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

/// Appends what `work` makes of the source, and takes it back if that fails.
template <class Work>
Compression_Status run(std::span<const std::uint8_t> source, Array<std::uint8_t> &destination,
                       Work work) noexcept
{
    if (source.size() > UINT32_MAX)
        return Compression_Status::out_of_memory;
    const engine::Byte_Run bytes{reinterpret_cast<const char *>(source.data()),
                                 static_cast<std::uint32_t>(source.size())};
    const std::size_t count = destination.size();
    std::int32_t status = 0;
    detail::Array_Access::try_to(
        destination, [&](auto array, auto report) { status = engine::run_zlib(bytes, array, report, work); });
    if (status != 0)
        destination.remove(count, destination.size());
    return as_status(status);
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
