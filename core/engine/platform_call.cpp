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

} // namespace zeb::engine
