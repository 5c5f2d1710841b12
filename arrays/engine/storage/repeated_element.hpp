/// One element stored into several slots.
#pragma once

#include "arrays/engine/storage/array_storage.hpp"
#include "arrays/engine/storage/lifetime.hpp"

namespace zeb::engine
{

/// Call `prepare` for every slot before the first `store`. The first slot may take over the caller's
/// reference; the others take references of their own.
template <class Kind>
class Repeated_Element
{
public:
    Repeated_Element(Vector_Storage<Kind> target, typename Kind::Element stored) noexcept
        : vector(target), element(stored)
    {
    }

    bool prepare(std::uint32_t index) const noexcept
    {
        return vector.kind.prepare(vector.data + index, &element, 1);
    }

    void store(std::uint32_t index) noexcept
    {
        assign_from(source, vector.kind, vector.data + index, &element, 1);
        source = Source::of_another_array;
    }

private:
    Vector_Storage<Kind> vector;
    typename Kind::Element element;
    Source source = Source::of_the_caller;
};

} // namespace zeb::engine
