#include "encoding/engine/arrow_import.hpp"

#include <algorithm>
#include <cstring>

namespace zeb::engine
{
namespace
{

const unsigned char *bits_of(Arrow_Slice slice) noexcept
{
    return slice.array.n_buffers == 0 ? nullptr : static_cast<const unsigned char *>(slice.array.buffers[0]);
}

} // namespace

bool is_usable(const ArrowArray &array, const ArrowSchema &schema) noexcept
{
    return array.release != nullptr && schema.release != nullptr && schema.format != nullptr &&
           array.length >= 0 && array.offset >= 0 && array.n_buffers >= 0 && array.n_children >= 0 &&
           array.n_children == schema.n_children &&
           array.length <= std::numeric_limits<std::int64_t>::max() - array.offset;
}

bool is_table(const ArrowSchema &schema) noexcept { return std::strcmp(schema.format, "+s") == 0; }

bool has_elements(Arrow_Slice slice, const ArrowSchema &schema, const char *format) noexcept
{
    return std::strcmp(schema.format, format) == 0 && schema.dictionary == nullptr &&
           slice.array.n_buffers == 2 && (slice.count == 0 || slice.array.buffers[1] != nullptr);
}

bool is_null(Arrow_Slice slice, std::uint64_t index) noexcept
{
    const unsigned char *const bits = bits_of(slice);
    const std::uint64_t bit = slice.start + index;
    return bits != nullptr && (bits[bit / 8] >> bit % 8 & 1) == 0;
}

std::uint64_t null_count(Arrow_Slice slice) noexcept
{
    if (bits_of(slice) == nullptr || slice.array.null_count == 0)
        return 0;
    std::uint64_t nulls = 0;
    for (std::uint64_t i = 0; i < slice.count; ++i)
        nulls += is_null(slice, i);
    return nulls;
}

} // namespace zeb::engine
