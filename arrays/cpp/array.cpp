#include <Korvane_ZEB_engine/array.hpp>

#include "arrays/cpp/array_access.hpp"
#include "arrays/cpp/element_types.hpp"
#include "arrays/engine/storage/insertion.hpp"

namespace zeb
{
namespace
{

using detail::Array_Access;

template <Element Type>
engine::Elements_Of<engine::Plain_Elements<Type>> run_of(std::span<const Type> values) noexcept
{
    return {values.data(), static_cast<std::uint32_t>(values.size())};
}

} // namespace

template <Element Type>
Array<Type>::~Array()
{
    engine::release(block);
}

template <Element Type>
bool Array<Type>::copy(std::span<const Type> values) noexcept
{
    return values.size() < greatest_count && Array_Access::try_to(*this, [&](auto array, auto report) {
               engine::set_contents(array, run_of(values), report);
           });
}

template <Element Type>
bool Array<Type>::append_with_growth(Type value) noexcept
{
    return Array_Access::try_to(
        *this, [&](auto array, auto report) { engine::append_with_growth(array, value, report); });
}

template <Element Type>
bool Array<Type>::append(std::span<const Type> values) noexcept
{
    return insert(count, values);
}

template <Element Type>
bool Array<Type>::insert(std::size_t index, std::span<const Type> values) noexcept
{
    const auto at = static_cast<std::uint32_t>(index < count ? index : count);
    return values.size() < greatest_count && Array_Access::try_to(*this, [&](auto array, auto report) {
               engine::insert_elements(array, run_of(values), at, report);
           });
}

template <Element Type>
void Array<Type>::remove(std::size_t index, std::size_t number) noexcept
{
    if (index >= count || number == 0)
        return;
    const auto at = static_cast<std::uint32_t>(index);
    const auto removed = static_cast<std::uint32_t>(std::min<std::size_t>(number, count - index));
    Array_Access::try_to(*this, [&](auto array, auto) {
        engine::remove_elements<engine::Plain_Elements<Type>>(array, at, removed);
    });
}

template <Element Type>
bool Array<Type>::resize(std::size_t new_count) noexcept
{
    if (!reserve(new_count))
        return false;
    count = static_cast<std::uint32_t>(new_count);
    return true;
}

template <Element Type>
bool Array<Type>::reserve(std::size_t wanted) noexcept
{
    return Array_Access::try_to(*this, [&](auto array, auto report) { engine::grow(array, wanted, report); });
}

template <Element Type>
void Array<Type>::trim() noexcept
{
    Array_Access::try_to(*this, [&](auto array, auto report) { engine::trim(array, report); });
}

#define ZEB_INSTANTIATE(Type) template class Array<Type>;
ZEB_FOR_EACH_ELEMENT_TYPE

} // namespace zeb
