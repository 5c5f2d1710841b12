/// The engine's access to the arrays of C++ programs.
#pragma once

#include <Korvane_ZEB_engine/array.hpp>

#include "arrays/engine/storage/array_storage.hpp"
#include "core/engine/char_span.hpp"

namespace zeb::detail
{

struct Array_Access {
    /// Calls `change` with the array's storage and a report; false if it reported.
    template <Element Type, class Change>
    static bool try_to(Array<Type> &array, Change change) noexcept
    {
        bool succeeds = true;
        std::uint32_t link_marker = 0;
        change(
            engine::Array_Storage<engine::Plain_Elements<Type>>{
                {array.block, array.count, link_marker, {}}, array.room, array.seed},
            [&](engine::Char_Span) { succeeds = false; });
        return succeeds;
    }
};

} // namespace zeb::detail
