/// Strings of an array lie anywhere in memory: a loop over them asks for the next ones beforehand.
#pragma once

#include <cstddef>

namespace zeb::engine
{

/// Called with each index below `count` in turn. `storage_of` returns what has the characters of a string as
/// its `data`. Strings may be nil.
template <class String, class Storage_Of>
inline void prefetch_text(String const *strings, std::size_t index, std::size_t count,
                          Storage_Of storage_of) noexcept
{
    constexpr std::size_t objects_ahead = 32, characters_ahead = 12;
    if (index + objects_ahead >= count)
        return;
    __builtin_prefetch(strings[index + objects_ahead]);
    if (strings[index + characters_ahead] != String{})
        __builtin_prefetch(storage_of(strings[index + characters_ahead]).data);
}

} // namespace zeb::engine
