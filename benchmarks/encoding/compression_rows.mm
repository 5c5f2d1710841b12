/// Compression of 64 MiB beside the same zlib called directly.
#include "benchmarks/encoding/encoding_rows.hpp"

#import <Korvane_ZEB/Korvane_ZEB.h>

#include <vector>
#include <zlib.h>

namespace zeb_bench
{
namespace
{

constexpr uint32_t size = 64 << 20;

/// Text of numbers, as applications store them.
ZEB_Byte_Array *source()
{
    static ZEB_Byte_Array *const made = [] {
        ZEB_Byte_Array *const bytes = [[ZEB_Byte_Array alloc] init_with_capacity:size + 32];
        uint32_t state = 1;
        while ([bytes count] < size) {
            state = state * 1664525 + 1013904223;
            char text[32];
            const int length =
                snprintf(text, sizeof text, "%u,%g\n", [bytes count] / 16, (state >> 12) * 0.01);
            [bytes append_bytes:reinterpret_cast<uint8_t *>(text) count:static_cast<uint32_t>(length)];
        }
        [bytes set_count:size];
        return bytes;
    }();
    return made;
}

std::vector<Bytef> &stored()
{
    static std::vector<Bytef> made = [] {
        std::vector<Bytef> bytes(compressBound(size));
        uLongf length = bytes.size();
        compress2(bytes.data(), &length, [source() byte_data], size, Z_DEFAULT_COMPRESSION);
        bytes.resize(length);
        return bytes;
    }();
    return made;
}

} // namespace

void add_compression_rows()
{
    static ZEB_Byte_Array *const target = [[ZEB_Byte_Array alloc] init_with_capacity:size + 1];
    static std::vector<Bytef> room(compressBound(size));
    Row("compress 64 MiB", Measure::Bytes, size)
        .goal_over("compress2", 1 / 1.05)
        .framework([] {
            [target clear];
            return ZC_compress_bytes_to_bytes(source(), target);
        })
        .peer("compress2", [] {
            uLongf length = room.size();
            return compress2(room.data(), &length, [source() byte_data], size, Z_DEFAULT_COMPRESSION);
        });
    static ZEB_Byte_Array *const packed =
        [[ZEB_Byte_Array alloc] init_as_copy_of_bytes:stored().data()
                                                count:static_cast<uint32_t>(stored().size())];
    Row("decompress 64 MiB", Measure::Bytes, size)
        .goal_over("uncompress", 1)
        .framework([] {
            [target clear];
            return ZC_decompress_bytes_to_bytes(packed, target);
        })
        .peer("uncompress", [] {
            uLongf length = room.size();
            return uncompress(room.data(), &length, stored().data(), stored().size());
        });
}

} // namespace zeb_bench
