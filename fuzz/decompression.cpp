/// Decompression within a bound. The first two bytes are the bound, the third the room at hand; the stream
/// follows.
#include "fuzz/fuzz.hpp"

#include "tests/support/zlib_sink.hpp"

using support::Sink;

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    if (size < 4)
        return 0;
    const std::uint64_t bound = (data[0] | std::uint64_t{data[1]} << 8) * 4;
    const std::string stream(reinterpret_cast<const char *>(data + 3), size - 3);
    Sink without, with{"", std::string(std::size_t{data[2]} * 1024, '\0')};
    const std::int32_t status = without.decompress(stream, bound);
    fuzz::require(with.decompress(stream, bound) == status);
    fuzz::require(without.contents == with.contents && without.contents.size() <= bound);
    if (status != 0)
        return 0;
    Sink packed, again;
    fuzz::require(packed.compress(with.contents) == 0);
    again.decompress(packed.contents);
    fuzz::require(again.contents == with.contents);
    return 0;
}
