/*
 * The values of an archive: under their keys, or, where a coder has no keys, in order.
 */
#import <Foundation/Foundation.h>

#include "arrays/engine/storage/array_storage.hpp"

namespace zeb::engine
{

/// Write a value. What the platform throws meanwhile passes through: the archive is spoiled, and its maker
/// has to know.
void archive_integer(NSCoder *coder, NSString *key, int64_t value);
void archive_bytes(NSCoder *coder, NSString *key, const char *bytes, uint32_t count);

/// Read an integer. Return false if the archive lacks it, if another kind of value is in its place, and if it
/// does not fit.
bool unarchive_integer(NSCoder *coder, NSString *key, int64_t &value) noexcept;
bool unarchive_unsigned(NSCoder *coder, NSString *key, uint32_t &value) noexcept;

/// A block of bytes beside any object.
class Byte_Block
{
public:
    Byte_Block() = default;
    ~Byte_Block() { release(data); }
    Byte_Block(const Byte_Block &) = delete;
    Byte_Block &operator=(const Byte_Block &) = delete;

    Array_Storage<Plain_Elements<char>> storage() noexcept
    {
        return {{data, count, marker, {}}, capacity, 256};
    }

private:
    char *data = nullptr;
    uint32_t count = 0;
    uint32_t marker = 0;
    uint32_t capacity = 0;
};

/// Bytes that `archive_bytes` wrote. Those of a coder without keys are copied piece by piece, so that never
/// more is allocated than the archive has.
class Archived_Bytes
{
public:
    Archived_Bytes(NSCoder *coder, NSString *key) noexcept;

    const char *bytes() const noexcept { return data; }

    /// 0 if the archive lacks them, or has another kind of value in their place.
    uint32_t count() const noexcept { return length; }

    /// Whether it was the allocator that failed.
    bool lacks_memory() const noexcept { return no_memory; }

private:
    void read_by_key(NSCoder *coder, NSString *key);
    void read_in_order(NSCoder *coder);

    const char *data = nullptr;
    uint32_t length = 0;
    bool no_memory = false;
    Byte_Block copy;
};

} // namespace zeb::engine
