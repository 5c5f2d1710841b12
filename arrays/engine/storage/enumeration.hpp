/// Handing a whole block of objects to an enumeration.
#pragma once

#include <cstddef>
#include <cstdint>

namespace zeb::engine
{

/// Sets an enumeration's state to all elements at the first call, and to none at the second. A change of
/// the block's place is seen as a mutation. Answers how many elements are handed over.
template <class State, class Element>
std::size_t hand_over_once(State &state, Element *&data, std::uint32_t count) noexcept
{
    if (state.state != 0)
        return 0;
    state.state = 1;
    state.itemsPtr = reinterpret_cast<decltype(state.itemsPtr)>(data);
    state.mutationsPtr = reinterpret_cast<decltype(state.mutationsPtr)>(&data);
    return count;
}

} // namespace zeb::engine
