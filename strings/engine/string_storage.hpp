/// The storage of growable strings.
#pragma once

#include "arrays/engine/storage/array_storage.hpp"
#include "arrays/engine/storage/element_kinds.hpp"

namespace zeb::engine
{

template <class Character>
using Text_Storage = Array_Storage<Plain_Elements<Character>>;

using Char_Storage = Text_Storage<char>;
using Wide_Char_Storage = Text_Storage<std::uint32_t>;

} // namespace zeb::engine
