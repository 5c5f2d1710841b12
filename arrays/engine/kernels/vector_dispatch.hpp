/// One table of kernels for each processor generation, and the choice among them. A kernel file defines its
/// table in the namespace of each vector target, or once from plain loops where the vector library is
/// missing, and returns `ZEB_CHOSEN(table)`.
#pragma once

#include <cstddef>

#if ZEB_HAS_HIGHWAY
#include <hwy/highway.h>

namespace zeb::engine::kernels
{
/// The index of the processor in use among the targets. Detects the processor on first use.
inline std::size_t chosen_target() noexcept
{
    hwy::ChosenTarget &chosen = hwy::GetChosenTarget();
    const std::size_t index = chosen.GetIndex();
    if (HWY_LIKELY(index != 0))
        return index;
    chosen.Update(hwy::SupportedTargets());
    return chosen.GetIndex();
}
} // namespace zeb::engine::kernels

#if HWY_IDE || (HWY_TARGETS & (HWY_TARGETS - 1)) == 0
#define ZEB_CHOSEN(table) HWY_STATIC_DISPATCH(table)
#else
// An array of tables rather than of functions: a call costs no more than through the library's own dispatch.
#define ZEB_CHOSEN(table)                                                                                    \
    ([]() noexcept -> decltype((HWY_STATIC_DISPATCH(table))) {                                               \
        static constexpr decltype(&HWY_STATIC_DISPATCH(table)) tables[HWY_MAX_DYNAMIC_TARGETS + 2] = {       \
            nullptr, HWY_CHOOSE_TARGET_LIST(table), HWY_CHOOSE_FALLBACK(table)};                             \
        return *tables[zeb::engine::kernels::chosen_target()];                                               \
    }())
#endif

#else

#define ZEB_CHOSEN(table) (table)

namespace zeb::engine::kernels
{
/// Converts to a pointer to a function that calls a plain loop. A generic lambda would do, but g++ does not
/// convert one in a template.
template <class Loop>
struct Plain_Entry {
    template <bool Never_Throws, class Result, class... Arguments>
    using Function = Result(Arguments...) noexcept(Never_Throws);

    template <bool Never_Throws, class Result, class... Arguments>
    constexpr operator Function<Never_Throws, Result, Arguments...> *() const noexcept
    {
        return [](Arguments... arguments) noexcept -> Result { return Loop()(arguments...); };
    }
};
} // namespace zeb::engine::kernels

/// A table's entry for the plain loop of the same purpose.
#define ZEB_PLAIN(loop)                                                                                      \
    zeb::engine::kernels::Plain_Entry<decltype([](auto... arguments) { return plain::loop(arguments...); })>()

#endif
