/// Fast enumeration of a block of objects.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine
{

/// Sets an enumeration's state to all elements on the first call and to none on the second, and returns their
/// number. A moved block counts as a mutation.
template <class State, class Element>
std::size_t enumerate_all_at_once(State &state, Element *&data, std::uint32_t count) noexcept
{
    if (state.state != 0)
        return 0;
    state.state = 1;
    state.itemsPtr = reinterpret_cast<decltype(state.itemsPtr)>(data);
    state.mutationsPtr = reinterpret_cast<decltype(state.mutationsPtr)>(&data);
    return count;
}

} // namespace zeb::engine
