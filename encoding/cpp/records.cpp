#include <Korvane_ZEB_engine/records.hpp>

#include "arrays/cpp/array_access.hpp"
#include "arrays/cpp/element_types.hpp"
#include "encoding/engine/binary_header.hpp"
#include "encoding/engine/binary_record.hpp"

#include <algorithm>
#include <cstring>

namespace zeb
{
namespace
{

const char *characters_of(Bytes bytes) noexcept { return reinterpret_cast<const char *>(bytes.data()); }

/// The records as the engine reads them: none is longer than 32 bits count.
engine::Record_Source source_of(const Records &records) noexcept
{
    const std::size_t length = std::min<std::size_t>(records.bytes.size(), UINT32_MAX);
    return {characters_of(records.bytes), static_cast<std::uint32_t>(length), records.needs_swap};
}

/// Makes room behind a buffer's bytes, and finds what lies in the buffer again where the block has moved.
class Extension
{
public:
    Extension(Array<std::uint8_t> &extended, std::uint64_t size) noexcept
        : former(reinterpret_cast<std::uintptr_t>(extended.data())), count(extended.size()), buffer(extended),
          succeeds(size < greatest_count && extended.resize(count + size))
    {
    }

    bool is_valid() const noexcept { return succeeds; }

    char *begin() const noexcept { return reinterpret_cast<char *>(buffer.data()) + count; }

    const void *find(const void *source) const noexcept
    {
        const std::size_t offset = reinterpret_cast<std::uintptr_t>(source) - former;
        return offset < count ? buffer.data() + offset : source;
    }

private:
    std::uintptr_t former;
    std::size_t count;
    Array<std::uint8_t> &buffer;
    bool succeeds;
};

/// Writes a record and returns the position after it.
char *put_record(char *out, std::size_t count, const void *elements, std::size_t size) noexcept
{
    return engine::put_record(out, static_cast<std::uint32_t>(count), elements, size);
}

void skip(Records &records, std::size_t size) noexcept { records.bytes = records.bytes.subspan(size); }

} // namespace

bool append_header(Array<std::uint8_t> &buffer) noexcept
{
    const Extension header(buffer, engine::binary_header_size);
    if (header.is_valid())
        engine::write_binary_header(header.begin());
    return header.is_valid();
}

std::optional<Records> read_header(Bytes file) noexcept
{
    constexpr std::uint32_t size = engine::binary_header_size;
    const engine::Header_Origin origin = engine::header_origin(
        characters_of(file), static_cast<std::uint32_t>(std::min<std::size_t>(file.size(), size)));
    if (origin == engine::Header_Origin::foreign)
        return std::nullopt;
    return Records{file.subspan(size), origin == engine::Header_Origin::other_byte_order};
}

template <Element Type>
bool detail::append_record(Array<std::uint8_t> &buffer, std::span<const Type> values) noexcept
{
    const Extension record(buffer, engine::record_count_size + std::uint64_t{values.size_bytes()});
    if (record.is_valid())
        put_record(record.begin(), values.size(), record.find(values.data()), values.size_bytes());
    return record.is_valid();
}

bool append_text_records(Array<std::uint8_t> &buffer, std::span<const std::string_view> texts) noexcept
{
    std::uint64_t size = engine::record_count_size;
    for (const std::string_view text : texts)
        size += engine::record_count_size + text.size();
    const Extension records(buffer, size);
    if (!records.is_valid())
        return false;
    char *out = put_record(records.begin(), texts.size(), nullptr, 0);
    for (const std::string_view text : texts)
        out = put_record(out, text.size(), records.find(text.data()), text.size());
    return true;
}

template <Element Type>
bool take_record(Records &records, Array<Type> &values) noexcept
{
    const engine::Record_Source source = source_of(records);
    std::uint32_t size = 0;
    const bool is_decoded = detail::Array_Access::try_to(
        values, [&](auto array, auto report) { size = engine::decode_plain(array, source, report); });
    skip(records, size);
    return is_decoded;
}

std::optional<std::string_view> take_text(Records &records) noexcept
{
    const engine::Record_Source source = source_of(records);
    const std::uint32_t size = engine::record_size(source, sizeof(char));
    if (size == 0)
        return std::nullopt;
    skip(records, size);
    return std::string_view(source.bytes + engine::record_count_size, size - engine::record_count_size);
}

std::optional<std::uint32_t> take_count(Records &records) noexcept
{
    if (records.bytes.size() < engine::record_count_size)
        return std::nullopt;
    const std::uint32_t count = engine::read_count(characters_of(records.bytes), records.needs_swap);
    skip(records, engine::record_count_size);
    return count;
}

#define ZEB_INSTANTIATE(Type)                                                                                \
    template bool detail::append_record(Array<std::uint8_t> &, std::span<const Type>) noexcept;              \
    template bool take_record(Records &, Array<Type> &) noexcept;
ZEB_FOR_EACH_ELEMENT_TYPE

} // namespace zeb
