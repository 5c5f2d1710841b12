/// Built as a user would who asks for all that the compiler can do.
#include "benchmarks/strings/string_rows.hpp"

namespace zeb_bench
{

void compiled_widening(const char *__restrict bytes, std::size_t count, std::uint32_t *__restrict units)
{
    for (std::size_t i = 0; i < count; ++i)
        units[i] = static_cast<std::uint32_t>(static_cast<signed char>(bytes[i]));
}

} // namespace zeb_bench
