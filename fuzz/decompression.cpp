/// Decompression within a bound. The first two bytes are the bound, the third the room at hand; the stream
/// follows.
#include "fuzz/fuzz.hpp"

#include "core/engine/namespace.hpp"
#include "encoding/engine/zlib_loops.hpp"

#include <cstring>
#include <string>

namespace
{

struct Sink {
    std::string contents;
    std::string room;
};

engine::Zlib_Output output_of(Sink &sink)
{
    return {&sink,
            [](void *to, const char *bytes, std::uint32_t length) {
                static_cast<Sink *>(to)->contents.append(bytes, length);
                return true;
            },
            [](void *to) {
                std::string &room = static_cast<Sink *>(to)->room;
                return engine::Output_Room{room.data(), static_cast<std::uint32_t>(room.size())};
            },
            [](void *to, std::uint32_t length) {
                Sink &sink = *static_cast<Sink *>(to);
                sink.contents.append(sink.room, 0, length);
            }};
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < 4)
        return 0;
    const std::uint64_t bound = (data[0] | std::uint64_t{data[1]} << 8) * 4;
    const std::string stream(reinterpret_cast<const char *>(data + 3), size - 3);
    const auto length = static_cast<std::uint32_t>(stream.size());
    Sink without{}, with{{}, std::string(std::size_t{data[2]} * 1024, '\0')};
    const std::int32_t status = engine::decompress(stream.data(), length, output_of(without), bound);
    fuzz::require(engine::decompress(stream.data(), length, output_of(with), bound) == status);
    fuzz::require(without.contents == with.contents && without.contents.size() <= bound);
    if (status != 0)
        return 0;
    Sink packed{}, again{};
    const auto count = static_cast<std::uint32_t>(with.contents.size());
    fuzz::require(engine::compress(with.contents.data(), count, output_of(packed)) == 0);
    engine::decompress(packed.contents.data(), static_cast<std::uint32_t>(packed.contents.size()),
                       output_of(again));
    fuzz::require(again.contents == with.contents);
    return 0;
}
