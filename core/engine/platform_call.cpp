#include "core/engine/platform_call.hpp"

namespace zeb::engine
{

void *result_or_null(void *(*make)()) noexcept
{
    try {
        return make();
    } catch (...) {
        return nullptr;
    }
}

bool runs_through(void (*work)(void *), void *context) noexcept
{
    try {
        work(context);
        return true;
    } catch (...) {
        return false;
    }
}

} // namespace zeb::engine
